#include "ui/graph/model/GhostCycle.h"

#include "analysis/EngineRunning.h"
#include "trace/TraceSet.h"

#include <utility>

namespace ZARN {

std::optional<double> firstEngineStart(const LoadedCard& loaded)
{
    const ProfileParameter& parameter = loaded.context.model().ofZarnType("EngineSpeed");
    if (!loaded.pRecord || parameter.name.empty())
        return {};
    const EngineRunning engine(*TraceSet::one(*loaded.pRecord, loaded.context, parameter, ENumber::eMetric), loaded.wholeEnd);
    if (engine.isKnown() && !engine.stretches().empty())
        return engine.stretches().front().start;
    return {};
}

GhostCycle::GhostCycle(LoadedCard card, QString text)
    : loaded(std::move(card)), name(std::move(text)), engineStart(firstEngineStart(loaded))
{
    for (const RecordFlight& flight : loaded.flights)
        takeOffs.push_back(flight.takeOffTime);
}

GhostCycle::GhostCycle(LoadedCard card, QString text, int flight) : GhostCycle(std::move(card), std::move(text))
{
    const RecordFlight& shown = loaded.flights.at(static_cast<std::size_t>(flight - 1));
    part = {shown.startTime, shown.endTime};
}

} // namespace ZARN
