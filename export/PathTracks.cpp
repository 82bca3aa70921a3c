#include "export/PathTracks.h"

#include "app/DateText.h"

#include "card/Resampling.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kMostLatitude = 90.0;
constexpr double kMostLongitude = 180.0;

/// The flights' numbers and spans, as far as they lie in a span; without any flight 0 and everything.
std::vector<std::pair<int, TimeSpan>> partsOf(const LoadedCard& loaded, const std::optional<TimeSpan>& span)
{
    const TimeSpan wanted = span.value_or(TimeSpan{loaded.wholeStart, loaded.wholeEnd});
    if (loaded.flights.empty())
        return {{0, wanted}};
    std::vector<std::pair<int, TimeSpan>> parts;
    int number = 0;
    for (const RecordFlight& flight : loaded.flights) {
        ++number;
        if (flight.landingTime >= wanted.start && flight.takeOffTime <= wanted.end) // not for the seconds before or behind it alone
            parts.push_back({number, {std::max(flight.startTime, wanted.start), std::min(flight.endTime, wanted.end)}});
    }
    return parts;
}

} // namespace

PathTracks::PathTracks(const LoadedCard& loaded, bool isWholePath) : mPowerUp(loaded.powerUp), mpPoints(loaded.pPath)
{
    const bool isCropped = isWholePath && loaded.flightNumber > 0;
    if (isCropped || (loaded.context.unit() != EUnit::eMetric && !mpPoints->empty())) {
        FlightPath rebuilt;
        rebuilt.build(*loaded.pRecord, loaded.context.in(EUnit::eMetric));
        if (!isWholePath)
            rebuilt.crop(mpPoints->front().time, mpPoints->back().time);
        mpPoints = rebuilt.shared();
    }
    // A series without a sample gives 0 all along.
    mHasAltitude = std::ranges::any_of(*mpPoints, [](const FlightPathPoint& point) { return point.altitude != 0.0; });
}

PathTracks PathTracks::whole(const LoadedCard& loaded)
{
    PathTracks path(loaded, false);
    path.mTracks.push_back({0, *path.mpPoints});
    return path;
}

PathTracks PathTracks::perFlight(const LoadedCard& loaded, const std::optional<TimeSpan>& span)
{
    PathTracks path(loaded, true);
    for (const auto& [flight, part] : partsOf(loaded, span)) {
        if (const auto points = path.pointsIn(part); !points.empty())
            path.mTracks.push_back({flight, points});
    }
    return path;
}

double PathTracks::seconds(const LoadedCard& loaded, const std::optional<TimeSpan>& span)
{
    double seconds = 0.0;
    for (const auto& [flight, part] : partsOf(loaded, span))
        seconds += part.end - part.start;
    return loaded.powerUp.isValid() ? seconds : 0.0;
}

std::span<const FlightPathPoint> PathTracks::pointsIn(const TimeSpan& span) const
{
    const auto first = std::ranges::lower_bound(*mpPoints, span.start, {}, &FlightPathPoint::time);
    return {first, std::ranges::upper_bound(first, mpPoints->end(), span.end, {}, &FlightPathPoint::time)};
}

std::string PathTracks::clock(double seconds) const
{
    if (!hasClock() || !(std::fabs(seconds) <= kLatestTime))
        return {};
    const auto milliseconds = static_cast<qint64>(std::llround(seconds * 1000));
    return utcDateText(mPowerUp.addMSecs(milliseconds)).toStdString();
}

bool PathTracks::isOnEarth(const FlightPathPoint& point)
{
    return std::fabs(point.latitude) <= kMostLatitude && point.longitude >= -kMostLongitude && point.longitude < kMostLongitude;
}

} // namespace ZARN
