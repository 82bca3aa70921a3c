#pragma once

#include "analysis/EngineRunning.h"
#include "analysis/WatchedPart.h"
#include "card/record/RecordEntry.h"

#include <algorithm>

namespace ZARN {

/// Which sequence the sample of a time belongs to: the watched ones of a running stretch, or all others. Each sequence is judged by itself.
class WatchedTimes {
public:
    static constexpr int kOthers = SpanIndex::kNone;
    static constexpr int kDamaged = -2; ///< times that are damage belong to none
    using Step = SpanIndex::Step;       ///< its span is the sequence: the number of a stretch, or one of these

    /// @param unwatched times that are not watched all the same
    explicit WatchedTimes(const EngineRunning& engine, std::span<const TimeSpan> unwatched = {})
        : mStretches(engine.watched()), mUnwatched(unwatched)
    {
    }

    [[nodiscard]] Step at(double seconds) const
    {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        if (seconds > kLatestTime)
            return {kLatestTime, infinity, kDamaged};
        const Step& stretch = mStretches.at(seconds);
        const Step& other = mUnwatched.at(seconds);
        return {std::max(stretch.from, other.from), std::min({stretch.until, other.until, kLatestTime}),
                other.span == SpanIndex::kNone ? stretch.span : kOthers};
    }

    /// Calls `visit` with the sequence and a WatchedPart of samples, damaged ones left out, that follow each other in it; in stored order.
    template <typename Visitor> void forEachPart(const Trace& trace, Visitor visit) const;

private:
    SpanIndex mStretches;
    SpanIndex mUnwatched;
};

template <typename Visitor> void WatchedTimes::forEachPart(const Trace& trace, Visitor visit) const
{
    const bool ascending = trace.ascending();
    Step step{1.0, 0.0, kDamaged}; // holds no time
    RunTimes times(trace);
    trace.forEachNumbers([&](const TraceNumbers& run) {
        const std::size_t count = run.numbers.size();
        times.moveTo(run.position, count);
        for (std::size_t first = 0, last = 0; first < count; first = last) {
            if (!step.holds(times.at(first)))
                step = at(times.at(first));
            last = count;
            if (!ascending || !step.holds(times.at(count - 1))) {
                const auto rest = times.all().subspan(first);
                last = first + static_cast<std::size_t>(std::ranges::find_if_not(rest, [&step](double time) { return step.holds(time); }) - rest.begin());
            }
            if (step.span != kDamaged)
                visit(step.span, WatchedPart(times, first, {run.position + first, run.numbers.subspan(first, last - first)}));
        }
    });
}

} // namespace ZARN
