#include "card/record/RecordChannel.h"

#include <algorithm>

namespace ZARN {

namespace {

/// The first position in [0, size) whose time, by `timeAt`, is not before `time`; timeAt must not fall.
template <typename TimeAt> std::size_t lowerBound(std::size_t size, double time, TimeAt timeAt)
{
    std::size_t first = 0;
    while (size > 0) {
        const std::size_t half = size / 2;
        if (timeAt(first + half) < time) {
            first += half + 1;
            size -= half + 1;
        } else {
            size = half;
        }
    }
    return first;
}

} // namespace

RecordEntry RecordChannel::last() const
{
    if (entries.empty())
        return {};
    RecordEntry entry = entries.back();
    entry.flag = mFresh;
    return entry;
}

void RecordChannel::buildTimeIndex()
{
    mRunningMaximum.clear();
    mChunkBounds.clear();
    if (entries.ascending())
        return;
    mRunningMaximum.reserve(entries.size());
    uint64_t maximum = 0;
    for (std::size_t i = 0; i < entries.chunkCount(); ++i) {
        Bounds& bounds = mChunkBounds.emplace_back(Bounds{entries.chunk(i).front().time(), entries.chunk(i).front().time()});
        for (const StoredRecord& record : entries.chunk(i)) {
            bounds = {std::min(bounds.earliest, record.time()), std::max(bounds.latest, record.time())};
            maximum = std::max(maximum, record.ticks);
            mRunningMaximum.push_back(maximum);
        }
    }
}

std::size_t RecordChannel::firstAtOrAfter(double time) const
{
    if (std::isnan(time))
        return entries.size();
    if (entries.ascending())
        return lowerBound(entries.size(), time, [this](std::size_t i) { return entries.time(i); });
    if (!isIndexed()) {
        std::size_t position = 0;
        while (position < entries.size() && entries.time(position) < time)
            ++position;
        return position;
    }
    return lowerBound(mRunningMaximum.size(), time, [this](std::size_t i) {
        return recordTime(static_cast<uint32_t>(mRunningMaximum[i] >> 32), static_cast<uint32_t>(mRunningMaximum[i]));
    });
}

} // namespace ZARN
