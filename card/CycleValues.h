#pragma once

#include "card/record/RecordData.h"
#include "profile/DecodingContext.h"
#include "trace/ComputedChannel.h"

#include <optional>
#include <string>

namespace ZARN {

/// What is shown of a parameter at a time.
struct DisplayValue {
    std::string text; ///< with the parameter's precision or its labels, in the display unit; without the unit's name
    int state = 0;    ///< of the value's threshold, as getValue() tells it
    QColor colour;    ///< the threshold's; invalid for what is no number
};

/// The values of a loaded cycle by parameter and time, each by itself: a position is judged by none before it. A small value that refers
/// to the record.
class CycleValues {
public:
    /// @param endTime times from the whole second after the next above it on lie outside the index and have no value
    CycleValues(const RecordData& data, const DecodingContext& context, double endTime);
    /// The same in metric units.
    [[nodiscard]] CycleValues metric() const;
    /// Times that have a value lie after -1 and before this.
    [[nodiscard]] int64_t seconds() const { return mSeconds; }

    /// The entry that decides the parameter's value at a time: the latest strictly before it, at or before the channel's first
    /// entry that one; none when the channel has no entry at or after the time, or the time lies outside the index.
    [[nodiscard]] std::optional<RecordEntry> entryAt(const ProfileParameter& parameter, double time) const;
    /// The value in the display unit; 0 without touching state and colour when no entry decides it.
    double getValue(const ProfileParameter& parameter, double time, int& state, QColor& colour) const;
    double getValue(const ProfileParameter& parameter, double time) const;

    /// What is shown at a time, in the words of tables and exports; none where getValue() has no sample to tell of, for a zero would
    /// look like a measured one.
    [[nodiscard]] std::optional<DisplayValue> displayAt(const ProfileParameter& parameter, double time) const;
    /// The same for people: none longer before the first sample, either, of which getValue() tells from the beginning of the record on.
    [[nodiscard]] std::optional<DisplayValue> shownAt(const ProfileParameter& parameter, double time) const;
    /// The same while records are still received: a sample stands until the next one is overdue.
    [[nodiscard]] std::optional<DisplayValue> receivedAt(const ProfileParameter& parameter, double time) const;
    static constexpr double kBeforeFirst = 2.0; ///< seconds for which the first sample is shown before its time

    /// The channel of a parameter; null when it has no entries.
    [[nodiscard]] std::shared_ptr<const RecordChannel> channel(const ProfileParameter& parameter) const { return channelOf(mData, mContext, parameter); }
    [[nodiscard]] const RecordData& data() const { return mData; }
    [[nodiscard]] const DecodingContext& context() const { return mContext; }

private:
    [[nodiscard]] DisplayValue display(const ProfileParameter& parameter, const Payload& payload) const;

    const RecordData& mData;
    DecodingContext mContext;
    int64_t mSeconds; // size of the index: one place a second
};

} // namespace ZARN
