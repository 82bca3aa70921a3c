#include "sim/CyclePlan.h"

#include "app/Numeric.h"

namespace ZARN {

CyclePlan CyclePlanner::next(double previousSeconds)
{
    advanceClock(previousSeconds);
    ++mCycle;
    CyclePlan plan;
    switch (mCycle) {
    case 1: plan = groundRun(); break;
    case 2: plan = storyFlights(); break;
    case 3: plan = shortRun(); break;
    default: plan = towingDay(); break;
    }
    plan.powerUp = mClock;
    plan.seed = mRandom.next();
    setWeather(plan);
    return plan;
}

CyclePlan CyclePlanner::groundRun()
{
    CyclePlan plan;
    plan.warmUp = mRandom.between(420, 480);
    plan.groundRun = mRandom.between(240, 300);
    return plan;
}

CyclePlan CyclePlanner::storyFlights()
{
    CyclePlan plan;
    plan.engineWarmth = 0.3;
    plan.warmUp = mRandom.between(330, 390);
    TowPlan first;
    first.climb = mRandom.between(2.8, 3.1);
    first.overboost = true;
    first.sensorFault = true;
    TowPlan second;
    second.climb = mRandom.between(2.6, 2.8);
    second.wait = mRandom.between(380, 440);
    second.hot = true;
    plan.tows = {first, second};
    return plan;
}

CyclePlan CyclePlanner::shortRun()
{
    // Without a clock every file would start a cycle of its own, so this run ends before the first file does.
    CyclePlan plan;
    plan.clock = false;
    plan.generatorFails = true;
    plan.engineWarmth = 0.6;
    plan.warmUp = mRandom.between(330, 360);
    return plan;
}

CyclePlan CyclePlanner::towingDay()
{
    CyclePlan plan;
    plan.warmUp = mRandom.between(280, 420);
    plan.engineWarmth = mRandom.between(0, 0.5);
    const std::uint32_t tows = 3 + mRandom.below(4);
    for (std::uint32_t tow = 0; tow < tows; ++tow) {
        TowPlan towPlan;
        towPlan.releaseHeight = 400 + 100 * mRandom.below(7);
        towPlan.climb = mRandom.between(2.4, 3.4);
        towPlan.wait = mRandom.between(90, 420);
        towPlan.overboost = mRandom.chance(0.15);
        towPlan.hot = mRandom.chance(0.15);
        towPlan.sensorFault = mRandom.chance(0.1);
        plan.tows.push_back(towPlan);
    }
    return plan;
}

void CyclePlanner::setWeather(CyclePlan& plan)
{
    plan.windSpeed = mRandom.between(1.5, 4.5);
    plan.windFrom = mRandom.between(220, 290);
    plan.temperature = mRandom.between(16, 24);
    plan.qnh = 1010 + mRandom.below(16);
}

/// Starts on a summer morning; each cycle follows the one before after a break, or the next morning when it has grown late.
void CyclePlanner::advanceClock(double previousSeconds)
{
    const QTime morning(7, 40);
    if (!mClock.isValid()) {
        mClock = QDateTime(QDate(2024, 6, 15), morning, Qt::UTC).addSecs(mRandom.below(1200));
        return;
    }
    mClock = mClock.addSecs(saturatingCast<qint64>(previousSeconds) + 1500 + mRandom.below(2400));
    if (mClock.time() > QTime(17, 0))
        mClock = QDateTime(mClock.date().addDays(1), morning, Qt::UTC).addSecs(mRandom.below(3600));
}

} // namespace ZARN
