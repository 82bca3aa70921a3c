#include "card/FlightPath.h"

#include "card/Resampling.h"
#include "trace/TraceSet.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kSmallestValue = 0.00001; // exact zeros are a receiver without a fix
constexpr double kSmallestDegrees = 0.0001;

std::vector<Sample> collect(const CycleValues& values, const char* key)
{
    std::vector<Sample> samples;
    Profile& profile = values.profile();
    const auto pTrace = TraceSet::one(values.data(), profile, profile.getParameterFromZarnType(key), ENumber::eDisplay, profile.sharedFilter(),
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
    PathSeries(const CycleValues& values, const char* key) : mSamples(collect(values, key)), mGrid(FlightPath::kStep, mSamples)
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

void FlightPath::build(const CycleValues& values)
{
    mPoints = {};
    values.profile().resetCoordinates();
    // Each evaluated in this order: positions pass a filter with a memory.
    PathSeries latitude(values, "Latitude");
    PathSeries longitude(values, "Longitude");
    PathSeries altitude(values, "Altitude");
    PathSeries groundSpeed(values, "GroundSpeed");
    PathSeries track(values, "Track");
    const std::size_t length = std::max(latitude.size(), longitude.size());
    mPoints.reserve(length); // not by doubling: the points of three weeks are many
    for (std::size_t i = 0; i < length; ++i) {
        const FlightPathPoint point{static_cast<double>(i) * kStep, latitude.value(i),    longitude.value(i),
                                    altitude.value(i),              groundSpeed.value(i), track.value(i)};
        if (isFix(point.latitude) && isFix(point.longitude))
            mPoints.push_back(point);
    }
}

void FlightPath::crop(double from, double to)
{
    std::erase_if(mPoints, [=](const FlightPathPoint& point) { return !(point.time >= from && point.time <= to); });
}

} // namespace ZARN
