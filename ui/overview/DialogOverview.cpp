#include "ui/overview/DialogOverview.h"

#include "app/gui/Heading.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "ui/overview/WidgetCycleCard.h"
#include "ui/overview/model/OverviewTexts.h"

#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>

namespace ZARN {

namespace {

constexpr int kProgressPeriod = 100; // milliseconds

} // namespace

DialogOverview::DialogOverview(const Session& session, QWidget* pParent)
    : QScrollArea(pParent), mSession(session), mReviewer(session), mpCardText(new QLabel), mpProgress(new QProgressBar),
      mpEmpty(new QLabel), mpServices(new QLabel), mpStopped(new QLabel), mpCards(new QVBoxLayout)
{
    setObjectName("overview");
    setAccessibleName(tr("Overview"));
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* pPage = new QWidget;
    pPage->setObjectName("panels");
    auto* pLayout = new QVBoxLayout(pPage);
    pLayout->setContentsMargins(2, 0, 6, 6);
    pLayout->setSpacing(8);
    auto* pHeading = new Heading(tr("Was the engine all right?"));
    pHeading->setWordWrap(true);
    pLayout->addWidget(pHeading);
    mpServices->hide();
    for (QLabel* pLabel : {mpCardText, mpServices, mpEmpty, mpStopped}) {
        pLabel->setObjectName(pLabel == mpStopped ? "warning" : pLabel == mpServices ? "services" : "quiet");
        pLabel->setTextFormat(Qt::PlainText);
        pLabel->setWordWrap(true);
        pLayout->addWidget(pLabel);
    }
    mpProgress->setAccessibleName(tr("Reviewing the card"));
    pLayout->addWidget(mpProgress);
    mpCards->setSpacing(10);
    pLayout->addLayout(mpCards);
    pLayout->addStretch();
    setWidget(pPage);
    connect(&mReviewer, &CardReviewer::signalReviewed, this, [this](std::shared_ptr<const CycleOverview> pCycle) {
        mPending.push_back(std::move(pCycle));
        mAddTimer.start();
    });
    connect(&mAddTimer, &QTimer::timeout, this, &DialogOverview::addNext);
    // The bar paints itself at each value, whatever else there is to do: for a card that is soon reviewed it would take longer than the review.
    connect(&mReviewer, &CardReviewer::signalProgress, this, [this](int percent) {
        if (mProgressTold.elapsed() < kProgressPeriod)
            return;
        mpProgress->setValue(percent);
        mProgressTold.start();
    });
    connect(&mReviewer, &CardReviewer::signalFinished, &mAddTimer, qOverload<>(&QTimer::start));
    connect(&mReviewer, &CardReviewer::signalStopped, this, &DialogOverview::tellStopped);
}

void DialogOverview::reset()
{
    mReviewer.stop();
    mPending.clear();
    mIsNewestWanted = false;
    for (WidgetCycleCard* pCard : std::exchange(mCards, {}))
        pCard->deleteLater();
    mIsOld = !isVisible();
    if (!mIsOld)
        begin();
}

void DialogOverview::updateTimes()
{
    if (std::exchange(mTimes, TimeReference::wanted(mSession.property)) == TimeReference::wanted(mSession.property))
        return;
    for (WidgetCycleCard* pCard : std::exchange(mCards, {})) {
        mPending.push_back(std::make_shared<const CycleOverview>(pCard->cycle()));
        pCard->deleteLater();
    }
    std::ranges::stable_sort(mPending, std::ranges::greater(), [](const auto& pCycle) { return pCycle->number; });
    mpCardText->setText(OverviewTexts::breakable(cardText()));
    mAddTimer.start();
}

/// Each by its own clock and take-off.
std::shared_ptr<const CycleOverview> DialogOverview::timed(const CycleOverview& cycle) const
{
    auto pTimed = std::make_shared<CycleOverview>(cycle);
    const auto takeOff = cycle.flights.empty() ? std::nullopt : std::optional(cycle.flights.front().takeOffTime);
    pTimed->times = TimeReference::of(mTimes, cycle.dateTime, takeOff);
    return pTimed;
}

void DialogOverview::setServices(const QStringList& services)
{
    mpServices->setText(OverviewTexts::breakable(services.join('\n')));
    mpServices->setVisible(!services.isEmpty());
}

void DialogOverview::begin()
{
    mTimes = TimeReference::wanted(mSession.property);
    mpCardText->setText(OverviewTexts::breakable(cardText()));
    const bool isEmpty = mSession.container.recordCycles().empty();
    mpEmpty->setText(isEmpty ? tr("This card holds no power cycle.") : QString());
    mpEmpty->setVisible(isEmpty);
    mpStopped->hide();
    mpProgress->setVisible(!isEmpty);
    mpProgress->setValue(0);
    mProgressTold.start();
    if (!isEmpty)
        mReviewer.start();
}

QString DialogOverview::timesText(ETimeReference times)
{
    switch (times) {
    case ETimeReference::eClock: return tr("Times of the recorder's clock; where it was not set, since the unit's power-up.");
    case ETimeReference::eTakeOff: return tr("Times since the first take-off; without a flight, since the unit's power-up.");
    default: return tr("Times since the unit's power-up.");
    }
}

QString DialogOverview::cardText() const
{
    QStringList parts{mSession.container.name()};
    const auto& files = mSession.container.recordFiles();
    const auto& problems = mSession.container.problems();
    const auto isSound = [&problems](const auto& file) {
        return std::ranges::none_of(problems, [&file](const CardProblem& problem) { return problem.file == file.first; });
    };
    if (!files.empty()) {
        const auto sound = std::find_if(files.rbegin(), files.rend(), isSound); // a damaged one may name any engine
        const RecordInfo& newest = sound != files.rend() ? sound->second : files.rbegin()->second;
        const QString type = QString::fromStdString(newest.engineType).simplified(), serial = QString::fromStdString(newest.engineSerial).simplified();
        if (!type.isEmpty())
            parts.append(type);
        if (!serial.isEmpty())
            parts.append(tr("serial number %1").arg(serial));
    }
    const ProfileModel& profile = mSession.profile.model();
    const QString variant = QString::fromStdString(mSession.profile.currentVariant());
    parts.append(tr("profile %1").arg(variant.isEmpty() ? QString::fromStdString(profile.name) : variant));
    return parts.join(", ") + ". " + timesText(mTimes);
}

/// One in each turn of the event loop: the page needs some to take its new height, and would be drawn too low until then.
void DialogOverview::addNext()
{
    if (mPending.empty()) {
        mAddTimer.stop();
        if (!mReviewer.isRunning())
            finish();
        return;
    }
    auto* pCard = new WidgetCycleCard(timed(*mPending.front()), widget());
    mPending.pop_front();
    pCard->ensurePolished();
    pCard->fitTo(mpCards->geometry().width());
    connect(pCard, &WidgetCycleCard::signalFlight, this, &DialogOverview::signalFlight);
    connect(pCard, &WidgetCycleCard::signalIncident, this, &DialogOverview::signalIncident);
    mCards.push_back(pCard);
    mpCards->addWidget(pCard);
    if (mIsNewestWanted && !pCard->cycle().flights.empty())
        chooseNewest();
}

void DialogOverview::finish()
{
    mpProgress->hide();
    if (std::exchange(mIsNewestWanted, false))
        chooseNewest();
}

void DialogOverview::tellStopped(const QString& problem)
{
    const bool hasSome = !mCards.empty() || !mPending.empty();
    const QString why = problem.isEmpty() ? tr("The card cannot be read any more. Was it removed?") : problem;
    mpStopped->setText(
        why + ' ' +
        (hasSome ? tr("What was reviewed before is told below; open the card again for the rest.") : tr("Open it again to review it.")));
    mpStopped->show();
    mAddTimer.start();
}

void DialogOverview::chooseNewest()
{
    for (const WidgetCycleCard* pCard : mCards) {
        if (const auto flights = static_cast<int>(pCard->cycle().flights.size()); flights > 0) {
            mIsNewestWanted = false;
            Q_EMIT signalFlight(pCard->number(), flights - 1);
            return;
        }
    }
    mIsNewestWanted = mReviewer.isRunning() || !mPending.empty(); // it may still come
    if (!mIsNewestWanted && !mCards.empty())
        Q_EMIT signalFlight(mCards.front()->number(), -1);
}

void DialogOverview::showEvent(QShowEvent* pEvent)
{
    QScrollArea::showEvent(pEvent);
    if (std::exchange(mIsOld, false))
        begin();
}

void DialogOverview::hideEvent(QHideEvent* pEvent)
{
    mIsNewestWanted = false; // the user went elsewhere
    QScrollArea::hideEvent(pEvent);
}

void DialogOverview::keyPressEvent(QKeyEvent* pEvent)
{
    if (pEvent->key() == Qt::Key_Return || pEvent->key() == Qt::Key_Enter)
        chooseNewest();
    else
        QScrollArea::keyPressEvent(pEvent);
}

} // namespace ZARN
