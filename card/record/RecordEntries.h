#pragma once

#include "card/record/RecordPool.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <span>

namespace ZARN {

/// The records of one channel in the order of reception: a sequence that only grows, in chunks that never move. The
/// first chunks double from one record on, so that a channel of few records costs little; from 1,024 on all are alike.
class RecordEntries {
public:
    explicit RecordEntries(uint32_t identifier) : mIdentifier(identifier) {}

    /// Of the channel.
    [[nodiscard]] uint32_t identifier() const { return mIdentifier; }
    [[nodiscard]] std::size_t size() const { return empty() ? 0 : chunkStart(chunkCount() - 1) + lastChunkUsed(); }
    [[nodiscard]] bool empty() const { return !mpFirst; }
    [[nodiscard]] const StoredRecord& stored(std::size_t position) const
    {
        const std::size_t chunk = chunkOf(position);
        return chunks()[chunk][position - chunkStart(chunk)];
    }
    [[nodiscard]] RecordEntry operator[](std::size_t position) const { return {stored(position), identifier(position)}; }
    [[nodiscard]] RecordEntry front() const { return (*this)[0]; }
    [[nodiscard]] RecordEntry back() const { return (*this)[size() - 1]; }
    [[nodiscard]] double time(std::size_t position) const { return stored(position).time(); }
    /// True while no record is earlier than the one before it.
    [[nodiscard]] bool ascending() const { return mAscending; }

    /// Appends a record. @return false when the pool has no memory left; nothing is appended then.
    bool append(const StoredRecord& record, RecordPool& pool)
    {
        if (mpNext == mpEnd && !addChunk(pool))
            return false;
        mAscending &= record.ticks >= mLastTicks;
        mLastTicks = record.ticks;
        *mpNext++ = record;
        // A recording writes dozens of channels in turn: more streams than the processor prefetches by itself.
        __builtin_prefetch(mpNext + kPrefetch, 1);
        return true;
    }
    /// The records that are there now. They are shared: this sequence may go on, the other takes no more, and needs the pool as long.
    [[nodiscard]] RecordEntries sealed() const;
    /// Appends a copy of another channel's record; it keeps that channel's identifier.
    bool appendCopy(const StoredRecord& record, uint32_t identifier, RecordPool& pool);

    /// The chunks in order, for loops over whole channels.
    [[nodiscard]] std::size_t chunkCount() const { return mpMore ? mpMore->chunks.size() : mpFirst ? 1 : 0; }
    [[nodiscard]] std::span<const StoredRecord> chunk(std::size_t index) const
    {
        return {chunks()[index], index + 1 == chunkCount() ? lastChunkUsed() : chunkCapacity(index)};
    }
    /// Up to `most` records from `position` on that lie side by side; at least one while position < size().
    [[nodiscard]] std::span<const StoredRecord> run(std::size_t position, std::size_t most) const
    {
        const std::size_t index = chunkOf(position);
        const auto rest = chunk(index).subspan(position - chunkStart(index));
        return rest.first(std::min(most, rest.size()));
    }

    class Iterator {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = RecordEntry;
        using difference_type = std::ptrdiff_t;
        using pointer = void;
        using reference = RecordEntry;
        Iterator(const RecordEntries* pEntries, std::size_t position) : mpEntries(pEntries), mPosition(position) {}
        RecordEntry operator*() const { return (*mpEntries)[mPosition]; }
        Iterator& operator++()
        {
            ++mPosition;
            return *this;
        }
        bool operator==(const Iterator& other) const { return mPosition == other.mPosition; }

    private:
        const RecordEntries* mpEntries;
        std::size_t mPosition;
    };
    [[nodiscard]] Iterator begin() const { return {this, 0}; }
    [[nodiscard]] Iterator end() const { return {this, size()}; }

private:
    static constexpr std::size_t kFirst = 1;                 // records in each of the first two chunks
    static constexpr std::size_t kChunk = 1024;              // records in every chunk after the doubling ones
    static constexpr std::size_t kDoubling = 11;             // how many chunks hold the first kChunk records
    static constexpr std::size_t kPrefetch = 4;              // records ahead of the one written
    static_assert((kFirst << (kDoubling - 1)) == kChunk);

    static std::size_t chunkOf(std::size_t position)
    {
        return position < kChunk ? static_cast<std::size_t>(std::bit_width(position / kFirst)) : kDoubling - 1 + position / kChunk;
    }
    static std::size_t chunkStart(std::size_t chunk)
    {
        return chunk == 0 ? 0 : chunk < kDoubling ? kFirst << (chunk - 1) : (chunk - kDoubling + 1) * kChunk;
    }
    static std::size_t chunkCapacity(std::size_t chunk) { return chunkStart(chunk + 1) - chunkStart(chunk); }
    [[nodiscard]] StoredRecord* const* chunks() const { return mpMore ? mpMore->chunks.data() : &mpFirst; }
    [[nodiscard]] std::size_t lastChunkUsed() const { return static_cast<std::size_t>(mpNext - chunks()[chunkCount() - 1]); }
    [[nodiscard]] uint32_t identifier(std::size_t position) const
    {
        return mpMore && !mpMore->copiedIdentifiers.empty() ? mpMore->copiedIdentifiers[position] : mIdentifier;
    }
    /// What few channels of a hostile file have: a second record.
    struct More {
        std::vector<StoredRecord*> chunks; // the first one, too
        std::vector<uint32_t> copiedIdentifiers; // one a record in a pseudo-channel, else none
    };
    More& more();
    bool addChunk(RecordPool& pool);

    StoredRecord* mpNext = nullptr;
    StoredRecord* mpEnd = nullptr;
    uint64_t mLastTicks = 0;
    uint32_t mIdentifier;
    bool mAscending = true;
    bool mIsSealed = false;
    StoredRecord* mpFirst = nullptr; // the first chunk
    std::unique_ptr<More> mpMore;
};

} // namespace ZARN
