#include "vesk/gl/Lines.h"

#include "vesk/gl/Device.h"
#include "vesk/gl/Strokes.h"

namespace VESK::OpenGL {

void Lines::addLine(double x1, double y1, double x2, double y2)
{
    mPoints.emplace_back(x1, y1);
    mPoints.emplace_back(x2, y2);
}

void Lines::draw(Device& device) const
{
    Strokes strokes(mStyle, device.ratio());
    const VertexColour colour = vertexColour(mStyle.colour);
    for (std::size_t i = 0; i + 1 < mPoints.size(); i += 2)
        strokes.addLine(device.matrix().map(mPoints[i]), device.matrix().map(mPoints[i + 1]), colour, colour);
    device.addTriangles(strokes.triangles());
}

} // namespace VESK::OpenGL
