#pragma once

#include "ui/graph/model/GraphLabels.h"

#include <vector>

namespace ZARN {

/// Draws the parts of the record that a search found: shaded, with a bar at the lower edge of the plot. Those that share a pixel are one.
class FoundMarks {
public:
    FoundMarks(const GraphModel& model, const GraphLayout& layout) : mModel(model), mLayout(layout) {}

    void draw(Canvas& canvas) const;

private:
    /// Left and right of what is in sight, from left to right.
    [[nodiscard]] std::vector<std::pair<double, double>> columns() const;

    const GraphModel& mModel;
    const GraphLayout& mLayout;
};

} // namespace ZARN
