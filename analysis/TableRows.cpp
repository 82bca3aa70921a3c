#include "analysis/TableRows.h"

#include "app/FirstNumber.h"
#include "app/LastOfKey.h"

#include <array>
#include <bit>
#include <functional>
#include <iterator>
#include <utility>

namespace ZARN {

namespace {

constexpr std::size_t kBitsASample = 32; // what sorting by bits may take: 4 bytes for each sample

/// Calls `visit` with the key of every sample, in stored order, but of the runs that `isKnown(position, count)`.
template <typename Skip, typename Visitor> void forEachKey(const Trace& trace, Skip isKnown, Visitor visit)
{
    std::array<double, Trace::kRun> times{};
    for (std::size_t position = 0; position < trace.size();) {
        if (const std::size_t next = std::min(Trace::kRun, trace.size() - position); isKnown(position, next)) {
            position += next;
            continue;
        }
        const std::size_t count = trace.readTimes(position, times);
        std::for_each_n(times.begin(), count, [&](double time) { visit(TimeKey::of(time)); });
        position += count;
    }
}

bool none(std::size_t, std::size_t)
{
    return false;
}

struct KeyPosition {
    TimeKey key;
    uint32_t position;
};

} // namespace

TableRows::TableRows(const TraceSet& traces)
{
    std::map<const void*, std::size_t> known; // parameters often share a channel
    for (const auto& pTrace : traces.traces()) {
        const auto [place, added] = known.try_emplace(pTrace->timesIdentity(), kNoSamples);
        if (added)
            place->second = addChannel(*pTrace);
        mColumns.push_back(place->second);
    }
    collectKeys();
}

std::size_t TableRows::addChannel(const Trace& trace)
{
    if (trace.empty())
        return kNoSamples;
    mChannels.push_back({&trace, trace.ascending() ? std::vector<uint32_t>() : sortedPositions(trace)});
    return mChannels.size() - 1;
}

std::vector<uint32_t> TableRows::sortedPositions(const Trace& trace)
{
    std::vector<KeyPosition> samples;
    samples.reserve(trace.size());
    forEachKey(trace, none, [&](TimeKey key) { samples.push_back({key, static_cast<uint32_t>(samples.size())}); });
    keepLastOfKey(samples, &KeyPosition::key);
    std::vector<uint32_t> positions(samples.size());
    std::ranges::transform(samples, positions.begin(), &KeyPosition::position);
    return positions;
}

template <typename Skip, typename Visitor> void TableRows::Channel::forEachKey(Skip isKnown, Visitor visit) const
{
    if (sorted.empty()) {
        ZARN::forEachKey(
            *pTrace, [&](std::size_t position, std::size_t count) { return isKnown(keyAt(position), keyAt(position + count - 1)); }, visit);
    }
    for (const uint32_t position : sorted)
        visit(keyAt(position));
}

/// Time keys lie close together in every healthy recording: a bit each then sorts them in one pass over the samples. Damaged times may
/// lie anywhere, which would take half a gigabyte of bits; then the channels' keys are merged.
void TableRows::collectKeys()
{
    std::size_t samples = 0;
    TimeKey first{UINT32_MAX};
    TimeKey last{0};
    for (const Channel& channel : mChannels) {
        const bool ascending = channel.sorted.empty();
        const std::size_t count = ascending ? channel.pTrace->size() : channel.sorted.size();
        samples += count;
        first = std::min(first, channel.keyAt(ascending ? 0 : channel.sorted.front()));
        last = std::max(last, channel.keyAt(ascending ? count - 1 : channel.sorted.back()));
    }
    if (samples == 0)
        return;
    if ((last.tenths - first.tenths) / kBitsASample <= samples)
        sortKeys(first, last);
    else
        mergeKeys();
}

void TableRows::sortKeys(TimeKey first, TimeKey last)
{
    std::vector<uint64_t> bits((last.tenths - first.tenths) / 64 + 1);
    // Most channels are sent more often than a row lasts: the first of them has made the rows of the others.
    const auto isFull = [&](TimeKey from, TimeKey to) {
        const auto word = [&](TimeKey key) { return bits.begin() + static_cast<std::ptrdiff_t>((key.tenths - first.tenths) / 64); };
        return std::all_of(word(from), word(to) + 1, [](uint64_t each) { return each == UINT64_MAX; });
    };
    for (const Channel& channel : mChannels) {
        // Neighbours share a word: to write it for each of them would wait for the one before.
        uint32_t word = 0;
        uint64_t gathered = 0;
        channel.forEachKey(isFull, [&](TimeKey key) {
            const uint32_t place = key.tenths - first.tenths;
            if (place / 64 != word) {
                bits[word] |= std::exchange(gathered, 0);
                word = place / 64;
            }
            gathered |= uint64_t{1} << place % 64;
        });
        bits[word] |= gathered;
    }
    std::size_t count = 0;
    for (const uint64_t word : bits)
        count += static_cast<std::size_t>(std::popcount(word));
    mKeys.reserve(count);
    for (std::size_t i = 0; i < bits.size(); ++i) {
        for (uint64_t word = bits[i]; word != 0; word &= word - 1)
            mKeys.push_back({first.tenths + static_cast<uint32_t>(i * 64) + static_cast<uint32_t>(std::countr_zero(word))});
    }
}

void TableRows::mergeKeys()
{
    for (const Channel& channel : mChannels) {
        std::vector<TimeKey> keys;
        channel.forEachKey([](TimeKey, TimeKey) { return false; },
                           [&keys](TimeKey key) {
                               if (keys.empty() || keys.back() != key)
                                   keys.push_back(key);
                           });
        std::vector<TimeKey> merged;
        merged.reserve(mKeys.size() + keys.size());
        std::set_union(mKeys.begin(), mKeys.end(), keys.begin(), keys.end(), std::back_inserter(merged));
        mKeys.swap(merged);
    }
    mKeys.shrink_to_fit();
}

std::size_t TableRows::rowAt(double seconds) const
{
    const auto after = std::upper_bound(mKeys.begin(), mKeys.end(), TimeKey::of(seconds));
    return after == mKeys.begin() ? 0 : static_cast<std::size_t>(after - mKeys.begin() - 1);
}

std::optional<std::size_t> TableRows::sampleAt(std::size_t column, std::size_t row) const
{
    if (mColumns[column] == kNoSamples)
        return {};
    return mChannels[mColumns[column]].last(mKeys[row]);
}

std::optional<std::size_t> TableRows::Channel::last(TimeKey key) const
{
    const bool ascending = sorted.empty();
    const auto positionAt = [&](std::size_t place) { return ascending ? place : sorted[place]; };
    const auto isAbove = [&](std::size_t place) { return keyAt(positionAt(place)) > key; };
    // From where the last search ended, in steps that double, to a span that holds the end of this one.
    std::size_t low = found, high = found;
    const std::size_t size = ascending ? pTrace->size() : sorted.size();
    for (std::size_t step = 1; low > 0 && isAbove(low - 1); step *= 2)
        low -= std::min(step, low);
    for (std::size_t step = 1; high < size && !isAbove(high); step *= 2)
        high += std::min(step, size - high);
    found = firstNumber(low, high, isAbove);
    if (found == 0 || keyAt(positionAt(found - 1)) != key)
        return {};
    return positionAt(found - 1);
}

std::size_t TableRows::bytes() const
{
    std::size_t bytes = mKeys.capacity() * sizeof(TimeKey) + mColumns.capacity() * sizeof(std::size_t);
    for (const Channel& channel : mChannels)
        bytes += sizeof(Channel) + channel.sorted.capacity() * sizeof(uint32_t);
    return bytes;
}

} // namespace ZARN
