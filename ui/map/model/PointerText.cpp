#include "ui/map/model/PointerText.h"

#include "card/Geography.h"
#include "ui/map/model/Graticule.h"

#include <cmath>
#include <numbers>

namespace ZARN {

namespace {

constexpr double kStep = 0.05; // minutes, of what is told of a place
constexpr double kMetresPerMile = 1852.0;
constexpr double kRadians = std::numbers::pi / 180.0;

QString inUnit(double metres, double unit)
{
    const double amount = metres / unit;
    return QString::number(amount, 'f', amount < 10.0 ? 2 : amount < 100.0 ? 1 : 0);
}

} // namespace

double PointerText::bearing(const OpenStreet::GeoPoint& from, const OpenStreet::GeoPoint& to)
{
    const double way = (to.longitude - from.longitude) * kRadians;
    const double south = from.latitude * kRadians, north = to.latitude * kRadians;
    const double east = std::sin(way) * std::cos(north);
    const double ahead = std::cos(south) * std::sin(north) - std::sin(south) * std::cos(north) * std::cos(way);
    const double degrees = std::fmod(std::atan2(east, ahead) / kRadians + 360.0, 360.0);
    return std::isfinite(degrees) ? degrees : 0.0;
}

QString PointerText::longest()
{
    const FlightPathPoint opposite{0.0, 89.999, 0.001, 0.0, 0.0, 0.0};
    return at({-89.999, -179.999}, &opposite);
}

QString PointerText::at(const OpenStreet::GeoPoint& place, const FlightPathPoint* pAircraft)
{
    const QString where =
        Graticule::label(place.latitude, kStep, 'N', 'S') + QLatin1Char(' ') + Graticule::label(place.longitude, kStep, 'E', 'W');
    if (!pAircraft || !std::isfinite(pAircraft->latitude) || !std::isfinite(pAircraft->longitude))
        return where;
    const double metres = calcDistance(pAircraft->latitude, pAircraft->longitude, place.latitude, place.longitude);
    const int degrees = static_cast<int>(std::lround(bearing({pAircraft->latitude, pAircraft->longitude}, place))) % 360;
    return tr("%1   %2 km, %3 NM, %4\u00b0 from the aircraft")
        .arg(where, inUnit(metres, 1000.0), inUnit(metres, kMetresPerMile),
             QString(QLatin1String("%1")).arg(degrees, 3, 10, QLatin1Char('0')));
}

} // namespace ZARN
