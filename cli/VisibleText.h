#pragma once

#include <string>
#include <string_view>

namespace ZARN {

/// Whether a character acts on a terminal instead of being seen: control characters, line and paragraph breaks, marks of writing
/// direction, characters without width. All of them are single units of UTF-16.
[[nodiscard]] bool isInvisible(char16_t character);

/// A text from a card, a profile or the call as it may be printed: all of it is seen, on one line, and nothing in it steers the
/// terminal: "\n", "\x1b", "\u202e", and "\xff" for a byte that is no UTF-8.
[[nodiscard]] std::string visibleText(std::string_view text);

} // namespace ZARN
