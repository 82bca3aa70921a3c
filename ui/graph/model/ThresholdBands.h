#pragma once

#include "profile/ValueDecoder.h"
#include "ui/graph/model/GraphParameter.h"

namespace ZARN {

/// The stretches of values that a threshold list calls a warning or a limit, in the display unit; open ends reach to infinity.
[[nodiscard]] std::vector<GraphBand> thresholdBands(const ThresholdList& list, const ValueDecoder& decoder);

} // namespace ZARN
