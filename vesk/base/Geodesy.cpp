#include "vesk/base/Geodesy.h"

#include <GeographicLib/Geocentric.hpp>

namespace VESK::Geodesy {

Geocentric toGeocentric(const Geodetic& position)
{
    Geocentric result;
    GeographicLib::Geocentric::WGS84().Forward(position.latitude, position.longitude, position.height, result.x, result.y, result.z);
    return result;
}

Geodetic toGeodetic(const Geocentric& position)
{
    Geodetic result;
    GeographicLib::Geocentric::WGS84().Reverse(position.x, position.y, position.z, result.latitude, result.longitude, result.height);
    return result;
}

} // namespace VESK::Geodesy
