#include "app/LatestTask.h"

#include <utility>

namespace ZARN {

LatestTask::LatestTask(QObject* pParent) : QObject(pParent)
{
    connect(&mTask, &BackgroundTask::signalFinished, this, &LatestTask::slotFinished);
}

void LatestTask::start(BackgroundTask::Work work)
{
    stop();
    mWanted = std::move(work);
    run();
}

void LatestTask::stop()
{
    mWanted = {};
    mIsOutdated = mTask.isRunning();
    if (mIsOutdated)
        mTask.cancel();
}

void LatestTask::run()
{
    if (!mWanted || mTask.isRunning())
        return;
    mIsOutdated = false;
    mTask.start(std::exchange(mWanted, {}));
}

void LatestTask::slotFinished()
{
    if (!std::exchange(mIsOutdated, false))
        Q_EMIT signalFinished();
    run();
}

} // namespace ZARN
