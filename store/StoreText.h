#pragma once

#include <QDateTime>

#include <string>

namespace ZARN {

/// Bytes from a card or a file system as text that every reader of a store takes: what is no UTF-8, and NUL, becomes "\xNN".
[[nodiscard]] std::string storeText(const std::string& bytes);
/// Whether a date can be written with four digits of the year, so that texts are in the order of time. Damaged clocks tell others.
[[nodiscard]] bool isStoreDate(const QDateTime& dateTime);
/// "yyyy-MM-ddThh:mm:ss"; empty when it is none.
[[nodiscard]] std::string storeDate(const QDateTime& dateTime);
/// The SHA-256 of bytes, as hexadecimal.
[[nodiscard]] std::string hashOf(const std::string& bytes);

} // namespace ZARN
