#include "ui/live/LiveReviewer.h"

#include <algorithm>
#include <utility>

namespace ZARN {

namespace {

constexpr qint64 kShortest = 1000; // milliseconds
constexpr qint64 kShare = 5;

} // namespace

LiveReviewer::LiveReviewer(QObject* pParent) : QObject(pParent)
{
    connect(&mTask, &BackgroundTask::signalFinished, this, &LiveReviewer::slotFinished);
}

bool LiveReviewer::isDue() const
{
    return !mTask.isRunning() && (!mElapsed.isValid() || mElapsed.elapsed() >= mDue);
}

void LiveReviewer::start(const CardContainer& container, const DecodingContext& context, std::shared_ptr<RecordData> pRecord)
{
    mContext = context;
    mpDraft = std::make_unique<CardContainer>(container, mContext);
    mpDraft->growLive(std::move(pRecord));
    mElapsed.start();
    mTask.start([this](Progress&) {
        mpDraft->recalculate(-1);
        mReview = reviewCycle(mpDraft->values(), mpDraft->loadedCycle()->flights, mpDraft->endTime());
    });
}

void LiveReviewer::slotFinished()
{
    mDue = std::max(kShortest, kShare * mElapsed.elapsed());
    if (!mTask.isCancelled() && mTask.error().isEmpty())
        Q_EMIT signalFound();
}

} // namespace ZARN
