#pragma once

#include <QString>

#include <string>

namespace ZARN {

/// File names and paths as texts. The system takes any bytes for a name, also such as are no UTF-8 (cards written elsewhere have
/// them); each of these becomes a lone surrogate, U+DC80 to U+DCFF, which is shown as a replacement character and leads back to the
/// same byte, so that every file that a listing finds can be opened.
[[nodiscard]] QString decodeFileName(const std::string& bytes);
[[nodiscard]] std::string encodeFileName(const QString& name);

} // namespace ZARN
