#pragma once

#include <cstddef>

namespace ZARN {

/// Room that every number text fits in: 309 digits before the point, 17 behind it, sign and point.
inline constexpr std::size_t kNumberTextSize = 352;

/// Writes a number with a fixed number of decimals (0..17), as printf's "%.*f" does to the last digit, but "nan" whatever
/// its sign. @param pOut room for kNumberTextSize characters. @return the end of the text; no NUL is written.
char* writeFixed(char* pOut, double value, int decimals);
/// The same in general notation with `digits` significant digits, as printf's "%.*g".
char* writeGeneral(char* pOut, double value, int digits);
char* writeInteger(char* pOut, long long value);

} // namespace ZARN
