#pragma once

#include "analysis/SampleSeries.h"

namespace ZARN {

constexpr double kLeastGap = 2.0; // seconds

/// Seconds without a sample that make a gap: five times what is usual for the trace, kLeastGap at least.
[[nodiscard]] double gapLength(const SampleSeries& samples);

/// Where a trace is interrupted: places of samples that nothing joins to the sample before. Follows a trace that grows at the cost of what
/// is new.
class TraceGaps {
public:
    /// @param breaks places of samples before which something without a number was recorded
    /// @return the places, in order
    const std::vector<uint32_t>& of(const SampleSeries& samples, const std::vector<uint32_t>& breaks);

private:
    [[nodiscard]] bool isGrown(const SampleSeries& samples) const;

    std::vector<uint32_t> mPlaces;
    std::size_t mSeen = 0;   // samples
    std::size_t mAnew = 0;   // at so many all is looked at again: what is usual shows with time
    double mFirst = 0.0;     // time of the first sample
    double mLast = 0.0;      // of the last that was seen
    double mLength = 0.0;    // of a gap
};

} // namespace ZARN
