#include "ui/graph/model/ThresholdBands.h"

#include "profile/ThresholdBand.h"
#include "ui/canvas/Palette.h"

namespace ZARN {

namespace {

QColor bandColour(const Threshold& threshold)
{
    if (threshold.colour.isValid())
        return threshold.colour;
    return threshold.state == eThresholdLimit ? Palette::light().limit : Palette::light().warning;
}

} // namespace

std::vector<GraphBand> graphBands(const ValueDecoder& decoder)
{
    std::vector<GraphBand> bands;
    if (!decoder.thresholds())
        return bands;
    for (const ThresholdBand& band : thresholdBands(*decoder.thresholds())) {
        if (band.result().state == eThresholdOk)
            continue;
        const auto [lower, upper] = std::minmax({decoder.toDisplayUnit(band.from), decoder.toDisplayUnit(band.to)});
        bands.push_back({lower, upper, bandColour(*band.pThreshold)});
    }
    return bands;
}

} // namespace ZARN
