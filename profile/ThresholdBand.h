#pragma once

#include "profile/Threshold.h"

#include <limits>

namespace ZARN {

/// The values from `from` up to but not including `to`, which all pass the same boundaries of a list.
struct ThresholdBand {
    double from = -std::numeric_limits<double>::infinity();
    double to = std::numeric_limits<double>::infinity();
    const Threshold* pThreshold = nullptr; ///< the boundary that decides; null below the first

    [[nodiscard]] bool holds(double value) const { return value >= from && value < to; }
    [[nodiscard]] ThresholdResult result() const
    {
        return pThreshold ? ThresholdResult{pThreshold->state, pThreshold->colour} : ThresholdResult{};
    }
};

/// The bands of a list from minus to plus infinity, as findThreshold() walks it; they refer to it.
[[nodiscard]] std::vector<ThresholdBand> thresholdBands(const ThresholdList& list);
/// The band that a value lies in; a value that is not a number lies in the last one.
[[nodiscard]] const ThresholdBand& findBand(const std::vector<ThresholdBand>& bands, double value);

} // namespace ZARN
