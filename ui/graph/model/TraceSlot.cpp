#include "ui/graph/model/TraceSlot.h"

#include "ui/graph/model/ThresholdBands.h"

#include <array>
#include <cmath>

namespace ZARN {

void describeSlot(GraphModel& model, int slot, const Trace& trace)
{
    model.setActive(slot, true);
    model.setParameterName(slot, QString::fromStdString(trace.name()), QString::fromStdString(trace.unit()));
    model.setPrecision(slot, trace.parameter().precision);
    model.setBands(slot, graphBands(trace.decoder()));
}

void fillSlot(GraphModel& model, int slot, const Trace& trace, double from, double to)
{
    std::array<double, Trace::kRun> times;
    std::array<double, Trace::kRun> numbers;
    model.reserve(slot, trace.size());
    trace.forEachRun([&](const TraceRun& run) {
        std::size_t kept = 0;
        for (std::size_t i = 0; i < run.times.size(); ++i) {
            if (std::isnan(run.numbers[i]) || run.times[i] < from || run.times[i] > to)
                continue;
            times[kept] = run.times[i];
            numbers[kept++] = run.numbers[i];
        }
        model.putValues(slot, std::span(times).first(kept), std::span(numbers).first(kept));
    });
}

} // namespace ZARN
