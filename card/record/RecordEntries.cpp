#include "card/record/RecordEntries.h"

namespace ZARN {

bool RecordEntries::appendCopy(const StoredRecord& record, uint32_t identifier, RecordPool& pool)
{
    if (!append(record, pool))
        return false;
    more().copiedIdentifiers.push_back(identifier);
    return true;
}

RecordEntries::More& RecordEntries::more()
{
    if (!mpMore)
        mpMore = std::make_unique<More>(More{{mpFirst}, {}});
    return *mpMore;
}

RecordEntries RecordEntries::sealed() const
{
    RecordEntries entries(mIdentifier);
    entries.mpNext = entries.mpEnd = mpNext; // what is left of the last chunk is the other's
    entries.mLastTicks = mLastTicks;
    entries.mAscending = mAscending;
    entries.mIsSealed = true;
    entries.mpFirst = mpFirst;
    if (mpMore)
        entries.mpMore = std::make_unique<More>(*mpMore);
    return entries;
}

bool RecordEntries::addChunk(RecordPool& pool)
{
    if (mIsSealed)
        return false;
    const std::size_t capacity = chunkCapacity(chunkCount());
    StoredRecord* pChunk = pool.allocate(capacity);
    if (!pChunk)
        return false;
    if (mpFirst)
        more().chunks.push_back(pChunk);
    else
        mpFirst = pChunk;
    mpNext = pChunk;
    mpEnd = pChunk + capacity;
    return true;
}

} // namespace ZARN
