#include "ui/data/DialogData.h"

#include "app/Numeric.h"
#include "app/TimeText.h"
#include "app/gui/ImageHandler.h"
#include "app/gui/TextSize.h"
#include "ui/data/DataTabBar.h"
#include "ui/data/ViewLink.h"
#include "ui/data/WidgetReplayBar.h"
#include "vesk/base/Timer.h"

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimer>
#include <QToolButton>

namespace ZARN {

namespace {

constexpr int kTickMilliseconds = 20;
constexpr int kModeIcon = 24; // pixels
constexpr int kLists = 200, kMap = 300; // shares of the width in the usual size of text
constexpr double kRounding = 1e-6;      // of a slider position: the time of a position must not come back as the position before it

/// The map is told last, and before it the views that list events.
int turnOf(std::size_t view)
{
    return view == eViewMap ? 2 : view == eViewLimits || view == eViewWarnings ? 1 : 0;
}
constexpr int kTurns = 3;

} // namespace

} // namespace ZARN

// Resources of a static library are not registered by themselves; the macro must stand outside every namespace.
static void registerDataIcons()
{
    Q_INIT_RESOURCE(data_views);
}

namespace ZARN {

DialogData::DialogData(RecordSession& record, const DataViewList& views, bool emu, QWidget* pParent, Clock clock)
    : QWidget(pParent), mRecord(record), mViews(views), mClock(clock ? std::move(clock) : Clock(VESK::Misc::Timer::getTime)),
      mpTabs(new DataTabBar), mpMapModes(new QButtonGroup(this)), mpStack(new QStackedWidget), mpSplitter(new QSplitter(Qt::Horizontal)),
      mpBar(nullptr), mpTimer(new QTimer(this))
{
    registerDataIcons();
    mpBar = new WidgetReplayBar(emu);
    createTabs();
    mpSplitter->addWidget(mpStack);
    mpSplitter->addWidget(mViews.entries[eViewMap].pWidget);
    shareRoom();
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(createHead());
    pLayout->addWidget(mpSplitter, 1);
    pLayout->addWidget(mpBar);
    mpTimer->setInterval(kTickMilliseconds);
    mpTimer->setTimerType(Qt::PreciseTimer);
    connectControls();
    linkViews();
    updateControls();
    if (emu) {
        for (const DataViewEntry& entry : mViews.entries)
            entry.pView->setZarnMode(1);
    }
}

/// Lists need room for their texts, the map does not.
void DialogData::shareRoom()
{
    const QList<int> sizes = mpSplitter->sizes();
    const bool isMapHidden = sizes[0] > 0 && sizes[1] == 0;
    if (std::exchange(mTextSize, textSize(*this)) == mTextSize || isMapHidden)
        return;
    constexpr int kUsual = 12;
    const int lists = kLists * std::max(mTextSize * mTextSize, kUsual * kUsual) / (kUsual * kUsual);
    mpSplitter->setSizes({lists, kMap});
}

void DialogData::changeEvent(QEvent* pEvent)
{
    QWidget::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::StyleChange) {
        const int icon = grownWithText(*this, kModeIcon);
        for (QAbstractButton* pButton : mpMapModes->buttons())
            pButton->setIconSize(QSize(icon, icon));
    }
    if (pEvent->type() == QEvent::FontChange && mpSplitter->orientation() == Qt::Horizontal)
        shareRoom();
}

void DialogData::createTabs()
{
    for (int i = 0; i < eViewMap; ++i) {
        QWidget* pView = mViews.entries[static_cast<std::size_t>(i)].pWidget;
        mpStack->addWidget(pView);
        const auto& [icon, name] = DataViewList::tab(static_cast<EDataView>(i));
        const QString title = tr(name);
        (pView->focusProxy() ? pView->focusProxy() : pView)->setAccessibleName(title);
        mpTabs->addTab(ImageHandler::icon(icon), title);
        mpTabs->setTabToolTip(i, title); // where there is no room for the title
    }
    connect(mpTabs, &QTabBar::currentChanged, mpStack, &QStackedWidget::setCurrentIndex);
    // A click is followed by keys for what it shows. Who walks along the tabs by keys goes on with them.
    connect(mpTabs, &DataTabBar::signalClicked, mpStack, [this] { mpStack->currentWidget()->setFocus(Qt::MouseFocusReason); });
}

QWidget* DialogData::createHead()
{
    auto* pHead = new QWidget;
    auto* pLayout = new QHBoxLayout(pHead);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(2);
    pLayout->addWidget(mpTabs, 1);
    createMapModes();
    for (QAbstractButton* pButton : mpMapModes->buttons())
        pLayout->addWidget(pButton);
    return pHead;
}

void DialogData::createMapModes()
{
    const std::pair<const char*, QString> modes[] = {{"map-hide", tr("Hide Map Display")},
                                                     {"map-horizontal", tr("Tile Map Display Horizontally")},
                                                     {"map-vertical", tr("Tile Map Display Vertically")}};
    mpMapModes->setExclusive(true);
    for (const auto& [icon, toolTip] : modes) {
        auto* pButton = new QToolButton;
        pButton->setIcon(ImageHandler::icon(icon));
        pButton->setIconSize(QSize(kModeIcon, kModeIcon));
        pButton->setToolTip(toolTip);
        pButton->setAccessibleName(toolTip);
        pButton->setCheckable(true);
        pButton->setAutoRaise(true);
        mpMapModes->addButton(pButton, static_cast<int>(mpMapModes->buttons().size()));
    }
    mpMapModes->button(1)->setChecked(true);
}

void DialogData::connectControls()
{
    connect(mpMapModes, &QButtonGroup::idClicked, this, &DialogData::slotMapType);
    connect(mpTimer, &QTimer::timeout, this, &DialogData::slotTimeoutReplay);
    connect(mpBar, &WidgetReplayBar::signalReplay, this, &DialogData::slotReplayMode);
    connect(mpBar, &WidgetReplayBar::signalStop, this, &DialogData::slotReplayStop);
    connect(mpBar, &WidgetReplayBar::signalPosition, this, &DialogData::slotSlider);
    connect(mpBar, &WidgetReplayBar::signalTime, this, &DialogData::slotValue);
    connect(mpBar, &WidgetReplayBar::signalSpeedSlider, this, qOverload<int>(&DialogData::slotReplaySpeed));
    connect(mpBar, &WidgetReplayBar::signalSpeed, this, qOverload<double>(&DialogData::slotReplaySpeed));
}

void DialogData::linkViews()
{
    for (int turn = 0; turn < kTurns; ++turn) {
        for (std::size_t which = 0; which < mLinks.size(); ++which) {
            const DataViewEntry& entry = mViews.entries[which];
            if (turnOf(which) != turn)
                continue;
            mLinks[which] = new ViewLink(mRecord, *entry.pView, *entry.pWidget);
            if (entry.connectTo)
                entry.connectTo(*this);
        }
    }
    mLinks[eViewMap]->ignore(*mViews.entries[eViewWarnings].pWidget); // a lamp leaves the map where it is
    mViews.view(eViewMap).followSpan(
        [this] { return mpTabs->currentIndex() == eViewGraph ? mViews.view(eViewGraph).shownSpan() : std::nullopt; });
    connect(&mRecord, &RecordSession::recordChanged, this, &DialogData::slotRecord);
    connect(&mRecord, &RecordSession::decodingChanged, this, &DialogData::slotEvents);
    connect(&mRecord, &RecordSession::timeChanged, this, &DialogData::updateDisplay);
    connect(&mRecord, &RecordSession::notesChanged, this, [this] {
        for (const DataViewEntry& entry : mViews.entries)
            entry.pView->setNotes(mRecord.notes());
    });
    connect(&mRecord, &RecordSession::normalChanged, this, [this] {
        for (const DataViewEntry& entry : mViews.entries)
            entry.pView->setNormal(mRecord.normal());
    });
}

void DialogData::slotRecord()
{
    if (std::exchange(mReplayed, mRecord.version().record) != mRecord.version().record)
        setReplay(WidgetReplayBar::eStopped);
    updateTimes();
    slotEvents();
}

void DialogData::updateTimes()
{
    mpBar->setTimes(mViews.times ? mViews.times() : TimeReference(), mRecord.startTime(), mRecord.endTime());
    updateMarks();
    updateDisplay();
}

void DialogData::setCourse(const std::shared_ptr<const CycleCourse>& pCourse)
{
    mpCourse = pCourse;
    updateMarks();
}

void DialogData::updateMarks()
{
    mpBar->setMarks(mpCourse ? PositionMarks(*mpCourse, mRecord.startTime(), mRecord.endTime()) : PositionMarks());
}

void DialogData::updateSettings()
{
    updateTimes();
    for (const DataViewEntry& entry : mViews.entries)
        entry.pView->updateSettings();
    Q_EMIT signalSettings();
}

std::optional<TimeSpan> DialogData::graphSpan() const
{
    mLinks[eViewGraph]->update(); // it may never have been seen
    return mViews.view(eViewGraph).shownSpan();
}

void DialogData::showMoment(const GraphMoment& moment)
{
    mpTabs->setCurrentIndex(eViewGraph);
    mLinks[eViewGraph]->update(); // what it shows already stays
    mViews.view(eViewGraph).showMoment(moment);
    mRecord.setTime(moment.time);
}

void DialogData::addBar(QWidget* pBar)
{
    static_cast<QVBoxLayout*>(QWidget::layout())->insertWidget(1, pBar);
}

void DialogData::moveFrom(const QWidget& view, double time)
{
    mRecord.setTime(time, &view);
}

void DialogData::slotSlider(int position)
{
    const double start = mRecord.startTime();
    mRecord.setTime(start + (mRecord.endTime() - start) / WidgetReplayBar::kPositions * position);
}

void DialogData::slotValue(double seconds)
{
    mRecord.setTime(seconds);
}

void DialogData::slotReplaySpeed(int hundredths)
{
    slotReplaySpeed(hundredths / 100.0);
}

void DialogData::slotReplaySpeed(double factor)
{
    mSpeed = factor;
    updateControls();
}

void DialogData::setReplay(int state)
{
    mReplay = state;
    if (state == WidgetReplayBar::eRunning)
        mpTimer->start();
    else
        mpTimer->stop();
    mLastTick = mClock();
    for (const DataViewEntry& entry : mViews.entries)
        entry.pView->setPaused(state == WidgetReplayBar::ePaused);
    updateControls();
}

/// At the end there is nothing left to replay: it begins anew.
void DialogData::slotReplayMode()
{
    if (mReplay == WidgetReplayBar::eRunning)
        return setReplay(WidgetReplayBar::ePaused);
    if (mRecord.record() && mRecord.viewTime() >= mRecord.endTime())
        mRecord.setTime(mRecord.startTime());
    setReplay(WidgetReplayBar::eRunning);
}

void DialogData::slotTimeoutReplay()
{
    const double now = mClock();
    const double time = mRecord.viewTime() + (now - mLastTick) * mSpeed;
    mLastTick = now;
    mRecord.setTime(std::min(time, mRecord.endTime())); // what the record ended with stays in view
    if (time > mRecord.endTime())
        setReplay(WidgetReplayBar::ePaused);
}

void DialogData::slotReplayStop()
{
    setReplay(WidgetReplayBar::eStopped);
    mRecord.setTime(mRecord.startTime());
}

void DialogData::slotMapType(int type)
{
    if (type == 0) {
        mpSplitter->setSizes({100, 0});
        return;
    }
    if (type != 1 && type != 2)
        return;
    mpSplitter->setOrientation(type == 1 ? Qt::Horizontal : Qt::Vertical);
    QList<int> sizes = mpSplitter->sizes();
    if (sizes.contains(0)) {
        sizes.fill((sizes[0] + sizes[1]) / 2);
        mpSplitter->setSizes(sizes);
    }
}

void DialogData::updateDisplay()
{
    if (!mRecord.record())
        return; // the clocks keep their dashes until there is a time to show
    const int64_t milliseconds = wholeMilliseconds(mRecord.viewTime());
    mpBar->setDateTime(mRecord.powerUp().isValid() ? mRecord.powerUp().addMSecs(milliseconds) : QDateTime());
    mpBar->setTime(milliseconds);
    const double start = mRecord.startTime(), end = mRecord.endTime();
    const double share = end > start ? (mRecord.viewTime() - start) / (end - start) : 0.0;
    mpBar->setPosition(saturatingCast<int>(share * WidgetReplayBar::kPositions + kRounding));
}

void DialogData::updateControls()
{
    mpBar->setReplay(mReplay);
    mpBar->setSpeed(mSpeed);
}

void DialogData::slotEvents()
{
    for (const EDataView view : {eViewLimits, eViewWarnings}) {
        const int count = mViews.view(view).eventCount();
        mpTabs->setCount(view, count);
        mpTabs->setTabToolTip(view, mpTabs->tabText(view) + "\n" + (count == 0 ? tr("No events") : tr("%n event(s)", nullptr, count)));
    }
    const EventList* pLimits = mViews.view(eViewLimits).eventList();
    const EventList* pLamps = mViews.view(eViewWarnings).eventList();
    if (pLimits && pLamps)
        mViews.view(eViewMap).setEvents(*pLimits, *pLamps);
}

} // namespace ZARN
