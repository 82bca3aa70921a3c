#include "ui/graph/model/AxisLabels.h"

#include "ui/graph/model/AxisTicks.h"
#include "ui/graph/model/StateSteps.h"

#include <cmath>

namespace ZARN {

std::vector<AxisLabel> axisLabels(const GraphModel& model, int index, const AxisTicks& ticks, double height, double line)
{
    std::vector<AxisLabel> labels;
    const auto [low, high] = model.valueSpan(index);
    if (isStateStrip(model, index) || !(high > low))
        return labels;
    for (const AxisTick& tick : ticks.ticks()) {
        const double y = std::floor(height - (tick.value - low) / (high - low) * height);
        // What would hang over into the next strip is left out.
        if (tick.isMajor && y - line / 2 >= -1 && y + line / 2 <= height + 1)
            labels.push_back({y, ticks.valueLabel(tick.value)});
    }
    if (labels.size() > 1 || height < line)
        return labels;
    const QString lowest = ticks.valueLabel(low), highest = ticks.valueLabel(high);
    if (height < 2 * line)
        return {{height / 2, lowest + QChar(0x2026) + highest, false}};
    return {{line / 2, highest, false}, {height - line / 2, lowest, false}};
}

} // namespace ZARN
