#include "sim/CyclePlan.h"

#include "app/Numeric.h"

namespace ZARN::Sim {

CyclePlan CyclePlanner::next(double previousSeconds)
{
    advanceClock(previousSeconds);
    RandomSource& r = mRandom;
    CyclePlan plan{.powerUp = mClock,
                   .seed = r.next(),
                   .windSpeed = r.between(1.5, 4.5),
                   .windFrom = r.between(220, 290),
                   .temperature = r.between(16, 24),
                   .qnh = 1010.0 + r.below(16),
                   .warmUp = r.between(330, 390)};
    switch (++mCycle) {
    case 1: plan.groundRun = r.between(240, 300); break;
    case 2:
        plan.engineWarmth = 0.3;
        plan.tows.push_back({.climb = r.between(2.8, 3.1), .overboost = true, .sensorFault = true});
        plan.tows.push_back({.climb = r.between(2.6, 2.8), .wait = r.between(380, 440), .hot = true});
        break;
    case 3: // without a clock every file would start a cycle of its own, so this run ends before the first file does
        plan.engineWarmth = 0.6;
        plan.clock = false;
        plan.generatorFails = true;
        break;
    default:
        plan.engineWarmth = r.between(0, 0.5);
        for (std::uint32_t tows = 3 + r.below(4); tows > 0; --tows)
            plan.tows.push_back({.releaseHeight = 400.0 + 100 * r.below(7),
                                 .climb = r.between(2.4, 3.4),
                                 .wait = r.between(90, 420),
                                 .overboost = r.chance(0.15),
                                 .hot = r.chance(0.15),
                                 .sensorFault = r.chance(0.1)});
    }
    return plan;
}

/// Starts on a summer morning; each cycle follows the one before after a break, or the next morning when it has grown late.
void CyclePlanner::advanceClock(double previousSeconds)
{
    const QTime morning(7, 40);
    if (mClock.isValid())
        mClock = mClock.addSecs(saturatingCast<qint64>(previousSeconds) + 1500 + mRandom.below(2400));
    else
        mClock = QDateTime(QDate(2024, 6, 15), morning, Qt::UTC).addSecs(mRandom.below(1200));
    if (mClock.time() > QTime(17, 0))
        mClock = QDateTime(mClock.date().addDays(1), morning, Qt::UTC).addSecs(mRandom.below(3600));
}

} // namespace ZARN::Sim
