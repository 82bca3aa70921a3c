#pragma once

#include "analysis/SampleSeries.h"

namespace ZARN {

/// Seconds without a sample that make a gap: five times what is usual for the trace, two at least.
[[nodiscard]] double gapLength(const SampleSeries& samples);

/// Where a trace is interrupted: places of samples that nothing joins to the sample before, in order.
/// @param breaks places of samples before which something without a number was recorded
[[nodiscard]] std::vector<uint32_t> traceGaps(const SampleSeries& samples, const std::vector<uint32_t>& breaks);

} // namespace ZARN
