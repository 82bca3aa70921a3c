#include "vesk/gl/LineStripsSimple.h"

#include "vesk/gl/Device.h"
#include "vesk/gl/Strokes.h"

#include <cmath>

namespace VESK::OpenGL {

void LineStripsSimple::beginStrip()
{
    mStarts.push_back(mPoints.size());
}

void LineStripsSimple::addVertex(const QPointF& point, const QColor& colour)
{
    mPoints.push_back(point);
    if (mHasColours) {
        mColours.resize(mPoints.size() - 1, mStyle.colour);
        mColours.push_back(colour);
    }
}

void LineStripsSimple::addStrip(std::span<const QPointF> points)
{
    beginStrip();
    mPoints.insert(mPoints.end(), points.begin(), points.end());
    if (mHasColours)
        mColours.resize(mPoints.size(), mStyle.colour);
}

void LineStripsSimple::clear()
{
    mPoints.clear();
    mColours.clear();
    mStarts.clear();
}

void LineStripsSimple::draw(Device& device) const
{
    std::size_t first = 0;
    for (const std::size_t start : mStarts) {
        drawStrip(device, first, start);
        first = start;
    }
    drawStrip(device, first, mPoints.size());
}

void LineStripsSimple::drawStrip(Device& device, std::size_t first, std::size_t last) const
{
    if (last < first + 2)
        return;
    if (Strokes::isThin(mStyle, device.ratio()))
        return drawThin(device, first, last);
    std::vector<QPointF> points;
    points.reserve(last - first);
    for (std::size_t i = first; i < last; ++i)
        points.push_back(device.matrix().map(mPoints[i]));
    std::vector<VertexColour> colours{vertexColour(colour(first))};
    for (std::size_t i = first + 1; mHasColours && i < last; ++i)
        colours.push_back(vertexColour(colour(i)));
    Strokes strokes(mStyle, device.ratio());
    strokes.addStrip(points, colours);
    device.addTriangles(strokes.triangles());
}

void LineStripsSimple::drawThin(Device& device, std::size_t first, std::size_t last) const
{
    std::vector<Vertex> vertices;
    vertices.reserve((last - first) * 2);
    const VertexColour plain = vertexColour(mStyle.colour);
    const auto vertex = [&](std::size_t i) {
        const QPointF at = device.matrix().map(mPoints[i]);
        const VertexColour bytes = mHasColours ? vertexColour(mColours[i]) : plain;
        return Vertex{static_cast<float>(at.x()) + 0.5F, static_cast<float>(at.y()) + 0.5F, 0, kUnsmoothed, bytes};
    };
    Vertex from = vertex(first);
    for (std::size_t i = first + 1; i < last; ++i) {
        const Vertex to = vertex(i);
        if (std::isfinite(from.x + from.y + to.x + to.y)) {
            vertices.push_back(from);
            vertices.push_back(to);
        }
        from = to;
    }
    device.addThinLines(vertices);
}

} // namespace VESK::OpenGL
