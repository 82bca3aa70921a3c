#include "ui/xy/model/XyPoints.h"

#include "trace/HeldValues.h"
#include "ui/graph/model/ThresholdBands.h"

#include <cmath>
#include <limits>

namespace ZARN {

namespace {

constexpr unsigned kPatience = 1 << 16; // samples between two looks at whether anybody still waits

/// Ends work that nobody waits for.
struct Cancelled {};

/// A number whose distance to every other one is a number, too.
bool canBeShown(double value)
{
    return std::abs(value) < 1e300;
}

XyAxis describeAxis(const ProfileParameter& parameter, const DecodingContext& context)
{
    GraphParameter named;
    named.name = QString::fromStdString(parameter.name);
    named.unit = QString::fromStdString(context.unitOf(parameter));
    return {named.label(), std::clamp(parameter.precision, 0, ValueDecoder::kHighestPrecision), 0.0, 0.0,
            graphBands(context.decoder(parameter))};
}

} // namespace

XyPoints::XyPoints(const LoadedCard& card, const XyChoice& choice, const Progress& progress)
    : mChoice(choice), mSpan(choice.span.value_or(TimeSpan{card.startTime, card.endTime}))
{
    try {
        if (describe(card)) {
            findRanges(card, progress);
            fillGrid(card, progress);
        }
    } catch (const Cancelled&) {
        mPoints.clear();
    }
    mParameters.clear();
}

bool XyPoints::describe(const LoadedCard& card)
{
    const std::array<const std::string*, 3> names{&mChoice.x, &mChoice.y, &mChoice.colour};
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i == eColour && names[i]->empty()) {
            mAxes[i].label = mChoice.times.title();
            break;
        }
        const ProfileParameter* pParameter = card.context.model().find(*names[i]);
        const auto pChannel = pParameter ? channelOf(*card.pRecord, card.context, *pParameter) : nullptr;
        if (!pChannel || pChannel->entries.empty()) {
            mUnrecorded.push_back(*names[i]);
            continue;
        }
        mAxes[i] = describeAxis(*pParameter, card.context);
        mParameters.push_back(pParameter);
    }
    return mUnrecorded.empty();
}

template <typename Visitor> void XyPoints::forEach(const LoadedCard& card, const Progress& progress, Visitor visit) const
{
    unsigned count = 0;
    forEachHeld(mParameters, *card.pRecord, card.context, [&](uint64_t ticks, std::span<const double> values) {
        if (++count % kPatience == 0 && progress.isCancelled())
            throw Cancelled();
        const double time = recordTime(static_cast<uint32_t>(ticks >> 32), static_cast<uint32_t>(ticks));
        if (mSpan.holds(time))
            visit(time, std::array{values[eX], values[eY], isTimeColour() ? time : values[eColour]});
    });
}

void XyPoints::findRanges(const LoadedCard& card, const Progress& progress)
{
    std::array<XyAxis, 3> ranges;
    for (XyAxis& axis : ranges) {
        axis.lower = std::numeric_limits<double>::infinity();
        axis.upper = -axis.lower;
    }
    forEach(card, progress, [&](double /*time*/, const std::array<double, 3>& values) {
        ++mSamples;
        if (!std::ranges::all_of(values, canBeShown)) {
            ++mDropped;
            return;
        }
        for (std::size_t i = 0; i < values.size(); ++i) {
            ranges[i].lower = std::min(ranges[i].lower, values[i]);
            ranges[i].upper = std::max(ranges[i].upper, values[i]);
        }
    });
    const bool hasPoints = mSamples > mDropped;
    for (std::size_t i = 0; i < ranges.size(); ++i) {
        mAxes[i].lower = hasPoints ? ranges[i].lower : 0.0;
        mAxes[i].upper = hasPoints ? ranges[i].upper : 0.0;
    }
}

std::size_t XyPoints::cellOf(const XyAxis& axis, double value, std::size_t cells)
{
    const double share = axis.range() > 0 ? (value - axis.lower) / axis.range() : 0.5;
    return std::min(static_cast<std::size_t>(std::clamp(share, 0.0, 1.0) * static_cast<double>(cells)), cells - 1);
}

double XyPoints::valueOf(EAxis which, std::size_t cell) const
{
    const auto cells = static_cast<double>(which == eX ? kColumns : kRows);
    return mAxes[which].lower + (static_cast<double>(cell) + 0.5) / cells * mAxes[which].range();
}

void XyPoints::fillGrid(const LoadedCard& card, const Progress& progress)
{
    struct Cell {
        double time = -std::numeric_limits<double>::infinity();
        double colour = 0.0;
    };
    std::vector<Cell> grid(kColumns * kRows);
    forEach(card, progress, [&](double time, const std::array<double, 3>& values) {
        if (!std::ranges::all_of(values, canBeShown))
            return;
        Cell& cell = grid[cellOf(mAxes[eY], values[eY], kRows) * kColumns + cellOf(mAxes[eX], values[eX], kColumns)];
        if (time >= cell.time)
            cell = {time, values[eColour]};
    });
    for (std::size_t place = 0; place < grid.size(); ++place) {
        if (std::isfinite(grid[place].time))
            mPoints.push_back({place % kColumns, place / kColumns, grid[place].time, grid[place].colour});
    }
    std::ranges::stable_sort(mPoints, {}, &XyPoint::time);
}

} // namespace ZARN
