#pragma once

#include "analysis/EngineRunning.h"
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

    /// Calls `visit` with the sequence and the position in the trace, times and numbers of samples, damaged ones left out, that follow
    /// each other in it; in stored order.
    template <typename Visitor> void forEachPart(const Trace& trace, Visitor visit) const;

private:
    SpanIndex mStretches;
    SpanIndex mUnwatched;
};

template <typename Visitor> void WatchedTimes::forEachPart(const Trace& trace, Visitor visit) const
{
    const bool ascending = trace.ascending();
    Step step{1.0, 0.0, kDamaged}; // holds no time
    trace.forEachRun([&](const TraceRun& run) {
        for (std::size_t first = 0, last = 0; first < run.times.size(); first = last) {
            if (!step.holds(run.times[first]))
                step = at(run.times[first]);
            last = run.times.size();
            if (!ascending || !step.holds(run.times.back()))
                last = static_cast<std::size_t>(std::find_if_not(run.times.begin() + static_cast<std::ptrdiff_t>(first), run.times.end(),
                                                                 [&step](double time) { return step.holds(time); }) -
                                                run.times.begin());
            if (step.span != kDamaged)
                visit(step.span,
                      TraceRun{run.position + first, run.times.subspan(first, last - first), run.numbers.subspan(first, last - first)});
        }
    });
}

} // namespace ZARN
