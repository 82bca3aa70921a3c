#pragma once

#include "analysis/EngineRunning.h"
#include "analysis/VerticalSteps.h"
#include "card/CycleValues.h"
#include "card/RecordFlight.h"

namespace ZARN {

enum class EFlightPhase { eOff, eGround, eTakeOff, eClimb, eLevel, eDescent };

/// "off", "ground", "take-off", "climb", "level" or "descent": the names of the phases in answers for scripts.
[[nodiscard]] const char* phaseKey(EFlightPhase phase);

/// What the aircraft was doing at each time of a cycle.
class FlightPhases {
public:
    /// Times after `from` up to and including `until`.
    struct Step {
        double from;
        double until;
        EFlightPhase phase;
    };

    FlightPhases(const CycleValues& values, const EngineRunning& engine, std::span<const RecordFlight> flights);

    [[nodiscard]] EFlightPhase at(double seconds) const;
    /// All times without a gap; neighbours differ.
    [[nodiscard]] const std::vector<Step>& steps() const { return mSteps; }
    /// False where climb and descent could not be told from level flight.
    [[nodiscard]] bool knowsAltitude() const { return mKnowsAltitude; }

private:
    void addStep(double until, EFlightPhase phase);

    std::vector<Step> mSteps;
    bool mKnowsAltitude = false;
};

} // namespace ZARN
