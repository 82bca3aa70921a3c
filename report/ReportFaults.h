#pragma once

#include "card/record/RecordData.h"
#include "profile/DecodingContext.h"

namespace ZARN {

/// A fault bit that was set, and when. Refers to the model.
struct ReportFault {
    const FaultMatrix* pMatrix;
    int bit;
    const FaultBit* pBit;
    double first; ///< seconds since power-up, of the first sample in which it was set
    double last;  ///< of the last one
    int times;    ///< how often it was set anew
};

/// The bits of known kinds that were set between two times, in the order of the matrices and of their bits.
[[nodiscard]] std::vector<ReportFault> presentFaults(const ProfileModel& model, const RecordData& data, double from, double to);

} // namespace ZARN
