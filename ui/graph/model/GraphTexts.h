#pragma once

#include <QString>

namespace ZARN {

/// A time of the record as "h:mm:ss" with decimals of the seconds: below zero with a minus sign, and with more than 23 hours where there
/// are so many. What is beyond the decimals is cut off. @param hours digits of the hours at least
[[nodiscard]] QString graphTime(double seconds, int decimals, int hours);

/// The same as "hh:mm:ss.zzz".
[[nodiscard]] inline QString graphTime(double seconds)
{
    return graphTime(seconds, 3, 2);
}

/// A value with a fixed number of decimals; a zero, and what is rounded to it, has no sign. Numbers that no recording holds (1e15 and
/// above) get an exponent.
[[nodiscard]] QString graphNumber(double value, int precision);

} // namespace ZARN
