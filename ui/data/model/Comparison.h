#pragma once

#include <memory>

namespace ZARN {

struct GhostCycle;

/// What the record is compared with, and how the two are laid on each other.
struct Comparison {
    std::shared_ptr<const GhostCycle> pCycle; ///< null for nothing
    double shift = 0.0;                       ///< seconds from its times to those of the record
};

} // namespace ZARN
