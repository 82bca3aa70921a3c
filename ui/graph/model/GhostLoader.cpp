#include "ui/graph/model/GhostLoader.h"

#include "app/Console.h"
#include "card/CardContainer.h"

#include <utility>

namespace ZARN {

GhostLoader::GhostLoader(QObject* pParent) : QObject(pParent)
{
    connect(&mTask, &BackgroundTask::signalFinished, this, &GhostLoader::slotFinished);
}

void GhostLoader::start(const Wish& wish, const DecodingContext& context)
{
    mNext.emplace(wish, context);
    if (mTask.isRunning())
        mTask.cancel();
    else
        begin();
}

void GhostLoader::stop()
{
    mNext.reset();
    mTask.cancel();
}

void GhostLoader::begin()
{
    mFlight = mNext->first.flight;
    mpFound.reset();
    mProblem.clear();
    mTask.start([this, next = *std::exchange(mNext, {})](Progress& progress) { read(next.first, next.second, progress); });
}

/// In a thread of its own.
void GhostLoader::read(const Wish& wish, const DecodingContext& context, Progress& progress)
{
    const Console silent([](std::string_view) {}, [](std::string_view) {}); // the window has its own lines about the same files
    CardContainer card(silent, context, progress);
    const bool isRead = card.readContainer(wish.path) && card.loadCycle(wish.cycle, -1) && !progress.isCancelled();
    mProblem = QString::fromStdString(card.loadError());
    if (isRead && mProblem.isEmpty())
        mpFound = std::make_shared<const GhostCycle>(card.loaded(), wish.name);
}

void GhostLoader::slotFinished()
{
    if (mNext)
        return begin();
    if (mTask.isCancelled())
        return;
    if (mpFound && mTask.error().isEmpty())
        Q_EMIT signalLoaded(std::exchange(mpFound, {}), mFlight);
    else
        Q_EMIT signalFailed(mTask.error().isEmpty() ? mProblem : mTask.error());
}

} // namespace ZARN
