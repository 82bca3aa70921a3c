#include "app/GrowthTimer.h"

#include <algorithm>
#include <utility>

namespace ZARN {

namespace {

constexpr qint64 kShortest = 1000; // milliseconds
constexpr qint64 kShare = 5;

} // namespace

GrowthTimer::GrowthTimer(QObject* pParent) : QObject(pParent)
{
    mTimer.setSingleShot(true);
    connect(&mTimer, &QTimer::timeout, this, [this] {
        if (std::exchange(mHasGrown, false))
            Q_EMIT signalDue();
    });
}

void GrowthTimer::grow()
{
    mHasGrown = true;
    arrange();
}

void GrowthTimer::begin()
{
    mIsWorking = true;
    mElapsed.start();
    mTimer.stop();
}

void GrowthTimer::end()
{
    if (!std::exchange(mIsWorking, false))
        return;
    mWait = std::max(kShortest, kShare * mElapsed.elapsed());
    arrange();
}

void GrowthTimer::forget()
{
    mHasGrown = false;
    mTimer.stop();
}

void GrowthTimer::arrange()
{
    if (mHasGrown && !mIsWorking && !mTimer.isActive())
        mTimer.start(static_cast<int>(mElapsed.isValid() ? std::max<qint64>(0, mWait - mElapsed.elapsed()) : 0));
}

} // namespace ZARN
