#pragma once

#include "card/record/RecordChannels.h"

#include <functional>
#include <map>
#include <memory>
#include <string>

namespace ZARN {

/// The decoded records of one or more files by CAN identifier. Filled completely before anybody reads it, from then on on any thread;
/// of what goes on growing, others read snapshots.
///
/// Two pseudo-channels look like channels but are made when asked for: 0x7FFFFFFF holds a copy of every record of kind 0,
/// 0x7FFFFFFE of every record of kind 1, in the order of reception.
class RecordData {
public:
    static constexpr uint32_t kPseudoKind0 = 0x7FFFFFFF;
    static constexpr uint32_t kPseudoKind1 = 0x7FFFFFFE;

    /// @param limitBytes the most memory the records may take; 0 takes three quarters of the machine's memory.
    explicit RecordData(std::size_t limitBytes = 0) : mPool(limitBytes), mPseudoPool(limitBytes) {}

    void clear();
    /// Appends one record. @return false when there is no memory left for it; it is then not there.
    bool append(uint32_t identifier, const StoredRecord& record)
    {
        RecordChannel* pChannel = channelFor(identifier);
        if (!pChannel) [[unlikely]]
            return false;
        if (record.ticks <= mLastTicks && mCount != 0 && !mLateOrder.started)
            startLateOrder();
        if (mLateOrder.started && !mPool.charge(kLateBytes)) [[unlikely]] {
            removeIfEmpty(*pChannel);
            return false;
        }
        if (!pChannel->entries.append(record, mPool)) [[unlikely]] {
            removeIfEmpty(*pChannel);
            return false;
        }
        mLastTicks = record.ticks;
        if (mLateOrder.started) [[unlikely]]
            mLateOrder.identifiers.push_back(identifier);
        ++mCount;
        return true;
    }
    /// Appends the newest record of a live feed and marks it as fresh.
    bool appendLive(const RecordEntry& entry);

    /// How many records were appended over all files.
    [[nodiscard]] uint32_t count() const { return mCount; }
    /// The channels of the identifiers met, in ascending order; without the pseudo-channels.
    [[nodiscard]] const std::vector<const RecordChannel*>& channels() const { return mChannels.ascending(); }
    /// The channel of an identifier, pseudo-channels included; null when it holds nothing.
    [[nodiscard]] const RecordChannel* channel(uint32_t identifier) const;
    [[nodiscard]] RecordChannel* channel(uint32_t identifier);

    /// Fills a channel that is computed from others, from a pool that has the memory that is left.
    using Maker = std::function<void(RecordEntries& entries, RecordPool& pool)>;
    /// A computed channel, made when it is asked for first and kept until another group of them is asked for. Making one may ask for
    /// others of its group. @return null when it holds nothing
    [[nodiscard]] std::shared_ptr<const RecordChannel> computedChannel(int group, const std::string& name, const Maker& make) const;

    /// Calls `visit` with every record, without the pseudo-channels, in the order of reception.
    void forEachInOrder(const std::function<void(uint32_t identifier, const StoredRecord& record)>& visit) const;

    void buildTimeIndex();
    /// The memory that the records take.
    [[nodiscard]] std::size_t bytes() const { return mPool.bytes() + mSharedBytes; }

    /// What growing data hold now, for whoever reads it on any thread while they go on: it takes no more records and never changes. Their
    /// memory is shared. To be called where they grow; times must rise.
    /// @param pShown what was shown before; channels with newer records are fresh, and those that nobody has looked at since
    [[nodiscard]] static std::shared_ptr<RecordData> snapshot(const std::shared_ptr<const RecordData>& pGrowing, const RecordData* pShown);

private:
    // What a record takes beside itself from then on: its place in the order, and in the index of its channel.
    static constexpr std::size_t kLateBytes = 16;
    // Order of reception across the channels. While the tick counter rises from record to record a merge by ticks restores it;
    // from the first record on that does not rise, the identifiers are noted one by one.
    struct LateOrder {
        bool started = false;
        std::vector<std::size_t> sizesBefore; // entries of each channel there was when it started
        std::vector<uint32_t> identifiers;
    };

    /// Null when there is no memory left for a new channel.
    RecordChannel* channelFor(uint32_t identifier)
    {
        RecordChannel* pChannel = mChannels.find(identifier);
        return pChannel ? pChannel : addChannel(identifier);
    }
    RecordChannel* addChannel(uint32_t identifier);
    void removeIfEmpty(const RecordChannel& channel);
    void startLateOrder();
    [[nodiscard]] RecordChannel* pseudoChannel(uint32_t identifier) const;
    template <typename Visitor> void visitInOrder(Visitor visit) const;

    RecordPool mPool;
    std::shared_ptr<const RecordData> mpGrowing; // of a snapshot: whose memory it is
    std::size_t mSharedBytes = 0;
    RecordChannels mChannels;
    uint64_t mLastTicks = 0;
    uint32_t mCount = 0;
    LateOrder mLateOrder;
    struct Computed {
        explicit Computed(std::size_t limitBytes) : pool(limitBytes) {}
        RecordPool pool;
        RecordChannel channel{0};
    };
    mutable std::recursive_mutex mComputedGuard;
    mutable std::map<std::string, std::shared_ptr<Computed>> mComputed;
    mutable int mComputedGroup = 0;
    mutable uint32_t mComputedCount = 0; // how many records there were when they were made
    mutable std::mutex mPseudoGuard; // several threads may read at once
    mutable RecordPool mPseudoPool;
    mutable std::map<uint32_t, RecordChannel> mPseudoChannels; // made on first use, again when records were appended since
    mutable uint32_t mPseudoCount = 0;                         // how many records there were then
};

} // namespace ZARN
