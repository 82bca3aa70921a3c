#include "app/BackgroundTask.h"

#include <exception>
#include <new>
#include <system_error>
#include <utility>

namespace ZARN {

BackgroundTask::BackgroundTask(QObject* pParent) : QObject(pParent)
{
    connect(this, &BackgroundTask::signalEnded, this, &BackgroundTask::finish, Qt::QueuedConnection);
}

BackgroundTask::~BackgroundTask()
{
    cancel();
    if (mThread.joinable())
        mThread.join();
}

void BackgroundTask::start(Work work)
{
    Q_ASSERT(!isRunning());
    mReport.begin();
    mError.clear();
    mIsRunning = true;
    try {
        mThread = std::thread([this, work = std::move(work)] { run(work); });
    } catch (const std::system_error& problem) { // the machine has no thread to give
        mError = QString::fromLocal8Bit(problem.what());
        Q_EMIT signalEnded({});
    }
}

void BackgroundTask::run(const Work& work)
{
    try {
        work(mReport);
    } catch (const std::bad_alloc&) {
        mError = tr("The memory is not enough.");
    } catch (const std::exception& problem) {
        mError = QString::fromLocal8Bit(problem.what());
    }
    Q_EMIT signalEnded({});
}

void BackgroundTask::finish()
{
    if (mThread.joinable())
        mThread.join();
    mIsRunning = false;
    Q_EMIT signalFinished();
}

void BackgroundTask::Report::begin()
{
    mIsCancelled = false;
    mPercent = -1;
}

void BackgroundTask::Report::setProgress(int percent)
{
    if (std::exchange(mPercent, percent) != percent)
        Q_EMIT mTask.signalProgress(percent);
}

} // namespace ZARN
