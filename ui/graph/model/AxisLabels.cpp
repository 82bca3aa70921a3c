#include "ui/graph/model/AxisLabels.h"

#include "ui/graph/model/AxisTicks.h"
#include "ui/graph/model/GraphLayout.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

/// The lowest and the highest round value, moved into the strip by less than a line; empty where they do not stand apart.
std::vector<AxisLabel> roundEnds(const ValueSpan& span, double height, double line)
{
    constexpr double kFine = 0.5; // lines from value to value
    const AxisTicks ticks(span[0], span[1], height, kFine * line);
    std::vector<AxisLabel> labels;
    for (const AxisTick& tick : ticks.ticks()) {
        const double y = std::floor(GraphLayout::yOf(tick.value, QRectF(0, 0, 1, height), span));
        if (tick.isMajor && y >= 0 && y < height)
            labels.push_back({std::clamp(y, line / 2, height - line / 2), ticks.valueLabel(tick.value), y});
    }
    if (labels.size() < 2 || labels.front().y - labels.back().y < line)
        return {};
    return {labels.back(), labels.front()};
}

} // namespace

std::vector<AxisLabel> axisLabels(const GraphModel& model, int index, const AxisTicks& ticks, double height, double line)
{
    std::vector<AxisLabel> labels;
    const ValueSpan span = model.valueSpan(index);
    if (isStateStrip(model, index) || !(span[1] > span[0]))
        return labels;
    for (const AxisTick& tick : ticks.ticks()) {
        const double y = std::floor(GraphLayout::yOf(tick.value, QRectF(0, 0, 1, height), span));
        // What would hang over into the next strip is left out.
        if (tick.isMajor && y - line / 2 >= -1 && y + line / 2 <= height + 1)
            labels.push_back({y, ticks.valueLabel(tick.value), y});
    }
    if (labels.size() > 1 || height < line)
        return labels;
    if (std::vector<AxisLabel> ends = height < 2 * line ? std::vector<AxisLabel>() : roundEnds(span, height, line); !ends.empty())
        return ends;
    const QString lowest = ticks.valueLabel(span[0]), highest = ticks.valueLabel(span[1]);
    if (height < 2 * line)
        return {{height / 2, lowest + QChar(0x2026) + highest, {}}};
    return {{line / 2, highest, {}}, {height - line / 2, lowest, {}}};
}

} // namespace ZARN
