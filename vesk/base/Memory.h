#pragma once

#include <cstddef>

namespace VESK::Memory {

/// Asks the system to keep a large stretch of memory, not touched yet, in large pages: what is then read here and there all over it
/// waits less for the page tables. A hint; where the system has nothing like it, or the stretch is small, it does nothing.
void preferLargePages(const void* pBegin, std::size_t bytes);

} // namespace VESK::Memory
