#include "card/record/RecordChannels.h"

namespace ZARN {

namespace {

constexpr unsigned kFirstBits = 8; // slots of the first table

} // namespace

RecordChannel& RecordChannels::add(uint32_t identifier)
{
    if (mSize % kBlock == 0)
        mBlocks.emplace_back().reserve(kBlock);
    RecordChannel& channel = mBlocks.back().emplace_back(identifier);
    ++mSize;
    if (mSize * 2 > mSlots.size())
        rebuildSlots(std::max(kFirstBits, 33 - mHashShift));
    else
        enter(mSize - 1);
    return channel;
}

void RecordChannels::removeLast()
{
    mBlocks.back().pop_back();
    if (--mSize % kBlock == 0)
        mBlocks.pop_back();
    mAscending.clear();
    rebuildSlots(32 - mHashShift);
}

void RecordChannels::clear()
{
    mBlocks.clear();
    mSize = 0;
    mAscending = std::vector<const RecordChannel*>();
    rebuildSlots(1);
}

const std::vector<const RecordChannel*>& RecordChannels::ascending() const
{
    const std::lock_guard guard(mAscendingGuard);
    if (mAscending.size() != mSize) {
        mAscending.clear();
        mAscending.reserve(mSize);
        for (std::size_t index = 0; index < mSize; ++index)
            mAscending.push_back(&(*this)[index]);
        std::ranges::sort(mAscending, {}, &RecordChannel::identifier);
    }
    return mAscending;
}

void RecordChannels::enter(std::size_t index)
{
    const uint32_t identifier = (*this)[index].identifier();
    std::size_t i = hash(identifier);
    while (mSlots[i].index != kFree)
        i = (i + 1) & (mSlots.size() - 1);
    mSlots[i] = {identifier, static_cast<uint32_t>(index)};
}

void RecordChannels::rebuildSlots(unsigned bits)
{
    mSlots = std::vector<Slot>(); // of a million, the old ones are not kept beside the new; "= {}" would keep them
    mSlots.resize(std::size_t(1) << bits);
    mHashShift = 32 - bits;
    for (std::size_t index = 0; index < mSize; ++index)
        enter(index);
}

} // namespace ZARN
