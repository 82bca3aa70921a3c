#pragma once

#include "vesk/gl/LineStyle.h"

#include <QPointF>

#include <span>
#include <vector>

namespace VESK::OpenGL {

class Device;

/// Line strips of one width, in one colour or with a colour for each vertex. Collects them and draws them with the matrix that is then
/// in force.
class LineStripsSimple {
public:
    void setColour(const QColor& colour) { mStyle.colour = colour; }
    void setLineWidth(double pixels) { mStyle.width = pixels; }
    void setAntiAliasing(bool on) { mStyle.smooth = on; }
    void setStyle(const LineStyle& style) { mStyle = style; }
    /// Whether each vertex has a colour of its own.
    void setVertexColours(bool on) { mHasColours = on; }

    /// Begins the next strip.
    void beginStrip();
    void addVertex(const QPointF& point) { addVertex(point, mStyle.colour); }
    void addVertex(const QPointF& point, const QColor& colour);
    void addStrip(std::span<const QPointF> points);
    [[nodiscard]] std::size_t vertexCount() const { return mPoints.size(); }
    void clear();
    void draw(Device& device) const;

private:
    void drawStrip(Device& device, std::size_t first, std::size_t last) const;
    void drawThin(Device& device, std::size_t first, std::size_t last) const;
    [[nodiscard]] QColor colour(std::size_t vertex) const { return mHasColours ? mColours[vertex] : mStyle.colour; }

    LineStyle mStyle;
    bool mHasColours = false;
    std::vector<QPointF> mPoints;
    std::vector<QColor> mColours;
    std::vector<std::size_t> mStarts;
};

} // namespace VESK::OpenGL
