#include "openstreet/gl/TileQuads.h"

namespace OpenStreet {

namespace {

constexpr VESK::OpenGL::VertexColour kOpaque{255, 255, 255, 255};

/// A tile is a square in Web Mercator; in another projection its height is cut into strips.
WindowPoint windowPoint(const Camera& camera, WorldPoint mercator)
{
    if (camera.projection().type() != ProjectionType::eMercator) {
        const GeoPoint place = Projection(ProjectionType::eMercator).toGeo(mercator);
        mercator.y = camera.projection().toWorld(place).y;
    }
    return camera.worldToWindow(mercator);
}

} // namespace

std::vector<VESK::OpenGL::Vertex> tileTriangles(const Camera& camera, const TilePlace& place, const QRectF& part)
{
    WorldPoint northWest, southEast;
    TileCover::bounds(place, northWest, southEast);
    const int strips = camera.projection().type() == ProjectionType::eMercator ? 1 : 16;
    const auto vertex = [&](bool isRight, int row) {
        const double down = static_cast<double>(row) / strips;
        const double y = row == strips ? southEast.y : northWest.y + (southEast.y - northWest.y) * down;
        const WindowPoint at = windowPoint(camera, {isRight ? southEast.x : northWest.x, y});
        return VESK::OpenGL::Vertex{static_cast<float>(at.x), static_cast<float>(at.y), static_cast<float>(isRight ? part.right() : part.left()),
                                    static_cast<float>(part.top() + part.height() * down), kOpaque};
    };
    std::vector<VESK::OpenGL::Vertex> result;
    for (int row = 0; row < strips; ++row) {
        const VESK::OpenGL::Vertex a = vertex(false, row), b = vertex(true, row), c = vertex(false, row + 1), d = vertex(true, row + 1);
        result.insert(result.end(), {a, b, c, b, d, c});
    }
    return result;
}

} // namespace OpenStreet
