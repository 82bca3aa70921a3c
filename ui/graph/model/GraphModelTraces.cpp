// The traces of GraphModel: which there are, what they are called and look like, in which order their strips lie.

#include "ui/graph/model/GraphModel.h"
#include "ui/graph/model/TraceColours.h"

#include <algorithm>
#include <utility>

namespace ZARN {

namespace {

constexpr int kMostParameters = 1000;

} // namespace

void GraphModel::setMaxParameters(int count)
{
    mParameters.clear();
    mParameters.resize(static_cast<std::size_t>(std::clamp(count, 0, kMostParameters)));
    mOrder.clear();
    for (std::size_t i = 0; i < mParameters.size(); ++i) {
        mParameters[i].colour = standardTraceColour(i);
        mOrder.push_back(static_cast<int>(i));
    }
    ++mGeneration;
    updateColours();
    updateShown();
    changed();
}

void GraphModel::updateColours()
{
    for (GraphParameter& parameter : mParameters)
        parameter.drawnColour = drawnTraceColour(parameter, mColours.background);
}

void GraphModel::updateShown()
{
    mShown.clear();
    for (const int index : mOrder) {
        if (mParameters[static_cast<std::size_t>(index)].active)
            mShown.push_back(index);
    }
    setPinned(mPinned);
    if (!isShown(mHighlighted))
        mHighlighted = -1;
}

bool GraphModel::isShown(int index) const
{
    return std::ranges::find(mShown, index) != mShown.end();
}

const GraphParameter* GraphModel::parameter(int index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < mParameters.size() ? &mParameters[static_cast<std::size_t>(index)] : nullptr;
}

GraphParameter* GraphModel::at(int index)
{
    return index >= 0 && static_cast<std::size_t>(index) < mParameters.size() ? &mParameters[static_cast<std::size_t>(index)] : nullptr;
}

void GraphModel::setActive(int index, bool on)
{
    GraphParameter* pParameter = at(index);
    if (!pParameter || pParameter->active == on)
        return;
    pParameter->active = on;
    ++mGeneration;
    updateShown();
    changed();
}

void GraphModel::activateSamples(int index, bool on)
{
    if (GraphParameter* pParameter = at(index))
        pParameter->samplesVisible = on;
    changed();
}

void GraphModel::setPrecision(int index, int digits)
{
    if (GraphParameter* pParameter = at(index))
        pParameter->precision = std::clamp(digits, 0, 17);
    changed();
}

void GraphModel::setParameterColor(int index, float red, float green, float blue)
{
    if (GraphParameter* pParameter = at(index)) {
        pParameter->colour = {red, green, blue};
        pParameter->hasOwnColour = true;
    }
    updateColours();
    changed();
}

void GraphModel::resetParameterColor(int index)
{
    if (GraphParameter* pParameter = at(index)) {
        pParameter->colour = standardTraceColour(static_cast<std::size_t>(index));
        pParameter->hasOwnColour = false;
    }
    updateColours();
    changed();
}

void GraphModel::setParameterName(int index, const QString& name, const QString& unit)
{
    GraphParameter* pParameter = at(index);
    if (!pParameter)
        return;
    // What the user chose was the parameter, not the slot that another one has taken.
    if (pParameter->name != name && index == mPinned)
        mPinned = mHighlighted = -1;
    pParameter->name = name;
    pParameter->unit = unit;
    changed();
}

void GraphModel::setBands(int index, std::vector<GraphBand> bands)
{
    if (GraphParameter* pParameter = at(index))
        pParameter->bands = std::move(bands);
    changed();
}

void GraphModel::moveParameter(int from, int to)
{
    const auto source = std::ranges::find(mOrder, from), target = std::ranges::find(mOrder, to);
    if (source == mOrder.end() || target == mOrder.end() || source == target)
        return;
    if (source < target)
        std::rotate(source, source + 1, target + 1);
    else
        std::rotate(target, source, source + 1);
    updateShown();
    changed();
    Q_EMIT signalMoveParameter(from, to);
}

void GraphModel::setOrder(const std::vector<int>& slotOrder)
{
    const auto placeOf = [&](int slot) { return std::ranges::find(slotOrder, slot) - slotOrder.begin(); };
    std::ranges::sort(mOrder, {}, [&](int slot) { return std::pair(placeOf(slot), slot); });
    updateShown();
    changed();
}

void GraphModel::setHighlighted(int index)
{
    const int wanted = isShown(index) ? index : -1;
    if (mHighlighted == wanted)
        return;
    mHighlighted = wanted;
    changed();
}

} // namespace ZARN
