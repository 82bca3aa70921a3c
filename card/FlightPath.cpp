#include "card/FlightPath.h"

#include "card/Resampling.h"
#include "trace/TraceSet.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace ZARN {

namespace {

constexpr double kSmallestValue = 0.00001; // exact zeros are a receiver without a fix
constexpr double kSmallestDegrees = 0.0001;

/// What a pass that builds a path reads, and the samples of the series that it is at: one memory for all of them.
struct Source {
    const RecordData& data;
    const DecodingContext& context;
    CoordinateFilter filter;
    std::vector<Sample> samples;
};

void collect(Source& source, const char* key)
{
    source.samples.clear();
    const auto pTrace =
        TraceSet::one(source.data, source.context, source.context.model().ofZarnType(key), ENumber::eDisplay, source.filter, kLatestTime);
    if (!pTrace->decoder().isNumeric())
        return;
    source.samples.reserve(pTrace->size());
    pTrace->forEachSample([&samples = source.samples](double time, double value) {
        if (time <= kLatestTime && std::fabs(value) > kSmallestValue)
            samples.push_back({time, value});
    });
}

/// The points that there are keep what they have; further ones go on as the last.
void lengthen(std::vector<FlightPathPoint>& points, std::size_t length)
{
    const std::size_t before = points.size();
    points.resize(std::max(before, length), points.empty() ? FlightPathPoint{} : points.back());
    for (std::size_t i = before; i < points.size(); ++i)
        points[i].time = static_cast<double>(i) * FlightPath::kStep;
}

/// Puts one of the path's series into its points. A series that has ended holds its last value; an empty one gives 0.
/// @param isPlace whether the path is as long as that series at least, of which a single sample stands for one point
void put(Source& source, const char* key, double FlightPathPoint::*member, bool isPlace, std::vector<FlightPathPoint>& points)
{
    collect(source, key);
    GridSeries grid(FlightPath::kStep, source.samples);
    const bool isSingle = source.samples.size() == 1;
    if (isPlace)
        lengthen(points, isSingle ? 1 : grid.size());
    double last = isSingle ? source.samples.front().value : 0.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i < grid.size())
            last = grid.value(i);
        points[i].*member = last;
    }
}

bool isFix(double degrees)
{
    return std::fabs(degrees) > kSmallestDegrees;
}

} // namespace

void FlightPath::build(const RecordData& data, const DecodingContext& context)
{
    clear();
    mUnit = context.unit();
    Source source{data, context, {}, {}};
    std::vector<FlightPathPoint> points;
    // Each evaluated in this order: positions pass a filter with a memory.
    put(source, "Latitude", &FlightPathPoint::latitude, true, points);
    put(source, "Longitude", &FlightPathPoint::longitude, true, points);
    put(source, "Altitude", &FlightPathPoint::altitude, false, points);
    put(source, "GroundSpeed", &FlightPathPoint::groundSpeed, false, points);
    put(source, "Track", &FlightPathPoint::track, false, points);
    std::erase_if(points, [](const FlightPathPoint& point) { return !isFix(point.latitude) || !isFix(point.longitude); });
    mpPoints = std::make_shared<const std::vector<FlightPathPoint>>(std::move(points));
}

void FlightPath::crop(double from, double to)
{
    const auto isInside = [=](const FlightPathPoint& point) { return point.time >= from && point.time <= to; };
    std::vector<FlightPathPoint> points;
    points.reserve(static_cast<std::size_t>(std::ranges::count_if(*mpPoints, isInside)));
    std::ranges::copy_if(*mpPoints, std::back_inserter(points), isInside);
    mpPoints = std::make_shared<const std::vector<FlightPathPoint>>(std::move(points));
}

} // namespace ZARN
