#pragma once

#include "card/record/RecordEntry.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace ZARN {

/// Hands out the memory in which records are kept, cut from large slabs that the kernel may back with huge pages: a page
/// touched for the first time costs far more than the copy that fills it. Nothing is moved and nothing is given back
/// singly; clear() drops all. Refuses, instead of exhausting the machine, what would pass the byte limit.
class RecordPool {
public:
    /// @param limitBytes the most that may be handed out; 0 takes three quarters of the memory that is there when something is first
    /// asked for, and again after clear().
    explicit RecordPool(std::size_t limitBytes = 0) : mGivenLimit(limitBytes) {}

    /// Room for `count` records, uninitialised; null when the limit is reached or the system has no memory.
    [[nodiscard]] StoredRecord* allocate(std::size_t count);
    /// Counts memory that is taken elsewhere on behalf of the records. @return false when it would pass the limit.
    [[nodiscard]] bool charge(std::size_t bytes);
    void clear();
    [[nodiscard]] std::size_t left() const { return limit() - mBytes; } ///< until the limit
    [[nodiscard]] std::size_t bytes() const { return mBytes; } ///< what the slabs take, used or not, and what was charged

private:
    struct Free {
        void operator()(std::byte* pSlab) const;
    };
    bool addSlab(std::size_t bytes);
    [[nodiscard]] std::size_t limit() const;

    std::vector<std::unique_ptr<std::byte, Free>> mSlabs;
    std::byte* mpNext = nullptr;
    std::size_t mLeft = 0;
    std::size_t mBytes = 0;
    std::size_t mGivenLimit;
    mutable std::size_t mAskedLimit = 0; // 0: not asked yet, which takes some ten system calls
};

} // namespace ZARN
