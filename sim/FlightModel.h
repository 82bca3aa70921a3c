#pragma once

#include "sim/Airframe.h"
#include "sim/CyclePlan.h"
#include "sim/EngineModel.h"
#include "sim/Instruments.h"
#include "sim/Situation.h"
#include "sim/Snapshot.h"
#include "sim/WarningLogic.h"

#include <vector>

namespace ZARN {

/// One power cycle of the aircraft, from switching the power on to switching it off: pilot, airframe, engine, electrical system
/// and what the instruments make of them. Advances in steps of kStep and reads and writes nothing outside itself but the log
/// book, which goes on from cycle to cycle.
class FlightModel {
public:
    FlightModel(const CyclePlan& plan, LogBook& logBook);
    FlightModel(const FlightModel&) = delete;
    FlightModel& operator=(const FlightModel&) = delete;

    /// Advances by one step. @return false when the power has been switched off; the snapshot then stays as it was.
    bool step();

    /// What the units send now. The object stays in place as long as the model does.
    [[nodiscard]] const Snapshot& snapshot() const { return mSnapshot; }

private:
    [[nodiscard]] const Leg& leg() const { return mRoute[mLeg]; }
    void nextLegWhenDone();
    void stepIncidents();
    void stepEngine();
    void stepElectrical();
    void stepLogBook();

    const CyclePlan mPlan;
    LogBook& mLogBook;
    RandomSource mRandom;
    std::vector<Leg> mRoute;
    std::size_t mLeg = 0;
    double mLegSeconds = 0;
    double mTowSeconds = 0;     ///< since the throttle was opened for the tow
    double mReleaseSeconds = 0; ///< since the glider was released
    double mRunningSeconds = 0;
    Airframe mAirframe;
    EngineModel mEngine;
    Situation mSituation;
    Instruments mInstruments;
    WarningLogic mWarnings;
    Snapshot mSnapshot;
};

} // namespace ZARN
