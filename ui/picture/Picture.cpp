#include "ui/picture/Picture.h"

#include "app/SafeFile.h"
#include "ui/canvas/RasterCanvas.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSvgGenerator>

namespace ZARN {

namespace {

constexpr int kResolution = 96; // pixels of the view an inch, as browsers have it
constexpr int kHeading = 24;    // height of the line above a drawing

QString translated(const char* text)
{
    return QCoreApplication::translate("ZARN::Picture", text);
}

} // namespace

QImage Picture::image() const
{
    QImage image((QSizeF(mSize) * mRatio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(mRatio);
    image.fill(Qt::white);
    QPainter painter(&image);
    RasterCanvas canvas(painter);
    mPaint(canvas, mSize, false);
    return image;
}

QByteArray Picture::svg() const
{
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(kResolution);
    generator.setSize(mSize);
    generator.setViewBox(QRect(QPoint(), mSize));
    generator.setTitle(mTitle);
    QPainter painter(&generator);
    RasterCanvas canvas(painter);
    mPaint(canvas, mSize, false);
    painter.end();
    return buffer.data();
}

int Picture::heading() const
{
    return mTitle.isEmpty() ? 0 : kHeading;
}

/// A sheet tells whose engine it shows: it has lost the window, and soon its file's name.
void Picture::paintSheet(Canvas& canvas, const QSize& size) const
{
    if (heading() > 0)
        canvas.text({8.0, 4.0}, mTitle, {.size = 13.0, .bold = true});
    canvas.translate(0.0, heading());
    mPaint(canvas, size - QSize(0, heading()), true);
}

QByteArray Picture::pdf() const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(kResolution);
        writer.setTitle(mTitle);
        writer.setPageMargins(QMarginsF());
        const QSize sheet = mSize + QSize(0, heading());
        writer.setPageSize(QPageSize(QSizeF(sheet) * 72.0 / kResolution, QPageSize::Point, QString(), QPageSize::ExactMatch));
        QPainter painter(&writer);
        painter.setRenderHint(QPainter::LosslessImageRendering); // letters of tiles are read
        RasterCanvas canvas(painter);
        paintSheet(canvas, sheet);
    }
    return buffer.data();
}

bool Picture::print(QPrinter& printer) const
{
    printer.setResolution(kResolution); // lines are as wide as a pixel, which would be a hair at that of the printer
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    const double scale = static_cast<double>(printer.resolution()) / kResolution;
    painter.scale(scale, scale);
    RasterCanvas canvas(painter);
    paintSheet(canvas, (QSizeF(printer.pageLayout().paintRectPixels(printer.resolution()).size()) / scale).toSize());
    return painter.end();
}

QByteArray Picture::pixels(const QString& format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format.toLatin1());
    QImage picture = image();
    picture.setDevicePixelRatio(1.0);
    if (!writer.write(picture)) {
        mError = translated(QT_TRANSLATE_NOOP("ZARN::Picture", "Pictures of the format \"%1\" cannot be written")).arg(format);
        return {};
    }
    return buffer.data();
}

bool Picture::save(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    const QString format = suffix.isEmpty() ? QStringLiteral("bmp") : suffix;
    const QByteArray bytes = format == QLatin1String("svg") ? svg() : format == QLatin1String("pdf") ? pdf() : pixels(format);
    if (bytes.isEmpty())
        return false;
    SafeFile file((suffix.isEmpty() ? path + QStringLiteral(".bmp") : path).toStdString());
    if (file.open() && file.write({bytes.constData(), static_cast<std::size_t>(bytes.size())}) && file.commit())
        return true;
    mError = QString::fromStdString(file.error());
    return false;
}

} // namespace ZARN
