#include "card/record/RecordPool.h"

#include "card/record/MemoryLimit.h"

#include <cerrno>
#include <cstdlib>

#include <sys/mman.h>

namespace ZARN {

namespace {

constexpr std::size_t kHugePage = std::size_t(2) << 20;

} // namespace

std::size_t RecordPool::limit() const
{
    if (mGivenLimit != 0)
        return mGivenLimit;
    if (mAskedLimit == 0) {
        const int error = errno; // who appends what was read may have yet to tell why reading ended
        mAskedLimit = availableMemory() / 4 * 3;
        errno = error;
    }
    return mAskedLimit;
}

void RecordPool::Free::operator()(std::byte* pSlab) const
{
    std::free(pSlab);
}

StoredRecord* RecordPool::allocate(std::size_t count)
{
    const std::size_t bytes = count * sizeof(StoredRecord);
    if (bytes > mLeft && !addSlab(bytes))
        return nullptr;
    auto* pRecords = reinterpret_cast<StoredRecord*>(mpNext);
    mpNext += bytes;
    mLeft -= bytes;
    return pRecords;
}

bool RecordPool::charge(std::size_t bytes)
{
    if (bytes > limit() || mBytes > limit() - bytes)
        return false;
    mBytes += bytes;
    return true;
}

bool RecordPool::addSlab(std::size_t bytes)
{
    // Small recordings stay small: the first slabs are one huge page each, later ones grow with what is held already.
    const std::size_t size = std::max(kHugePage, std::min(mBytes / 8, 16 * kHugePage) / kHugePage * kHugePage);
    if (bytes > size || mBytes + size > limit())
        return false;
    auto* pSlab = static_cast<std::byte*>(std::aligned_alloc(kHugePage, size));
    if (!pSlab)
        return false;
#ifdef MADV_HUGEPAGE
    madvise(pSlab, size, MADV_HUGEPAGE);
#endif
    mSlabs.emplace_back(pSlab);
    mpNext = pSlab;
    mLeft = size;
    mBytes += size;
    return true;
}

void RecordPool::clear()
{
    mSlabs.clear();
    mpNext = nullptr;
    mLeft = 0;
    mBytes = 0;
    mAskedLimit = 0;
}

} // namespace ZARN
