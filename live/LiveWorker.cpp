#include "live/LiveWorker.h"

namespace ZARN {

namespace {

constexpr int kStatusPeriod = 250; // milliseconds

} // namespace

LiveWorker::LiveWorker(const LiveWish& wish) : mLink(wish.address, wish.bitRate, wish.isListenOnly, this), mTimer(this)
{
    if (!wish.folder.isEmpty())
        mpRecorder = std::make_unique<LiveRecorder>(wish.folder);
    connect(&mTimer, &QTimer::timeout, this, &LiveWorker::tell);
    connect(&mLink, &BusLink::received, this, &LiveWorker::take);
    connect(&mLink, &BusLink::stateChanged, this, [this](BusLink::EState state, const QString& reason) {
        mStatus.state = state;
        mStatus.reason = reason;
        tell();
    });
}

void LiveWorker::open()
{
    if (mpRecorder && !mpRecorder->open())
        keepError();
    mTimer.start(kStatusPeriod);
    mLink.open();
}

void LiveWorker::close()
{
    mTimer.stop();
    mLink.close();
    if (mpRecorder && mpRecorder->isOpen() && !mpRecorder->close())
        keepError();
    tell();
}

void LiveWorker::take(const LiveRecords& records)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    if (mpRecorder && mpRecorder->isOpen() && !mpRecorder->append(records, now))
        keepError();
    Q_EMIT received(records, now);
}

void LiveWorker::keepError()
{
    mStatus.recordingError = mpRecorder->error();
    tell();
}

void LiveWorker::tell()
{
    mStatus.counts = mLink.counts();
    mStatus.busStatus = mLink.busStatus();
    mStatus.confirming = mLink.isConfirming();
    mStatus.recorded = mpRecorder ? mpRecorder->recorded() : 0;
    mStatus.isRecording = mpRecorder && mpRecorder->isOpen();
    Q_EMIT status(mStatus);
}

} // namespace ZARN
