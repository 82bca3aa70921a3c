#include "sim/FlightModel.h"

#include <algorithm>

namespace ZARN::Sim {

FlightModel::FlightModel(const CyclePlan& plan, LogBook& logBook)
    : mPlan(plan), mRoute(buildRoute(plan)), mNow{.plan = mPlan, .logBook = logBook, .random = RandomSource(plan.seed)}
{
    stepAir(mNow);
    restEngine(mNow);
}

bool FlightModel::step()
{
    if (mLeg >= mRoute.size())
        return false;
    constexpr double kLever = 40 * kStep; // percent a step
    mNow.leg = mRoute[mLeg];
    mNow.seconds += kStep;
    mLegSeconds += kStep;
    mNow.throttle += std::clamp(mNow.leg.throttle - mNow.throttle, -kLever, kLever);
    stepMotion(mNow);
    stepAir(mNow);
    stepIncidents();
    stepEngine(mNow);
    stepUnits(mNow);
    judgeWarnings(mNow);
    if (isLegEnded(mNow, mLegSeconds)) {
        ++mLeg;
        mLegSeconds = 0;
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
