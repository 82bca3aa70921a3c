#include "ui/graph/model/TraceColours.h"

#include "ui/canvas/ColourContrast.h"

#include <array>

namespace ZARN {

namespace {

constexpr double kLeastContrast = 3.0; // of thin lines
constexpr std::array<float, 3> kColours[] = {{1.0F, 0.0F, 0.0F}, {0.0F, 0.7F, 0.0F}, {0.0F, 0.0F, 0.7F},  {0.5F, 0.5F, 0.0F},
                                             {0.0F, 0.5F, 0.5F}, {0.5F, 0.0F, 0.5F}, {1.0F, 0.55F, 0.0F}, {0.3F, 0.75F, 1.0F},
                                             {1.0F, 0.2F, 0.8F}, {0.9F, 0.9F, 0.2F}, {0.6F, 0.4F, 0.25F}, {0.3F, 0.95F, 0.75F}};

} // namespace

std::vector<TraceColour> traceColours(const ShownTraces& traces)
{
    std::vector<TraceColour> colours;
    for (const int slot : traces.shown()) {
        const GraphParameter& trace = *traces.at(slot);
        colours.push_back({slot, trace.name, trace.drawnColour, trace.hasOwnColour});
    }
    return colours;
}

QColor standardTraceColour(std::size_t slot)
{
    const auto& [red, green, blue] = kColours[slot % std::size(kColours)];
    return QColor::fromRgbF(red, green, blue);
}

QColor drawnTraceColour(const GraphParameter& trace, const QColor& ground)
{
    return trace.hasOwnColour ? trace.colour : readableOn(ground, trace.colour, kLeastContrast);
}

} // namespace ZARN
