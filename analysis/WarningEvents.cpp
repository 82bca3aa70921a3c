#include "analysis/WarningEvents.h"

#include "analysis/EventScan.h"

namespace ZARN {

namespace {

constexpr const char* kLampGroup = "WarningLamp";

QColor lampColour(int state)
{
    switch (state) {
    case 1: return {255, 150, 100};
    case 2: return {255, 100, 100};
    default: return {};
    }
}

class LampScan : public EventScan {
public:
    using EventScan::EventScan;

    void run(const RecordEntries& entries)
    {
        for (std::size_t c = 0; c < entries.chunkCount(); ++c) {
            if (mParameter.isPosition())
                scanPositions(entries.chunk(c));
            else
                scan(entries.chunk(c));
        }
    }

private:
    void scan(std::span<const StoredRecord> records)
    {
        for (const StoredRecord& record : records) {
            if (record.payload == mLastPayload) // lamps are repeated all the time; what was reported is not reported again
                continue;
            mLastPayload = record.payload;
            if (changed(record))
                addEvent(record, mDecoder.textValue(record.payload, mFilter), mReported, lampColour(mReported));
        }
    }

    /// The filter has to see every sample.
    void scanPositions(std::span<const StoredRecord> records)
    {
        for (const StoredRecord& record : records) {
            const double value = mDecoder.textValue(record.payload, mFilter);
            if (changed(record))
                addEvent(record, value, mReported, lampColour(mReported));
        }
    }

    bool changed(const StoredRecord& record)
    {
        const int state = ValueDecoder::integer(record.payload, mParameter);
        if (state == 0 || state == mReported)
            return false;
        mReported = state;
        return true;
    }

    Payload mLastPayload{}; // all 0 decodes to state 0
    int mReported = 0;
};

} // namespace

EventList warningEvents(const RecordData& data, Profile& profile)
{
    EventList list;
    profile.resetCoordinates();
    for (const ProfileDevice& device : profile.data()) {
        if (device.name != kLampGroup)
            continue;
        for (const ProfileParameter& parameter : device.parameters) {
            if (const RecordChannel* pChannel = data.channel(parameter.identifier()))
                LampScan(profile, device, parameter, list).run(pChannel->entries);
        }
    }
    list.sortByTime();
    return list;
}

} // namespace ZARN
