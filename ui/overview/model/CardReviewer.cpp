#include "ui/overview/model/CardReviewer.h"

#include "app/Console.h"
#include "app/DateText.h"
#include "app/FileName.h"
#include "app/TimeText.h"
#include "card/CardContainer.h"
#include "card/PowerUp.h"
#include "profile/Profile.h"

#include <QFileInfo>

#include <algorithm>

namespace ZARN {

namespace {

/// The progress of one cycle of several.
class PartProgress : public Progress {
public:
    PartProgress(Progress& whole, std::size_t parts) : mWhole(whole), mParts(parts) {}
    void next() { ++mDone; }
    void setProgress(int percent) override
    {
        mWhole.setProgress(static_cast<int>((mDone * 100 + static_cast<std::size_t>(std::clamp(percent, 0, 100))) / mParts));
    }
    [[nodiscard]] bool isCancelled() const override { return mWhole.isCancelled(); }

private:
    Progress& mWhole;
    const std::size_t mParts;
    std::size_t mDone = 0;
};

/// Whether the files of the loaded cycle are there no more, so that whatever was read of them is not the whole.
bool isGone(const CardContainer& card, uint32_t number)
{
    const auto& files = card.recordCycles().at(number).files;
    return std::ranges::any_of(card.loadProblems(), &CardProblem::isSystemError) &&
           std::ranges::none_of(files, [](const RecordInfo& file) { return QFileInfo::exists(file.fileName); });
}

/// Notes what of the cycle's files could not be read.
void noteDamages(CycleOverview& overview, const CardContainer& card)
{
    for (const CardProblem& problem : card.problems()) {
        const QString end = '/' + decodeFileName(problem.file);
        const auto isOf = [&end](const RecordInfo& file) { return file.fileName.endsWith(end); };
        if (std::ranges::none_of(card.recordCycles().at(overview.number).files, isOf))
            continue;
        overview.damages.append(end.mid(1) + ": " + problem.reason + ".");
        overview.isPartial |= problem.isSystemError;
    }
}

QDateTime clockAtStart(const RecordInfo& file)
{
    return file.startsCycle ? file.dateTime.addMSecs(wholeMilliseconds(file.startTime)) : file.dateTime;
}

/// Notes where the unit's clock went back, in the cycle or since the file before it.
void noteClock(CycleOverview& overview, const CardContainer& card)
{
    constexpr qint64 kSetRight = 60; // seconds: a clock that is set right goes back by less
    const RecordInfo* pBefore = nullptr;
    for (const auto& [number, cycle] : card.recordCycles()) {
        for (const RecordInfo& file : cycle.files) {
            const bool isKnown = file.dateTime.isValid() && file.hasSoundTimes() && file.samples > 0;
            const QDateTime before = pBefore ? clockAtStart(*pBefore).addMSecs(wholeMilliseconds(pBefore->endTime - pBefore->startTime)) : QDateTime();
            if (number == overview.number && isKnown && pBefore && clockAtStart(file).secsTo(before) > kSetRight)
                overview.damages.append(CardReviewer::tr("%1: the unit's clock went back here, from %2 to %3. Dates on one side of it are wrong, and so may be the "
                                                         "order of flights in the logbook.")
                                            .arg(file.fileName.mid(file.fileName.lastIndexOf('/') + 1), dateTimeText(before),
                                                 dateTimeText(clockAtStart(file))));
            pBefore = isKnown ? &file : pBefore;
        }
    }
}

/// The loaded cycle of a container, as a value of its own.
std::shared_ptr<CycleOverview> overviewOf(const CardContainer& card, uint32_t number, const CardReviewer::Supplement& supplement)
{
    const RecordCycle& cycle = card.recordCycles().at(number);
    auto pOverview = std::make_shared<CycleOverview>();
    pOverview->number = number;
    pOverview->dateTime = PowerUp::of(cycle);
    pOverview->startTime = card.startTime();
    pOverview->endTime = card.endTime();
    pOverview->flights = cycle.flights;
    noteDamages(*pOverview, card);
    noteClock(*pOverview, card);
    pOverview->problem = QString::fromStdString(card.loadError());
    if (pOverview->problem.isEmpty())
        pOverview->review = reviewCycle(card.values(), cycle.flights, cycle.endTime, supplement ? EKeyValues::eAll : EKeyValues::eNone, EStops::eInTheAir);
    if (pOverview->problem.isEmpty() && supplement)
        supplement(*pOverview, card);
    return pOverview;
}

} // namespace

CardReviewer::CardReviewer(const Session& session, QObject* pParent) : QObject(pParent), mSession(session)
{
    connect(&mTask, &BackgroundTask::signalProgress, this, &CardReviewer::signalProgress);
    connect(&mTask, &BackgroundTask::signalFinished, this, &CardReviewer::finish);
}

void CardReviewer::start()
{
    stop();
    mIsWanted = true;
    if (!mTask.isRunning())
        begin();
}

void CardReviewer::stop()
{
    mIsWanted = false;
    ++mGeneration;
    mTask.cancel();
}

void CardReviewer::begin()
{
    mIsWanted = mIsGone = false;
    std::vector<uint32_t> numbers;
    for (const auto& [number, cycle] : mSession.container.recordCycles())
        numbers.push_back(number);
    std::ranges::reverse(numbers);
    mTask.start([this, context = mSession.profile.context(), path = mSession.container.path(), generation = mGeneration,
                 numbers, supplement = mSupplement](Progress& progress) {
        mIsGone = !review(progress, context, path, numbers, supplement, [this, generation](std::shared_ptr<const CycleOverview> pCycle) {
            QMetaObject::invokeMethod(
                this,
                [this, generation, pCycle] {
                    if (generation == mGeneration)
                        Q_EMIT signalReviewed(pCycle);
                },
                Qt::QueuedConnection);
        });
    });
}

void CardReviewer::finish()
{
    if (mIsWanted)
        return begin();
    if (mTask.isCancelled())
        return;
    if (mIsGone || !mTask.error().isEmpty())
        Q_EMIT signalStopped(mTask.error());
    else
        Q_EMIT signalFinished();
}

/// In a thread of its own.
bool CardReviewer::review(Progress& progress, const DecodingContext& context, const QString& path, const std::vector<uint32_t>& numbers,
                          const Supplement& supplement, const Tell& tell)
{
    const Console silent([](std::string_view) {}, [](std::string_view) {}); // the window has its own lines about the same files
    CardContainer card(silent, context, nullProgress());
    card.setPathWanted(false);
    if (!card.readContainer(path))
        return false;
    PartProgress part(progress, numbers.size());
    card.setProgress(part);
    for (const uint32_t number : numbers) {
        const bool isLoaded = card.loadCycle(number, -1);
        if (progress.isCancelled())
            return true;
        if (!isLoaded || isGone(card, number))
            return false;
        tell(overviewOf(card, number, supplement));
        part.next();
    }
    return true;
}

} // namespace ZARN
