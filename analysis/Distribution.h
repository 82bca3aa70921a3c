#pragma once

#include <cstddef>
#include <vector>

namespace ZARN {

/// How the values of a parameter lie in a stretch of time. Percentiles are interpolated straight between the closest ranks.
struct Distribution {
    std::size_t samples = 0; ///< finite values; the rest means nothing without any
    double minimum = 0.0;
    double p05 = 0.0;
    double median = 0.0;
    double p95 = 0.0;
    double maximum = 0.0;
    double mean = 0.0;

    /// Of values in any order; those that are not finite are removed, the others may be moved.
    [[nodiscard]] static Distribution of(std::vector<double>& values);
};

} // namespace ZARN
