#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <span>

namespace ZARN {

/// How lines and line strips are drawn. The width is in pixels of the canvas, whatever the scale.
struct CanvasPen {
    QColor colour = Qt::black;
    double width = 1.0;
    bool smooth = false;
    double dash = 0.0; ///< length of the dashes and of the gaps between them in pixels; 0 draws solid lines
};

/// How a text is drawn. Always the program's own font, so that a picture looks alike on every machine.
struct CanvasText {
    double size = 12.0; ///< height of the em square in pixels
    QColor colour = Qt::black;
    bool bold = false;
    Qt::Alignment align = Qt::AlignLeft | Qt::AlignTop; ///< which point of the text's box lies at the given position
    bool upwards = false;                               ///< rotated by 90 degrees, read from bottom to top; the box is aligned as it stands then
};

/// The drawing operations that graph and map are written against: pixels with the origin at the top left and y downwards. Points of
/// lines name pixels: a line at y = 3 of width 1 covers the fourth row of pixels; rectangles, triangles and images cover areas between
/// coordinates: a rectangle from 3 to 4 covers that same row. What is drawn later lies above. A coordinate that is not finite draws nothing.
class Canvas {
public:
    virtual ~Canvas() = default;
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    /// Remembers offset, scale and clipping until the pop() that belongs to it.
    virtual void push() = 0;
    virtual void pop() = 0;
    virtual void translate(double x, double y) = 0;
    virtual void scale(double x, double y) = 0;
    /// Draws nothing outside the rectangle and the clipping that is in force, until pop().
    virtual void clip(const QRectF& rect) = 0;

    /// One line for each two points.
    virtual void lines(std::span<const QPointF> points, const CanvasPen& pen) = 0;
    virtual void lineStrip(std::span<const QPointF> points, const CanvasPen& pen) = 0;
    /// A strip whose vertices have colours of their own, blended between them; as many colours as points.
    virtual void lineStrip(std::span<const QPointF> points, std::span<const QColor> colours, const CanvasPen& pen) = 0;
    virtual void fillRect(const QRectF& rect, const QColor& colour) = 0;
    /// One triangle for each three points.
    virtual void triangles(std::span<const QPointF> points, const QColor& colour) = 0;
    /// The inside of a simple polygon, convex or not.
    virtual void polygon(std::span<const QPointF> points, const QColor& colour);
    virtual void text(const QPointF& position, const QString& text, const CanvasText& style) = 0;
    /// Width and height of the box that the text takes, not turned.
    [[nodiscard]] virtual QSizeF textSize(const QString& text, const CanvasText& style) const;
    /// Stretched to the rectangle; with alpha where the image has it. A canvas may keep the image by QImage::cacheKey().
    virtual void image(const QRectF& target, const QImage& image) = 0;

    /// The outline of a rectangle in the pixels along its inner edge.
    void outline(const QRectF& rect, const CanvasPen& pen);

protected:
    Canvas() = default;
    /// Where the text begins: the top left corner of its box, or the bottom left one of a box read upwards.
    [[nodiscard]] QPointF textOrigin(const QPointF& position, const QString& text, const CanvasText& style) const;
    /// The nearest point that a text can begin at: a whole pixel.
    [[nodiscard]] virtual QPointF snapped(const QPointF& point) const;
};

} // namespace ZARN
