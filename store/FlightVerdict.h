#pragma once

#include "analysis/CycleReview.h"

#include <string>

namespace ZARN {

/// A condition: incidents that were during a flight, those among them that began before or went on after it, as the report of
/// one flight tells them.
constexpr const char* kDuringFlight = "incident.cycle_id = flight.cycle_id AND (incident.flight_id = flight.flight_id OR "
                                      "(max(incident.start_time, incident.end_time) >= flight.start_time AND "
                                      "min(incident.start_time, incident.end_time) <= flight.end_time))";

[[nodiscard]] inline EVerdict verdictOfKey(const std::string& key)
{
    for (const EVerdict verdict : {EVerdict::eOk, EVerdict::eWarning, EVerdict::eLimit}) {
        if (key == verdictKey(verdict))
            return verdict;
    }
    return EVerdict::eUnknown;
}

/// A flight is what its own incidents are. Without one it was all right where its cycle was watched at all.
/// @param state the greatest of its incidents; 0: it has none
[[nodiscard]] inline EVerdict verdictOfFlight(EVerdict cycle, int64_t state)
{
    if (state > 0)
        return state > 1 ? EVerdict::eLimit : EVerdict::eWarning;
    return cycle == EVerdict::eUnknown ? EVerdict::eUnknown : EVerdict::eOk;
}

} // namespace ZARN
