#include "analysis/Condition.h"

#include "trace/TraceSet.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr unsigned kPatience = 1 << 16; // samples between two looks at whether anybody still waits

/// Ends a search that nobody waits for.
struct Cancelled {};

/// The stretches in which something held, put together of its samples in stored order.
class Stretches {
public:
    Stretches(double atLeast, const std::optional<TimeSpan>& within, std::vector<TimeSpan>& found)
        : mAtLeast(atLeast), mWithin(within), mFound(found)
    {
    }

    void add(double time, bool holds)
    {
        if (mOpen && time < mLast)
            close(mLast); // the recording goes back: a stretch of its own
        if (holds && !mOpen)
            mOpen = {time, time};
        else if (!holds && mOpen)
            close(time);
        mLast = time;
    }

    void finish()
    {
        if (mOpen)
            close(mLast);
        std::ranges::stable_sort(mFound, {}, &TimeSpan::start);
    }

private:
    void close(double time)
    {
        TimeSpan span{mOpen->start, std::max(mOpen->start, time)};
        mOpen.reset();
        if (mWithin)
            span = {std::max(span.start, mWithin->start), std::min(span.end, mWithin->end)};
        if (span.end >= span.start && span.end - span.start >= mAtLeast)
            mFound.push_back(span);
    }

    double mAtLeast;
    const std::optional<TimeSpan>& mWithin;
    std::vector<TimeSpan>& mFound;
    std::optional<TimeSpan> mOpen;
    double mLast = 0.0;
};

bool hasNumber(const Trace& trace)
{
    const auto isNone = [](double number) { return std::isnan(number); };
    return !trace.forEachRun([&isNone](const TraceRun& run) { return std::ranges::all_of(run.numbers, isNone); });
}

/// The operands, and which of them say nothing.
void judgeOperands(const Formula& formula, const RecordData& data, const DecodingContext& context, ConditionTimes& times)
{
    for (const ProfileParameter* pParameter : formula.operands()) {
        times.operands.push_back(pParameter->name);
        const auto pTrace = TraceSet::one(data, context, *pParameter, ENumber::eMetric);
        if (pTrace->empty())
            times.unrecorded.push_back(pParameter->name);
        else if (!hasNumber(*pTrace))
            times.withoutNumber.push_back(pParameter->name);
    }
}

} // namespace

ConditionTimes timesWhere(const std::string& condition, double atLeast, const RecordData& data, const DecodingContext& context,
                          const std::optional<TimeSpan>& within, const Progress& progress)
{
    ConditionTimes times;
    Formula formula(condition, context.model());
    judgeOperands(formula, data, context, times);
    Stretches stretches(atLeast, within, times.spans);
    unsigned count = 0;
    try {
        evaluate(formula, data, context, [&](uint64_t ticks, double value) {
            if (++count % kPatience == 0 && progress.isCancelled())
                throw Cancelled();
            stretches.add(recordTime(static_cast<uint32_t>(ticks >> 32), static_cast<uint32_t>(ticks)), value != 0.0 && !std::isnan(value));
        });
    } catch (const Cancelled&) {
        return times;
    }
    stretches.finish();
    return times;
}

} // namespace ZARN
