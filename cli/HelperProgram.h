#pragma once

#include <string>
#include <vector>

namespace ZARN {

/// Becomes another program of the package, which lies beside the one that runs: same process, same standard files.
/// @return only when that fails, with the reason.
std::string becomeProgram(const std::string& name, const std::vector<std::string>& arguments);

} // namespace ZARN
