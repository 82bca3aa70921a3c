#pragma once

#include "ui/canvas/Canvas.h"
#include "ui/graph/model/CursorLabels.h"

namespace ZARN {

/// Draws what the graph tells in words: the legend beside the plot, and the values of the marker below it.
class GraphTables {
public:
    GraphTables(const GraphModel& model, const GraphLayout& layout) : mModel(model), mLayout(layout), mLabels(model, layout) {}

    void draw(Canvas& canvas) const;
    /// The legend of a view that has no room for it beside the plot.
    void drawOverlay(Canvas& canvas, const CursorLabels& cursor) const;

private:
    enum class ELayer { eAreas, eNames, eNumbers };

    void drawLegend(Canvas& canvas) const;
    void drawLegendHeader(Canvas& canvas) const;
    void drawLegendLine(Canvas& canvas, const QRectF& line, int index, ELayer layer) const;
    /// What stands behind the name: the value at the cursor, and where there is room the least and the greatest in the window.
    [[nodiscard]] QStringList legendNumbers(int index) const;
    /// Texts in columns of numbers, each at its column's right edge. @return where the last column ends
    double drawColumns(Canvas& canvas, const QPointF& place, const QStringList& texts) const;
    [[nodiscard]] CanvasText style(bool isBold) const;

    const GraphModel& mModel;
    const GraphLayout& mLayout;
    const GraphLabels mLabels;
};

} // namespace ZARN
