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

/// What a pass that builds a path reads.
struct Source {
    const RecordData& data;
    const DecodingContext& context;
    CoordinateFilter filter;
};

std::vector<Sample> collect(Source& source, const char* key)
{
    std::vector<Sample> samples;
    const auto pTrace = TraceSet::one(source.data, source.context, source.context.model().ofZarnType(key), ENumber::eDisplay, source.filter,
                                      kLatestTime);
    if (!pTrace->decoder().isNumeric())
        return samples;
    samples.reserve(pTrace->size());
    pTrace->forEachSample([&samples](double time, double value) {
        if (time <= kLatestTime && std::fabs(value) > kSmallestValue)
            samples.push_back({time, value});
    });
    return samples;
}

/// One of the path's series at every grid point.
class PathSeries {
public:
    PathSeries(Source& source, const char* key) : mSamples(collect(source, key)), mGrid(FlightPath::kStep, mSamples)
    {
        if (mSamples.size() == 1)
            mLast = mSamples.front().value;
    }
    PathSeries(const PathSeries&) = delete; // the grid refers to the samples
    PathSeries& operator=(const PathSeries&) = delete;

    /// Grid points of its own; a single sample stands for one.
    [[nodiscard]] std::size_t size() const { return mSamples.size() == 1 ? 1 : mGrid.size(); }
    /// A series that has ended holds its last value; an empty one gives 0.
    double value(std::size_t point)
    {
        if (point < mGrid.size())
            mLast = mGrid.value(point);
        return mLast;
    }

private:
    std::vector<Sample> mSamples;
    GridSeries mGrid;
    double mLast = 0.0;
};

bool isFix(double degrees)
{
    return std::fabs(degrees) > kSmallestDegrees;
}

} // namespace

void FlightPath::build(const RecordData& data, const DecodingContext& context)
{
    clear();
    Source source{data, context, {}};
    // Each evaluated in this order: positions pass a filter with a memory.
    PathSeries latitude(source, "Latitude");
    PathSeries longitude(source, "Longitude");
    PathSeries altitude(source, "Altitude");
    PathSeries groundSpeed(source, "GroundSpeed");
    PathSeries track(source, "Track");
    const std::size_t length = std::max(latitude.size(), longitude.size());
    std::vector<FlightPathPoint> points;
    points.reserve(length); // not by doubling: the points of three weeks are many
    for (std::size_t i = 0; i < length; ++i) {
        const FlightPathPoint point{static_cast<double>(i) * kStep, latitude.value(i),    longitude.value(i),
                                    altitude.value(i),              groundSpeed.value(i), track.value(i)};
        if (isFix(point.latitude) && isFix(point.longitude))
            points.push_back(point);
    }
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
