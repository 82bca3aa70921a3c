#include "ui/canvas/Canvas.h"

#include "ui/canvas/CanvasFont.h"
#include "ui/canvas/Triangulation.h"

#include <array>
#include <cmath>

namespace ZARN {

void Canvas::polygon(std::span<const QPointF> points, const QColor& colour)
{
    triangles(triangulate(points), colour);
}

QSizeF Canvas::textSize(const QString& text, const CanvasText& style) const
{
    return canvasTextSize(text, style.size, style.bold);
}

QPointF Canvas::textOrigin(const QPointF& position, const QString& text, const CanvasText& style) const
{
    QSizeF box = textSize(text, style);
    if (style.upwards)
        box.transpose();
    QPointF origin = position;
    if (style.align & Qt::AlignRight)
        origin.rx() -= box.width();
    else if (style.align & Qt::AlignHCenter)
        origin.rx() -= box.width() / 2;
    if (style.align & Qt::AlignBottom)
        origin.ry() -= box.height();
    else if (style.align & Qt::AlignVCenter)
        origin.ry() -= box.height() / 2;
    if (style.upwards)
        origin.ry() += box.height();
    return snapped(origin);
}

QPointF Canvas::snapped(const QPointF& point) const
{
    return {std::round(point.x()), std::round(point.y())};
}

void Canvas::outline(const QRectF& rect, const CanvasPen& pen)
{
    const double left = rect.left(), top = rect.top(), right = rect.right() - 1, bottom = rect.bottom() - 1;
    const std::array corners{QPointF(left, top), QPointF(right, top), QPointF(right, bottom), QPointF(left, bottom), QPointF(left, top)};
    lineStrip(corners, pen);
}

} // namespace ZARN
