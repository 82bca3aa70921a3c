#pragma once

#include "ui/graph/model/GraphLabels.h"

namespace ZARN {

/// Turns the vertices of a trace of states into steps: each value holds until the next one. Vertices that change nothing go.
void makeSteps(std::vector<QPointF>& vertices);

/// Draws what a strip of states has beside its line: the ground below each state, and its name where there is room. Apart from each other,
/// since lines that are drawn one after the other cost least.
class StateSteps {
public:
    StateSteps(const GraphModel& model, const GraphLayout& layout) : mModel(model), mLayout(layout), mLabels(model, layout) {}

    /// A state for as long as it holds: its ground, and its value.
    using Run = std::pair<QRectF, double>;
    /// @param vertices the steps: seconds after the window's start, value
    [[nodiscard]] std::vector<Run> runs(int index, std::span<const QPointF> vertices) const;
    void drawGrounds(Canvas& canvas, int index, const std::vector<Run>& runs) const;
    void drawNames(Canvas& canvas, int index, const std::vector<Run>& runs) const;

private:
    void drawName(Canvas& canvas, const QString& name, const QRectF& run) const;

    const GraphModel& mModel;
    const GraphLayout& mLayout;
    const GraphLabels mLabels;
};

} // namespace ZARN
