#include "ui/canvas/Palette.h"

#include <atomic>
#include <memory>
#include <vector>

namespace ZARN {

namespace {

Palette builtIn(ColourTable::EMedium medium)
{
    return {ColourTable::builtIn(), medium};
}

std::atomic<const Palette*>& screenPalette()
{
    static std::atomic<const Palette*> pPalette = &Palette::light();
    return pPalette;
}

/// @param prefix of the names of ground, grid and labels
Palette::Graph graphOf(const ColourTable& table, ColourTable::EMedium medium, const QString& prefix, ColourTable::EMedium traces)
{
    const auto of = [&](const char* name) { return table.colour(prefix + QLatin1String(name), medium); };
    Palette::Graph graph{of("Ground"), of("Grid"), of("Label"), of("LabelGround"), {}, {}};
    for (std::size_t i = 0; i < graph.traces.size(); ++i)
        graph.traces[i] = table.colour(QStringLiteral("curve%1").arg(i + 1), traces);
    const QString dots = graph.ground.lightness() < 128 ? QStringLiteral("dotOnDark%1") : QStringLiteral("dotOnLight%1");
    for (std::size_t i = 0; i < graph.dots.size(); ++i)
        graph.dots[i] = table.colour(dots.arg(i + 1), medium);
    return graph;
}

} // namespace

Palette::Palette(const ColourTable& table, ColourTable::EMedium medium) : graph(graphOf(table, medium, QStringLiteral("graph"), medium))
{
    const auto of = [&](const char* name) { return table.colour(QLatin1String(name), medium); };
    map = {of("mapWater"), of("mapLand"), of("mapShore"), of("mapRiver"), of("mapCountry"), of("mapPath"), of("mapText"), of("mapTextGround"),
           of("mapGrid"), of("mapGridText"), of("mapFrame"), of("mapAircraft"), of("mapAircraftRim"), of("mapEventRim"), of("mapBegin"), of("mapEnd"),
           of("mapExceeded"), of("mapLimit"), of("mapMarkRim"), of("mapLabel"), of("mapPathDim"), of("mapPathRim"), of("mapWrongFix"), of("mapTown"),
           of("mapAirfield"), of("mapEvent"), of("mapNote"), of("mapValue"), of("mapValueGround"), of("mapStripGround"), of("mapSelection"),
           of("mapUnknown"), {}, {}};
    for (std::size_t i = 0; i < map.scale.size(); ++i)
        map.scale[i] = table.colour(QStringLiteral("mapScale%1").arg(i + 1), medium);
    for (std::size_t i = 0; i < map.phases.size(); ++i)
        map.phases[i] = table.colour(QStringLiteral("mapPhase%1").arg(i + 1), medium);
    faults = {of("faultInfo"), of("faultWarning"), of("faultFault"), of("faultQuiet"), of("faultNone"), of("faultLine"), of("timePointer")};
    course = {of("courseRecorded"), of("quiet"),       of("fieldBorder"), of("courseLine"),   of("courseGround"),
              of("courseTakeOff"),  of("courseClimb"), of("courseLevel"), of("courseDescent")};
    signs = {of("signGood"), of("signWarning"), of("signLimit"), of("signUnknown"), of("onSign"), of("onWarning")};
    tables = {of("timeColumn"), of("valueMark"), of("field"), of("dimText"), of("badge"), of("onBadge")};
    text = {of("text"), of("quiet"), of("border"), of("accent"), of("alert")};
    icon = of("icon");
    onAccent = of("onAccent");
    warning = of("warning");
    limit = of("limit");
    found = of("found");
    phaseFlight = of("phaseFlight");
    phaseEngine = of("phaseEngine");
}

const QColor& Palette::Course::of(EFlightPhase phase) const
{
    switch (phase) {
    case EFlightPhase::eGround: return ground;
    case EFlightPhase::eTakeOff: return takeOff;
    case EFlightPhase::eClimb: return climb;
    case EFlightPhase::eLevel: return level;
    case EFlightPhase::eDescent: return descent;
    default: return recorded;
    }
}

const Palette& Palette::screen()
{
    return *screenPalette();
}

void Palette::setScreen(const ColourTable& table, ColourTable::EMedium medium)
{
    static std::vector<std::unique_ptr<const Palette>> all; // a thread may still read one that was in force
    screenPalette() = all.emplace_back(std::make_unique<const Palette>(table, medium)).get();
}

const Palette& Palette::light()
{
    static const Palette kPalette = builtIn(ColourTable::eLight);
    return kPalette;
}

const Palette& Palette::print()
{
    static const Palette kPalette = builtIn(ColourTable::ePaper);
    return kPalette;
}

const Palette::Graph& Palette::graphColours(EGraphPalette palette)
{
    static const Palette kDark = builtIn(ColourTable::eDark);
    static const Graph kPale = graphOf(ColourTable::builtIn(), ColourTable::eLight, QStringLiteral("pale"), ColourTable::ePaper);
    switch (palette) {
    case EGraphPalette::eDark: return kDark.graph;
    case EGraphPalette::eLight: return kPale;
    case EGraphPalette::ePrint: return print().graph;
    default: return screen().graph;
    }
}

} // namespace ZARN
