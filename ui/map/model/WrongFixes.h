#pragma once

#include "card/FlightPath.h"

#include <vector>

namespace ZARN {

/// Takes isolated wrong fixes out of a path: places far from both neighbours in time, while these lie close together. Since a path is on a
/// grid, the points on the way there and back go with them.
class WrongFixes {
public:
    static constexpr double kFar = 10000.0; ///< metres
    static constexpr double kNear = 1000.0;
    static constexpr double kLongest = 10.0; ///< seconds from neighbour to neighbour; nothing flies there and back in that time

    /// @param points in ascending time; those on such ways are taken out. @return the wrong fixes themselves
    static std::vector<FlightPathPoint> takeFrom(std::vector<FlightPathPoint>& points);
};

} // namespace ZARN
