#pragma once

#include "ui/graph/model/ShownTraces.h"

#include <map>

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

/// The colour of a number: twelve in turn.
[[nodiscard]] QColor standardTraceColour(EGraphPalette palette, int number);
/// The length of a trace's dashes in pixels; 0 for a solid line. Where the colours begin anew, dashes tell the traces apart.
[[nodiscard]] double dashOf(const GraphParameter& trace);

/// Which colour each parameter has by itself. Those that stay keep theirs when others come and go.
class ColourNumbers {
public:
    /// @return a number for each name, in order; the place among them where no other one has it already
    std::vector<int> assign(const std::vector<QString>& names);

private:
    std::multimap<QString, int> mNumbers; // of those shown last
    std::map<QString, int> mEarlier;      // of others, for when they come back
};

/// What a trace is drawn in: the colour that the user chose as it is, any other one such that it can be told from the ground.
[[nodiscard]] QColor drawnTraceColour(const GraphParameter& trace, const QColor& ground);

} // namespace ZARN
