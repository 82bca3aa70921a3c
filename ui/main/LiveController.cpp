#include "ui/main/LiveController.h"

#include "app/Property.h"
#include "app/Settings.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "project/RecordSession.h"
#include "ui/data/DialogData.h"
#include "ui/graph/model/CycleCourse.h"
#include "ui/live/DialogLive.h"
#include "ui/live/LiveBar.h"
#include "ui/main/CardController.h"
#include "ui/main/DialogCard.h"
#include "ui/main/MainActions.h"
#include "ui/main/MainCommands.h"
#include "ui/main/MainPanels.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QScopedValueRollback>
#include <QShortcut>

#include <algorithm>
#include <utility>

namespace ZARN {

namespace {

constexpr qint64 kFrame = 30; // milliseconds from picture to picture: 30 a second and a little more, for no timer is early
constexpr qint64 kRest = 2;   // times as long as a picture takes, until the next one
constexpr qint64 kSilenceStep = 1000; // milliseconds in which time goes on while nothing comes
constexpr double kJustNow = 5.0;      // seconds from the end of an incident
constexpr double kSecondsOfHour = 3600.0;

} // namespace

LiveController::LiveController(const Session& session, const Parts& parts, QWidget* pWindow)
    : QObject(pWindow), mSession(session), mParts(parts), mpWindow(pWindow), mpBar(new LiveBar),
      mpSpace(new QShortcut(Qt::Key_Space, &parts.data))
{
    mpSpace->setContext(Qt::WidgetWithChildrenShortcut);
    mParts.panels.addNotice(mpBar);
    mpBar->hide();
    mTick.setParent(this);
    mTick.setSingleShot(true);
    mTick.setTimerType(Qt::PreciseTimer);
    mpSpace->setEnabled(false);
    mParts.commands.handle(eActionLive, [this](QAction&) { ask(); });
    connect(&mTick, &QTimer::timeout, this, &LiveController::tick);
    connect(mpSpace, &QShortcut::activated, this, &LiveController::slotSpace);
    connect(&mFeed, &LiveFeed::received, this, &LiveController::take);
    connect(&mFeed, &LiveFeed::status, this, &LiveController::slotStatus);
    connect(&mReviewer, &LiveReviewer::signalFound, this, &LiveController::slotFound);
    connect(&mParts.cards, &CardController::signalFolderChanged, this, &LiveController::slotCard);
    connect(&mParts.cards, &CardController::signalLiveChosen, this, &LiveController::slotChosen);
    connect(&mParts.record, &RecordSession::timeChanged, this, &LiveController::slotTime);
    connect(mpBar, &LiveBar::signalPause, this, &LiveController::setPaused);
    connect(mpBar, &LiveBar::signalReport, mParts.commands.action(eActionReport), &QAction::trigger);
    connect(mpBar, &LiveBar::signalIncident, this, &LiveController::showIncident);
    connect(mpBar, &LiveBar::signalConnect, this, [this](bool isWanted) {
        if (isWanted)
            connectTo(mWish);
        else
            disconnectBus();
    });
}

LiveController::~LiveController()
{
    mFeed.close();
}

void LiveController::ask()
{
    if (!mpDialog) {
        mpDialog = new DialogLive(mSession, mpWindow);
        connect(mpDialog, &DialogLive::signalConnect, this, &LiveController::connectTo);
        connect(mpDialog, &DialogLive::signalDisconnect, this, &LiveController::disconnectBus);
    }
    mpDialog->ask(mIsRunning);
}

void LiveController::connectLast()
{
    if (mParts.cards.isBusy()) { // the card that is being restored would end it
        connect(&mParts.cards, &CardController::signalIdle, this, &LiveController::connectLast, Qt::SingleShotConnection);
        return;
    }
    QString problem;
    const LiveWish wish = DialogLive::last(mSession.property, problem);
    if (!problem.isEmpty()) {
        mpBar->setStatus(problem, true);
        mpBar->show();
    } else if (!wish.address.plugin.isEmpty()) {
        connectTo(wish);
    }
}

void LiveController::connectTo(const LiveWish& wish)
{
    mFeed.close();
    mWish = wish;
    mText = LiveText(wish.address.text(), wish.bitRate, wish.folder);
    beginRun(kSecondsOfHour * Settings::kLiveHours.get(mSession.property));
    mFeed.open(wish);
    updateBar();
}

void LiveController::beginRun(double window)
{
    mReviewer.stop();
    mpMemory = std::make_unique<LiveMemory>(window);
    mIncidents.clear();
    mSentences.clear();
    mFlights = mChannels = 0;
    mHasReview = false;
    mHasNew = mIsPaused = false;
    mIsReviewed = mIsRunning = true;
    mpBar->setIncidents({}, false);
    mpBar->setNote({});
    mpBar->setPaused(false);
    mpBar->show();
}

void LiveController::disconnectBus()
{
    mFeed.close();
    mIsRunning = false;
    updateBar();
}

void LiveController::take(const LiveRecords& records, const QDateTime& now)
{
    if (!mpMemory || records.empty())
        return;
    if (mpMemory->isEmpty())
        mPowerUp = now.addMSecs(-static_cast<qint64>(records.back().record.time() * 1000.0));
    mpMemory->append(records);
    mSinceFrames.start();
    mHasNew = true;
    mIsReviewed = false;
    if (!mTick.isActive())
        mTick.start(0);
}

/// Whether the window shows this run, and not a card or a run before.
bool LiveController::isShown() const
{
    return mpMemory && !mpMemory->isEmpty() && mSession.container.isLive() && mSession.container.dateTime() == mPowerUp;
}

void LiveController::tick()
{
    if (!mpMemory || mpMemory->isEmpty())
        return;
    if (isShown() && !mIsPaused && mParts.data.graph().hasLeft(mShownTime))
        setPaused(true); // the user has moved its window away
    QElapsedTimer timer;
    timer.start();
    if (!mIsPaused && std::exchange(mHasNew, false))
        showNewest();
    if (!mIsReviewed && isShown() && mReviewer.isDue()) {
        mIsReviewed = true;
        mDecoding = mParts.record.version().decoding;
        mReviewer.start(mSession.container, mSession.profile.context(), mpMemory->snapshot(nullptr));
    }
    if (mIsRunning && isShown() && !mIsPaused)
        passSilence();
    if (mIsRunning || !mIsReviewed)
        mTick.start(static_cast<int>(std::max(kFrame - timer.elapsed(), kRest * timer.elapsed())));
}

void LiveController::showNewest()
{
    if (!mpMemory || mpMemory->isEmpty())
        return;
    const QScopedValueRollback showing(mIsShowing, true);
    const bool isBegun = isShown();
    const std::shared_ptr<RecordData> pRecord = mpMemory->snapshot(isBegun ? &mSession.container.recordData() : nullptr);
    mShownTime = mpMemory->latest();
    if (isBegun) {
        mSession.container.growLive(pRecord);
    } else {
        mParts.cards.beginLive(mPowerUp, pRecord);
        mParts.commands.action(eActionOverview)->setEnabled(false); // there is no card to look through
        updateBar();
        mpBar->takeKeys();
        Q_EMIT signalBegun();
    }
    mParts.record.growRecord(mShownTime, std::exchange(mHasReview, false), this);
}

/// Time goes on where nothing comes any more: the newest values do not stand as if they were measured now.
void LiveController::passSilence()
{
    const qint64 silence = mSinceFrames.elapsed();
    if (silence < LiveText::kSilence)
        return;
    const double time = mpMemory->latest() + static_cast<double>(silence / kSilenceStep * kSilenceStep) / 1000.0;
    const QScopedValueRollback showing(mIsShowing, true);
    if (std::exchange(mShownTime, time) != time)
        mParts.record.setTime(time, this);
}

void LiveController::setPaused(bool isPaused)
{
    mIsPaused = isPaused;
    mpBar->setPaused(isPaused);
    if (isPaused)
        return;
    mIsReviewed = false; // by the views
    showNewest();
    mTick.start(0);
}

void LiveController::updateBar()
{
    const bool hasData = isShown();
    mpBar->setStatus(mText.text(), mText.isTrouble());
    mpBar->setRunning(mIsRunning, hasData);
    mpSpace->setEnabled(hasData);
}

void LiveController::slotStatus(const LiveStatus& status)
{
    mText.take(status);
    mpBar->setStatus(mText.text(), mText.isTrouble());
    if (!mpMemory)
        return;
    const double wanted = kSecondsOfHour * Settings::kLiveHours.get(mSession.property);
    if (mpMemory->window() < wanted)
        mpBar->setNote(tr("The memory is short: only the last %1 min are kept.").arg(mpMemory->window() / 60.0, 0, 'f', 1));
}

/// Who looks at another moment than the newest one wants to look there on.
void LiveController::slotTime(double seconds, const QObject* pSource)
{
    if (mIsRunning && isShown() && !mIsShowing && pSource != this && seconds != mShownTime && !mIsPaused)
        setPaused(true);
}

void LiveController::slotChosen(int flight)
{
    const std::vector<RecordFlight> flights = mSession.container.loadedCycle()->flights;
    mParts.panels.showData(true);
    if (flight < 0 || static_cast<std::size_t>(flight) >= flights.size())
        return setPaused(false);
    setPaused(true);
    const RecordFlight& chosen = flights[static_cast<std::size_t>(flight)];
    mParts.data.showMoment(GraphMoment::of(TimeSpan{chosen.startTime, chosen.endTime}, {}, chosen.startTime));
}

void LiveController::slotFound()
{
    if (!isShown())
        return;
    if (mDecoding != mParts.record.version().decoding) { // by another profile or unit
        mIsReviewed = false;
        mTick.start(0);
        return;
    }
    mIncidents = mReviewer.review().incidents;
    mSentences = IncidentText(QLocale()).sentences(mIncidents);
    // Of those that are as bad what goes on comes first: the others have been seen.
    std::ranges::stable_sort(mSentences, std::ranges::greater(), [latest = mpMemory->latest()](const IncidentSentence& sentence) {
        return std::pair(sentence.state, sentence.end >= latest - kJustNow);
    });
    const CycleReview& review = mReviewer.review();
    mpBar->setIncidents(mSentences, review.verdict != EVerdict::eUnknown && review.engine.isKnown() && !review.engine.stretches().empty());
    if (mIsPaused)
        return; // the views hold what they show
    mSession.container.adoptFlights(mReviewer.draft());
    mParts.data.graph().growCourse(std::make_shared<const CycleCourse>(CycleCourse::of(review, mSession.container.loadedCycle()->flights)));
    mHasReview = true;
    showNewest();
    const std::size_t flights = mSession.container.loadedCycle()->flights.size(), channels = mSession.container.recordData().channels().size();
    if (std::exchange(mChannels, channels) != channels)
        mParts.record.changeFlights(); // others have something to list
    if (std::exchange(mFlights, flights) != flights)
        mParts.browser.addFlights(*mSession.container.loadedCycleNumber());
}

void LiveController::slotCard()
{
    if (mSession.container.isLive())
        return;
    mFeed.close();
    mTick.stop();
    mReviewer.stop();
    mpMemory.reset();
    mIsRunning = false;
    mpSpace->setEnabled(false);
    mpBar->hide();
}

void LiveController::slotSpace()
{
    // A button that has the keys is pressed by this one.
    if (auto* pButton = qobject_cast<QAbstractButton*>(QApplication::focusWidget()))
        pButton->click();
    else
        setPaused(!mIsPaused);
}

void LiveController::showIncident(std::size_t sentence)
{
    if (sentence >= mSentences.size() || !isShown())
        return;
    const Incident incident = mIncidents[mSentences[sentence].incidents.front()];
    showNewest(); // what is shown may end before it
    setPaused(true);
    mParts.panels.showData(true);
    mParts.data.showMoment(GraphMoment::of(incident));
}

} // namespace ZARN
