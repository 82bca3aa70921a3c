#include "ui/graph/model/TraceColours.h"

#include "ui/canvas/ColourContrast.h"

#include <set>
#include <tuple>
#include <utility>

namespace ZARN {

namespace {

constexpr double kLeastContrast = 3.0;    // of thin lines
constexpr double kDash = 7.0, kDot = 2.0; // pixels

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

QColor standardTraceColour(EGraphPalette palette, int number)
{
    const auto& colours = Palette::graphColours(palette).traces;
    return colours[static_cast<std::size_t>(number) % colours.size()];
}

double dashOf(const GraphParameter& trace)
{
    switch (trace.stroke.style) {
    case ELineStyle::eSolid: return 0.0;
    case ELineStyle::eDashed: return kDash;
    case ELineStyle::eDotted: return kDot;
    case ELineStyle::eAutomatic: break;
    }
    const std::size_t round = static_cast<std::size_t>(trace.colourNumber) / std::tuple_size_v<decltype(Palette::Graph::traces)>;
    return round == 0 || trace.hasOwnColour ? 0.0 : round % 2 == 1 ? kDash : kDot;
}

std::vector<int> ColourNumbers::assign(const std::vector<QString>& names)
{
    std::multimap<QString, int> before = std::exchange(mNumbers, {});
    std::vector<int> numbers(names.size(), -1);
    std::set<int> taken;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (const auto found = before.find(names[i]); found != before.end()) {
            taken.insert(numbers[i] = found->second);
            before.erase(found);
        }
    }
    for (const auto& [name, number] : before)
        mEarlier.insert_or_assign(name, number);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto earlier = mEarlier.find(names[i]);
        if (numbers[i] < 0 && earlier != mEarlier.end() && !taken.contains(earlier->second))
            taken.insert(numbers[i] = earlier->second);
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        int number = numbers[i] >= 0 ? numbers[i] : static_cast<int>(i);
        if (numbers[i] < 0 && taken.contains(number)) {
            for (number = 0; taken.contains(number);)
                ++number;
        }
        taken.insert(numbers[i] = number);
        mNumbers.emplace(names[i], number);
    }
    return numbers;
}

QColor drawnTraceColour(const GraphParameter& trace, const QColor& ground)
{
    return trace.hasOwnColour ? trace.colour : readableOn(ground, trace.colour, kLeastContrast);
}

} // namespace ZARN
