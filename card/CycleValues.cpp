#include "card/CycleValues.h"

#include "app/Numeric.h"

namespace ZARN {

void CycleValues::setEndTime(double endTime)
{
    mSeconds = std::min(saturatingCast<int64_t>(endTime), INT64_MAX - 2) + 2;
}

std::optional<RecordEntry> CycleValues::entryAt(const ProfileParameter& parameter, double time) const
{
    const auto second = saturatingCast<int64_t>(time);
    if (second < 0 || second >= mSeconds)
        return {};
    const RecordChannel* pChannel = channel(parameter);
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
    return entry ? mProfile.getDouble(*entry, parameter, state, colour, true) : 0.0;
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
    if (!entry)
        return {};
    mProfile.resetCoordinates(); // a single fix has none before it
    DisplayValue result;
    ThresholdResult ofText; // bit fields have none; what people are warned by is the value's
    mProfile.getDouble(*entry, parameter, result.state, result.colour, true);
    result.text = mProfile.getDataString(*entry, parameter, ofText.state, ofText.colour);
    return result;
}

} // namespace ZARN
