#pragma once

#include "ui/graph/model/GraphLabels.h"
#include "ui/graph/model/MarkerValues.h"

namespace ZARN {

/// Draws the values of the marker below the plot: a line for each trace, in columns as wide as what stands in them. Where there is no room
/// for all lines they are scrolled; where there is none for all columns those go first that can be read from the traces.
class MarkerTable {
public:
    MarkerTable(const GraphModel& model, const GraphLayout& layout) : mModel(model), mLayout(layout), mLabels(model, layout) {}

    void draw(Canvas& canvas) const;

private:
    [[nodiscard]] std::vector<QStringList> cells(const std::vector<MarkerValues>& values) const;
    [[nodiscard]] std::vector<int> widths(const std::vector<QStringList>& rows) const;
    void drawRow(Canvas& canvas, double y, const QStringList& cells, const std::vector<int>& widths) const;
    [[nodiscard]] CanvasText style(bool isBold) const;

    const GraphModel& mModel;
    const GraphLayout& mLayout;
    const GraphLabels mLabels;
};

} // namespace ZARN
