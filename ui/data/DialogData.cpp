#include "ui/data/DialogData.h"

#include "app/Numeric.h"
#include "app/gui/ImageHandler.h"
#include "card/CardContainer.h"
#include "card/PowerUp.h"
#include "ui/data/DataTabBar.h"
#include "ui/data/WidgetReplayBar.h"
#include "ui/data/model/TimeOfDay.h"
#include "vesk/base/Timer.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimer>
#include <QToolButton>

#include <cmath>

namespace ZARN {

namespace {

constexpr int kTickMilliseconds = 20;
constexpr QSize kModeIcon(24, 24);
constexpr double kRounding = 1e-6; // of a slider position: the time of a position must not come back as the position before it

// Who is told a new time, in this order. The view that the time comes from is not; the warnings leave the map where it is.
constexpr EDataView kAll[] = {eViewTable, eViewGraph, eViewFaultMatrix, eViewLimits, eViewWarnings, eViewMap};
constexpr EDataView kFromTable[] = {eViewGraph, eViewFaultMatrix, eViewLimits, eViewWarnings, eViewMap};
constexpr EDataView kFromGraph[] = {eViewTable, eViewFaultMatrix, eViewLimits, eViewWarnings, eViewMap};
constexpr EDataView kFromLimits[] = {eViewGraph, eViewFaultMatrix, eViewTable, eViewWarnings, eViewMap};
constexpr EDataView kFromWarnings[] = {eViewGraph, eViewFaultMatrix, eViewTable, eViewLimits};
constexpr EDataView kFromMap[] = {eViewTable, eViewGraph, eViewFaultMatrix, eViewLimits, eViewWarnings};
constexpr EDataView kRecordOrder[] = {eViewTable, eViewGraph, eViewFaultMatrix, eViewStatistic, eViewLimits, eViewWarnings, eViewMap};

struct Tab {
    const char* icon;
    const char* title;
};
constexpr Tab kTabs[] = {{"view-table", QT_TRANSLATE_NOOP("ZARN::DialogData", "Data")},
                         {"view-graph", QT_TRANSLATE_NOOP("ZARN::DialogData", "Graph")},
                         {"view-faults", QT_TRANSLATE_NOOP("ZARN::DialogData", "Fault Matrix")},
                         {"view-limits", QT_TRANSLATE_NOOP("ZARN::DialogData", "Limit/Warning")},
                         {"view-lamps", QT_TRANSLATE_NOOP("ZARN::DialogData", "Warning Lamps")},
                         {"view-statistic", QT_TRANSLATE_NOOP("ZARN::DialogData", "Tow Statistic")}};
static_assert(std::size(kTabs) == eViewMap);

} // namespace

} // namespace ZARN

// Resources of a static library are not registered by themselves; the macro must stand outside every namespace.
static void registerDataIcons()
{
    Q_INIT_RESOURCE(data_views);
}

namespace ZARN {

DialogData::DialogData(const Session& session, const DataViews& views, bool emu, QWidget* pParent, Clock clock)
    : QWidget(pParent), mSession(session), mViews(views), mClock(clock ? std::move(clock) : Clock(VESK::Misc::Timer::getTime)),
      mpTabs(new DataTabBar), mpMapModes(new QButtonGroup(this)), mpStack(new QStackedWidget), mpSplitter(new QSplitter(Qt::Horizontal)),
      mpBar(nullptr), mpTimer(new QTimer(this))
{
    registerDataIcons();
    mpBar = new WidgetReplayBar(emu);
    createTabs();
    mpSplitter->addWidget(mpStack);
    mpSplitter->addWidget(mViews.entries[eViewMap].pWidget);
    mpSplitter->setSizes({200, 300});
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(createHead());
    pLayout->addWidget(mpSplitter, 1);
    pLayout->addWidget(mpBar);
    mpTimer->setInterval(kTickMilliseconds);
    mpTimer->setTimerType(Qt::PreciseTimer);
    connectControls();
    updateControls();
    if (emu) {
        for (const DataViewEntry& entry : mViews.entries)
            entry.pView->setZarnMode(1);
    }
}

void DialogData::createTabs()
{
    for (int i = 0; i < eViewMap; ++i) {
        QWidget* pView = mViews.entries[static_cast<std::size_t>(i)].pWidget;
        mpStack->addWidget(pView);
        (pView->focusProxy() ? pView->focusProxy() : pView)->setAccessibleName(tr(kTabs[i].title));
        mpTabs->addTab(ImageHandler::icon(kTabs[i].icon), tr(kTabs[i].title));
        mpTabs->setTabToolTip(i, tr(kTabs[i].title)); // where there is no room for the title
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
        pButton->setIconSize(kModeIcon);
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
    if (mViews.connectTo)
        mViews.connectTo(*this);
}

void DialogData::updateRecord()
{
    const CardContainer& container = mSession.container;
    mBase = PowerUp::ofLoaded(container);
    mStart = container.startTime();
    mEnd = container.endTime();
    mpRecord = &mSession.container.recordData();
    mViewTime = mStart;
    showRecord();
}

void DialogData::recalculated()
{
    if (!mpRecord)
        return;
    mStart = mSession.container.startTime(); // a flight may begin and end elsewhere
    mEnd = mSession.container.endTime();
    showRecord();
}

void DialogData::showRecord()
{
    updateDisplay();
    for (const EDataView view : kRecordOrder) {
        const QScopedValueRollback pushing(mPushing, true);
        mViews.view(view).updateRecord(mpRecord);
    }
    push(kAll);
    if (mViews.shareEvents)
        mViews.shareEvents();
    updateEventCounts();
}

void DialogData::releaseRecord()
{
    setReplay(WidgetReplayBar::eStopped);
    mpRecord = nullptr;
    for (const EDataView view : kRecordOrder) {
        const QScopedValueRollback pushing(mPushing, true);
        mViews.view(view).updateRecord(nullptr);
    }
}

void DialogData::updateProfile()
{
    for (const EDataView view : kAll) {
        const QScopedValueRollback pushing(mPushing, true);
        mViews.view(view).updateProfile();
    }
    push(kAll);
}

void DialogData::loadProfile()
{
    DataView& matrix = mViews.view(eViewFaultMatrix);
    matrix.loadProfile();
    matrix.updateRecord(mpRecord);
    matrix.setTime(mViewTime);
}

void DialogData::updateSettings()
{
    for (const DataViewEntry& entry : mViews.entries)
        entry.pView->updateSettings();
}

void DialogData::push(Targets targets)
{
    const QScopedValueRollback pushing(mPushing, true);
    for (const EDataView view : targets)
        mViews.view(view).setTime(mViewTime);
}

void DialogData::moveFromView(double time, Targets targets)
{
    if (mPushing || std::isnan(time))
        return;
    mViewTime = time;
    push(targets);
    updateDisplay();
}

void DialogData::slotTableTime(double time)
{
    moveFromView(time, kFromTable);
}

void DialogData::slotCursor(float time, double /*value*/)
{
    moveFromView(time, kFromGraph);
}

void DialogData::slotFaultTime(double time)
{
    moveFromView(time, kAll);
}

void DialogData::slotLimitTime(double time)
{
    moveFromView(time, kFromLimits);
}

void DialogData::slotWarningTime(double time)
{
    moveFromView(time, kFromWarnings);
}

void DialogData::slotMapTime(double time)
{
    moveFromView(time, kFromMap);
}

void DialogData::moveFromControl(double time)
{
    if (mUpdatingControls)
        return;
    mViewTime = time;
    push(kAll);
    updateDisplay();
}

void DialogData::slotSlider(int position)
{
    moveFromControl(mStart + (mEnd - mStart) / WidgetReplayBar::kPositions * position);
}

void DialogData::slotValue(int seconds)
{
    moveFromControl(seconds);
}

void DialogData::slotReplaySpeed(int hundredths)
{
    if (mUpdatingControls)
        return;
    mSpeed = hundredths / 100.0;
    updateControls();
}

void DialogData::slotReplaySpeed(double factor)
{
    if (mUpdatingControls)
        return;
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
    if (mpRecord && mViewTime >= mEnd)
        moveFromControl(mStart);
    setReplay(WidgetReplayBar::eRunning);
}

void DialogData::slotTimeoutReplay()
{
    const double now = mClock();
    mViewTime += (now - mLastTick) * mSpeed;
    mLastTick = now;
    const bool isOver = mViewTime > mEnd;
    if (isOver)
        mViewTime = mEnd; // what the record ended with stays in view
    push(kAll);
    updateDisplay();
    if (isOver)
        setReplay(WidgetReplayBar::ePaused);
}

void DialogData::slotReplayStop()
{
    setReplay(WidgetReplayBar::eStopped);
    mViewTime = mStart;
    push(kAll);
    updateDisplay();
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
    if (!mpRecord)
        return; // the clocks keep their dashes until there is a time to show
    const QScopedValueRollback updating(mUpdatingControls, true);
    const int64_t milliseconds = wholeMilliseconds(mViewTime);
    mpBar->setDateTime(mBase.isValid() ? mBase.addMSecs(milliseconds) : QDateTime());
    mpBar->setTime(milliseconds);
    const double share = mEnd > mStart ? (mViewTime - mStart) / (mEnd - mStart) : 0.0;
    mpBar->setPosition(saturatingCast<int>(share * WidgetReplayBar::kPositions + kRounding));
}

void DialogData::updateControls()
{
    const QScopedValueRollback updating(mUpdatingControls, true);
    mpBar->setReplay(mReplay);
    mpBar->setSpeed(mSpeed);
}

void DialogData::updateEventCounts()
{
    for (const EDataView view : {eViewLimits, eViewWarnings}) {
        const int count = mViews.view(view).eventCount();
        mpTabs->setCount(view, count);
        mpTabs->setTabToolTip(view, mpTabs->tabText(view) + "\n" + (count == 0 ? tr("No events") : tr("%n event(s)", nullptr, count)));
    }
}

} // namespace ZARN
