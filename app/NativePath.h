#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace ZARN {

/// File names are bytes to the system and may be no text. These two convert them to QString and back without loss: a byte that
/// is no UTF-8 becomes half a surrogate pair, which no text holds and which is shown as a replacement character.
[[nodiscard]] QString fromNativePath(std::string_view bytes);
[[nodiscard]] std::string toNativePath(const QString& path);

} // namespace ZARN
