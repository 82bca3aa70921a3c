#pragma once

namespace ZARN {

/// A part of a recording, both ends included.
struct TimeSpan {
    double start = 0.0; ///< seconds since power-up
    double end = 0.0;

    [[nodiscard]] bool holds(double seconds) const { return seconds >= start && seconds <= end; }
    bool operator==(const TimeSpan&) const = default;
};

} // namespace ZARN
