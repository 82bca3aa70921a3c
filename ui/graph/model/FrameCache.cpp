#include "ui/graph/model/FrameCache.h"

#include "ui/graph/model/StateSteps.h"

#include <algorithm>
#include <utility>

namespace ZARN {

void FrameCache::update(const ShownTraces& traces, const TimeWindow& window, int columns)
{
    const Key key{window, std::max(1, columns), traces.generation()};
    if (key == mKey)
        return;
    mKey = key;
    mVertices.resize(traces.all().size());
    for (const int index : traces.shown()) {
        std::vector<QPointF>& vertices = mVertices[static_cast<std::size_t>(index)];
        mBuilder.setGaps(gapsOf(traces, index));
        mBuilder.build(traces.at(index)->samples, window.begin(), window.end(), key.columns, vertices);
        if (traces.at(index)->pStates)
            makeSteps(vertices);
    }
}

std::span<const uint32_t> FrameCache::gapsOf(const ShownTraces& traces, int index)
{
    if (!traces.gapsOn())
        return {};
    mGaps.resize(traces.all().size());
    Gaps& gaps = mGaps[static_cast<std::size_t>(index)];
    if (std::exchange(gaps.generation, traces.generation()) != traces.generation())
        gaps.places = gaps.found.of(traces.at(index)->samples, traces.at(index)->breaks);
    return gaps.places;
}

bool FrameCache::isCurrent(const ShownTraces& traces, const TimeWindow& window) const
{
    return mKey == Key{window, mKey.columns, traces.generation()};
}

const std::vector<QPointF>& FrameCache::vertices(int index) const
{
    static const std::vector<QPointF> kNone;
    return index >= 0 && static_cast<std::size_t>(index) < mVertices.size() ? mVertices[static_cast<std::size_t>(index)] : kNone;
}

} // namespace ZARN
