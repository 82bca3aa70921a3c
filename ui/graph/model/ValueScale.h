#pragma once

#include "analysis/MinMaxPyramid.h"

#include <array>

namespace ZARN {

/// The values at the bottom and at the top of an area.
using ValueSpan = std::array<double, 2>;

/// Which values stand at the bottom and at the top of a trace's area: those around its own extremes, or the same for all traces.
struct ValueScale {
    bool isAutomatic = true;
    double lower =
        -0.5; ///< of all traces while not automatic; the user types the two one after the other, so that they may pass each other
    double upper = 1.5;
    double spread = 0.0;           ///< what an automatic scale adds at both ends
    ValueSpan reference{0.0, 1.0}; ///< where an automatic scale knows no value; drawn as a band while it is shown
    bool isReferenceShown = false;

    /// @param values the extremes of the trace; empty for one without samples
    [[nodiscard]] ValueSpan spanOf(const ValueRange<double>& values) const;
    /// Where there is no trace.
    [[nodiscard]] ValueSpan shared() const { return isAutomatic ? reference : ValueSpan{lower, upper}; }
};

} // namespace ZARN
