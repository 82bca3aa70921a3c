#pragma once

#include "analysis/FlightPhases.h"
#include "card/NormalBand.h"
#include "ui/canvas/Canvas.h"
#include "ui/graph/model/GraphLabels.h"
#include "ui/graph/model/GraphLayout.h"

namespace ZARN {

class Trace;

/// Where a trace would lie in the flights of a cycle if it were as in the flights before them. Flights may overlap by what is before and after
/// them: the earlier one counts there.
[[nodiscard]] std::vector<NormalStretch> normalStretches(const std::vector<NormalBand>& bands, std::span<const FlightPhases::Step> phases,
                                                         std::span<const TimeSpan> flights, const Trace& trace);

/// Draws it below the traces: in strips for each, in one area for the one whose values stand at the axis.
class NormalRange {
public:
    NormalRange(const GraphModel& model, const GraphLayout& layout) : mModel(model), mLayout(layout) {}

    void draw(Canvas& canvas) const;
    /// Above the plot: what the hatching is.
    void drawKey(Canvas& canvas, const GraphLabels& labels) const;

private:
    void draw(Canvas& canvas, int index) const;
    static void hatch(Canvas& canvas, const QRectF& area, const QColor& colour);

    const GraphModel& mModel;
    const GraphLayout& mLayout;
};

} // namespace ZARN
