#pragma once

#include <cstdint>
#include <limits>

namespace ZARN {

/// Converts a position from DDDMM.mmmm to degrees; the fraction passes through a 32-bit float.
[[nodiscard]] double calcCoordinate(double value);

/// Turns recorded positions into degrees and drops jumps of more than 10 km from fix to fix, once five fixes have come.
/// A small value: whoever decodes positions holds one, resets it before a pass and decodes in time order.
class CoordinateFilter {
public:
    /// Forgets the fixes; the last position stays, for it widens the longitude's allowance until the next latitude comes.
    void reset() { mLatitude.fixes = mLongitude.fixes = 0; }
    [[nodiscard]] double latitude(double value);  ///< DDDMM.mmmm to filtered degrees
    [[nodiscard]] double longitude(double value); ///< the same, with the allowed jump widened by the last latitude's cosine

private:
    struct Axis {
        double last = 0.0;
        uint32_t fixes = 0;
    };
    static double filter(Axis& axis, double degrees, double allowedJump);

    Axis mLatitude;
    Axis mLongitude;
    double mAllowed = 0.0; // jump of the longitude at the latitude mAllowedAt
    double mAllowedAt = std::numeric_limits<double>::quiet_NaN();
};

} // namespace ZARN
