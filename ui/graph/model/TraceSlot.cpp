#include "ui/graph/model/TraceSlot.h"

#include "ui/graph/model/ThresholdBands.h"

#include <array>
#include <cmath>

namespace ZARN {

void describeSlot(ShownTraces& traces, int slot, const Trace& trace)
{
    traces.setActive(slot, true);
    traces.setName(slot, QString::fromStdString(trace.name()), QString::fromStdString(trace.unit()));
    traces.setPrecision(slot, trace.parameter().precision);
    traces.setBands(slot, graphBands(trace.decoder()));
}

void fillSlot(GraphModel& model, int slot, const Trace& trace, double from, double to)
{
    std::array<double, Trace::kRun> times;
    std::array<double, Trace::kRun> numbers;
    const std::vector<PositionRange> ranges = trace.rangesIn(from, to);
    std::size_t samples = 0;
    for (const PositionRange& range : ranges)
        samples += range.last - range.first;
    model.traces().reserve(slot, samples);
    const auto put = [&](const TraceRun& run) {
        std::size_t kept = 0;
        for (std::size_t i = 0; i < run.times.size(); ++i) {
            if (std::isnan(run.numbers[i]) || run.times[i] < from || run.times[i] > to)
                continue;
            times[kept] = run.times[i];
            numbers[kept++] = run.numbers[i];
        }
        model.putValues(slot, std::span(times).first(kept), std::span(numbers).first(kept));
    };
    for (const PositionRange& range : ranges)
        trace.forEachRun(range, put);
}

} // namespace ZARN
