#pragma once

#include <QColor>

#include <array>
#include <cmath>
#include <cstdint>

namespace VESK::OpenGL {

/// Red, green, blue and alpha as a vertex carries them, multiplied by alpha.
using VertexColour = std::array<uint8_t, 4>;

[[nodiscard]] inline VertexColour vertexColour(const QColor& colour)
{
    const auto byte = [&](float part) { return static_cast<uint8_t>(std::lround(part * colour.alphaF() * 255.0F)); };
    return {byte(colour.redF()), byte(colour.greenF()), byte(colour.blueF()), static_cast<uint8_t>(colour.alpha())};
}

/// One corner of what is drawn, in pixels of the view. With a texture u and v are its coordinates; without one, u is the distance
/// from the middle of the line and v half the line's width, in pixels of the screen, from which the shader smooths its edges.
struct Vertex {
    float x;
    float y;
    float u;
    float v;
    VertexColour colour;
};
static_assert(sizeof(Vertex) == 20);

/// A half width whose edges are far away: nothing is smoothed.
inline constexpr float kUnsmoothed = 1e6F;

} // namespace VESK::OpenGL
