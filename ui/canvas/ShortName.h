#pragma once

#include <QString>

#include <functional>

namespace ZARN {

/// The name where it fits; else with its words cut, the longest first and each with a full stop, so that names that begin or end alike can
/// be told apart. A unit in brackets stays whole.
/// @param fits whether a text has room
/// @return empty when it has none even with the shortest words
[[nodiscard]] QString shortName(const QString& name, const std::function<bool(const QString&)>& fits);
/// The same for a number of characters. What has no room so is cut at its end, with an ellipsis.
[[nodiscard]] QString shortName(const QString& name, int length);
/// @return the text, cut at its end with an ellipsis where it has more than so many characters.
[[nodiscard]] QString cutText(const QString& text, int length);

} // namespace ZARN
