#include "vesk/gl/TriangleStrip.h"

#include "vesk/gl/Device.h"

namespace VESK::OpenGL {

void TriangleStrip::setRect(double x, double y, double width, double height)
{
    mPoints = {{x, y}, {x, y + height}, {x + width, y}, {x + width, y + height}};
}

void TriangleStrip::draw(Device& device) const
{
    std::vector<QPointF> triangles;
    for (std::size_t i = 0; i + 2 < mPoints.size(); ++i)
        triangles.insert(triangles.end(), {mPoints[i], mPoints[i + 1], mPoints[i + 2]});
    drawTriangles(device, triangles, mColour);
}

void TriangleStrip::drawTriangles(Device& device, std::span<const QPointF> points, const QColor& colour)
{
    const VertexColour bytes = vertexColour(colour);
    std::vector<Vertex> vertices;
    vertices.reserve(points.size());
    for (std::size_t i = 0; i + 2 < points.size(); i += 3) {
        for (std::size_t k = i; k < i + 3; ++k) {
            const QPointF at = device.matrix().map(points[k]);
            vertices.push_back({static_cast<float>(at.x()), static_cast<float>(at.y()), 0, kUnsmoothed, bytes});
        }
        const Vertex* pCorners = &vertices[vertices.size() - 3];
        if (!std::isfinite(pCorners[0].x + pCorners[0].y + pCorners[1].x + pCorners[1].y + pCorners[2].x + pCorners[2].y))
            vertices.resize(vertices.size() - 3);
    }
    device.addTriangles(vertices);
}

} // namespace VESK::OpenGL
