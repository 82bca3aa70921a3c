#include "ui/graph/model/CourseFinder.h"

#include <utility>

namespace ZARN {

CourseFinder::CourseFinder(QObject* pParent) : QObject(pParent)
{
    connect(&mTask, &BackgroundTask::signalFinished, this, &CourseFinder::slotFinished);
}

void CourseFinder::start(LoadedCard loaded)
{
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

void CourseFinder::begin()
{
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
