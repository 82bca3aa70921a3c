#pragma once

/// Conversions between positions on and around the WGS 84 ellipsoid.
namespace VESK::Geodesy {

/// Degrees north and east, metres above the ellipsoid.
struct Geodetic {
    double latitude = 0.0;
    double longitude = 0.0;
    double height = 0.0;
};

/// Metres from the earth's centre: x to latitude 0, longitude 0, y to longitude 90 east, z to the north pole.
struct Geocentric {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

/// @return coordinates that are all NaN when the latitude is not within -90..90.
[[nodiscard]] Geocentric toGeocentric(const Geodetic& position);
/// @return the position with a longitude within -180..180.
[[nodiscard]] Geodetic toGeodetic(const Geocentric& position);

} // namespace VESK::Geodesy
