#include "sim/FlightModel.h"

#include "sim/EngineModel.h"
#include "sim/WarningLogic.h"

#include <algorithm>

namespace ZARN::Sim {

namespace {

constexpr double kLeverSpeed = 40; // percent a second

} // namespace

FlightModel::FlightModel(const CyclePlan& plan, LogBook& logBook)
    : mPlan(plan), mLogBook(logBook), mRandom(plan.seed), mRoute(buildRoute(plan)), mAirframe(plan), mInstruments(plan)
{
    setAir();
    mNow.engine = restingEngine(plan.engineWarmth, plan.temperature, mNow.ambientPressure);
}

/// The standard atmosphere above the airfield.
void FlightModel::setAir()
{
    mNow.pressureAltitude = kFieldElevation + mNow.motion.height + (1013.25 - mPlan.qnh) * 8.3;
    mNow.ambientPressure = 1013.25 * std::pow(1 - mNow.pressureAltitude / 44330.8, 5.2559);
    mNow.outsideTemperature = mPlan.temperature - 0.0075 * mNow.motion.height;
}

bool FlightModel::step()
{
    if (mLeg >= mRoute.size())
        return false;
    mNow.leg = mRoute[mLeg];
    mNow.seconds += kStep;
    mLegSeconds += kStep;
    mNow.throttle += std::clamp(mNow.leg.throttle - mNow.throttle, -kLeverSpeed * kStep, kLeverSpeed * kStep);
    mAirframe.step(mNow.leg, mNow.throttle, mRandom);
    mNow.motion = mAirframe.motion();
    setAir();
    stepIncidents();
    stepEngine(mNow);
    stepElectrical();
    stepLogBook();
    mInstruments.read(mNow, mRandom, mSnapshot);
    judgeWarnings(mNow, mSnapshot);
    if (mAirframe.ended(mNow.leg, mLegSeconds)) {
        ++mLeg;
        mLegSeconds = 0;
        mAirframe.beginLeg();
    }
    return true;
}

void FlightModel::stepIncidents()
{
    const EPhase phase = mNow.leg.phase;
    const TowPlan& tow = mNow.leg.tow;
    mTowSeconds = phase == EPhase::eTakeOffRoll || phase == EPhase::eTow ? mTowSeconds + kStep : 0;
    mReleaseSeconds = phase == EPhase::eReturn ? mReleaseSeconds + kStep : 0;
    Incidents& incidents = mNow.incidents;
    incidents.overboost = tow.overboost && mTowSeconds > 4 && mTowSeconds < 13;
    incidents.hot = tow.hot && phase == EPhase::eTow;
    incidents.egtSensor = tow.sensorFault && mReleaseSeconds > 20 && mReleaseSeconds < 140 && std::fmod(mReleaseSeconds, 30) < 14;
    incidents.generator = mPlan.generatorFails && mNow.runningSeconds > 100 && mNow.leg.engine;
    if (mNow.leg.engine) {
        mLogBook.starts += mNow.runningSeconds == 0 ? 1 : 0;
        mNow.runningSeconds += kStep;
    }
}

/// A battery with a generator; when the generator has failed, the battery alone carries the load and sinks slowly.
void FlightModel::stepElectrical()
{
    Electrical& e = mNow.electrical;
    const bool running = mNow.leg.engine;
    const bool failed = mNow.incidents.generator;
    const bool cranking = mNow.isCranking();
    const bool charging = running && !failed;
    const double target = cranking ? 10.4 : (charging ? 14.1 : (failed ? 12.5 - 0.003 * (mNow.runningSeconds - 100) : 12.6));
    e.voltage += (target - e.voltage) * kStep / (cranking ? 0.4 : 1.6);
    const double load = running ? 16 : 9;
    e.generatorCurrent[0] = charging ? load + 22 * std::exp(-mNow.runningSeconds / 240) : 0;
    e.generatorCurrent[1] = running ? 6 : 0;
    e.batteryCurrent = cranking ? -180 : (charging ? e.generatorCurrent[0] - load : -load);
}

void FlightModel::stepLogBook()
{
    const double burnt = mNow.engine.fuelFlow * (kStep / 3600);
    mLogBook.controlSeconds += kStep;
    mLogBook.recordedSeconds += kStep;
    mLogBook.engineSeconds += mNow.leg.engine ? kStep : 0;
    mLogBook.totalFuel += burnt;
    mLogBook.fuelLeft -= burnt * 0.52;
    mLogBook.fuelRight -= burnt * 0.48;
    mNow.fuelUsed += burnt;
    mNow.logBook = mLogBook;
}

} // namespace ZARN::Sim
