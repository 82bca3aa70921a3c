#include "sim/CyclePlan.h"

#include "app/Numeric.h"

namespace ZARN::Sim {

CyclePlan CyclePlanner::next(double previousSeconds)
{
    advanceClock(previousSeconds);
    CyclePlan plan = ++mCycle <= kStoryCycles ? story() : towingDay();
    plan.powerUp = mClock;
    plan.seed = mRandom.next();
    plan.windSpeed = mRandom.between(1.5, 4.5);
    plan.windFrom = mRandom.between(220, 290);
    plan.temperature = mRandom.between(16, 24);
    plan.qnh = 1010 + mRandom.below(16);
    return plan;
}

CyclePlan CyclePlanner::story()
{
    if (mCycle == 1)
        return {.warmUp = mRandom.between(420, 480), .groundRun = mRandom.between(240, 300)};
    if (mCycle == 2) {
        CyclePlan plan{.warmUp = mRandom.between(330, 390), .engineWarmth = 0.3};
        plan.tows.push_back({.climb = mRandom.between(2.8, 3.1), .overboost = true, .sensorFault = true});
        plan.tows.push_back({.climb = mRandom.between(2.6, 2.8), .wait = mRandom.between(380, 440), .hot = true});
        return plan;
    }
    // Without a clock every file would start a cycle of its own, so this run ends before the first file does.
    return {.clock = false, .generatorFails = true, .warmUp = mRandom.between(330, 360), .engineWarmth = 0.6};
}

CyclePlan CyclePlanner::towingDay()
{
    CyclePlan plan{.warmUp = mRandom.between(280, 420), .engineWarmth = mRandom.between(0, 0.5)};
    const std::uint32_t tows = 3 + mRandom.below(4);
    for (std::uint32_t tow = 0; tow < tows; ++tow)
        plan.tows.push_back({.releaseHeight = 400.0 + 100 * mRandom.below(7),
                             .climb = mRandom.between(2.4, 3.4),
                             .wait = mRandom.between(90, 420),
                             .overboost = mRandom.chance(0.15),
                             .hot = mRandom.chance(0.15),
                             .sensorFault = mRandom.chance(0.1)});
    return plan;
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

} // namespace ZARN::Sim
