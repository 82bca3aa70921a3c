#pragma once

#include <QDateTime>

namespace ZARN {

// Dates as texts, for windows, tables and files alike. Each is empty for an invalid date.

/// Of dates in windows, for fields that write them on their own.
inline constexpr const char* kDateFormat = "dd.MM.yyyy";
/// "26.05.2025", as windows tell it.
[[nodiscard]] QString dateText(const QDate& date);
/// "26.05.2025 07:40"; the same with seconds.
[[nodiscard]] QString dateTimeText(const QDateTime& dateTime);
[[nodiscard]] QString dateSecondsText(const QDateTime& dateTime);
/// "26.5.2025 7:40:05", as lists of cycles and files, and maps in KML, have it.
[[nodiscard]] QString shortDateText(const QDateTime& dateTime);
/// "2025-05-26 07:40:05", for tables that are printed.
[[nodiscard]] QString tableDateText(const QDateTime& dateTime);
/// "2025-05-26T07:40:05", for programs; the same with milliseconds and the sign of UTC.
[[nodiscard]] QString isoDateText(const QDateTime& dateTime);
[[nodiscard]] QString utcDateText(const QDateTime& dateTime);
/// "07:40:05"
[[nodiscard]] QString clockText(const QDateTime& dateTime);

} // namespace ZARN
