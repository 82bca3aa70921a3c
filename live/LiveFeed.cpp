#include "live/LiveFeed.h"

#include <utility>

namespace ZARN {

LiveFeed::LiveFeed(QObject* pParent) : QObject(pParent) {}

LiveFeed::~LiveFeed()
{
    close();
    mThread.quit();
    mThread.wait();
}

void LiveFeed::open(const LiveWish& wish)
{
    close();
    mpWorker = new LiveWorker(wish);
    mpWorker->moveToThread(&mThread);
    connect(&mThread, &QThread::finished, mpWorker, &QObject::deleteLater);
    const auto isCurrent = [this, run = ++mRun] { return run == mRun; };
    connect(mpWorker, &LiveWorker::received, this, [this, isCurrent](const LiveRecords& records, const QDateTime& now) {
        if (isCurrent())
            Q_EMIT received(records, now);
    });
    connect(mpWorker, &LiveWorker::status, this, [this, isCurrent](const LiveStatus& told) {
        if (isCurrent())
            Q_EMIT status(told);
    });
    mThread.start();
    QMetaObject::invokeMethod(mpWorker, &LiveWorker::open, Qt::QueuedConnection);
}

void LiveFeed::close()
{
    LiveWorker* pWorker = std::exchange(mpWorker, nullptr);
    if (!pWorker)
        return;
    QMetaObject::invokeMethod(pWorker, &LiveWorker::close, Qt::BlockingQueuedConnection);
    pWorker->deleteLater();
}

} // namespace ZARN
