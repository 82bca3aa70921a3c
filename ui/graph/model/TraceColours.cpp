#include "ui/graph/model/TraceColours.h"

#include "ui/canvas/ColourContrast.h"

namespace ZARN {

namespace {

constexpr double kLeastContrast = 3.0; // of thin lines
constexpr GraphColour kColours[] = {{1.0F, 0.0F, 0.0F}, {0.0F, 0.7F, 0.0F}, {0.0F, 0.0F, 0.7F},  {0.5F, 0.5F, 0.0F},
                                    {0.0F, 0.5F, 0.5F}, {0.5F, 0.0F, 0.5F}, {1.0F, 0.55F, 0.0F}, {0.3F, 0.75F, 1.0F},
                                    {1.0F, 0.2F, 0.8F}, {0.9F, 0.9F, 0.2F}, {0.6F, 0.4F, 0.25F}, {0.3F, 0.95F, 0.75F}};

} // namespace

GraphColour standardTraceColour(std::size_t slot)
{
    return kColours[slot % std::size(kColours)];
}

QColor drawnTraceColour(const GraphParameter& parameter, const GraphColour& ground)
{
    const QColor colour = parameter.colour.colour();
    return parameter.hasOwnColour ? colour : readableOn(ground.colour(), colour, kLeastContrast);
}

} // namespace ZARN
