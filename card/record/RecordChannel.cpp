#include "card/record/RecordChannel.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <ranges>

namespace ZARN {

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
    pIndex->latest.reserve(entries.size());
    for (std::size_t i = 0; i < entries.chunkCount(); ++i) {
        Bounds& bounds = pIndex->chunkBounds.emplace_back(Bounds{entries.chunk(i).front().time(), entries.chunk(i).front().time()});
        for (const StoredRecord& record : entries.chunk(i)) {
            bounds = {std::min(bounds.earliest, record.time()), std::max(bounds.latest, record.time())};
            pIndex->latest.append(record.ticks);
        }
    }
    mpIndex = std::move(pIndex);
}

std::size_t RecordChannel::firstAtOrAfter(double time) const
{
    if (std::isnan(time))
        return entries.size();
    if (entries.ascending()) {
        const auto positions = std::views::iota(uint32_t{0}, static_cast<uint32_t>(entries.size()));
        const auto found = std::ranges::lower_bound(positions, time, {}, [this](uint32_t position) { return entries.time(position); });
        return static_cast<std::size_t>(found - positions.begin());
    }
    if (!isIndexed()) {
        std::size_t position = 0;
        while (position < entries.size() && entries.time(position) < time)
            ++position;
        return position;
    }
    const std::vector<uint64_t>& latest = mpIndex->latest.maxima();
    const auto timeOf = [](uint64_t ticks) { return recordTime(static_cast<uint32_t>(ticks >> 32), static_cast<uint32_t>(ticks)); };
    return static_cast<std::size_t>(std::ranges::lower_bound(latest, time, {}, timeOf) - latest.begin());
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
