#pragma once

#include "ui/graph/model/GraphModel.h"

#include <optional>
#include <vector>

namespace ZARN {

class AxisTicks;

/// A number at an axis of values.
struct AxisLabel {
    double y = 0.0; ///< of its middle, from the upper end of the axis
    QString text;
    std::optional<double> tick; ///< where its value is; none for an end of the axis
};

/// What has room beside an axis: the round values, but where fewer than two of them have, the outermost ones, or its ends, for one number is no
/// scale. None where a line has no room, and for states, which have names.
[[nodiscard]] std::vector<AxisLabel> axisLabels(const GraphModel& model, int index, const AxisTicks& ticks, double height, double line);

} // namespace ZARN
