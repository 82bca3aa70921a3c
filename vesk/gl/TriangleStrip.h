#pragma once

#include <QColor>
#include <QRectF>

#include <span>
#include <vector>

namespace VESK::OpenGL {

class Device;

/// A filled area of one colour: each vertex after the second makes a triangle with the two before it.
class TriangleStrip {
public:
    void setColour(const QColor& colour) { mColour = colour; }
    /// The strip becomes that rectangle.
    void setRect(double x, double y, double width, double height);
    void setRect(const QRectF& rect) { setRect(rect.x(), rect.y(), rect.width(), rect.height()); }
    void addVertex(const QPointF& point) { mPoints.push_back(point); }
    void clear() { mPoints.clear(); }
    void draw(Device& device) const;

    /// Separate triangles, three points each, for areas that are no strip.
    static void drawTriangles(Device& device, std::span<const QPointF> points, const QColor& colour);

private:
    QColor mColour = Qt::white;
    std::vector<QPointF> mPoints;
};

} // namespace VESK::OpenGL
