#include "analysis/TableRows.h"

#include "card/record/TimeKernels.h"

#include <algorithm>
#include <array>
#include <bit>
#include <iterator>

namespace ZARN {

namespace {

constexpr std::size_t kRun = 512; // samples whose times are computed at once
constexpr std::size_t kBitsASample = 32; // what sorting by bits may take: 4 bytes for each sample

/// Calls `visit` with the key of every sample, in stored order.
template <typename Visitor> void forEachKey(const RecordEntries& entries, Visitor visit)
{
    std::array<double, kRun> times{};
    for (std::size_t position = 0; position < entries.size();) {
        const auto records = entries.run(position, kRun);
        recordTimes(records, times.data());
        std::for_each_n(times.begin(), records.size(), [&](double time) { visit(TimeKey::of(time)); });
        position += records.size();
    }
}

struct KeyPosition {
    TimeKey key;
    uint32_t position;
};

/// The first place in [0, size) whose key, by `keyAt`, is above `key`; keyAt must not fall.
template <typename KeyAt> std::size_t firstAbove(std::size_t size, TimeKey key, KeyAt keyAt)
{
    std::size_t first = 0;
    while (size > 0) {
        const std::size_t half = size / 2;
        if (keyAt(first + half) > key) {
            size = half;
        } else {
            first += half + 1;
            size -= half + 1;
        }
    }
    return first;
}

} // namespace

TableRows::TableRows(const RecordData& data, std::span<const uint32_t> identifiers)
{
    std::map<uint32_t, std::size_t> known; // parameters often share a channel
    for (const uint32_t identifier : identifiers) {
        const auto [place, added] = known.try_emplace(identifier, kNoSamples);
        if (added)
            place->second = addChannel(data.channel(identifier));
        mColumns.push_back(place->second);
    }
    collectKeys();
}

std::size_t TableRows::addChannel(const RecordChannel* pChannel)
{
    if (!pChannel || pChannel->entries.empty())
        return kNoSamples;
    Channel channel{pChannel, {}};
    if (!pChannel->entries.ascending())
        channel.sorted = sortedPositions(pChannel->entries);
    mChannels.push_back(std::move(channel));
    return mChannels.size() - 1;
}

std::vector<uint32_t> TableRows::sortedPositions(const RecordEntries& entries)
{
    std::vector<KeyPosition> samples;
    samples.reserve(entries.size());
    forEachKey(entries, [&](TimeKey key) { samples.push_back({key, static_cast<uint32_t>(samples.size())}); });
    std::sort(samples.begin(), samples.end(), [](const KeyPosition& a, const KeyPosition& b) {
        return a.key != b.key ? a.key < b.key : a.position < b.position;
    });
    std::vector<uint32_t> positions;
    positions.reserve(samples.size());
    for (std::size_t i = 0; i < samples.size(); ++i) {
        if (i + 1 == samples.size() || samples[i].key != samples[i + 1].key)
            positions.push_back(samples[i].position);
    }
    return positions;
}

template <typename Visitor> void TableRows::Channel::forEachKey(Visitor visit) const
{
    if (sorted.empty())
        ZARN::forEachKey(pChannel->entries, visit);
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
        const std::size_t count = ascending ? channel.pChannel->entries.size() : channel.sorted.size();
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
    for (const Channel& channel : mChannels)
        channel.forEachKey([&](TimeKey key) { bits[(key.tenths - first.tenths) / 64] |= uint64_t{1} << (key.tenths - first.tenths) % 64; });
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
        channel.forEachKey([&keys](TimeKey key) {
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
    const std::size_t above = firstAbove(ascending ? pChannel->entries.size() : sorted.size(), key,
                                         [&](std::size_t place) { return keyAt(positionAt(place)); });
    if (above == 0 || keyAt(positionAt(above - 1)) != key)
        return {};
    return positionAt(above - 1);
}

const RecordChannel* TableRows::channel(std::size_t column) const
{
    return mColumns[column] == kNoSamples ? nullptr : mChannels[mColumns[column]].pChannel;
}

std::size_t TableRows::bytes() const
{
    std::size_t bytes = mKeys.capacity() * sizeof(TimeKey) + mColumns.capacity() * sizeof(std::size_t);
    for (const Channel& channel : mChannels)
        bytes += sizeof(Channel) + channel.sorted.capacity() * sizeof(uint32_t);
    return bytes;
}

} // namespace ZARN
