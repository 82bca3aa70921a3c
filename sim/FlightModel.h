#pragma once

#include "sim/Situation.h"

namespace ZARN::Sim {

/// One power cycle of the aircraft, from switching the power on to switching it off: pilot, airframe, engine and units. Advances in steps of
/// kStep and reads and writes nothing outside itself but the log book, which goes on from cycle to cycle.
class FlightModel {
public:
    FlightModel(const CyclePlan& plan, LogBook& logBook);
    Q_DISABLE_COPY_MOVE(FlightModel)

    /// Advances by one step. @return false when the power has been switched off; the snapshot then stays as it was.
    bool step();

    /// What the units know now.
    [[nodiscard]] const Snapshot& snapshot() const { return mNow.values; }

private:
    void stepIncidents();

    const CyclePlan mPlan;
    const std::vector<Leg> mRoute;
    std::size_t mLeg = 0;
    double mLegSeconds = 0;
    double mTowSeconds = 0;     ///< since the throttle was opened for the tow
    double mReleaseSeconds = 0; ///< since the glider was released
    Situation mNow;
};

} // namespace ZARN::Sim
