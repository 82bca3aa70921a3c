#pragma once

#include "analysis/FlightPhases.h"
#include "card/CycleNote.h"
#include "card/LoadedCard.h"
#include "card/NormalBand.h"
#include "project/TimeReference.h"
#include "ui/data/model/Comparison.h"

namespace ZARN {

/// What a report is about, and what is told of it beside its records. A plain value.
struct ReportSubject {
    LoadedCard loaded;
    std::vector<CycleNote> notes = {};               ///< what somebody wrote about moments of it, by time
    ETimeReference times = ETimeReference::ePowerUp; ///< how its times are told, where they can be
    Comparison comparison = {};                      ///< what is laid behind its main parameters
    std::vector<NormalBand> normal = {};             ///< where earlier flights of its engine lay
    std::vector<FlightPhases::Step> phases = {};     ///< of the whole cycle; where those are shown

    [[nodiscard]] TimeReference reference() const { return TimeReference::of(times, loaded); }
};

} // namespace ZARN
