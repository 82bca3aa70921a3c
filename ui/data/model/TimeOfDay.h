#pragma once

#include <QString>
#include <QTime>

namespace ZARN {

/// Midnight plus so many milliseconds, which may be any number: it wraps every 24 hours.
[[nodiscard]] QTime timeOfDay(int64_t milliseconds);
/// Seconds to whole milliseconds, truncated.
[[nodiscard]] int64_t wholeMilliseconds(double seconds);
/// The time of day as "hh:mm:ss.zzz".
[[nodiscard]] QString timeOfDayText(int64_t milliseconds);

} // namespace ZARN
