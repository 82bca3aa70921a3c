#pragma once

#include <QDateTime>
#include <QString>

#include <string>

namespace ZARN {

/// A text of a card or profile.
[[nodiscard]] QString reportText(const std::string& bytes);
/// The same of what a file says in one line of characters that can be set; of what is longer than any sentence the beginning.
[[nodiscard]] QString printable(const QString& text);
/// A date with its time of day. @param none stands for an invalid one
[[nodiscard]] QString reportDate(const QDateTime& dateTime, const QString& none);

} // namespace ZARN
