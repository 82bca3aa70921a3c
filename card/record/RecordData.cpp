#include "card/record/RecordData.h"

#include <algorithm>
#include <new>
#include <queue>
#include <utility>

namespace ZARN {

namespace {

constexpr unsigned kFirstBits = 8; // slots of the first table
// About what a channel takes beside its records: in a damaged file every record may name another one.
constexpr std::size_t kChannelBytes = sizeof(RecordChannel) + 160;

struct Cursor {
    const RecordChannel* pChannel;
    uint32_t identifier;
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
    mSlots.assign(2, {0, nullptr});
    mHashShift = 31;
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
    const auto found = mChannels.find(identifier);
    return found == mChannels.end() ? nullptr : &found->second;
}

RecordChannel* RecordData::channel(uint32_t identifier)
{
    return const_cast<RecordChannel*>(std::as_const(*this).channel(identifier));
}

void RecordData::buildTimeIndex()
{
    for (auto& [identifier, channel] : mChannels)
        channel.buildTimeIndex();
}

std::shared_ptr<RecordData> RecordData::snapshot(const std::shared_ptr<const RecordData>& pGrowing, const RecordData* pShown)
{
    const auto pSnapshot = std::make_shared<RecordData>(std::max<std::size_t>(1, pGrowing->mPool.left()));
    pSnapshot->mpGrowing = pGrowing;
    pSnapshot->mSharedBytes = pGrowing->mPool.bytes();
    pSnapshot->mLastTicks = pGrowing->mLastTicks;
    pSnapshot->mCount = pGrowing->mCount;
    for (const auto& [identifier, channel] : pGrowing->mChannels) {
        RecordChannel& shared = pSnapshot->mChannels.try_emplace(pSnapshot->mChannels.end(), identifier, identifier)->second;
        shared.entries = channel.entries.sealed();
        const auto before = pShown ? pShown->mChannels.find(identifier) : pGrowing->mChannels.end();
        const bool wasShown = pShown && before != pShown->mChannels.end();
        shared.setFresh(!wasShown || before->second.fresh() || before->second.last().time < shared.last().time);
    }
    return pSnapshot;
}

RecordChannel* RecordData::addChannel(uint32_t identifier)
{
    if (mpGrowing || !mPool.charge(kChannelBytes))
        return nullptr;
    const auto [place, added] = mChannels.try_emplace(identifier, identifier);
    if (mChannels.size() * 2 > mSlots.size())
        rebuildSlots(std::max(kFirstBits, 33 - mHashShift));
    else
        enter(identifier, &place->second);
    return &place->second;
}

void RecordData::removeIfEmpty(uint32_t identifier)
{
    const auto found = mChannels.find(identifier);
    if (!found->second.entries.empty())
        return;
    mChannels.erase(found);
    rebuildSlots(32 - mHashShift);
}

void RecordData::enter(uint32_t identifier, RecordChannel* pChannel)
{
    std::size_t i = hash(identifier);
    while (mSlots[i].pChannel)
        i = (i + 1) & (mSlots.size() - 1);
    mSlots[i] = {identifier, pChannel};
}

void RecordData::rebuildSlots(unsigned bits)
{
    mSlots.assign(std::size_t(1) << bits, {0, nullptr});
    mHashShift = 32 - bits;
    for (auto& [identifier, channel] : mChannels)
        enter(identifier, &channel);
}

void RecordData::startLateOrder()
{
    mLateOrder.started = true;
    for (const auto& [identifier, channel] : mChannels)
        mLateOrder.sizesBefore.emplace_back(identifier, channel.entries.size());
}

template <typename Visitor> void RecordData::visitInOrder(Visitor visit) const
{
    std::map<uint32_t, std::size_t> next; // of each channel, where the noted order goes on
    std::priority_queue<Cursor, std::vector<Cursor>, LaterTicks> queue;
    auto before = mLateOrder.sizesBefore.begin(); // both ascend by identifier
    for (const auto& [identifier, channel] : mChannels) {
        std::size_t end = mLateOrder.started ? 0 : channel.entries.size();
        if (before != mLateOrder.sizesBefore.end() && before->first == identifier)
            end = before++->second;
        next[identifier] = end;
        if (end > 0)
            queue.push({&channel, identifier, 0, end});
    }
    while (!queue.empty()) {
        Cursor cursor = queue.top();
        queue.pop();
        visit(cursor.identifier, cursor.pChannel->entries.stored(cursor.position));
        if (++cursor.position < cursor.end)
            queue.push(cursor);
    }
    for (const uint32_t identifier : mLateOrder.identifiers)
        visit(identifier, mChannels.at(identifier).entries.stored(next[identifier]++));
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
