#include "card/record/RecordChannel.h"

#include <algorithm>
#include <cmath>
#include <limits>

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
    mpIndex.reset();
    if (entries.ascending())
        return;
    auto pIndex = std::make_unique<Index>();
    pIndex->runningMaximum.reserve(entries.size());
    uint64_t maximum = 0;
    for (std::size_t i = 0; i < entries.chunkCount(); ++i) {
        Bounds& bounds = pIndex->chunkBounds.emplace_back(Bounds{entries.chunk(i).front().time(), entries.chunk(i).front().time()});
        for (const StoredRecord& record : entries.chunk(i)) {
            bounds = {std::min(bounds.earliest, record.time()), std::max(bounds.latest, record.time())};
            maximum = std::max(maximum, record.ticks);
            pIndex->runningMaximum.push_back(maximum);
        }
    }
    mpIndex = std::move(pIndex);
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
    const std::vector<uint64_t>& maximum = mpIndex->runningMaximum;
    return lowerBound(maximum.size(), time, [&maximum](std::size_t i) {
        return recordTime(static_cast<uint32_t>(maximum[i] >> 32), static_cast<uint32_t>(maximum[i]));
    });
}

std::vector<PositionRange> RecordChannel::rangesIn(double from, double to) const
{
    if (entries.ascending()) {
        const double behind = std::nextafter(to, std::numeric_limits<double>::infinity());
        return {{firstAtOrAfter(from), firstAtOrAfter(behind)}};
    }
    std::vector<PositionRange> ranges;
    for (std::size_t c = 0, first = 0; c < entries.chunkCount(); ++c) {
        const std::size_t last = first + entries.chunk(c).size();
        if (!isIndexed() || (mpIndex->chunkBounds[c].latest >= from && mpIndex->chunkBounds[c].earliest <= to))
            ranges.push_back({first, last});
        first = last;
    }
    return ranges;
}

} // namespace ZARN
