#pragma once

#include "ui/canvas/Canvas.h"

#include <QFont>

class QPainter;

namespace ZARN {

/// A canvas on a painter: images, PDF, SVG, printers, and windows where there is no OpenGL. The painter is not owned; its state is as
/// it was once every push() has had its pop().
class RasterCanvas : public Canvas {
public:
    explicit RasterCanvas(QPainter& painter) : mPainter(painter) {}

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

protected:
    /// The painter for whatever is drawn next.
    virtual QPainter& ready() { return mPainter; }
    /// What texts are set in; textSize() tells of the same font.
    [[nodiscard]] virtual QFont font(const CanvasText& style) const;

    QPainter& mPainter;

private:
    class Scope;
    void drawStrip(std::span<const QPointF> points);
};

} // namespace ZARN
