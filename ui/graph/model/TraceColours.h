#pragma once

#include "ui/graph/model/GraphParameter.h"

namespace ZARN {

/// The colour that a slot's trace has by itself: twelve in turn.
[[nodiscard]] GraphColour standardTraceColour(std::size_t slot);

/// What a trace is drawn in: the colour that the user chose as it is, any other one such that it can be told from the ground.
[[nodiscard]] QColor drawnTraceColour(const GraphParameter& parameter, const GraphColour& ground);

} // namespace ZARN
