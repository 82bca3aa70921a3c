#include "ui/graph/model/ThresholdBands.h"

#include <cmath>
#include <limits>

namespace ZARN {

namespace {

QColor bandColour(const Threshold& threshold)
{
    if (threshold.colour.isValid())
        return threshold.colour;
    return threshold.state == eThresholdLimit ? QColor(220, 40, 40) : QColor(240, 180, 0);
}

} // namespace

std::vector<GraphBand> thresholdBands(const ThresholdList& list, const ValueDecoder& decoder)
{
    // A value passes the boundaries up to the first that is greater than it: a boundary is in force from the greatest so far on.
    struct Step {
        double from;
        const Threshold* pThreshold;
    };
    std::vector<Step> steps;
    double from = -std::numeric_limits<double>::infinity();
    for (const Threshold& threshold : list) {
        if (threshold.value > from)
            from = threshold.value;
        if (!steps.empty() && steps.back().from == from)
            steps.pop_back();
        steps.push_back({from, &threshold});
    }
    std::vector<GraphBand> bands;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        if (steps[i].pThreshold->state == eThresholdOk)
            continue;
        const double to = i + 1 < steps.size() ? steps[i + 1].from : std::numeric_limits<double>::infinity();
        const auto [lower, upper] = std::minmax({decoder.toDisplayUnit(steps[i].from), decoder.toDisplayUnit(to)});
        bands.push_back({lower, upper, bandColour(*steps[i].pThreshold)});
    }
    return bands;
}

} // namespace ZARN
