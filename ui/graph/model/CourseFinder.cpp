#include "ui/graph/model/CourseFinder.h"

#include <algorithm>
#include <utility>

namespace ZARN {

CourseFinder::CourseFinder(QObject* pParent) : QObject(pParent)
{
    connect(&mTask, &BackgroundTask::signalFinished, this, &CourseFinder::slotFinished);
}

void CourseFinder::start(LoadedCard loaded)
{
    if (isFound(loaded))
        return Q_EMIT signalFound(mpFound);
    mWanted = std::move(loaded);
    if (mTask.isRunning())
        mTask.cancel();
    else
        begin();
}

void CourseFinder::stop()
{
    mWanted.reset();
    mTask.cancel();
}

bool CourseFinder::isFound(const LoadedCard& loaded) const
{
    const auto isSame = [](const RecordFlight& a, const RecordFlight& b) {
        return a.takeOffTime == b.takeOffTime && a.landingTime == b.landingTime;
    };
    return mpFound && !mTask.isRunning() && mFoundIn.lock() == loaded.pRecord && &mFoundBy.model() == &loaded.context.model() &&
           mFoundBy.unit() == loaded.context.unit() && mFoundUntil == loaded.wholeEnd &&
           std::ranges::equal(mFoundWith, loaded.flights, isSame);
}

void CourseFinder::begin()
{
    mpFound.reset();
    mFoundIn = mWanted->pRecord;
    mFoundBy = mWanted->context;
    mFoundWith = mWanted->flights;
    mFoundUntil = mWanted->wholeEnd;
    mTask.start([this, loaded = *std::exchange(mWanted, {})](Progress& /*progress*/) {
        mpFound = std::make_shared<const CycleCourse>(CycleCourse::of(loaded));
    });
}

void CourseFinder::slotFinished()
{
    if (mWanted)
        begin();
    else if (!mTask.isCancelled() && mTask.error().isEmpty())
        Q_EMIT signalFound(mpFound);
}

} // namespace ZARN
