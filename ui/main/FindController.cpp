#include "ui/main/FindController.h"

#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "project/RecordSession.h"
#include "project/TimeReference.h"
#include "trace/Formula.h"
#include "ui/data/DialogData.h"
#include "ui/find/FindBar.h"
#include "ui/find/FindForm.h"

#include <QAction>
#include <QStackedWidget>

namespace ZARN {

namespace {

constexpr int kTyping = 250; // milliseconds

QString joined(const std::vector<std::string>& names)
{
    QStringList texts;
    for (const std::string& name : names)
        texts << QStringLiteral("\"%1\"").arg(QString::fromStdString(name));
    return texts.join(", ");
}

} // namespace

FindController::FindController(const Session& session, RecordSession& record, DialogData& data, QStackedWidget& pages, QAction& action,
                               QObject* pParent)
    : QObject(pParent), mSession(session), mRecord(record), mData(data), mPages(pages), mAction(action), mpBar(new FindBar)
{
    mpBar->hide();
    mData.addBar(mpBar);
    mAction.setEnabled(false);
    mDelay.setSingleShot(true);
    mDelay.setInterval(kTyping);
    connect(&mDelay, &QTimer::timeout, this, &FindController::search);
    connect(&mSearch, &LatestTask::signalFinished, this, &FindController::slotFound);
    connect(&mRecord, &RecordSession::recordChanged, this, &FindController::slotRecord);
    connect(&mRecord, &RecordSession::recordGrown, &mPace, &GrowthTimer::grow);
    connect(&mPace, &GrowthTimer::signalDue, this, &FindController::searchGrown);
    connect(&mRecord, &RecordSession::decodingChanged, this, &FindController::slotRecord);
    connect(&mRecord, &RecordSession::timeChanged, mpBar, &FindBar::setTime);
    connect(&mData, &DialogData::signalSettings, this, &FindController::updateTimes);
    connect(mpBar, &FindBar::signalChanged, this, &FindController::searchSoon);
    connect(mpBar, &FindBar::signalStep, this, &FindController::step);
    connect(mpBar, &FindBar::signalChosen, this, [this](int row) { go(static_cast<std::size_t>(row)); });
    connect(mpBar, &FindBar::signalShow, this, [this](int row) { show(static_cast<std::size_t>(row)); });
    connect(mpBar, &FindBar::signalClosed, this, &FindController::slotClosed);
}

void FindController::open()
{
    if (!mRecord.record())
        return;
    mPages.setCurrentWidget(&mData);
    const bool wasHidden = mpBar->isHidden();
    if (wasHidden)
        updateParameters();
    mpBar->open();
    if (wasHidden)
        search();
}

void FindController::slotRecord()
{
    mAction.setEnabled(mRecord.record() != nullptr);
    mSearch.stop();
    mPace.end();
    setHits({});
    updateTimes();
    if (mpBar->isHidden())
        return;
    if (!mRecord.record())
        return mpBar->setNote(tr("No record is loaded."));
    updateParameters();
    search();
}

void FindController::updateTimes()
{
    mpBar->setTimes(TimeReference::of(mSession.property, mSession.container));
}

void FindController::updateParameters()
{
    std::vector<FindParameter> parameters = FindParameter::all(*mRecord.record(), mSession.profile);
    const auto isTicked = [this](const FindParameter& parameter) { return mSession.profile.isSelected(parameter.name.toStdString()); };
    const auto preferred = std::ranges::find_if(parameters, isTicked);
    const QString name = preferred == parameters.end() ? QString() : preferred->name;
    const QSignalBlocker quiet(mpBar);
    mpBar->form().setParameters(std::move(parameters), name, mSession.profile);
}

void FindController::searchSoon()
{
    mSearch.stop();
    mPace.end();
    mDelay.start();
}

/// What is wrong with the condition is said at once, and where.
void FindController::search()
{
    mDelay.stop();
    mSearch.stop();
    mPace.end();
    mPace.forget();
    mCondition.clear();
    if (mpBar->isHidden() || !mRecord.record())
        return;
    setHits({});
    const FindForm& form = mpBar->form();
    const QString expression = form.expression();
    if (expression.trimmed().isEmpty() && form.isFree())
        return mpBar->setNote(tr("Write a condition, for example \"Engine Speed A\" > 4000."));
    if (expression.isEmpty())
        return mpBar->setProblem(form.isKnown() ? tr("The profile cannot convert the unit of this parameter.")
                                                : tr("There is no such parameter in this record."));
    try {
        const Formula formula(expression.toStdString(), mSession.profile.model());
    } catch (const FormulaError& error) {
        const auto place = QString::fromUtf8(expression.toUtf8().first(static_cast<qsizetype>(error.place()))).size();
        return mpBar->setProblem(tr("Character %1: %2").arg(place + 1).arg(error.text()));
    }
    mpBar->setNote(tr("Searching..."));
    begin(expression.toStdString());
}

void FindController::begin(const std::string& condition)
{
    mCondition = condition;
    mPace.begin();
    mSearch.start([this, card = mSession.container.loaded(), condition, atLeast = mpBar->form().seconds()](Progress& progress) {
        const auto within = card.flightNumber > 0 ? std::optional(TimeSpan{card.startTime, card.endTime}) : std::nullopt;
        mFound = timesWhere(condition, atLeast, *card.pRecord, card.context, within, progress);
    });
}

/// What was found stays until there is more.
void FindController::searchGrown()
{
    if (!mpBar->isHidden() && mRecord.record() && !mCondition.empty() && !mDelay.isActive())
        begin(mCondition);
}

void FindController::slotFound()
{
    mPace.end();
    const ConditionTimes times = std::exchange(mFound, {});
    mOperands = {times.operands.begin(), times.operands.end()};
    if (!mSearch.error().isEmpty())
        mpBar->setProblem(mSearch.error());
    else if (!times.unrecorded.empty())
        mpBar->setProblem(tr("Not recorded here: %1").arg(joined(times.unrecorded)));
    else if (times.spans.empty() && !times.withoutNumber.empty())
        mpBar->setProblem(tr("No sample is a number: %1").arg(joined(times.withoutNumber)));
    else
        setHits(FindHits(times.spans));
}

void FindController::setHits(const FindHits& hits)
{
    mHits = hits;
    mpBar->setHits(mHits);
    mpBar->setTime(mRecord.viewTime());
    mData.graph().setFound(mHits.spans());
}

void FindController::slotClosed()
{
    mDelay.stop();
    mSearch.stop();
    mPace.end();
    setHits({});
    mData.setFocus();
}

void FindController::step(bool forward)
{
    if (mDelay.isActive())
        return search(); // the next key goes on
    if (const auto hit = forward ? mHits.next(mRecord.viewTime()) : mHits.previous(mRecord.viewTime()))
        go(*hit);
}

void FindController::go(std::size_t hit)
{
    mRecord.setTime(GraphMoment::justBehind(mHits.spans()[hit].start));
}

void FindController::show(std::size_t hit)
{
    const TimeSpan& span = mHits.spans()[hit];
    mData.showMoment(GraphMoment::of(span, mOperands, span.start));
}

} // namespace ZARN
