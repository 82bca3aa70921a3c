#pragma once

#include "analysis/FlightPhases.h"
#include "card/LoadedCard.h"
#include "ui/data/model/GraphMoment.h"

#include <QString>

namespace ZARN {

struct CycleReview;

/// What happened in a cycle: phases, engine, flights, incidents. A plain value.
struct CycleCourse {
    struct Mark {
        TimeSpan span;
        int state = 0; ///< 1 warning, 2 limit
        QString title;
        GraphMoment moment; ///< that shows it
    };
    std::vector<FlightPhases::Step> phases;
    std::vector<TimeSpan> engine;  ///< while it ran; empty where that is not known
    std::vector<TimeSpan> flights; ///< from take-off to landing
    std::vector<TimeSpan> figured; ///< flights with what is before and after them: what their figures are of
    std::vector<Mark> incidents;   ///< by start
    QString heldPositions;         ///< when the position is not that of the aircraft; empty when it always is

    [[nodiscard]] static CycleCourse of(const CycleReview& review, const std::vector<RecordFlight>& flights);
    /// Reads all of the cycle.
    [[nodiscard]] static CycleCourse of(const LoadedCard& loaded);
};

} // namespace ZARN
