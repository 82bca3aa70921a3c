#pragma once

#include "analysis/TimeSpan.h"
#include "profile/Profile.h"
#include "trace/TraceSet.h"

namespace ZARN {

/// The words of an error matrix as a trace: its numbers are the 32 bits, bit 0 the least significant.
[[nodiscard]] std::unique_ptr<const Trace> faultWords(const RecordData& data, const DecodingContext& context, const FaultMatrix& matrix);

/// When the crew switched a control lane off on purpose, as the fault bits with the key "LaneCheck" tell it, with a second before and
/// after. Lamps and faults of these times are meant to be. One span for each run of words with such a bit set, in the profile's order.
[[nodiscard]] std::vector<TimeSpan> laneChecks(const RecordData& data, const DecodingContext& context);

} // namespace ZARN
