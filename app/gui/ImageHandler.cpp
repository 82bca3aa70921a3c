#include "app/gui/ImageHandler.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

namespace {

const QColor kLineColour(0x1f, 0x3a, 0x5f);
constexpr qreal kDisabledOpacity = 0.35;

/// Draws one line drawing; unlike the toolkit's own engine it needs no plug-in and can colour the lines.
class LineIconEngine : public QIconEngine {
public:
    LineIconEngine(const QByteArray& drawing, const QColor& colour)
        : mDrawing(QByteArray(drawing).replace("currentColor", colour.name().toLatin1())),
          mSelected(QByteArray(drawing).replace("currentColor", "#ffffff"))
    {
    }

    void paint(QPainter* pPainter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        QSvgRenderer renderer(mode == QIcon::Selected ? mSelected : mDrawing);
        pPainter->save();
        pPainter->setRenderHint(QPainter::Antialiasing);
        if (mode == QIcon::Disabled)
            pPainter->setOpacity(pPainter->opacity() * kDisabledOpacity);
        renderer.render(pPainter, rect);
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
    QByteArray mSelected; ///< on the dark ground of a chosen entry
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
    return icon(name, kLineColour);
}

QIcon ImageHandler::icon(const QString& name, const QColor& colour)
{
    QFile file(":/icons/" + name + ".svg");
    return QIcon(new LineIconEngine(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(), colour));
}
