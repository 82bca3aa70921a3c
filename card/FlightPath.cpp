#include "card/FlightPath.h"

#include "card/Resampling.h"

#include <array>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kSmallestValue = 0.00001; // exact zeros are a receiver without a fix
constexpr double kSmallestDegrees = 0.0001;

std::vector<Sample> collect(const CycleValues& values, const char* key)
{
    std::vector<Sample> samples;
    Profile& profile = values.profile();
    const ProfileParameter parameter = profile.getParameterFromZarnType(key);
    const RecordChannel* pChannel = values.channel(parameter);
    if (!pChannel)
        return samples;
    const ValueDecoder decoder = profile.decoder(parameter);
    for (std::size_t c = 0; c < pChannel->entries.chunkCount(); ++c) {
        for (const StoredRecord& record : pChannel->entries.chunk(c)) {
            const double time = record.time();
            if (time > FlightPath::kLatestTime) // not even decoded: the filter must not follow a damaged record
                continue;
            const double value = decoder.isNumeric() ? decoder.toDisplayUnit(decoder.value(record.payload, true, profile.sharedFilter())) : 0.0;
            if (std::fabs(value) > kSmallestValue)
                samples.push_back({time, value});
        }
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
