#pragma once

#include "analysis/TimeSpan.h"
#include "trace/ComputedChannel.h"

#include <optional>
#include <vector>

namespace ZARN {

/// When a condition held: a formula that is neither 0 nor "not a number". From the first sample at which it held to the first at which it no
/// longer did, or the last sample there is, in order of time.
/// @param atLeast seconds that it held for  @param within only this part of the recording  @throw FormulaError
std::vector<TimeSpan> timesWhere(const std::string& condition, double atLeast, const RecordData& data, const DecodingContext& context,
                                 const std::optional<TimeSpan>& within = std::nullopt);

} // namespace ZARN
