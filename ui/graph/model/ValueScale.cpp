#include "ui/graph/model/ValueScale.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kMargin = 0.1; // of the span of values, below and above an automatic trace
constexpr double kSmallestSpan = 0.001;

} // namespace

ValueSpan ValueScale::spanOf(const ValueRange<double>& values) const
{
    if (!isAutomatic) {
        const double margin = lower == upper ? kMargin * kSmallestSpan : 0.0;
        return {std::min(lower, upper) - margin, std::max(lower, upper) + margin};
    }
    if (values.isEmpty())
        return reference;
    const double margin = kMargin * std::max(values.greatest - values.least, kSmallestSpan) + spread;
    const ValueSpan span{values.least - margin, values.greatest + margin};
    if (span[1] > span[0] && std::isfinite(span[1] - span[0]))
        return span;
    // Numbers so great that the margin is lost in them, or that their span has no number.
    return {values.least - std::abs(values.least) * kMargin, values.greatest + std::abs(values.greatest) * kMargin};
}

} // namespace ZARN
