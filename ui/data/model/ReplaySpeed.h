#pragma once

namespace ZARN {

constexpr double kSlowestReplay = 0.1;
constexpr double kFastestReplay = 100.0;

/// The speed that so many steps up (or down, when negative) lead to: along 0.1, 0.2, 0.5, 1, 2, 5 and so on, within the bounds.
[[nodiscard]] double steppedSpeed(double speed, int steps);

} // namespace ZARN
