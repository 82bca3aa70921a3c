#include "ui/map/model/MapValues.h"

#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "trace/ComputedChannel.h"

#include <algorithm>

namespace ZARN {

namespace {

constexpr double kOverdue = 2.0; // seconds without a sample, or
constexpr double kPeriods = 3.0; // times the distance of the last two

/// Of what is received still, the newest sample stands until the next one is overdue. Before it, and in recordings, there is none.
std::optional<DisplayValue> newestAt(const Session& session, const ProfileParameter& parameter, double time)
{
    const auto pChannel =
        session.container.isLive() ? channelOf(session.container.recordData(), session.profile.context(), parameter) : nullptr;
    const std::size_t size = pChannel ? pChannel->entries.size() : 0;
    if (size < 2)
        return {};
    const double last = pChannel->entries.time(size - 1);
    if (time < last || time - last > std::max(kOverdue, kPeriods * (last - pChannel->entries.time(size - 2))))
        return {};
    const ValueDecoder decoder = session.profile.context().decoder(parameter);
    const Payload payload = pChannel->entries.stored(size - 1).payload;
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
    for (const ProfileDevice& device : mSession.profile.data()) {
        for (const ProfileParameter& parameter : device.parameters) {
            if (!mSession.profile.isSelected(parameter.name))
                continue;
            if (result.size() == kMostRows)
                return result;
            MapValue row{QString::fromStdString(parameter.name), {}, {}, {}};
            if (hasRecord)
                fill(row, parameter, time);
            result.push_back(row);
        }
    }
    return result;
}

void MapValues::fill(MapValue& row, const ProfileParameter& parameter, double time) const
{
    std::optional<DisplayValue> value = newestAt(mSession, parameter, time);
    if (!value)
        value = mSession.container.values().shownAt(parameter, time);
    row.text = QString::fromStdString(value ? value->text : "-");
    if (!value)
        return;
    row.colour = value->colour;
    row.state = value->state;
    row.unit = QString::fromStdString(mSession.profile.context().unitOf(parameter));
}

} // namespace ZARN
