#include "ui/graph/model/ShownTraces.h"

#include "card/CycleValues.h"
#include "ui/graph/model/TraceColours.h"
#include "ui/graph/model/TraceGaps.h"

#include <algorithm>
#include <utility>

namespace ZARN {

namespace {

constexpr int kMostTraces = 1000;

} // namespace

void ShownTraces::setCount(int count)
{
    mTraces.clear();
    mTraces.resize(static_cast<std::size_t>(std::clamp(count, 0, kMostTraces)));
    mOrder.clear();
    for (std::size_t i = 0; i < mTraces.size(); ++i) {
        mTraces[i].colourNumber = static_cast<int>(i);
        mOrder.push_back(static_cast<int>(i));
    }
    ++mGeneration;
    updateShown();
    setGround(mGround, mPalette);
}

const GraphParameter* ShownTraces::at(int index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < mTraces.size() ? &mTraces[static_cast<std::size_t>(index)] : nullptr;
}

GraphParameter* ShownTraces::slot(int index)
{
    return at(index) ? &mTraces[static_cast<std::size_t>(index)] : nullptr;
}

void ShownTraces::changed() const
{
    if (mChanged)
        mChanged();
}

bool isShown(const ShownTraces& traces, int index)
{
    return std::ranges::find(traces.shown(), index) != traces.shown().end();
}

void ShownTraces::updateShown()
{
    mShown.clear();
    for (const int index : mOrder) {
        if (at(index)->active)
            mShown.push_back(index);
    }
    for (int* pIndex : {&mPointed, &mPinned}) {
        if (!isShown(*this, *pIndex))
            *pIndex = -1;
    }
}

void ShownTraces::setActive(int index, bool on)
{
    GraphParameter* pTrace = slot(index);
    if (!pTrace || pTrace->active == on)
        return;
    pTrace->active = on;
    ++mGeneration;
    updateShown();
    changed();
}

void ShownTraces::setName(int index, const QString& name, const QString& unit)
{
    GraphParameter* pTrace = slot(index);
    if (!pTrace)
        return;
    // What the user chose was the parameter, not the slot that another one has taken.
    if (pTrace->name != name && index == mPinned)
        mPinned = mPointed = -1;
    pTrace->name = name;
    pTrace->unit = unit;
    changed();
}

void ShownTraces::setPrecision(int index, int digits)
{
    if (GraphParameter* pTrace = slot(index))
        pTrace->precision = std::clamp(digits, 0, 17);
    changed();
}

void ShownTraces::edit(int index, const std::function<void(GraphParameter&)>& change)
{
    GraphParameter* pTrace = slot(index);
    if (!pTrace)
        return;
    change(*pTrace);
    colour(*pTrace);
    changed();
}

void ShownTraces::colour(GraphParameter& trace) const
{
    if (!trace.hasOwnColour)
        trace.colour = standardTraceColour(mPalette, trace.colourNumber);
    trace.drawnColour = drawnTraceColour(trace, mGround);
}

void ShownTraces::setColour(int index, const QColor& colour)
{
    GraphParameter* pTrace = slot(index);
    if (!pTrace)
        return;
    pTrace->hasOwnColour = colour.isValid();
    pTrace->colour = colour;
    this->colour(*pTrace);
    changed();
}

void ShownTraces::setGround(const QColor& colour, EGraphPalette palette)
{
    mGround = colour;
    mPalette = palette;
    for (GraphParameter& trace : mTraces)
        this->colour(trace);
    changed();
}

bool ShownTraces::move(int from, int to)
{
    const auto source = std::ranges::find(mOrder, from), target = std::ranges::find(mOrder, to);
    if (source == mOrder.end() || target == mOrder.end() || source == target)
        return false;
    if (source < target)
        std::rotate(source, source + 1, target + 1);
    else
        std::rotate(target, source, source + 1);
    updateShown();
    changed();
    return true;
}

void ShownTraces::setOrder(const std::vector<int>& slotOrder)
{
    const auto placeOf = [&](int slot) { return std::ranges::find(slotOrder, slot) - slotOrder.begin(); };
    std::ranges::sort(mOrder, {}, [&](int slot) { return std::pair(placeOf(slot), slot); });
    updateShown();
    changed();
}

void ShownTraces::point(int index)
{
    const int before = highlighted();
    mPointed = isShown(*this, index) ? index : -1;
    if (highlighted() != before)
        changed();
}

void ShownTraces::togglePin(int index)
{
    mPinned = mPinned == index || !isShown(*this, index) ? -1 : index;
    changed();
}

void ShownTraces::reserve(int index, std::size_t samples)
{
    if (GraphParameter* pTrace = slot(index))
        pTrace->samples.reserve(samples);
}

void ShownTraces::append(int index, std::span<const double> times, std::span<const double> values)
{
    GraphParameter* pTrace = slot(index);
    if (!pTrace)
        return;
    pTrace->samples.append(times, values);
    ++mGeneration;
}

void ShownTraces::clearSamples()
{
    for (GraphParameter& trace : mTraces) {
        trace.samples.clear();
        trace.breaks.clear();
    }
    ++mGeneration;
    changed();
}

void ShownTraces::setGapsOn(bool on)
{
    if (std::exchange(mGapsOn, on) != on)
        ++mGeneration;
}

std::optional<double> ShownTraces::valueAt(int index, double time) const
{
    const GraphParameter* pTrace = at(index);
    if (!pTrace || pTrace->samples.empty() || time < pTrace->samples.time(0) - CycleValues::kBeforeFirst)
        return std::nullopt;
    const std::size_t place = pTrace->samples.lastAtOrBefore(time).value_or(0);
    const double age = time - pTrace->samples.time(place);
    if (gapsOn() && age >= kLeastGap && age >= gapLength(pTrace->samples))
        return std::nullopt;
    return pTrace->samples.value(place);
}

} // namespace ZARN
