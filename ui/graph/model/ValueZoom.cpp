#include "ui/graph/model/ValueZoom.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kLeastPart = 1e-7; // of the values themselves: an axis has no room for more digits
constexpr double kLeastSpan = 1e-9;
constexpr double kGreatest = 1e12;

/// What a trace does within a window: its samples there, and where its line crosses the edges.
ValueRange<double> rangeWithin(const SampleSeries& samples, const TimeWindow& window)
{
    ValueRange<double> range;
    const auto add = [&range](double value) {
        if (std::isfinite(value))
            range.add(value);
    };
    if (samples.empty())
        return range;
    for (const double edge : {window.begin(), window.end()}) {
        if (samples.time(0) <= edge && edge <= samples.time(samples.size() - 1))
            add(samples.interpolated(edge));
    }
    const std::size_t first = samples.firstAtOrAfter(window.begin());
    const std::optional<std::size_t> last = samples.lastAtOrBefore(window.end());
    if (!last || first > *last)
        return range;
    const ValueRange<double> inside = samples.range(first, *last + 1);
    if (inside.isEmpty() || (std::isfinite(inside.least) && std::isfinite(inside.greatest))) {
        range.add(inside);
        return range;
    }
    for (std::size_t i = first; i <= *last; ++i) // values without end say nothing about a scale
        add(samples.value(i));
    return range;
}

} // namespace

void ValueZoom::set(int index, const ValueSpan& span)
{
    const GraphParameter* pTrace = mModel.traces().at(index);
    const double width = span[1] - span[0], size = std::max(std::abs(span[0]), std::abs(span[1]));
    if (!pTrace || !std::isfinite(width) || !(width >= std::max(size * kLeastPart, kLeastSpan)))
        return;
    const ValueSpan before = mModel.valueSpan(index);
    if (size > kGreatest && width > before[1] - before[0])
        return;
    mModel.settings().scale.zoomed[mModel.settings().scale.keyOf(pTrace->name, pTrace->unit)] = span;
    Q_EMIT mModel.signalRepaint();
}

void ValueZoom::zoom(int index, double value, double factor)
{
    const ValueSpan span = mModel.valueSpan(index);
    set(index, {value - (value - span[0]) * factor, value + (span[1] - value) * factor});
}

void ValueZoom::move(int index, double part)
{
    const ValueSpan span = mModel.valueSpan(index);
    const double way = (span[1] - span[0]) * part;
    set(index, {span[0] + way, span[1] + way});
}

void ValueZoom::toggleFit(int index)
{
    if (mModel.traces().at(index))
        toggleFit(std::vector{index});
}

void ValueZoom::toggleFit()
{
    toggleFit(mModel.traces().shown());
}

void ValueZoom::toggleFit(const std::vector<int>& traces)
{
    std::map<QString, ValueSpan>& zoomed = mModel.settings().scale.zoomed;
    const std::map<QString, ValueSpan> before = zoomed;
    for (const int index : traces) {
        const ValueRange<double> range = visible(index);
        if (!range.isEmpty())
            set(index, ValueScale::around(range));
    }
    if (zoomed == before) {
        for (const int index : traces)
            zoomed.erase(mModel.settings().scale.keyOf(mModel.traces().at(index)->name, mModel.traces().at(index)->unit));
    }
    Q_EMIT mModel.signalRepaint();
}

void ValueZoom::showAll()
{
    mModel.settings().scale.zoomed.clear();
    Q_EMIT mModel.signalRepaint();
}

void ValueZoom::setShared(bool on)
{
    if (mModel.settings().scale.isShared == on)
        return;
    mModel.settings().scale.isShared = on;
    showAll();
}

ValueRange<double> ValueZoom::visible(int index) const
{
    const ShownTraces& traces = mModel.traces();
    ValueRange<double> range = rangeWithin(traces.at(index)->samples, mModel.window());
    for (const int other : traces.shown()) {
        if (other != index && mModel.settings().scale.isCommon(*traces.at(index), *traces.at(other)))
            range.add(rangeWithin(traces.at(other)->samples, mModel.window()));
    }
    return range;
}

} // namespace ZARN
