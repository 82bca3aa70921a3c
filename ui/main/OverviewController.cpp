#include "ui/main/OverviewController.h"

#include "card/CardContainer.h"
#include "project/RecordSession.h"
#include "ui/data/DialogData.h"
#include "ui/main/CardController.h"
#include "ui/main/DialogCard.h"
#include "ui/overview/DialogOverview.h"

#include <QAction>
#include <QStackedWidget>

#include <algorithm>
#include <utility>

namespace ZARN {

OverviewController::OverviewController(const Session& session, RecordSession& record, CardController& cards, DialogCard& browser,
                                       DialogData& data, QStackedWidget& pages, QAction& action, QObject* pParent)
    : QObject(pParent), mSession(session), mRecord(record), mCards(cards), mBrowser(browser), mData(data), mPages(pages), mAction(action),
      mpOverview(new DialogOverview(session))
{
    mPages.addWidget(mpOverview);
    mAction.setCheckable(true);
    mAction.setEnabled(false);
    connect(&mPages, &QStackedWidget::currentChanged, this, &OverviewController::slotPage);
    connect(&mRecord, &RecordSession::recordChanged, this, &OverviewController::slotRecord);
    connect(&mRecord, &RecordSession::decodingChanged, mpOverview, &DialogOverview::reset);
    connect(&mData, &DialogData::signalSettings, mpOverview, &DialogOverview::updateTimes);
    connect(mpOverview, &DialogOverview::signalFlight, this, &OverviewController::open);
    connect(mpOverview, &DialogOverview::signalIncident, this, &OverviewController::openIncident);
}

void OverviewController::showCard()
{
    const bool hasCard = !mSession.container.recordCycles().empty();
    mAction.setEnabled(hasCard);
    mWanted.reset();
    mpOverview->reset();
    mpBefore = mPages.currentWidget() == mpOverview ? nullptr : mPages.currentWidget();
    if (hasCard)
        showOverview();
}

/// With the keys: Return opens the newest flight, and the page is scrolled.
void OverviewController::showOverview()
{
    mPages.setCurrentWidget(mpOverview);
    mpOverview->setFocus();
}

void OverviewController::toggle(bool isShown)
{
    if (isShown) {
        mpBefore = mPages.currentWidget();
        showOverview();
    } else if (mpBefore) {
        mPages.setCurrentWidget(mpBefore);
    }
    mAction.setChecked(mPages.currentWidget() == mpOverview);
}

void OverviewController::slotPage()
{
    mAction.setChecked(mPages.currentWidget() == mpOverview);
}

void OverviewController::open(uint32_t cycle, int flight)
{
    mWanted.reset();
    mBrowser.choose(cycle, flight);
    mCards.loadCycle(cycle, flight);
}

void OverviewController::openIncident(uint32_t cycle, const Incident& incident)
{
    if (mRecord.record() && isWholeCycle(cycle))
        return show(incident);
    open(cycle, -1);
    mWanted = {cycle, incident};
}

bool OverviewController::isWholeCycle(uint32_t cycle) const
{
    return mSession.container.loadedCycleNumber() == cycle && mSession.container.selectedFlightNumber() == 0;
}

void OverviewController::slotRecord()
{
    // One of its flights may still be told of, which was chosen just before.
    if (!mWanted || !mRecord.record() || !isWholeCycle(mWanted->first))
        return;
    // When the views have the record: until then they begin with its start.
    QMetaObject::invokeMethod(
        this,
        [this, wanted = *std::exchange(mWanted, {})] {
            if (isWholeCycle(wanted.first))
                show(wanted.second);
        },
        Qt::QueuedConnection);
}

void OverviewController::show(const Incident& incident)
{
    mPages.setCurrentWidget(&mData);
    mData.showMoment(GraphMoment::of(incident));
}

/// The incidents of what is loaded, found when they are asked for.
void OverviewController::review()
{
    const unsigned version = mRecord.version().record + mRecord.version().flights + mRecord.version().decoding + mRecord.version().growth;
    if (std::exchange(mReviewed, version) == version)
        return;
    const CardContainer& card = mSession.container;
    const RecordCycle* pCycle = card.loadedCycle();
    mIncidents.clear();
    if (mRecord.record())
        mIncidents = reviewCycle(card.values(), pCycle ? std::span<const RecordFlight>(pCycle->flights) : std::span<const RecordFlight>(),
                                 pCycle ? pCycle->endTime : card.endTime(), EKeyValues::eNone, EStops::eInTheAir)
                         .incidents;
}

void OverviewController::step(bool forward)
{
    review();
    constexpr double same = 0.001; // seconds
    const double now = mRecord.viewTime();
    const Incident* pNext = nullptr;
    for (const Incident& incident : mIncidents) {
        if (forward && incident.start > now + same && !pNext)
            pNext = &incident;
        if (!forward && incident.start < now - same)
            pNext = &incident;
    }
    if (pNext)
        mRecord.setTime(GraphMoment::justBehind(pNext->start));
}

} // namespace ZARN
