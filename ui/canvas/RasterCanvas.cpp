#include "ui/canvas/RasterCanvas.h"

#include "ui/canvas/CanvasFont.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace ZARN {

namespace {

/// Beyond it a painter's fixed-point arithmetic would overflow.
constexpr double kFarthest = 1e6;

/// Points of a strip that are drawn at once: a wide line that crosses itself takes its painter a time that grows with their square.
constexpr qsizetype kPiece = 64;

QPointF held(const QPointF& point)
{
    return {std::clamp(point.x(), -kFarthest, kFarthest), std::clamp(point.y(), -kFarthest, kFarthest)};
}

bool isFinite(const QPointF& point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

bool isFinite(const QRectF& rect)
{
    return isFinite(rect.topLeft()) && isFinite(rect.bottomRight());
}

/// @param ratio pixels of the screen for each of the canvas
QPen painterPen(const CanvasPen& pen, double ratio)
{
    // Flat caps end where the point is, which leaves out the last pixel of thin lines.
    QPen out(pen.colour, pen.width * ratio, Qt::SolidLine, pen.width > 1 ? Qt::FlatCap : Qt::SquareCap, pen.width > 1 ? Qt::RoundJoin : Qt::MiterJoin);
    out.setCosmetic(true);
    if (pen.dash > 0) {
        const double length = pen.dash / std::max(pen.width, 1.0);
        out.setCapStyle(Qt::FlatCap);
        out.setDashPattern({length, length});
    }
    return out;
}

} // namespace

/// Sets pen and smoothing for one operation. Smoothed lines, and those on a dense screen, run through the middle of the pixels that their
/// points name; others are so by the painter's own rule.
class RasterCanvas::Scope {
public:
    Scope(QPainter& painter, const CanvasPen& pen) : mPainter(painter)
    {
        mPainter.save();
        mPainter.setRenderHint(QPainter::Antialiasing, pen.smooth);
        const double ratio = mPainter.device()->devicePixelRatioF();
        mPainter.setPen(painterPen(pen, ratio));
        mPainter.setBrush(Qt::NoBrush);
        if (pen.smooth || ratio > 1) {
            const QTransform& now = painter.worldTransform();
            painter.setWorldTransform(now * QTransform::fromTranslate(0.5, 0.5));
        }
    }
    ~Scope() { mPainter.restore(); }
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

private:
    QPainter& mPainter;
};

void RasterCanvas::push()
{
    mPainter.save();
}

void RasterCanvas::pop()
{
    mPainter.restore();
}

void RasterCanvas::translate(double x, double y)
{
    mPainter.translate(x, y);
}

void RasterCanvas::scale(double x, double y)
{
    mPainter.scale(x, y);
}

void RasterCanvas::clip(const QRectF& rect)
{
    mPainter.setClipRect(rect, Qt::IntersectClip);
}

void RasterCanvas::lines(std::span<const QPointF> points, const CanvasPen& pen)
{
    const Scope scope(ready(), pen);
    for (std::size_t i = 0; i + 1 < points.size(); i += 2) {
        if (isFinite(points[i]) && isFinite(points[i + 1]))
            mPainter.drawLine(held(points[i]), held(points[i + 1]));
    }
}

void RasterCanvas::lineStrip(std::span<const QPointF> points, const CanvasPen& pen)
{
    const Scope scope(ready(), pen);
    drawStrip(points);
}

void RasterCanvas::drawStrip(std::span<const QPointF> points)
{
    QPolygonF strip;
    const auto finish = [&] {
        if (strip.size() > 1)
            mPainter.drawPolyline(strip);
        strip.clear();
    };
    for (const QPointF& point : points) {
        if (!isFinite(point)) {
            finish();
            continue;
        }
        strip << held(point);
        if (strip.size() == kPiece && mPainter.pen().style() == Qt::SolidLine) { // dashes would begin anew
            finish();
            strip << held(point);
        }
    }
    finish();
}

void RasterCanvas::lineStrip(std::span<const QPointF> points, std::span<const QColor> colours, const CanvasPen& pen)
{
    const Scope scope(ready(), pen);
    QPen linePen = mPainter.pen();
    linePen.setCapStyle(Qt::RoundCap);
    for (std::size_t i = 0; i + 1 < std::min(points.size(), colours.size()); ++i) {
        if (!isFinite(points[i]) || !isFinite(points[i + 1]))
            continue;
        QLinearGradient gradient(points[i], points[i + 1]);
        gradient.setColorAt(0, colours[i]);
        gradient.setColorAt(1, colours[i + 1]);
        linePen.setBrush(colours[i] == colours[i + 1] ? QBrush(colours[i]) : QBrush(gradient));
        mPainter.setPen(linePen);
        mPainter.drawLine(held(points[i]), held(points[i + 1]));
    }
}

void RasterCanvas::fillRect(const QRectF& rect, const QColor& colour)
{
    if (isFinite(rect))
        ready().fillRect(QRectF(held(rect.topLeft()), held(rect.bottomRight())), colour);
}

void RasterCanvas::triangles(std::span<const QPointF> points, const QColor& colour)
{
    ready().save();
    mPainter.setPen(Qt::NoPen);
    mPainter.setBrush(colour);
    for (std::size_t i = 0; i + 2 < points.size(); i += 3) {
        if (isFinite(points[i]) && isFinite(points[i + 1]) && isFinite(points[i + 2]))
            mPainter.drawConvexPolygon(QPolygonF{held(points[i]), held(points[i + 1]), held(points[i + 2])});
    }
    mPainter.restore();
}

void RasterCanvas::polygon(std::span<const QPointF> points, const QColor& colour)
{
    QPolygonF outline;
    for (const QPointF& point : points) {
        if (!isFinite(point))
            return;
        outline << held(point);
    }
    ready().save();
    mPainter.setPen(Qt::NoPen);
    mPainter.setBrush(colour);
    mPainter.drawPolygon(outline);
    mPainter.restore();
}

QFont RasterCanvas::font(const CanvasText& style) const
{
    return canvasFont(style.size, style.bold);
}

void RasterCanvas::text(const QPointF& position, const QString& text, const CanvasText& style)
{
    if (!isFinite(position) || text.isEmpty())
        return;
    ready().save();
    mPainter.translate(textOrigin(position, text, style));
    if (style.upwards)
        mPainter.rotate(-90);
    const QPointF base(0, canvasAscent(style.size));
    if (mPainter.paintEngine()->type() == QPaintEngine::SVG) { // which would only name the font, and nobody else has it
        QPainterPath outlines;
        outlines.addText(base, font(style), text);
        mPainter.fillPath(outlines, style.colour);
    } else {
        mPainter.setFont(font(style));
        mPainter.setPen(style.colour);
        mPainter.drawText(base, text);
    }
    mPainter.restore();
}

void RasterCanvas::image(const QRectF& target, const QImage& image)
{
    if (isFinite(target) && !image.isNull())
        ready().drawImage(target, image);
}

} // namespace ZARN
