#include "vesk/base/Memory.h"

#include <cstdint>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace VESK::Memory {

void preferLargePages([[maybe_unused]] const void* pBegin, [[maybe_unused]] std::size_t bytes)
{
#if defined(__linux__) && defined(MADV_HUGEPAGE)
    constexpr std::uintptr_t kLarge = std::uintptr_t(2) << 20;
    const auto begin = reinterpret_cast<std::uintptr_t>(pBegin);
    // Only whole large pages: no other memory is touched, and none is taken beyond the stretch.
    const std::uintptr_t first = (begin + kLarge - 1) / kLarge * kLarge, last = (begin + bytes) / kLarge * kLarge;
    if (first < last)
        madvise(reinterpret_cast<void*>(first), last - first, MADV_HUGEPAGE);
#endif
}

} // namespace VESK::Memory
