#pragma once

#include "card/record/RecordChannel.h"

#include <mutex>

namespace ZARN {

/// Channels by CAN identifier. They never move. A damaged file may name as many identifiers as it has records, so one takes little.
class RecordChannels {
public:
    /// About what a channel takes beside its records.
    static constexpr std::size_t kBytes = sizeof(RecordChannel) + 32;

    /// Null when there is none.
    [[nodiscard]] RecordChannel* find(uint32_t identifier)
    {
        for (std::size_t i = hash(identifier);; i = (i + 1) & (mSlots.size() - 1)) {
            if (mSlots[i].index == kFree)
                return nullptr;
            if (mSlots[i].identifier == identifier)
                return &(*this)[mSlots[i].index];
        }
    }
    [[nodiscard]] const RecordChannel* find(uint32_t identifier) const { return const_cast<RecordChannels*>(this)->find(identifier); }
    /// A new channel, of an identifier that has none.
    RecordChannel& add(uint32_t identifier);
    /// Takes back the channel that was added last.
    void removeLast();
    void clear();

    [[nodiscard]] std::size_t size() const { return mSize; }
    /// In the order in which they were added.
    [[nodiscard]] RecordChannel& operator[](std::size_t index) { return mBlocks[index / kBlock][index % kBlock]; }
    [[nodiscard]] const RecordChannel& operator[](std::size_t index) const { return mBlocks[index / kBlock][index % kBlock]; }
    /// By ascending identifier. Several threads may ask, while none is added.
    [[nodiscard]] const std::vector<const RecordChannel*>& ascending() const;

private:
    static constexpr std::size_t kBlock = 64;
    static constexpr uint32_t kFree = UINT32_MAX;
    struct Slot {
        uint32_t identifier = 0;
        uint32_t index = kFree; // of the channel
    };
    [[nodiscard]] std::size_t hash(uint32_t identifier) const { return (identifier * 2654435761u) >> mHashShift; }
    void enter(std::size_t index);
    void rebuildSlots(unsigned bits);

    std::vector<std::vector<RecordChannel>> mBlocks; // all full but the last, none ever grows beyond what it reserved
    std::size_t mSize = 0;
    std::vector<Slot> mSlots{2}; // open addressing, a power of two, at most half full
    unsigned mHashShift = 31;
    mutable std::mutex mAscendingGuard;
    mutable std::vector<const RecordChannel*> mAscending; // made when asked for first
};

} // namespace ZARN
