#pragma once

#include "card/record/RecordEntry.h"

#include <compare>

namespace ZARN {

/// A time in tenths of a second since power-up, rounded to nearest: what tables and lists go by. A type of its own, so that it is
/// not mistaken for a row, a sample's position or seconds.
struct TimeKey {
    uint32_t tenths = 0;

    [[nodiscard]] static TimeKey of(double seconds) { return TimeKey{.tenths = timeTenths(seconds)}; }
    [[nodiscard]] int64_t milliseconds() const { return static_cast<int64_t>(tenths) * 100; }
    auto operator<=>(const TimeKey&) const = default;
};

} // namespace ZARN
