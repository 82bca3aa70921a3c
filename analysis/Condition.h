#pragma once

#include "analysis/TimeSpan.h"
#include "app/Progress.h"
#include "trace/ComputedChannel.h"

#include <optional>
#include <vector>

namespace ZARN {

/// What was found of a condition.
struct ConditionTimes {
    std::vector<TimeSpan> spans;            ///< in order of time
    std::vector<std::string> operands;      ///< the parameters that it names
    std::vector<std::string> unrecorded;    ///< those of them without a sample: nobody knows whether it held
    std::vector<std::string> withoutNumber; ///< those whose samples are all "not a number"
};

/// When a condition held: a formula that is neither 0 nor "not a number". From the first sample at which it held to the first at which it no
/// longer did, or the last sample there is.
/// @param atLeast seconds that it held for  @param within only this part of the recording
/// @param progress asked whether to go on; what is told of a cancelled search is worth nothing  @throw FormulaError
ConditionTimes timesWhere(const std::string& condition, double atLeast, const RecordData& data, const DecodingContext& context,
                          const std::optional<TimeSpan>& within = std::nullopt, const Progress& progress = nullProgress());

} // namespace ZARN
