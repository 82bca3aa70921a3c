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

} // namespace ZARN
