#include "sim/FlightModel.h"

#include "sim/Systems.h"

#include <algorithm>

namespace ZARN::Sim {

namespace {

constexpr double kLeverSpeed = 40; // percent a second

/// The standard atmosphere above the airfield.
void setAir(Situation& now)
{
    now.pressureAltitude = kFieldElevation + now.motion.height + (1013.25 - now.plan.qnh) * 8.3;
    now.ambientPressure = 1013.25 * std::pow(1 - now.pressureAltitude / 44330.8, 5.2559);
    now.outsideTemperature = now.plan.temperature - 0.0075 * now.motion.height;
}

/// A battery with a generator; when the generator has failed, the battery alone carries the load and sinks slowly.
void stepElectrical(Situation& now)
{
    Electrical& e = now.electrical;
    const bool running = now.leg.engine;
    const bool failed = now.incidents.generator;
    const bool cranking = now.isCranking();
    const bool charging = running && !failed;
    const double target = cranking ? 10.4 : (charging ? 14.1 : (failed ? 12.5 - 0.003 * (now.runningSeconds - 100) : 12.6));
    e.voltage += (target - e.voltage) * kStep / (cranking ? 0.4 : 1.6);
    const double load = running ? 16 : 9;
    e.generatorCurrent[0] = charging ? load + 22 * std::exp(-now.runningSeconds / 240) : 0;
    e.generatorCurrent[1] = running ? 6 : 0;
    e.batteryCurrent = cranking ? -180 : (charging ? e.generatorCurrent[0] - load : -load);
}

void stepLogBook(Situation& now)
{
    LogBook& book = now.logBook;
    const double burnt = now.engine.fuelFlow * (kStep / 3600);
    book.controlSeconds += kStep;
    book.recordedSeconds += kStep;
    book.engineSeconds += now.leg.engine ? kStep : 0;
    book.totalFuel += burnt;
    book.fuelLeft -= burnt * 0.52;
    book.fuelRight -= burnt * 0.48;
    now.fuelUsed += burnt;
}

} // namespace

FlightModel::FlightModel(const CyclePlan& plan, LogBook& logBook)
    : mPlan(plan), mRandom(plan.seed), mRoute(buildRoute(plan)), mNow{.plan = mPlan, .logBook = logBook, .motion = parkedMotion()}
{
    setAir(mNow);
    mNow.engine = restingEngine(plan.engineWarmth, plan.temperature, mNow.ambientPressure);
}

bool FlightModel::step()
{
    if (mLeg >= mRoute.size())
        return false;
    mNow.leg = mRoute[mLeg];
    mNow.seconds += kStep;
    mLegSeconds += kStep;
    mNow.throttle += std::clamp(mNow.leg.throttle - mNow.throttle, -kLeverSpeed * kStep, kLeverSpeed * kStep);
    stepMotion(mNow, mRandom);
    setAir(mNow);
    stepIncidents();
    stepEngine(mNow);
    stepElectrical(mNow);
    stepLogBook(mNow);
    mInstruments.read(mNow, mRandom, mSnapshot);
    judgeWarnings(mNow, mSnapshot);
    if (isLegEnded(mNow, mLegSeconds)) {
        ++mLeg;
        mLegSeconds = 0;
        mNow.motion.waypoint = 0; // the round of the tow starts anew
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
        mNow.logBook.starts += mNow.runningSeconds == 0 ? 1 : 0;
        mNow.runningSeconds += kStep;
    }
}

} // namespace ZARN::Sim
