#pragma once

#include <string>
#include <vector>

namespace ZARN {

/// The names in a call may be any bytes. The library that reads the call takes some of them for more than names: "[a,b]" for a list, what
/// begins with "-" for an option even behind "--" in places. Those are marked on the way into it and unmarked on the way out.
struct Operands {
    /// The arguments behind the program's name, without the "--" behind which there are names only.
    [[nodiscard]] static std::vector<std::string> marked(const std::vector<std::string>& arguments);
    [[nodiscard]] static std::string unmarked(const std::string& text);
    /// A message of the library's, which may have marks in it.
    [[nodiscard]] static std::string withoutMarks(std::string message);
};

} // namespace ZARN
