#include "card/CycleValues.h"

#include "app/Numeric.h"

#include <algorithm>

namespace ZARN {

namespace {

constexpr double kOverdue = 2.0; // seconds without a sample, or
constexpr double kPeriods = 3.0; // times the distance of the last two

} // namespace

CycleValues::CycleValues(const RecordData& data, const DecodingContext& context, double endTime)
    : mData(data), mContext(context), mSeconds(std::min(saturatingCast<int64_t>(endTime), INT64_MAX - 2) + 2)
{
}

CycleValues CycleValues::metric() const
{
    CycleValues values = *this;
    values.mContext = mContext.in(EUnit::eMetric);
    return values;
}

std::optional<RecordEntry> CycleValues::entryAt(const ProfileParameter& parameter, double time) const
{
    const auto second = saturatingCast<int64_t>(time);
    if (second < 0 || second >= mSeconds)
        return {};
    const auto pChannel = channel(parameter);
    if (!pChannel)
        return {};
    const std::size_t position = pChannel->firstAtOrAfter(time);
    if (position >= pChannel->entries.size())
        return {};
    return pChannel->entries[position == 0 ? 0 : position - 1];
}

double CycleValues::getValue(const ProfileParameter& parameter, double time, int& state, QColor& colour) const
{
    const std::optional<RecordEntry> entry = entryAt(parameter, time);
    const ValueDecoder decoder = mContext.decoder(parameter);
    if (!entry || !decoder.isNumeric())
        return 0.0;
    CoordinateFilter filter;
    const double value = decoder.value(entry->payload, true, filter);
    const ThresholdResult result = decoder.threshold(value);
    state = result.state;
    colour = result.colour;
    return decoder.toDisplayUnit(value);
}

double CycleValues::getValue(const ProfileParameter& parameter, double time) const
{
    int state = 0;
    QColor colour;
    return getValue(parameter, time, state, colour);
}

std::optional<DisplayValue> CycleValues::displayAt(const ProfileParameter& parameter, double time) const
{
    const std::optional<RecordEntry> entry = entryAt(parameter, time);
    return entry ? std::optional(display(parameter, entry->payload)) : std::nullopt;
}

DisplayValue CycleValues::display(const ProfileParameter& parameter, const Payload& payload) const
{
    const ValueDecoder decoder = mContext.decoder(parameter);
    CoordinateFilter filter, other;
    DisplayValue result;
    result.text = decoder.text(decoder.textValue(payload, filter));
    if (decoder.isNumeric()) { // bit fields have texts without a state; what people are warned by is the value's
        const ThresholdResult found = decoder.threshold(decoder.value(payload, true, other));
        result.state = found.state;
        result.colour = found.colour;
    }
    return result;
}

std::optional<DisplayValue> CycleValues::shownAt(const ProfileParameter& parameter, double time) const
{
    const auto pChannel = channel(parameter);
    const bool isEarly = pChannel && time < pChannel->entries.front().time - kBeforeFirst;
    return isEarly ? std::nullopt : displayAt(parameter, time);
}

std::optional<DisplayValue> CycleValues::receivedAt(const ProfileParameter& parameter, double time) const
{
    const auto pChannel = channel(parameter);
    if (!pChannel)
        return {};
    const RecordEntries& entries = pChannel->entries;
    const std::size_t next = time < entries.time(entries.size() - 1) ? pChannel->firstAtOrAfter(time) : entries.size();
    if (next == 0)
        return shownAt(parameter, time);
    const double last = entries.time(next - 1);
    const double spacing = next > 1 ? last - entries.time(next - 2) : 0.0;
    if (time - last > std::max(kOverdue, kPeriods * spacing))
        return {};
    return display(parameter, entries.stored(next - 1).payload);
}

} // namespace ZARN
