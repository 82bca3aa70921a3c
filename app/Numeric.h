#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>

namespace ZARN {

/// Converts a double to an integer type, truncating toward zero. Values outside the type's range saturate at its
/// limits and NaN gives 0, so that no value found in a file is undefined behaviour.
template <std::integral Integer> [[nodiscard]] constexpr Integer saturatingCast(double value)
{
    using Limits = std::numeric_limits<Integer>;
    // One above the largest value is a power of two and so exact as a double, which the largest value itself need not be.
    constexpr double aboveMax = 2.0 * static_cast<double>(Limits::max() / 2 + 1);
    if (value != value)
        return 0;
    if (value >= aboveMax)
        return Limits::max();
    if (value <= static_cast<double>(Limits::min()))
        return Limits::min();
    return static_cast<Integer>(value);
}

} // namespace ZARN
