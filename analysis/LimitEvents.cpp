#include "analysis/LimitEvents.h"

#include "analysis/EventScan.h"
#include "profile/ThresholdBand.h"
#include "trace/TraceSet.h"

namespace ZARN {

namespace {

class LimitScan : public EventScan {
public:
    LimitScan(const Trace& trace, const ThresholdList& list, EventList& events) : EventScan(trace, events), mBands(thresholdBands(list)) {}

    void run()
    {
        mTrace.forEachSample([this](double time, double number) {
            if (!mpBand->holds(number)) // hardly ever
                enter(time, number);
        });
    }

private:
    void enter(double time, double number)
    {
        mpBand = &findBand(mBands, number);
        const auto& [state, colour] = mpBand->result();
        if ((mPrevious == eThresholdOk && state != eThresholdOk) || (mPrevious == eThresholdWarning && state == eThresholdLimit))
            addEvent(time, number, state, colour);
        mPrevious = state;
    }

    static constexpr ThresholdBand kNone{std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
    const std::vector<ThresholdBand> mBands;
    const ThresholdBand* mpBand = &kNone;
    int mPrevious = eThresholdLimit; // so that what is outside from the start has to come back first
};

} // namespace

EventList limitEvents(const RecordData& data, const DecodingContext& context)
{
    EventList list;
    const TraceSet traces(&data, context, ENumber::eText, TraceSet::all());
    for (const auto& pTrace : traces.traces()) {
        if (const ThresholdList* pThresholds = pTrace->decoder().textThresholds())
            LimitScan(*pTrace, *pThresholds, list).run();
    }
    list.sortByTime();
    return list;
}

} // namespace ZARN
