#include "ui/graph/model/TraceSlot.h"

#include "ui/graph/model/ThresholdBands.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ZARN {

void describeSlot(ShownTraces& traces, int slot, const Trace& trace)
{
    traces.setActive(slot, true);
    traces.setName(slot, QString::fromStdString(trace.name()), QString::fromStdString(trace.unit()));
    traces.setPrecision(slot, trace.parameter().precision);
    traces.setBands(slot, graphBands(trace.decoder()));
    traces.edit(slot, [&trace](GraphParameter& parameter) { parameter.pStates = StateNames::of(trace.decoder(), trace.parameter()); });
}

namespace {

/// Puts times and numbers of a trace, run after run, without what is not a number.
template <typename Put>
void fill(ShownTraces& traces, int slot, const Trace& trace, const std::vector<PositionRange>& ranges, double from, double to, Put putRun)
{
    if (!traces.at(slot))
        return;
    std::array<double, Trace::kRun> times;
    std::array<double, Trace::kRun> numbers;
    std::size_t samples = 0;
    for (const PositionRange& range : ranges)
        samples += range.last - range.first;
    std::size_t before = traces.at(slot)->samples.size();
    if (before == 0) // what grows little by little makes its room by itself
        traces.reserve(slot, samples);
    std::vector<uint32_t> breaks = traces.at(slot)->breaks;
    const auto put = [&](const TraceRun& run) {
        std::size_t kept = 0;
        for (std::size_t i = 0; i < run.times.size(); ++i) {
            if (run.times[i] < from || run.times[i] > to)
                continue;
            if (std::isnan(run.numbers[i])) {
                if (breaks.empty() || breaks.back() != before + kept)
                    breaks.push_back(static_cast<uint32_t>(before + kept));
                continue;
            }
            times[kept] = run.times[i];
            numbers[kept++] = run.numbers[i];
        }
        putRun(std::span<const double>(times).first(kept), std::span<const double>(numbers).first(kept));
        before += kept;
    };
    for (const PositionRange& range : ranges)
        trace.forEachRun(range, put);
    traces.edit(slot, [&breaks](GraphParameter& parameter) { parameter.breaks = std::move(breaks); });
}

void fillRanges(ShownTraces& traces, int slot, const Trace& trace, const std::vector<PositionRange>& ranges, double from, double to)
{
    // A time that is no number would be found nowhere.
    fill(traces, slot, trace, ranges, from, to, [&](auto times, auto numbers) {
        if (std::ranges::all_of(times, [](double time) { return std::isfinite(time); }))
            traces.append(slot, times, numbers);
    });
}

} // namespace

void fillSlot(GraphModel& model, int slot, const Trace& trace, double from, double to)
{
    fill(model.traces(), slot, trace, trace.rangesIn(from, to), from, to, [&](auto times, auto numbers) { model.putValues(slot, times, numbers); });
}

void fillSlot(ShownTraces& traces, int slot, const Trace& trace, double from, double to)
{
    fillRanges(traces, slot, trace, trace.rangesIn(from, to), from, to);
}

SlotFill SlotFill::of(const Trace& trace)
{
    const std::size_t size = trace.size();
    return size == 0 ? SlotFill() : SlotFill{size, trace.time(0), trace.time(size - 1)};
}

void growSlot(ShownTraces& traces, int slot, const Trace& trace, SlotFill& fill)
{
    const bool isGrown =
        fill.count == 0 || (fill.count <= trace.size() && trace.time(0) == fill.first && trace.time(fill.count - 1) == fill.last);
    if (!isGrown) {
        traces.edit(slot, [](GraphParameter& parameter) {
            parameter.samples.clear();
            parameter.breaks.clear();
        });
        fill = {};
    }
    if (fill.count == trace.size())
        return;
    constexpr double kEver = std::numeric_limits<double>::infinity();
    fillRanges(traces, slot, trace, {{fill.count, trace.size()}}, -kEver, kEver);
    fill = SlotFill::of(trace);
}

} // namespace ZARN
