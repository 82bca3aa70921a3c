#pragma once

#include <QString>
#include <QTime>

#include <optional>

namespace ZARN {

/// Midnight plus so many milliseconds, which may be any number: it wraps every 24 hours.
[[nodiscard]] QTime timeOfDay(int64_t milliseconds);
/// Seconds to whole milliseconds, truncated.
[[nodiscard]] int64_t wholeMilliseconds(double seconds);
/// The time of day as "hh:mm:ss.zzz", behind a minus sign when it is before the beginning.
[[nodiscard]] QString timeOfDayText(int64_t milliseconds);

/// Seconds as "hh:mm:ss", with as many hours as there are.
[[nodiscard]] QString elapsedText(int seconds);
/// A time as it is typed, in seconds: up to three fields with colons between them, or digits in pairs, of which the last are always the
/// seconds: "1:02:03" and "10203", "15:30" and "1530", "90". The first field may be any number. None for everything else.
[[nodiscard]] std::optional<int> elapsedSeconds(const QString& text);

} // namespace ZARN
