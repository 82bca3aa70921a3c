#pragma once

#include "ui/graph/model/GraphLabels.h"

namespace ZARN {

/// Draws what lies below the traces: bands of values, grid, ticks and their labels.
class GraphAxes {
public:
    GraphAxes(const GraphModel& model, const GraphLayout& layout) : mModel(model), mLayout(layout), mLabels(model, layout) {}

    void draw(Canvas& canvas) const;

private:
    void drawBands(Canvas& canvas) const;
    void drawBand(Canvas& canvas, int index, const ValueSpan& values, const QColor& colour) const;
    void drawTimeAxis(Canvas& canvas) const;
    void drawValueAxis(Canvas& canvas, const ValueAxis& axis, bool hasGrid) const;
    void drawAxisName(Canvas& canvas, const ValueAxis& axis, bool isFront) const;
    /// Of the labels of a trace's own axis; none for that of all labels.
    [[nodiscard]] std::optional<QColor> axisColour(int index) const;
    void drawGrid(Canvas& canvas, std::span<const QPointF> fine, std::span<const QPointF> major) const;

    const GraphModel& mModel;
    const GraphLayout& mLayout;
    const GraphLabels mLabels;
};

} // namespace ZARN
