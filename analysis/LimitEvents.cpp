#include "analysis/LimitEvents.h"

#include "analysis/EventScan.h"

#include <array>
#include <limits>

namespace ZARN {

namespace {

constexpr std::size_t kRun = 512; // samples decoded at once; they stay in the processor's nearest cache

constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// The values around one that pass exactly the same boundaries of a list.
struct Band {
    double from = kInfinity;
    double to = -kInfinity;
    ThresholdResult result;

    [[nodiscard]] bool holds(double value) const { return value >= from && value < to; }
};

/// Walks the list as findThreshold() does and notes between which boundaries the value lies.
Band bandOf(const ThresholdList& list, double value)
{
    Band band{-kInfinity, kInfinity, {}};
    for (const Threshold& threshold : list) {
        if (threshold.value > value) {
            band.to = threshold.value;
            break;
        }
        band.from = std::max(band.from, threshold.value); // a list need not ascend
        band.result = {threshold.state, threshold.colour};
    }
    return band;
}

class LimitScan : public EventScan {
public:
    using EventScan::EventScan;

    void run(const RecordEntries& entries)
    {
        const ThresholdList* pList = mDecoder.textThresholds();
        if (!pList && !mParameter.isPosition()) // positions are decoded all the same, for those that follow them
            return;
        std::array<double, kRun> values{};
        for (std::size_t position = 0; position < entries.size();) {
            const auto records = entries.run(position, kRun);
            mDecoder.textValues(records, values.data(), mFilter);
            if (pList)
                scan(records, values.data(), *pList);
            position += records.size();
        }
    }

private:
    void scan(std::span<const StoredRecord> records, const double* pValues, const ThresholdList& list)
    {
        for (std::size_t i = 0; i < records.size(); ++i) {
            if (mBand.holds(pValues[i])) // nearly always
                continue;
            mBand = bandOf(list, pValues[i]);
            const auto& [state, colour] = mBand.result;
            if ((mPrevious == eThresholdOk && state != eThresholdOk) || (mPrevious == eThresholdWarning && state == eThresholdLimit))
                addEvent(records[i], pValues[i], state, colour);
            mPrevious = state;
        }
    }

    Band mBand;
    int mPrevious = eThresholdLimit; // so that what is outside from the start has to come back first
};

} // namespace

EventList limitEvents(const RecordData& data, Profile& profile)
{
    EventList list;
    profile.resetCoordinates();
    for (const ProfileDevice& device : profile.data()) {
        for (const ProfileParameter& parameter : device.parameters) {
            if (const RecordChannel* pChannel = data.channel(parameter.identifier()))
                LimitScan(profile, device, parameter, list).run(pChannel->entries);
        }
    }
    list.sortByTime();
    return list;
}

} // namespace ZARN
