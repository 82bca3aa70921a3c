#include "openstreet/core/HillShade.h"

#include "openstreet/core/TileCover.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace OpenStreet {

namespace {

constexpr int kGrid = HillShade::kEdge + 2; // a row and a column more at each side, for the slopes at the edges

/// Heights at the middles of the tile's pixels and one pixel around; NaN where not known.
std::vector<double> heights(Terrain& terrain, const WorldPoint& northWest, double pixel)
{
    const Projection mercator(ProjectionType::eMercator);
    std::vector<double> result;
    result.reserve(kGrid * kGrid);
    for (int row = -1; row < kGrid - 1; ++row) {
        for (int column = -1; column < kGrid - 1; ++column) {
            const GeoPoint place = mercator.toGeo({northWest.x + (column + 0.5) * pixel, northWest.y - (row + 0.5) * pixel});
            result.push_back(terrain.height(place).value_or(std::numeric_limits<double>::quiet_NaN()));
        }
    }
    return result;
}

QRgb overlay(double brightness, double factor)
{
    const double alpha = std::clamp(std::fabs(brightness - 1.0) * factor, 0.0, 1.0);
    const int level = static_cast<int>(std::lround(alpha * 255.0));
    const int light = brightness > 1.0 ? level : 0; // premultiplied: white carries its alpha in its colours
    return qRgba(light, light, light, level);
}

} // namespace

double HillShade::brightness(double eastward, double northward, const ShadingStyle& style)
{
    const double light = std::hypot(style.east, style.north, style.up);
    const double normal = std::hypot(eastward, northward, 1.0);
    if (!(light > 0.0) || !std::isfinite(light) || !std::isfinite(normal))
        return 1.0;
    const double flat = style.up / light;
    const double lit = std::max((-eastward * style.east - northward * style.north + style.up) / (light * normal), 0.0);
    const double result = style.brightness * (1.0 + style.contrast * (lit - flat));
    return std::isfinite(result) ? std::clamp(result, 0.0, 2.0) : 1.0;
}

QImage HillShade::tile(Terrain& terrain, const TileId& id, const ShadingStyle& style)
{
    if (id.zoom < kLeastZoom)
        return {};
    const Projection mercator(ProjectionType::eMercator);
    WorldPoint northWest, southEast;
    TileCover::bounds({id, id.x}, northWest, southEast);
    const GeoPoint upper = mercator.toGeo(northWest);
    const GeoPoint lower = mercator.toGeo(southEast);
    if (!terrain.covers(lower.latitude, upper.longitude, upper.latitude, lower.longitude))
        return {};
    const double pixel = (southEast.x - northWest.x) / kEdge;
    const std::vector<double> grid = heights(terrain, northWest, pixel);
    const double ground = 2.0 * pixel / mercator.scaleAt(0.5 * (upper.latitude + lower.latitude)); // metres between two neighbours' neighbours
    QImage image(kEdge, kEdge, QImage::Format_ARGB32_Premultiplied);
    for (int row = 0; row < kEdge; ++row) {
        auto* pLine = reinterpret_cast<QRgb*>(image.scanLine(row));
        for (int column = 0; column < kEdge; ++column) {
            const double* pHere = grid.data() + (row + 1) * kGrid + column + 1;
            const double eastward = (pHere[1] - pHere[-1]) / ground;
            const double northward = (pHere[-kGrid] - pHere[kGrid]) / ground;
            const bool isKnown = std::isfinite(eastward) && std::isfinite(northward);
            pLine[column] = isKnown ? overlay(brightness(eastward, northward, style), std::clamp(style.factor, 0.0, 1.0)) : 0;
        }
    }
    return image.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
}

} // namespace OpenStreet
