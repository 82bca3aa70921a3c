#pragma once

namespace OpenStreet {

/// A place on the earth in degrees north and east.
struct GeoPoint {
    double latitude = 0.0;
    double longitude = 0.0;
};

/// A place on the flat map in world metres: x east of Greenwich, y north of the equator.
struct WorldPoint {
    double x = 0.0;
    double y = 0.0;
};

/// How the earth is laid flat.
enum class ProjectionType { ePlateCarree = 0, eMercator = 1 };

/// A projection of the earth, taken as a sphere, to the flat map. Both projections share their x axis. Forward and inverse are
/// exact inverses of each other to far below 1e-9 degrees.
class Projection {
public:
    static constexpr double kRadius = 6378137.0; ///< metres
    static constexpr double kWorldWidth = 2.0 * 3.14159265358979323846 * kRadius;

    explicit constexpr Projection(ProjectionType type) : mType(type) {}

    [[nodiscard]] constexpr ProjectionType type() const { return mType; }
    /// The northernmost latitude of the map; the map of Web Mercator is a square.
    [[nodiscard]] constexpr double maxLatitude() const { return mType == ProjectionType::eMercator ? 85.051128779806592 : 90.0; }

    /// Latitudes next to the poles are held where the map is still finite.
    [[nodiscard]] WorldPoint toWorld(const GeoPoint& place) const;
    /// Longitudes are not folded.
    [[nodiscard]] GeoPoint toGeo(const WorldPoint& point) const;
    /// World metres, to the east, that a metre on the ground takes at a latitude.
    [[nodiscard]] double scaleAt(double latitude) const;

private:
    ProjectionType mType;
};

/// @return the longitude within -180..180; 0 when it is not finite.
[[nodiscard]] double foldLongitude(double longitude);

} // namespace OpenStreet
