#pragma once

#include "analysis/Incident.h"
#include "analysis/KeyValues.h"

namespace ZARN {

enum class EVerdict { eUnknown, eOk, eWarning, eLimit };

/// "unknown", "ok", "warning" or "limit".
[[nodiscard]] const char* verdictKey(EVerdict verdict);

/// Whether everything of a cycle was within its limits while the engine ran, and what it took. A plain value, in metric units but for the
/// texts of episodes. What could not be told is empty, never good.
struct CycleReview {
    EngineRunning engine;
    bool hasEngineSpeed = false; ///< the profile names a parameter for it
    bool hasAltitude = false;    ///< the same
    bool hasGroundSpeed = false;
    bool hasLimits = false; ///< the profile has parameters with limits
    bool hasLamps = false;  ///< it has warning lamps
    bool knowsAltitude = false;  ///< climb and descent are told from level flight
    bool knowsFlights = false;   ///< flight is told from the ground: a ground speed was recorded
    double flightTime = 0.0;     ///< seconds
    std::optional<double> unfinishedSince; ///< take-off of a flight that the record does not show to its landing
    std::vector<TimeSpan> stopsNotCounted; ///< when the engine stopped in that one, where such stops make no incidents
    std::optional<double> fuel;  ///< of both lanes over the whole cycle
    EVerdict verdict = EVerdict::eUnknown;
    std::size_t sources = 0;          ///< parameters with limits, lamps and fault bits that the profile has
    std::size_t withSamples = 0;      ///< those of which a sample was watched
    std::vector<std::string> missing; ///< names of the others, in the profile's order
    std::vector<std::string> damaged; ///< names of those with damaged times between sound ones, in the profile's order
    std::vector<TimeSpan> heldPositions; ///< a coordinate stands still, for what is received lies too far away
    std::vector<Incident> incidents;  ///< by start
    std::vector<Episode> standing;    ///< by start: outside, but not while the engine ran
    std::vector<FlightPhases::Step> phases;
    KeyValueTable keyValues; ///< where they are asked for
};

enum class EKeyValues { eNone, eAll };
/// Whether the engine's stops in a flight that the record does not show to its landing make incidents. For programs they do not: a flight is
/// one that has landed.
enum class EStops { eOfFlights, eInTheAir };

/// Reviews a loaded cycle. @param endTime of the cycle, in seconds since power-up
[[nodiscard]] CycleReview reviewCycle(const CycleValues& values, std::span<const RecordFlight> flights, double endTime,
                                      EKeyValues keyValues = EKeyValues::eNone, EStops stops = EStops::eOfFlights);
/// The same of one flight of the cycle, out of the cycle's review: what happened in it, and what was watched between its start and end.
[[nodiscard]] CycleReview reviewFlight(const CycleReview& cycle, const CycleValues& values, std::span<const RecordFlight> flights,
                                       const RecordFlight& flight, double endTime);

} // namespace ZARN
