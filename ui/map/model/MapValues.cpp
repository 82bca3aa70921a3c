#include "ui/map/model/MapValues.h"

#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "trace/ComputedChannel.h"

#include <algorithm>

namespace ZARN {

namespace {

constexpr double kOverdue = 2.0; // seconds without a sample, or
constexpr double kPeriods = 3.0; // times the distance of the last two

/// Of what is received still, a sample stands until the next one is overdue.
std::optional<DisplayValue> receivedAt(const CycleValues& values, const ProfileParameter& parameter, double time)
{
    const auto pChannel = values.channel(parameter);
    if (!pChannel)
        return {};
    const std::size_t size = pChannel->entries.size();
    const std::size_t next = time < pChannel->entries.time(size - 1) ? pChannel->firstAtOrAfter(time) : size;
    if (next == 0)
        return values.shownAt(parameter, time);
    const double last = pChannel->entries.time(next - 1);
    const double spacing = next > 1 ? last - pChannel->entries.time(next - 2) : 0.0;
    if (time - last > std::max(kOverdue, kPeriods * spacing))
        return {};
    const ValueDecoder decoder = values.context().decoder(parameter);
    const Payload payload = pChannel->entries.stored(next - 1).payload;
    CoordinateFilter filter, other;
    DisplayValue result;
    result.text = decoder.text(decoder.textValue(payload, filter));
    if (decoder.isNumeric()) {
        const ThresholdResult found = decoder.threshold(decoder.value(payload, true, other));
        result.state = found.state;
        result.colour = found.colour;
    }
    return result;
}

} // namespace

std::vector<MapValue> MapValues::at(double time, bool hasRecord) const
{
    std::vector<MapValue> result;
    for (const auto& [device, parameter] : mSession.profile.model().parameters()) {
        if (!mSession.profile.isSelected(parameter.name))
            continue;
        if (result.size() == kMostRows)
            return result;
        MapValue row{QString::fromStdString(parameter.name), {}, {}, {}};
        if (hasRecord)
            fill(row, parameter, time);
        result.push_back(row);
    }
    return result;
}

void MapValues::fill(MapValue& row, const ProfileParameter& parameter, double time) const
{
    const CycleValues values = mSession.container.values();
    const std::optional<DisplayValue> value =
        mSession.container.isLive() ? receivedAt(values, parameter, time) : values.shownAt(parameter, time);
    row.text = QString::fromStdString(value ? value->text : "-");
    if (!value)
        return;
    row.colour = value->colour;
    row.state = value->state;
    row.unit = QString::fromStdString(mSession.profile.context().unitOf(parameter));
}

} // namespace ZARN
