#include "ui/canvas/CanvasRecord.h"

namespace ZARN {

namespace {

template <typename T> std::vector<T> kept(std::span<const T> values)
{
    return {values.begin(), values.end()};
}

} // namespace

void CanvasRecord::replay(Canvas& canvas) const
{
    for (const auto& step : mSteps)
        step(canvas);
}

void CanvasRecord::push()
{
    mSteps.emplace_back([](Canvas& canvas) { canvas.push(); });
}

void CanvasRecord::pop()
{
    mSteps.emplace_back([](Canvas& canvas) { canvas.pop(); });
}

void CanvasRecord::translate(double x, double y)
{
    mSteps.emplace_back([x, y](Canvas& canvas) { canvas.translate(x, y); });
}

void CanvasRecord::scale(double x, double y)
{
    mSteps.emplace_back([x, y](Canvas& canvas) { canvas.scale(x, y); });
}

void CanvasRecord::clip(const QRectF& rect)
{
    mSteps.emplace_back([rect](Canvas& canvas) { canvas.clip(rect); });
}

void CanvasRecord::lines(std::span<const QPointF> points, const CanvasPen& pen)
{
    mSteps.emplace_back([all = kept(points), pen](Canvas& canvas) { canvas.lines(all, pen); });
}

void CanvasRecord::lineStrip(std::span<const QPointF> points, const CanvasPen& pen)
{
    mSteps.emplace_back([all = kept(points), pen](Canvas& canvas) { canvas.lineStrip(all, pen); });
}

void CanvasRecord::lineStrip(std::span<const QPointF> points, std::span<const QColor> colours, const CanvasPen& pen)
{
    mSteps.emplace_back([all = kept(points), tints = kept(colours), pen](Canvas& canvas) { canvas.lineStrip(all, tints, pen); });
}

void CanvasRecord::fillRect(const QRectF& rect, const QColor& colour)
{
    mSteps.emplace_back([rect, colour](Canvas& canvas) { canvas.fillRect(rect, colour); });
}

void CanvasRecord::triangles(std::span<const QPointF> points, const QColor& colour)
{
    mSteps.emplace_back([all = kept(points), colour](Canvas& canvas) { canvas.triangles(all, colour); });
}

void CanvasRecord::polygon(std::span<const QPointF> points, const QColor& colour)
{
    mSteps.emplace_back([all = kept(points), colour](Canvas& canvas) { canvas.polygon(all, colour); });
}

void CanvasRecord::text(const QPointF& position, const QString& text, const CanvasText& style)
{
    mSteps.emplace_back([position, text, style](Canvas& canvas) { canvas.text(position, text, style); });
}

void CanvasRecord::image(const QRectF& target, const QImage& image)
{
    mSteps.emplace_back([target, image](Canvas& canvas) { canvas.image(target, image); });
}

} // namespace ZARN
