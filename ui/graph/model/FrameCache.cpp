#include "ui/graph/model/FrameCache.h"

#include <algorithm>

namespace ZARN {

void FrameCache::update(const ShownTraces& traces, const TimeWindow& window, int columns)
{
    const Key key{window, std::max(1, columns), traces.generation()};
    if (key == mKey)
        return;
    mKey = key;
    mVertices.resize(traces.all().size());
    for (const int index : traces.shown())
        mBuilder.build(traces.at(index)->samples, window.begin(), window.end(), key.columns, mVertices[static_cast<std::size_t>(index)]);
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
