#include "openstreet/core/Projection.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace OpenStreet {

namespace {

constexpr double kRadians = std::numbers::pi / 180.0;
constexpr double kPole = 89.99;

} // namespace

WorldPoint Projection::toWorld(const GeoPoint& place) const
{
    const double x = kRadius * place.longitude * kRadians;
    if (mType == ProjectionType::ePlateCarree)
        return {x, kRadius * place.latitude * kRadians};
    return {x, kRadius * std::asinh(std::tan(std::clamp(place.latitude, -kPole, kPole) * kRadians))};
}

GeoPoint Projection::toGeo(const WorldPoint& point) const
{
    const double longitude = point.x / kRadius / kRadians;
    if (mType == ProjectionType::ePlateCarree)
        return {point.y / kRadius / kRadians, longitude};
    return {std::atan(std::sinh(point.y / kRadius)) / kRadians, longitude};
}

double Projection::scaleAt(double latitude) const
{
    return 1.0 / std::cos(std::clamp(latitude, -kPole, kPole) * kRadians);
}

double foldLongitude(double longitude)
{
    return std::isfinite(longitude) ? std::remainder(longitude, 360.0) : 0.0;
}

} // namespace OpenStreet
