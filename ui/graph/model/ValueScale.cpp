#include "ui/graph/model/ValueScale.h"

#include "ui/graph/model/ShownTraces.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kMargin = 0.1; // of the span of values, below and above an automatic trace
constexpr double kSmallestSpan = 0.001;

} // namespace

QString ValueScale::keyOf(const QString& name, const QString& unit) const
{
    return isShared && !unit.isEmpty() ? unit : name + QLatin1Char('\t') + unit;
}

bool ValueScale::isCommon(const GraphParameter& a, const GraphParameter& b) const
{
    return &a == &b || (isShared && !a.unit.isEmpty() && a.unit == b.unit);
}

ValueSpan ValueScale::spanOf(const ShownTraces& traces, int index) const
{
    const GraphParameter& trace = *traces.at(index);
    if (!zoomed.empty()) {
        if (const auto found = zoomed.find(keyOf(trace.name, trace.unit)); found != zoomed.end())
            return found->second;
    }
    ValueRange<double> values = trace.samples.extremes();
    if (isShared && isAutomatic) {
        for (const int other : traces.shown()) {
            if (isCommon(trace, *traces.at(other)))
                values.add(traces.at(other)->samples.extremes());
        }
    }
    return spanOf(values);
}

ValueSpan ValueScale::spanOf(const ValueRange<double>& values) const
{
    if (isAutomatic)
        return values.isEmpty() ? reference : around(values, spread);
    const double margin = lower == upper ? kMargin * kSmallestSpan : 0.0;
    return {std::min(lower, upper) - margin, std::max(lower, upper) + margin};
}

ValueSpan ValueScale::around(const ValueRange<double>& values, double more)
{
    const double margin = kMargin * std::max(values.greatest - values.least, kSmallestSpan) + more;
    const ValueSpan span{values.least - margin, values.greatest + margin};
    if (span[1] > span[0] && std::isfinite(span[1] - span[0]))
        return span;
    // Numbers so great that the margin is lost in them, or that their span has no number.
    return {values.least - std::abs(values.least) * kMargin, values.greatest + std::abs(values.greatest) * kMargin};
}

} // namespace ZARN
