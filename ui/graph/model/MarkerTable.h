#pragma once

#include "ui/graph/model/GraphLabels.h"

namespace ZARN {

/// Draws the values of the marker below the plot: a line for each trace, in columns as wide as what stands in them. Where there is no room
/// for all lines they are scrolled below the headings.
class MarkerTable {
public:
    MarkerTable(const GraphModel& model, const GraphLayout& layout) : mModel(model), mLayout(layout), mLabels(model, layout) {}

    void draw(Canvas& canvas) const;

private:
    void drawCells(Canvas& canvas, double y, const QStringList& cells, std::size_t part) const;
    void drawRow(Canvas& canvas, double y, const MarkerTableCells::Row& row, std::size_t part) const;
    [[nodiscard]] QColor colourOf(const MarkerTableCells::Row& row) const;
    [[nodiscard]] CanvasText style(bool isBold) const;

    const GraphModel& mModel;
    const GraphLayout& mLayout;
    const GraphLabels mLabels;
};

} // namespace ZARN
