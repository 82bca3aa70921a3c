#include "ui/find/model/FindSearch.h"

#include <utility>

namespace ZARN {

FindSearch::FindSearch(QObject* pParent) : QObject(pParent)
{
    connect(&mTask, &BackgroundTask::signalFinished, this, &FindSearch::slotFinished);
}

void FindSearch::start(const LoadedCard& card, const std::string& condition, double atLeast)
{
    stop();
    mWanted = [this, card, condition, atLeast](Progress& progress) {
        const auto within = card.flightNumber > 0 ? std::optional(TimeSpan{card.startTime, card.endTime}) : std::nullopt;
        mTimes = timesWhere(condition, atLeast, *card.pRecord, card.context, within, progress);
    };
    run();
}

void FindSearch::stop()
{
    mWanted = {};
    mIsOutdated = mTask.isRunning();
    if (mIsOutdated)
        mTask.cancel();
}

void FindSearch::run()
{
    if (!mWanted || mTask.isRunning())
        return;
    mIsOutdated = false;
    mTask.start(std::exchange(mWanted, {}));
}

void FindSearch::slotFinished()
{
    if (!std::exchange(mIsOutdated, false))
        Q_EMIT signalFinished();
    run();
}

} // namespace ZARN
