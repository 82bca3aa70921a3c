#include "ui/graph/model/TraceSlot.h"

#include "card/record/RecordEntry.h"
#include "ui/graph/model/ThresholdBands.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace ZARN {

namespace {

/// Digits that a number of the trace can need: what counts in steps has none that are finer.
int decimalsOf(const Trace& trace)
{
    const ProfileParameter& parameter = trace.parameter();
    const bool hasOwnUnit = trace.unit() == parameter.unitMetric;
    if (parameter.isComputed() || parameter.dataType == eFloat || !hasOwnUnit || parameter.offset != std::trunc(parameter.offset) ||
        !(parameter.factor > 0.0))
        return parameter.precision;
    constexpr double kRounding = 1e-9; // of the logarithm of 0.1
    return std::clamp(static_cast<int>(std::ceil(-std::log10(parameter.factor) - kRounding)), 0, std::max(parameter.precision, 0));
}

} // namespace

void describeSlot(ShownTraces& traces, int slot, const Trace& trace)
{
    traces.setActive(slot, true);
    traces.setName(slot, QString::fromStdString(trace.name()), QString::fromStdString(trace.unit()));
    traces.setPrecision(slot, decimalsOf(trace));
    traces.edit(slot, [&trace](GraphParameter& parameter) {
        parameter.bands = graphBands(trace.decoder());
        parameter.pStates = StateNames::of(trace.decoder(), trace.parameter());
    });
}

namespace {

/// Passes samples on, but for single ones whose time lies behind the next one's while that goes on from the one before: with one wrong time in
/// a record nothing after it would be found.
class LoneJumps {
public:
    template <typename Keep> void pass(double time, double number, Keep keep)
    {
        if (mHeld && !(mHeld->first > time && time >= mBefore))
            flush(keep);
        mHeld.emplace(time, number);
    }
    template <typename Keep> void flush(Keep keep)
    {
        if (!mHeld)
            return;
        mBefore = mHeld->first;
        keep(mHeld->first, mHeld->second);
        mHeld.reset();
    }

private:
    std::optional<std::pair<double, double>> mHeld;
    double mBefore = -std::numeric_limits<double>::infinity();
};

/// Puts times and numbers of a trace, run after run, without what is not a number.
template <typename Put>
void fill(ShownTraces& traces, int slot, const Trace& trace, const std::vector<PositionRange>& ranges, double from, double to, Put putRun)
{
    if (!traces.at(slot))
        return;
    to = std::min(to, kLatestTime); // nothing would be found behind a time that is damage
    std::array<double, Trace::kRun> times;
    std::array<double, Trace::kRun> numbers;
    std::size_t samples = 0;
    for (const PositionRange& range : ranges)
        samples += range.last - range.first;
    std::size_t before = traces.at(slot)->samples.size();
    if (before == 0) // what grows little by little makes its room by itself
        traces.reserve(slot, samples);
    std::vector<uint32_t> breaks = traces.at(slot)->breaks;
    std::size_t kept = 0;
    const auto keep = [&](double time, double number) {
        if (time < from || time > to)
            return;
        if (std::isnan(number)) {
            if (breaks.empty() || breaks.back() != before + kept)
                breaks.push_back(static_cast<uint32_t>(before + kept));
            return;
        }
        times[kept] = time;
        numbers[kept++] = number;
    };
    const auto finish = [&] {
        putRun(std::span<const double>(times).first(kept), std::span<const double>(numbers).first(kept));
        before += kept;
        kept = 0;
    };
    LoneJumps jumps;
    const auto put = [&](const TraceRun& run) {
        for (std::size_t i = 0; i < run.times.size(); ++i)
            trace.ascending() ? keep(run.times[i], run.numbers[i]) : jumps.pass(run.times[i], run.numbers[i], keep);
        finish();
    };
    for (const PositionRange& range : ranges)
        trace.forEachRun(range, put);
    jumps.flush(keep);
    finish();
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
