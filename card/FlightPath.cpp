#include "card/FlightPath.h"

#include "card/Resampling.h"
#include "card/record/TimeKernels.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kSmallestValue = 0.00001; // exact zeros are a receiver without a fix
constexpr double kSmallestDegrees = 0.0001;

constexpr std::size_t kRun = 512; // samples decoded at once

/// How many of the times, from the first on, are no damage.
std::size_t soundTimes(std::span<const double> times)
{
    return static_cast<std::size_t>(std::find_if(times.begin(), times.end(), [](double time) { return time > FlightPath::kLatestTime; }) - times.begin());
}

std::vector<Sample> collect(const CycleValues& values, const char* key)
{
    std::vector<Sample> samples;
    Profile& profile = values.profile();
    const ProfileParameter parameter = profile.getParameterFromZarnType(key);
    const RecordChannel* pChannel = values.channel(parameter);
    const ValueDecoder decoder = profile.decoder(parameter);
    if (!pChannel || !decoder.isNumeric())
        return samples;
    samples.reserve(pChannel->entries.size());
    std::array<double, kRun> times;
    std::array<double, kRun> numbers;
    for (std::size_t position = 0; position < pChannel->entries.size();) {
        const auto records = pChannel->entries.run(position, kRun);
        recordTimes(records, times.data());
        const std::size_t sound = soundTimes({times.data(), records.size()});
        decoder.values(records.first(sound), numbers.data(), profile.sharedFilter());
        for (std::size_t i = 0; i < sound; ++i) {
            const double value = decoder.toDisplayUnit(numbers[i]);
            if (std::fabs(value) > kSmallestValue)
                samples.push_back({times[i], value});
        }
        position += std::min(sound + 1, records.size()); // what is damaged is not even decoded: the filter must not follow it
    }
    return samples;
}

/// A series that has ended holds its last value; an empty one gives 0.
double valueAt(const std::vector<Sample>& series, std::size_t gridPoint)
{
    if (series.empty())
        return 0.0;
    return series[std::min(gridPoint, series.size() - 1)].value;
}

} // namespace

void FlightPath::build(const CycleValues& values)
{
    mPoints.clear();
    values.profile().resetCoordinates();
    enum { eLatitude, eLongitude, eAltitude, eGroundSpeed, eTrack, eSeries };
    static constexpr std::array keys{"Latitude", "Longitude", "Altitude", "GroundSpeed", "Track"};
    std::array<std::vector<Sample>, eSeries> series;
    for (std::size_t i = 0; i < series.size(); ++i)
        resampleData(kStep, collect(values, keys[i]), series[i]);
    const std::size_t length = std::max(series[eLatitude].size(), series[eLongitude].size());
    for (std::size_t i = 0; i < length; ++i) {
        const FlightPathPoint point{static_cast<double>(i) * kStep,    valueAt(series[eLatitude], i),    valueAt(series[eLongitude], i),
                                    valueAt(series[eAltitude], i), valueAt(series[eGroundSpeed], i), valueAt(series[eTrack], i)};
        if (std::fabs(point.latitude) > kSmallestDegrees && std::fabs(point.longitude) > kSmallestDegrees)
            mPoints.push_back(point);
    }
}

void FlightPath::crop(double from, double to)
{
    std::erase_if(mPoints, [=](const FlightPathPoint& point) { return !(point.time >= from && point.time <= to); });
}

} // namespace ZARN
