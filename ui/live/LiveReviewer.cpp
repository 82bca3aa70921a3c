#include "ui/live/LiveReviewer.h"

#include <utility>

namespace ZARN {

LiveReviewer::LiveReviewer(QObject* pParent) : QObject(pParent)
{
    connect(&mTask, &BackgroundTask::signalFinished, this, &LiveReviewer::slotFinished);
}

void LiveReviewer::start(const CardContainer& container, const DecodingContext& context, std::shared_ptr<RecordData> pRecord)
{
    mContext = context;
    mpDraft = std::make_unique<CardContainer>(container, mContext);
    mpDraft->growLive(std::move(pRecord));
    mPace.begin();
    mTask.start([this](Progress&) {
        mpDraft->recalculate(-1);
        mReview = reviewCycle(mpDraft->values(), mpDraft->loadedCycle()->flights, mpDraft->endTime(), EKeyValues::eNone, EStops::eInTheAir);
    });
}

void LiveReviewer::slotFinished()
{
    mPace.end();
    if (!mTask.isCancelled() && mTask.error().isEmpty())
        Q_EMIT signalFound();
}

} // namespace ZARN
