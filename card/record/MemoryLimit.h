#pragma once

#include <cstddef>
#include <string>

namespace ZARN {

/// The memory that is there for this process, in bytes: the machine's, unless the control group that it runs in, one above
/// that, or the limit of its address space (less what it takes already) leaves less.
/// @param group folder of the control group; with an empty one, that of this process is looked up.
[[nodiscard]] std::size_t availableMemory(const std::string& group = {});

} // namespace ZARN
