#pragma once

#include <QString>

#include <cstddef>
#include <optional>

namespace ZARN {

// Times as texts, for windows, tables and files alike.

/// Room that every text of writeElapsed() fits in.
inline constexpr std::size_t kTimeTextSize = 64;

/// Writes a time as "h:mm:ss" with decimals of the seconds behind a point. Called for every row of a table.
/// @param time in units of the last decimal. @param hourDigits digits of the hours at least; 0: "m:ss" while it is less than an hour.
/// @param decimals up to 18. @return the end of the text; no NUL is written.
char* writeElapsed(char* pOut, uint64_t time, int decimals, int hourDigits);
/// The same behind a minus sign when it is negative.
char* writeSigned(char* pOut, bool isNegative, uint64_t time, int decimals, int hourDigits);
/// Writes the time of day so many milliseconds after midnight, which wraps every 24 hours in both directions: "hh:mm:ss", or
/// "hh:mm:ss.zzz" with decimals.
char* writeTimeOfDay(char* pOut, int64_t milliseconds, bool withDecimals);

/// Seconds to whole milliseconds, truncated.
[[nodiscard]] int64_t wholeMilliseconds(double seconds);
[[nodiscard]] QString timeOfDayText(int64_t milliseconds, bool withDecimals);
/// As the lists beside the views write it: "hh:mm:ss.zzz", wrapping every 24 hours, behind a minus sign when it is before the beginning.
[[nodiscard]] QString signedTimeText(int64_t milliseconds);
[[nodiscard]] QString elapsedText(int64_t seconds, int hourDigits);
/// "h:mm", rounded to minutes; "-" for what is no length, as clocks that ran backwards make it.
[[nodiscard]] QString hoursText(double seconds);
/// A time as it is typed, in seconds: up to three fields with colons between them, or digits in pairs, of which the last are always the
/// seconds: "1:02:03" and "10203", "15:30" and "1530", "90". The first field may be any number. None for everything else.
[[nodiscard]] std::optional<int> elapsedSeconds(const QString& text);

} // namespace ZARN
