#include "openstreet/core/TileCover.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_set>

namespace OpenStreet {

namespace {

constexpr Projection kMercator(ProjectionType::eMercator);
constexpr double kTouch = 1e-6; // pixels of a tile that cannot be seen
constexpr double kHalf = 0.5 * Projection::kWorldWidth;

/// Columns and rows are small: the camera holds range and position.
int index(double position, int tiles)
{
    const double limit = 4.0 * tiles + 4.0;
    return static_cast<int>(std::clamp(std::floor(position), -limit, limit));
}

int wrapped(int column, int tiles)
{
    return ((column % tiles) + tiles) % tiles;
}

} // namespace

std::size_t TileCover::Span::count() const
{
    return right < left || bottom < top ? 0 : static_cast<std::size_t>(right - left + 1) * static_cast<std::size_t>(bottom - top + 1);
}

TileCover::TileCover(const Camera& camera, double pixelRatio, int maxZoom)
{
    const double perTile = kTilePixels * camera.metresPerPixel() / std::max(pixelRatio, 0.25);
    const double wanted = std::round(std::log2(Projection::kWorldWidth / perTile));
    mZoom = static_cast<int>(std::clamp(wanted, 0.0, static_cast<double>(std::clamp(maxZoom, 0, TileId::kMaxZoom))));
    Span span = spanAt(camera, mZoom);
    while (mZoom > 0 && span.count() > kMaxTiles)
        span = spanAt(camera, --mZoom);
    const int tiles = TileId::count(mZoom);
    for (int row = span.top; row <= span.bottom; ++row) {
        for (int column = span.left; column <= span.right; ++column) {
            const TilePlace place{{mZoom, wrapped(column, tiles), row}, column};
            if (isSeen(camera, place))
                mView.push_back(place);
        }
    }
    const double middleX = 0.5 * (span.left + span.right);
    const double middleY = 0.5 * (span.top + span.bottom);
    const auto distance = [=](const TilePlace& place) { return std::hypot(place.column - middleX, place.id.y - middleY); };
    std::stable_sort(mView.begin(), mView.end(),
                     [&](const TilePlace& a, const TilePlace& b) { return distance(a) < distance(b); });
}

TileCover::Span TileCover::spanAt(const Camera& camera, int zoom) const
{
    double west = std::numeric_limits<double>::max(), south = west, east = -west, north = -west;
    for (const WindowPoint corner : {WindowPoint{0, 0}, WindowPoint{static_cast<double>(camera.width()), 0},
                                     WindowPoint{0, static_cast<double>(camera.height())},
                                     WindowPoint{static_cast<double>(camera.width()), static_cast<double>(camera.height())}}) {
        WorldPoint point = camera.windowToWorld(corner);
        if (camera.projection().type() != ProjectionType::eMercator)
            point = kMercator.toWorld(camera.projection().toGeo(point));
        west = std::min(west, point.x);
        east = std::max(east, point.x);
        south = std::min(south, point.y);
        north = std::max(north, point.y);
    }
    const int tiles = TileId::count(zoom);
    const double edge = Projection::kWorldWidth / tiles;
    return {index((west + kHalf) / edge, tiles), index((east + kHalf) / edge, tiles), std::max(index((kHalf - north) / edge, tiles), 0),
            std::min(index((kHalf - south) / edge, tiles), tiles - 1)};
}

std::vector<TileId> TileCover::ids() const
{
    std::vector<TileId> result;
    std::unordered_set<TileId, TileIdHash> met;
    for (const TilePlace& place : mView) {
        if (met.insert(place.id).second)
            result.push_back(place.id);
    }
    return result;
}

bool TileCover::isSeen(const Camera& camera, const TilePlace& place)
{
    if (camera.projection().type() != ProjectionType::eMercator)
        return true;
    WorldPoint northWest, southEast;
    bounds(place, northWest, southEast);
    double left = std::numeric_limits<double>::max(), top = left, right = -left, bottom = -left;
    for (const WorldPoint& corner : {northWest, southEast, WorldPoint{northWest.x, southEast.y}, WorldPoint{southEast.x, northWest.y}}) {
        const WindowPoint at = camera.worldToWindow(corner);
        left = std::min(left, at.x);
        right = std::max(right, at.x);
        top = std::min(top, at.y);
        bottom = std::max(bottom, at.y);
    }
    return right > kTouch && left < camera.width() - kTouch && bottom > kTouch && top < camera.height() - kTouch;
}

void TileCover::bounds(const TilePlace& place, WorldPoint& northWest, WorldPoint& southEast)
{
    const double edge = Projection::kWorldWidth / TileId::count(place.id.zoom);
    northWest = {place.column * edge - kHalf, kHalf - place.id.y * edge};
    southEast = {northWest.x + edge, northWest.y - edge};
}

QRectF partOfAncestor(const TileId& id, const TileId& ancestor)
{
    const int levels = id.zoom - ancestor.zoom;
    const double edge = 1.0 / TileId::count(levels);
    return {(id.x - (ancestor.x << levels)) * edge, (id.y - (ancestor.y << levels)) * edge, edge, edge};
}

} // namespace OpenStreet
