#pragma once

#include "analysis/FlightPhases.h"
#include "analysis/TimeSpan.h"
#include "card/LoadedCard.h"

#include <QString>

#include <set>

namespace ZARN {

/// What happened in a cycle: phases, engine, flights, incidents. A plain value.
struct CycleCourse {
    struct Mark {
        TimeSpan span;
        int state = 0;     ///< 1 warning, 2 limit
        double time = 0.0; ///< of its worst value, or its start
        QString title;
        std::set<std::string> parameters; ///< names
    };
    std::vector<FlightPhases::Step> phases;
    std::vector<TimeSpan> engine;  ///< while it ran; empty where that is not known
    std::vector<TimeSpan> flights; ///< from take-off to landing
    std::vector<Mark> incidents;   ///< by start

    /// Reads all of the cycle.
    [[nodiscard]] static CycleCourse of(const LoadedCard& loaded);
};

/// The part of a cycle that shows an incident: a fifth of its length before and after it, ten seconds at least.
[[nodiscard]] TimeSpan spanAround(const TimeSpan& incident);

} // namespace ZARN
