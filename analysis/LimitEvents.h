#pragma once

#include "analysis/EventList.h"
#include "card/record/RecordData.h"
#include "profile/DecodingContext.h"

namespace ZARN {

/// Every moment at which a parameter enters a threshold band from below it: from no band into any, or from the first into the
/// second. A parameter that is outside already at its first sample makes no event before it has come back. The groups are walked
/// in the profile's order, the warning lamps among them.
[[nodiscard]] EventList limitEvents(const RecordData& data, const DecodingContext& context);

} // namespace ZARN
