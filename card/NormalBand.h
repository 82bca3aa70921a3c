#pragma once

#include <string>

namespace ZARN {

/// Where a parameter lay in one phase of the flights of an engine that were before one: nine of ten samples between two values, in metric units.
struct NormalBand {
    std::string parameter;
    std::string unit;
    std::string phase; ///< of flight, as answers for scripts name it
    int flight = 0;    ///< the one that it is before: its number in its cycle, from 1
    double lower = 0.0;
    double upper = 0.0;
    std::size_t flights = 0; ///< how many it is of
};

} // namespace ZARN
