#include "ui/find/model/FindHits.h"

#include <algorithm>

namespace ZARN {

std::optional<std::size_t> FindHits::next(double time) const
{
    const auto found = std::ranges::upper_bound(mSpans, time + kSame, {}, &TimeSpan::start);
    return found == mSpans.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - mSpans.begin()));
}

std::optional<std::size_t> FindHits::previous(double time) const
{
    const auto found = std::ranges::lower_bound(mSpans, time - kSame, {}, &TimeSpan::start);
    return found == mSpans.begin() ? std::nullopt : std::optional(static_cast<std::size_t>(found - mSpans.begin()) - 1);
}

std::optional<std::size_t> FindHits::at(double time) const
{
    const std::optional<std::size_t> last = previous(time + 2 * kSame);
    return last && mSpans[*last].end + kSame >= time ? last : std::nullopt;
}

double FindHits::together() const
{
    double sum = 0.0;
    for (const TimeSpan& span : mSpans)
        sum += span.end - span.start;
    return sum;
}

} // namespace ZARN
