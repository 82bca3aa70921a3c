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
template <typename Put> void fill(ShownTraces& traces, int slot, const Trace& trace, double from, double to, Put putRun)
{
    std::array<double, Trace::kRun> times;
    std::array<double, Trace::kRun> numbers;
    const std::vector<PositionRange> ranges = trace.rangesIn(from, to);
    std::size_t samples = 0;
    for (const PositionRange& range : ranges)
        samples += range.last - range.first;
    traces.reserve(slot, samples);
    std::size_t before = traces.at(slot) ? traces.at(slot)->samples.size() : 0;
    std::vector<uint32_t> breaks;
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

} // namespace

void fillSlot(GraphModel& model, int slot, const Trace& trace, double from, double to)
{
    fill(model.traces(), slot, trace, from, to, [&](auto times, auto numbers) { model.putValues(slot, times, numbers); });
}

void fillSlot(ShownTraces& traces, int slot, const Trace& trace, double from, double to)
{
    // A time that is no number would be found nowhere.
    fill(traces, slot, trace, from, to, [&](auto times, auto numbers) {
        if (std::ranges::all_of(times, [](double time) { return std::isfinite(time); }))
            traces.append(slot, times, numbers);
    });
}

} // namespace ZARN
