#include "analysis/WarningEvents.h"

#include "analysis/EventScan.h"
#include "trace/TraceSet.h"

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

    /// @param states the trace of the same samples as whole numbers
    void run(const Trace& states)
    {
        states.forEachRun([this](const TraceRun& run) {
            for (std::size_t i = 0; i < run.times.size(); ++i) {
                const int state = static_cast<int>(run.numbers[i]);
                if (state == 0 || state == mReported)
                    continue;
                mReported = state;
                addEvent(run.times[i], mTrace.number(run.position + i), state, lampColour(state));
            }
        });
    }

private:
    int mReported = 0;
};

} // namespace

EventList warningEvents(const RecordData& data, const DecodingContext& context)
{
    EventList list;
    const auto isLamp = [](const ProfileDevice& device, const ProfileParameter&) { return device.name == kLampGroup; };
    const TraceSet texts(&data, context, ENumber::eText, isLamp);
    const TraceSet states(&data, context, ENumber::eInteger, isLamp);
    for (std::size_t lamp = 0; lamp < texts.size(); ++lamp)
        LampScan(texts[lamp], list).run(states[lamp]);
    list.sortByTime();
    return list;
}

} // namespace ZARN
