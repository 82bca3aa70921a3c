#pragma once

#include "ui/canvas/Canvas.h"

#include <functional>
#include <vector>

namespace ZARN {

/// Remembers what is drawn on it, to be drawn on others later: a view goes on while its picture waits for a file's name.
class CanvasRecord : public Canvas {
public:
    CanvasRecord() = default;

    void replay(Canvas& canvas) const;

    void push() override;
    void pop() override;
    void translate(double x, double y) override;
    void scale(double x, double y) override;
    void clip(const QRectF& rect) override;
    void lines(std::span<const QPointF> points, const CanvasPen& pen) override;
    void lineStrip(std::span<const QPointF> points, const CanvasPen& pen) override;
    void lineStrip(std::span<const QPointF> points, std::span<const QColor> colours, const CanvasPen& pen) override;
    void fillRect(const QRectF& rect, const QColor& colour) override;
    void triangles(std::span<const QPointF> points, const QColor& colour) override;
    void polygon(std::span<const QPointF> points, const QColor& colour) override;
    void text(const QPointF& position, const QString& text, const CanvasText& style) override;
    void image(const QRectF& target, const QImage& image) override;

private:
    std::vector<std::function<void(Canvas&)>> mSteps;
};

} // namespace ZARN
