#pragma once

#include "analysis/EngineRunning.h"
#include "card/LoadedCard.h"

namespace ZARN {

/// A fault bit that was set, and when. Refers to the model.
struct ReportFault {
    const FaultMatrix* pMatrix;
    int bit;
    const FaultBit* pBit;
    bool counts;  ///< for the verdict: a warning or fault while it was watched
    double first; ///< seconds since power-up, of the first sample in which it was set
    double last;  ///< of the last one
    int times;    ///< how often it was set anew, as incidents count it: what comes back within 5 s is the same still
};

/// The bits of known kinds that were set in the cycle, or began or lasted in the flight that is selected, in the order of the matrices and of
/// their bits; for those that are warnings and faults, what counts for the verdict and what does not each by itself.
[[nodiscard]] std::vector<ReportFault> presentFaults(const LoadedCard& loaded, const EngineRunning& engine);

} // namespace ZARN
