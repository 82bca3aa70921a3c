#include "card/record/RecordEntries.h"

namespace ZARN {

bool RecordEntries::appendCopy(const StoredRecord& record, uint32_t identifier, RecordPool& pool)
{
    if (!append(record, pool))
        return false;
    if (!mpCopiedIdentifiers)
        mpCopiedIdentifiers = std::make_unique<std::vector<uint32_t>>();
    mpCopiedIdentifiers->push_back(identifier);
    return true;
}

RecordEntries RecordEntries::sealed() const
{
    RecordEntries entries(mIdentifier);
    entries.mpNext = entries.mpEnd = mpNext; // what is left of the last chunk is the other's
    entries.mLastTicks = mLastTicks;
    entries.mAscending = mAscending;
    entries.mIsSealed = true;
    entries.mChunks = mChunks;
    return entries;
}

bool RecordEntries::addChunk(RecordPool& pool)
{
    if (mIsSealed)
        return false;
    const std::size_t capacity = chunkCapacity(mChunks.size());
    StoredRecord* pChunk = pool.allocate(capacity);
    if (!pChunk)
        return false;
    mChunks.push_back(pChunk);
    mpNext = pChunk;
    mpEnd = pChunk + capacity;
    return true;
}

} // namespace ZARN
