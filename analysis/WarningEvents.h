#pragma once

#include "analysis/EventList.h"
#include "card/record/RecordData.h"
#include "profile/DecodingContext.h"

namespace ZARN {

/// Every lighting-up of a warning lamp in a state other than the one reported last; lamps are the parameters of the devices
/// named "WarningLamp". Going dark is no event and does not reset a lamp: 1, 0, 1 is one event, 1, 0, 2 are two.
[[nodiscard]] EventList warningEvents(const RecordData& data, const DecodingContext& context);

} // namespace ZARN
