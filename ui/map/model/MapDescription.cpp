#include "ui/map/model/MapDescription.h"

#include "app/TimeText.h"

#include <cmath>

namespace ZARN {

QString MapDescription::text() const
{
    const std::vector<FlightPathPoint>& points = mScene.path().points();
    if (points.empty())
        return tr("There is no path to show.");
    const FlightPathPoint& aircraft = mScene.aircraft();
    const auto degrees = [](double value, QChar positive, QChar negative) {
        return QString("%1° %2").arg(std::abs(value), 0, 'f', 4).arg(value < 0 ? negative : positive);
    };
    const auto time = [](const FlightPathPoint& point) { return timeOfDayText(wholeMilliseconds(point.time), false); };
    return tr("Flight path from %1 to %2.").arg(time(points.front()), time(points.back())) + ' ' +
           tr("Aircraft at %1, %2, track %3°.")
               .arg(degrees(aircraft.latitude, 'N', 'S'), degrees(aircraft.longitude, 'E', 'W'))
               .arg(std::fmod(std::fmod(aircraft.track, 360.0) + 360.0, 360.0), 0, 'f', 0);
}

} // namespace ZARN
