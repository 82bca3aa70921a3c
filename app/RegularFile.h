#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace ZARN {

/// Reads a regular file whole with ordinary reads. Folders, pipes and devices are refused before they are opened, so
/// that reading neither hangs nor has side effects.
/// @return at most `limit` + 1 bytes (one more than `limit` says that the file is larger); nothing when the file cannot be
/// opened or read.
std::optional<std::string> readRegularFile(const std::string& path, std::size_t limit);

} // namespace ZARN
