#include "analysis/SpanIndex.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

namespace ZARN {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// After a time a span begins or ceases to hold.
struct Change {
    double after;
    int span;
    bool begins;
};

} // namespace

double lastBefore(double seconds)
{
    return std::nextafter(seconds, -kInfinity);
}

SpanIndex::SpanIndex(std::span<const TimeSpan> spans)
{
    std::vector<Change> changes;
    changes.reserve(2 * spans.size());
    for (std::size_t i = 0; i < spans.size(); ++i) {
        if (!(spans[i].start <= spans[i].end))
            continue;
        changes.push_back({lastBefore(spans[i].start), static_cast<int>(i), true});
        changes.push_back({spans[i].end, static_cast<int>(i), false});
    }
    std::ranges::sort(changes, {}, &Change::after);
    std::set<int> open;
    for (const Change& change : changes) {
        addStep(change.after, open.empty() ? kNone : *open.begin());
        // A span of a single time begins and ends between neighbouring numbers, so it is never ended before it has begun.
        if (change.begins)
            open.insert(change.span);
        else
            open.erase(change.span);
    }
    addStep(kInfinity, open.empty() ? kNone : *open.begin());
}

void SpanIndex::addStep(double until, int span)
{
    const double from = mSteps.empty() ? -kInfinity : mSteps.back().until;
    if (!mSteps.empty() && mSteps.back().span == span)
        mSteps.back().until = until;
    else if (until > from)
        mSteps.push_back({from, until, span});
}

const SpanIndex::Step& SpanIndex::at(double seconds) const
{
    const auto found = std::ranges::lower_bound(mSteps, seconds, {}, &Step::until);
    return found == mSteps.end() ? mSteps.back() : *found;
}

} // namespace ZARN
