#pragma once

#include <string>
#include <vector>

namespace ZARN {

/// "; did you mean NAME?" with the name that a mistyped word is nearest to; empty when none is near.
[[nodiscard]] std::string suggestion(const std::string& word, const std::vector<std::string>& names);

} // namespace ZARN
