#pragma once

#include "ui/graph/model/GraphLabels.h"

namespace ZARN {

/// Turns the vertices of a trace of states into steps: each value holds until the next one. Vertices that change nothing go.
void makeSteps(std::vector<QPointF>& vertices);

/// Draws what a strip of states has beside its line: the ground below each state, and its name where there is room.
class StateSteps {
public:
    StateSteps(const GraphModel& model, const GraphLayout& layout) : mModel(model), mLayout(layout), mLabels(model, layout) {}

    /// @param vertices the steps: seconds after the window's start, value
    void draw(Canvas& canvas, int index, std::span<const QPointF> vertices) const;

private:
    void drawGround(Canvas& canvas, int index, const QRectF& run) const;
    void drawName(Canvas& canvas, const QString& name, const QRectF& run) const;

    const GraphModel& mModel;
    const GraphLayout& mLayout;
    const GraphLabels mLabels;
};

} // namespace ZARN
