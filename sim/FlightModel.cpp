#include "sim/FlightModel.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kLeverSpeed = 40; // percent a second

double pressureAltitude(double altitude, double qnh)
{
    return altitude + (1013.25 - qnh) * 8.3;
}

/// Pressure of the standard atmosphere, hPa.
double standardPressure(double altitude)
{
    return 1013.25 * std::pow(1 - altitude / 44330.8, 5.2559);
}

double fieldPressure(const CyclePlan& plan)
{
    return standardPressure(pressureAltitude(kFieldElevation, plan.qnh));
}

} // namespace

FlightModel::FlightModel(const CyclePlan& plan, LogBook& logBook)
    : mPlan(plan), mLogBook(logBook), mRandom(plan.seed), mRoute(buildRoute(plan)), mAirframe(plan),
      mEngine(plan.engineWarmth, plan.temperature, fieldPressure(plan)), mInstruments(plan)
{
}

bool FlightModel::step()
{
    if (mLeg >= mRoute.size())
        return false;
    mSituation.seconds += kStep;
    mLegSeconds += kStep;
    mSituation.leg = leg();
    mSituation.throttle += std::clamp(leg().throttle - mSituation.throttle, -kLeverSpeed * kStep, kLeverSpeed * kStep);
    mAirframe.step(leg(), mSituation.throttle, mRandom);
    mSituation.motion = mAirframe.motion();
    mSituation.headWind = mAirframe.headWind();
    mSituation.pressureAltitude = pressureAltitude(kFieldElevation + mSituation.motion.height, mPlan.qnh);
    mSituation.ambientPressure = standardPressure(mSituation.pressureAltitude);
    mSituation.outsideTemperature = mPlan.temperature - 0.0075 * mSituation.motion.height;
    stepIncidents();
    stepEngine();
    stepElectrical();
    stepLogBook();
    mInstruments.read(mSituation, mRandom, mSnapshot);
    mWarnings.judge(mSituation, mSnapshot);
    nextLegWhenDone();
    return true;
}

void FlightModel::nextLegWhenDone()
{
    if (!mAirframe.ended(leg(), mLegSeconds))
        return;
    ++mLeg;
    mLegSeconds = 0;
    mAirframe.beginLeg();
}

void FlightModel::stepIncidents()
{
    const EPhase phase = leg().phase;
    const bool towing = phase == EPhase::eTakeOffRoll || phase == EPhase::eTow;
    const bool returning = phase == EPhase::eRelease || phase == EPhase::eDescent || phase == EPhase::ePattern;
    mTowSeconds = towing ? mTowSeconds + kStep : 0;
    mReleaseSeconds = returning ? mReleaseSeconds + kStep : 0;
    const TowPlan tow = leg().tow < 0 ? TowPlan() : mPlan.tows[static_cast<std::size_t>(leg().tow)];
    Incidents& now = mSituation.incidents;
    now.overboost = tow.overboost && mTowSeconds > 4 && mTowSeconds < 13;
    now.hot = tow.hot && phase == EPhase::eTow;
    now.egtSensor = tow.sensorFault && mReleaseSeconds > 20 && mReleaseSeconds < 140 && std::fmod(mReleaseSeconds, 30) < 14;
    now.generator = mPlan.generatorFails && mRunningSeconds > 100 && leg().engine;
}

void FlightModel::stepEngine()
{
    EngineDemand demand;
    demand.throttle = mSituation.throttle;
    demand.cranking = leg().phase == EPhase::eCranking;
    demand.running = leg().engine;
    demand.laneOn[0] = leg().laneOn[0];
    demand.laneOn[1] = leg().laneOn[1];
    demand.overboost = mSituation.incidents.overboost;
    demand.hot = mSituation.incidents.hot;
    demand.ambientPressure = mSituation.ambientPressure;
    demand.outsideTemperature = mSituation.outsideTemperature;
    mEngine.step(demand);
    mSituation.engine = mEngine.condition();
    if (leg().engine && mRunningSeconds == 0)
        mLogBook.starts += 1;
    if (leg().engine)
        mRunningSeconds += kStep;
    mSituation.secondsSinceStart = mRunningSeconds;
}

/// A battery with a generator; when the generator has failed, the battery alone carries the load and sinks slowly.
void FlightModel::stepElectrical()
{
    ElectricalState& e = mSituation.electrical;
    const bool cranking = leg().phase == EPhase::eCranking;
    const bool charging = leg().engine && !mSituation.incidents.generator;
    double target = 12.6;
    if (cranking)
        target = 10.4;
    else if (charging)
        target = 14.1;
    else if (mSituation.incidents.generator)
        target = 12.5 - 0.003 * (mRunningSeconds - 100);
    e.voltage += (target - e.voltage) * kStep / (cranking ? 0.4 : 1.6);
    const double load = 9 + (leg().engine ? 7 : 0);
    e.generatorCurrent[0] = charging ? load + 22 * std::exp(-mRunningSeconds / 240) : 0;
    e.generatorCurrent[1] = leg().engine ? 6 : 0;
    e.batteryCurrent = cranking ? -180 : (charging ? e.generatorCurrent[0] - load : -load);
}

void FlightModel::stepLogBook()
{
    const double hours = kStep / 3600;
    const double burnt = mSituation.engine.fuelFlow * hours;
    mLogBook.controlSeconds += kStep;
    mLogBook.recordedSeconds += kStep;
    if (leg().engine)
        mLogBook.engineSeconds += kStep;
    mLogBook.totalFuel += burnt;
    mLogBook.fuelLeft -= burnt * 0.52;
    mLogBook.fuelRight -= burnt * 0.48;
    mSituation.fuelUsed += burnt;
    mSituation.logBook = mLogBook;
}

} // namespace ZARN
