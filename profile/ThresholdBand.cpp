#include "profile/ThresholdBand.h"

#include <algorithm>

namespace ZARN {

std::vector<ThresholdBand> thresholdBands(const ThresholdList& list)
{
    std::vector<ThresholdBand> bands(1);
    for (const Threshold& threshold : list) {
        // A list need not ascend: a boundary is in force from the greatest so far on.
        const double from = threshold.value > bands.back().from ? threshold.value : bands.back().from;
        if (from > bands.back().from) {
            bands.back().to = from;
            bands.push_back({from});
        }
        bands.back().pThreshold = &threshold;
    }
    return bands;
}

const ThresholdBand& findBand(const std::vector<ThresholdBand>& bands, double value)
{
    const auto above = std::ranges::upper_bound(bands, value, [](double a, double b) { return a < b; }, &ThresholdBand::from);
    return above == bands.begin() ? bands.back() : *(above - 1);
}

} // namespace ZARN
