#include "card/record/RecordChannel.h"

#include "app/FirstNumber.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ZARN {

namespace {

/// The first of so many positions, of ascending times, whose time is at or after one. Looks first where it would be if they were evenly
/// spread, as those of a recording nearly are, and from there in steps that double: a bisection of all of them would wait for memory at
/// each step. Logarithmic whatever the times.
template <typename TimeAt> std::size_t lowerBound(std::size_t size, double time, TimeAt timeAt)
{
    if (size == 0 || timeAt(0) >= time)
        return 0;
    std::size_t low = 0, high = size - 1; // of which the first is before the time, the last is not
    const double first = timeAt(low), last = timeAt(high);
    if (last < time)
        return size;
    const auto guess = std::min(static_cast<std::size_t>((time - first) / (last - first) * static_cast<double>(high)), high);
    if (timeAt(guess) < time) {
        low = guess;
        std::size_t step = 1;
        for (; step < high - low && timeAt(low + step) < time; step *= 2)
            low += step;
        high = std::min(high, low + step);
    } else {
        high = guess;
        std::size_t step = 1;
        for (; step < high - low && timeAt(high - step) >= time; step *= 2)
            high -= step;
        low = std::max(low, high - std::min(step, high));
    }
    return firstNumber(low + 1, high, [&](std::size_t position) { return timeAt(position) >= time; });
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
    if (entries.ascending())
        return lowerBound(entries.size(), time, [this](std::size_t position) { return entries.time(position); });
    if (!isIndexed()) {
        std::size_t position = 0;
        while (position < entries.size() && entries.time(position) < time)
            ++position;
        return position;
    }
    const std::vector<uint64_t>& latest = mpIndex->latest.maxima();
    return lowerBound(latest.size(), time, [&latest](std::size_t position) {
        return recordTime(static_cast<uint32_t>(latest[position] >> 32), static_cast<uint32_t>(latest[position]));
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
