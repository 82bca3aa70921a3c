#pragma once

#include "ui/graph/model/ShownTraces.h"

#include <memory>

namespace ZARN {

struct GhostCycle;

/// Another flight or cycle behind the traces: its traces stand in the slots of those that they are compared with. One that was not
/// recorded there has no samples.
struct Ghost {
    QString name; ///< for people
    ShownTraces traces;
    std::shared_ptr<const GhostCycle> pCycle = {}; ///< whose they are
};

/// Whether there is something to compare a trace with.
[[nodiscard]] inline bool hasGhost(const Ghost* pGhost, int index)
{
    return pGhost && isShown(pGhost->traces, index) && !pGhost->traces.at(index)->samples.empty();
}

/// A value of the ghost at a time of the traces, where it has recorded one.
[[nodiscard]] inline std::optional<double> ghostValue(const Ghost& ghost, int index, double time, double shift)
{
    const GraphParameter* pTrace = ghost.traces.at(index);
    if (!pTrace || pTrace->samples.empty() || time - shift > pTrace->samples.time(pTrace->samples.size() - 1) ||
        time - shift < pTrace->samples.time(0))
        return std::nullopt;
    return ghost.traces.valueAt(index, time - shift);
}

} // namespace ZARN
