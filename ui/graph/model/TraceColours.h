#pragma once

#include "ui/graph/model/ShownTraces.h"

namespace ZARN {

/// The colour of a shown trace, as the user chooses it.
struct TraceColour {
    int slot = 0;
    QString name;
    QColor colour;
    bool isOwn = false; ///< chosen by the user
};

/// Those of the shown traces, from top to bottom.
[[nodiscard]] std::vector<TraceColour> traceColours(const ShownTraces& traces);

/// The colour that a slot's trace has by itself: twelve in turn.
[[nodiscard]] QColor standardTraceColour(std::size_t slot);

/// What a trace is drawn in: the colour that the user chose as it is, any other one such that it can be told from the ground.
[[nodiscard]] QColor drawnTraceColour(const GraphParameter& trace, const QColor& ground);

} // namespace ZARN
