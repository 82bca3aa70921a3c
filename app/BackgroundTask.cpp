#include "app/BackgroundTask.h"

#include <exception>
#include <new>
#include <utility>

namespace ZARN {

BackgroundTask::~BackgroundTask()
{
    cancel();
    if (mpThread)
        mpThread->wait();
}

void BackgroundTask::start(Work work)
{
    Q_ASSERT(!isRunning());
    mReport.begin();
    mError.clear();
    mpThread.reset(QThread::create([this, work = std::move(work)] { run(work); }));
    connect(mpThread.get(), &QThread::finished, this, &BackgroundTask::finish, Qt::QueuedConnection);
    mpThread->start();
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
}

void BackgroundTask::finish()
{
    mpThread->wait();
    mpThread.reset();
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
