#pragma once

#include <string>
#include <vector>

namespace ZARN {

/// Of the option that takes such a file.
constexpr const char* kPathListHelp = "file that names more cards, one path a line; \"-\" is standard input";

/// Adds the paths that a file names, one a line; "-" is standard input. @return empty, or "NAME: reason"
[[nodiscard]] std::string readPathList(const std::string& file, std::vector<std::string>& paths);

} // namespace ZARN
