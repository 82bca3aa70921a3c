#pragma once

#include "profile/ValueDecoder.h"
#include "ui/graph/model/GraphParameter.h"

namespace ZARN {

/// The stretches of values that the thresholds of a parameter call a warning or a limit, in the display unit; open ends reach to
/// infinity.
[[nodiscard]] std::vector<GraphBand> graphBands(const ValueDecoder& decoder);

} // namespace ZARN
