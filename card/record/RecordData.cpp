#include "card/record/RecordData.h"

#include <algorithm>
#include <new>
#include <queue>
#include <unordered_map>
#include <utility>

namespace ZARN {

namespace {

struct Cursor {
    const RecordChannel* pChannel;
    std::size_t position;
    std::size_t end;

    [[nodiscard]] uint64_t ticks() const { return pChannel->entries.stored(position).ticks; }
};

struct LaterTicks {
    bool operator()(const Cursor& a, const Cursor& b) const { return a.ticks() > b.ticks(); }
};

} // namespace

void RecordData::clear()
{
    mChannels.clear();
    mPool.clear();
    mpGrowing.reset();
    mSharedBytes = 0;
    mPseudoChannels.clear();
    mPseudoPool.clear();
    mComputed.clear();
    mLateOrder = {};
    mLastTicks = 0;
    mCount = 0;
}

bool RecordData::appendLive(const RecordEntry& entry)
{
    if (!append(entry.id, entry.stored()))
        return false;
    channelFor(entry.id)->setFresh(true);
    return true;
}

const RecordChannel* RecordData::channel(uint32_t identifier) const
{
    if (identifier == kPseudoKind0 || identifier == kPseudoKind1)
        return pseudoChannel(identifier);
    return mChannels.find(identifier);
}

RecordChannel* RecordData::channel(uint32_t identifier)
{
    return const_cast<RecordChannel*>(std::as_const(*this).channel(identifier));
}

void RecordData::buildTimeIndex()
{
    for (std::size_t i = 0; i < mChannels.size(); ++i)
        mChannels[i].buildTimeIndex();
}

std::shared_ptr<RecordData> RecordData::snapshot(const std::shared_ptr<const RecordData>& pGrowing, const RecordData* pShown)
{
    const auto pSnapshot = std::make_shared<RecordData>(std::max<std::size_t>(1, pGrowing->mPool.left()));
    pSnapshot->mpGrowing = pGrowing;
    pSnapshot->mSharedBytes = pGrowing->mPool.bytes();
    pSnapshot->mLastTicks = pGrowing->mLastTicks;
    pSnapshot->mCount = pGrowing->mCount;
    for (std::size_t i = 0; i < pGrowing->mChannels.size(); ++i) {
        const RecordChannel& channel = pGrowing->mChannels[i];
        RecordChannel& shared = pSnapshot->mChannels.add(channel.identifier());
        shared.entries = channel.entries.sealed();
        const RecordChannel* pBefore = pShown ? pShown->mChannels.find(channel.identifier()) : nullptr;
        shared.setFresh(!pBefore || pBefore->fresh() || pBefore->last().time < shared.last().time);
    }
    return pSnapshot;
}

RecordChannel* RecordData::addChannel(uint32_t identifier)
{
    return mpGrowing || !mPool.charge(RecordChannels::kBytes) ? nullptr : &mChannels.add(identifier);
}

void RecordData::removeIfEmpty(const RecordChannel& channel)
{
    if (channel.entries.empty())
        mChannels.removeLast(); // it was made for the record that found no room
}

void RecordData::startLateOrder()
{
    mLateOrder.started = true;
    for (std::size_t i = 0; i < mChannels.size(); ++i)
        mLateOrder.sizesBefore.push_back(mChannels[i].entries.size());
}

template <typename Visitor> void RecordData::visitInOrder(Visitor visit) const
{
    std::unordered_map<const RecordChannel*, std::size_t> next; // where the noted order goes on
    std::priority_queue<Cursor, std::vector<Cursor>, LaterTicks> queue;
    for (std::size_t i = 0; i < mChannels.size(); ++i) {
        const RecordChannel& channel = mChannels[i];
        std::size_t end = channel.entries.size();
        if (mLateOrder.started)
            next[&channel] = end = i < mLateOrder.sizesBefore.size() ? mLateOrder.sizesBefore[i] : 0;
        if (end > 0)
            queue.push({&channel, 0, end});
    }
    while (!queue.empty()) {
        Cursor cursor = queue.top();
        queue.pop();
        visit(cursor.pChannel->identifier(), cursor.pChannel->entries.stored(cursor.position));
        if (++cursor.position < cursor.end)
            queue.push(cursor);
    }
    for (const uint32_t identifier : mLateOrder.identifiers) {
        const RecordChannel* pChannel = mChannels.find(identifier);
        visit(identifier, pChannel->entries.stored(next[pChannel]++));
    }
}

void RecordData::forEachInOrder(const std::function<void(uint32_t, const StoredRecord&)>& visit) const
{
    visitInOrder([&visit](uint32_t identifier, const StoredRecord& record) { visit(identifier, record); });
}

std::shared_ptr<const RecordChannel> RecordData::computedChannel(int group, const std::string& name, const Maker& make) const
{
    const std::lock_guard guard(mComputedGuard);
    if (mComputedGroup != group || mComputedCount != mCount) {
        mComputed.clear(); // whoever still reads one holds it
        mComputedGroup = group;
        mComputedCount = mCount;
    }
    auto found = mComputed.find(name);
    if (found == mComputed.end()) {
        std::size_t left = mPool.left();
        for (const auto& [other, pOther] : mComputed)
            left -= std::min(left, pOther->pool.bytes());
        const auto pComputed = std::make_shared<Computed>(std::max<std::size_t>(1, left));
        make(pComputed->channel.entries, pComputed->pool);
        pComputed->channel.buildTimeIndex();
        found = mComputed.emplace(name, pComputed).first;
    }
    const auto& pComputed = found->second;
    return pComputed->channel.entries.empty() ? nullptr : std::shared_ptr<const RecordChannel>(pComputed, &pComputed->channel);
}

RecordChannel* RecordData::pseudoChannel(uint32_t identifier) const
{
    const std::lock_guard guard(mPseudoGuard);
    if (mPseudoCount != mCount) { // made before the newest records came
        mPseudoChannels.clear();
        mPseudoPool = RecordPool(std::max<std::size_t>(1, mPool.left())); // both share one limit
        mPseudoCount = mCount;
    }
    const auto found = mPseudoChannels.find(identifier);
    RecordChannel* pChannel = nullptr;
    if (found != mPseudoChannels.end()) {
        pChannel = &found->second;
    } else {
        pChannel = &mPseudoChannels.try_emplace(identifier, identifier).first->second;
        const uint16_t kind = identifier == kPseudoKind0 ? 0 : 1;
        visitInOrder([&](uint32_t from, const StoredRecord& record) {
            // A damaged record may carry the pseudo-channel's own number.
            const int copies = (from == identifier) + (record.kind == kind);
            for (int i = 0; i < copies; ++i) {
                if (!pChannel->entries.appendCopy(record, from, mPseudoPool)) {
                    mPseudoChannels.erase(identifier); // half a channel would pass for the whole
                    throw std::bad_alloc();
                }
            }
        });
        pChannel->buildTimeIndex();
    }
    return pChannel->entries.empty() ? nullptr : pChannel;
}

} // namespace ZARN
