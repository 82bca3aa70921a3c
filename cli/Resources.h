#pragma once

#include <string>

namespace ZARN {

/// Where the executable lies, links followed.
std::string programFolder();

/// The folder of what the program ships, beside that of the executable.
std::string resourceFolder();

/// The file of a profile that the program ships, below the folder beside that of the executable.
std::string shippedProfile(const std::string& name);

} // namespace ZARN
