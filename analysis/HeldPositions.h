#pragma once

#include "analysis/TimeSpan.h"
#include "card/record/RecordData.h"
#include "profile/DecodingContext.h"

#include <vector>

namespace ZARN {

/// When a coordinate stands still for longer because what is received lies too far from the last place that was believed: such a fix is
/// taken for a wrong one, also where the aircraft did go there while nothing was received.
/// @return in order of time, apart from each other; seconds since power-up
[[nodiscard]] std::vector<TimeSpan> heldPositions(const RecordData& data, const DecodingContext& context);

} // namespace ZARN
