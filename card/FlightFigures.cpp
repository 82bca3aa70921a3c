#include "card/FlightFigures.h"

#include "app/Numeric.h"
#include "app/TimeText.h"

#include <array>
#include <cmath>

namespace ZARN {

namespace {

/// How a figure is told; without a unit it is a duration.
struct Figure {
    double (*value)(const RecordFlight& flight);
    bool (*isKnown)(const RecordFlight& flight);
    const char* unit;
    int decimals;
};

bool always(const RecordFlight& /*flight*/)
{
    return true;
}

bool withAltitude(const RecordFlight& flight)
{
    return flight.hasAltitude;
}

bool withSummit(const RecordFlight& flight)
{
    return flight.hasAltitude && flight.hasSummit;
}

bool withFuel(const RecordFlight& flight)
{
    return flight.hasFuelA || flight.hasFuelB; // an engine may have one lane only
}

using Flight = const RecordFlight&;

constexpr std::array<Figure, eFigureCount> kFigures{{
    {[](Flight flight) { return flight.landingTime - flight.takeOffTime; }, always, nullptr, 0},
    {[](Flight flight) { return flight.fuelA; }, [](Flight flight) { return flight.hasFuelA; }, "l", 2},
    {[](Flight flight) { return flight.fuelB; }, [](Flight flight) { return flight.hasFuelB; }, "l", 2},
    {[](Flight flight) { return flight.totalFuel; }, withFuel, "l", 2},
    {[](Flight flight) { return flight.minAltitude; }, withAltitude, "m", 1},
    {[](Flight flight) { return flight.maxAltitude; }, withAltitude, "m", 1},
    {[](Flight flight) { return flight.totalClimb; }, withAltitude, "m", 1},
    {[](Flight flight) { return flight.averageClimbRate; }, withSummit, "m/s", 2},
    {[](Flight flight) { return flight.averageDescendRate; }, withSummit, "m/s", 2},
    {[](Flight flight) { return flight.maxGroundSpeed; }, always, "km/h", 1},
    {[](Flight flight) { return flight.timePer100m; }, withAltitude, nullptr, 0},
    {[](Flight flight) { return flight.fuelPer100m; }, [](Flight flight) { return withAltitude(flight) && withFuel(flight); }, "l", 3},
    {[](Flight flight) { return flight.takeOffDistance; }, [](Flight flight) { return flight.hasRollStart && flight.hasLiftOff; }, "m", 0},
    {[](Flight flight) { return flight.takeOffDistance15m; }, [](Flight flight) { return flight.hasRollStart && flight.hasObstacle; }, "m",
     0},
}};

/// A duration as a time of day.
QString durationText(double seconds)
{
    return timeOfDayText(saturatingCast<int>(seconds) * int64_t{1000}, false);
}

} // namespace

std::optional<double> flightFigure(const RecordFlight& flight, EFlightFigure figure)
{
    const Figure& entry = kFigures[figure];
    const double value = entry.value(flight);
    const bool isRate =
        figure == eFigureClimbRate || figure == eFigureDescendRate; // negative when the highest point lies outside the flight
    if (!flight.valid || !entry.isKnown(flight) || !std::isfinite(value) || (isRate && value < 0.0))
        return {};
    return value;
}

QString flightFigureText(const RecordFlight& flight, EFlightFigure figure, EFigureText text)
{
    const std::optional<double> value = flightFigure(flight, figure);
    if (!value)
        return "-";
    const Figure& entry = kFigures[figure];
    if (!entry.unit)
        return durationText(*value);
    const QString number = text == EFigureText::eGeneral ? QString::number(*value) : QString::number(*value, 'f', entry.decimals);
    return number + " " + entry.unit;
}

} // namespace ZARN
