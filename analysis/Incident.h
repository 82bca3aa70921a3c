#pragma once

#include "analysis/Episode.h"
#include "analysis/FlightPhases.h"

namespace ZARN {

/// Episodes that belong together: each began while those before it lasted, or soon after.
struct Incident {
    double start = 0.0; ///< seconds since power-up
    double end = 0.0;
    int state = 0;                              ///< the greatest of its episodes
    EFlightPhase phase = EFlightPhase::eGround; ///< at the start
    bool knowsAltitude = true;                  ///< else it may have climbed or descended where the phase is level flight
    int flight = 0;                             ///< number, from 1, of the first one that its start lies in; 0: none
    std::size_t leading = 0;                    ///< place of the episode that weighs most
    std::vector<Episode> episodes;              ///< by start; never empty

    [[nodiscard]] const std::string& title() const { return episodes[leading].parameter; }
};

/// Joins watched episodes, sorted by start, to incidents.
[[nodiscard]] std::vector<Incident> joinIncidents(std::vector<Episode> episodes, const FlightPhases& phases,
                                                  std::span<const RecordFlight> flights);

} // namespace ZARN
