#include "app/gui/ImageHandler.h"

#include "ui/canvas/Palette.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <memory>

namespace {

constexpr qreal kDisabledOpacity = 0.35;

/// Draws one line drawing; unlike the toolkit's own engine it needs no plug-in and can colour the lines.
class LineIconEngine : public QIconEngine {
public:
    /// @param colour of its own; an invalid one is that of the palette
    LineIconEngine(const QByteArray& drawing, const QColor& colour) : mDrawing(drawing), mColour(colour) {}

    void paint(QPainter* pPainter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        const ZARN::Palette& palette = ZARN::Palette::screen();
        const QColor colour = mode == QIcon::Selected ? palette.onAccent : mColour.isValid() ? mColour : palette.icon;
        if (!mpRenderer || mDrawnColour != colour) { // reading the drawing costs as much as painting it
            mDrawnColour = colour;
            mpRenderer = std::make_shared<QSvgRenderer>(QByteArray(mDrawing).replace("currentColor", colour.name().toLatin1()));
        }
        pPainter->save();
        pPainter->setRenderHint(QPainter::Antialiasing);
        if (mode == QIcon::Disabled)
            pPainter->setOpacity(pPainter->opacity() * kDisabledOpacity);
        const int side = std::min(rect.width(), rect.height()); // a wider place leaves a gap before what stands beside the icon
        mpRenderer->render(pPainter, QRectF(rect.left(), rect.top() + (rect.height() - side) / 2.0, side, side));
        pPainter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new LineIconEngine(*this); }

private:
    QByteArray mDrawing;
    QColor mColour;
    std::shared_ptr<QSvgRenderer> mpRenderer; // of the drawing in that colour
    QColor mDrawnColour;
};

} // namespace

// Resources of a static library are not registered by themselves; the macro must stand outside every namespace.
static void registerResources()
{
    Q_INIT_RESOURCE(zarn);
}

void ImageHandler::initialise()
{
    registerResources();
}

QIcon ImageHandler::icon(const QString& name)
{
    return icon(name, QColor());
}

QIcon ImageHandler::icon(const QString& name, const QColor& colour)
{
    QFile file(":/icons/" + name + ".svg");
    return QIcon(new LineIconEngine(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(), colour));
}
