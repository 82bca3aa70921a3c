#include "ui/graph/DialogDataGraph.h"

#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "trace/TraceSet.h"
#include "ui/graph/DialogGraphSetup.h"
#include "ui/graph/GraphButtons.h"
#include "ui/graph/WidgetGraphES.h"
#include "ui/graph/model/TraceSlot.h"

#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace ZARN {

namespace {

constexpr int kHeldInterval = 50;

} // namespace

DialogDataGraph::DialogDataGraph(const Session& session, QWidget* pParent)
    : QWidget(pParent), mSession(session), mSettings(session.property), mpButtons(new GraphButtons), mpGraph(new WidgetGraphES)
{
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(0);
    pLayout->addWidget(mpButtons);
    pLayout->addWidget(mpGraph, 1);
    mpGraph->setMaxParameters(kSlots);
    mpGraph->setOfflineMode(true);
    // The record begins with what the graph does: a floating cursor, so that the whole record stays in view while time passes.
    mData.cursorMode = mpGraph->model().cursorMode();
    connectGraph();
    slotGraphSetup();
    updateProfile();
}

void DialogDataGraph::focusInEvent(QFocusEvent* /*pEvent*/)
{
    mpGraph->setFocus();
}

void DialogDataGraph::connectGraph()
{
    connect(mpGraph, &WidgetGraphES::signalCursor, this, &DialogDataGraph::signalCursor);
    connect(mpGraph, &WidgetGraphES::signalCursor, this, [this] { Q_EMIT signalTime(mpGraph->model().cursorTime()); });
    connect(mpGraph, &WidgetGraphES::signalManMode, this, &DialogDataGraph::slotManMode);
    connect(mpGraph, &WidgetGraphES::signalMoveParameter, this, &DialogDataGraph::keepStrips);
    connect(mpGraph, &WidgetGraphES::signalMenu, this, &DialogDataGraph::slotMenu);
    connect(mpButtons, &GraphButtons::signalHeld, this, [this](int command) {
        if (command == eZoomIn || command == eZoomOut)
            mHeldTimer.start(kHeldInterval);
    });
    connect(mpButtons, &GraphButtons::signalCommand, this, &DialogDataGraph::slotCommand);
    connect(&mHeldTimer, &QTimer::timeout, this, &DialogDataGraph::slotHeldZoom);
}

/// Calls with slot and trace of each selected parameter, as far as there are slots. @return how many
template <typename Visitor> int DialogDataGraph::forEachTrace(const RecordData* pRecord, Visitor visit)
{
    const TraceSet traces(pRecord, mSession.profile, ENumber::eDisplay, TraceSet::selected(mSession.profile.selection()));
    const int used = std::min(static_cast<int>(traces.size()), kSlots);
    for (int slot = 0; slot < used; ++slot)
        visit(slot, traces[static_cast<std::size_t>(slot)]);
    return used;
}

void DialogDataGraph::describeSlots()
{
    GraphModel& model = mpGraph->model();
    const int used = forEachTrace(nullptr, [&](int slot, const Trace& trace) { describeSlot(model, slot, trace); });
    for (int slot = used; slot < kSlots; ++slot)
        model.setActive(slot, false);
    arrangeStrips(used);
    updateSettings();
}

void DialogDataGraph::updateProfile()
{
    describeSlots();
    // Another parameter may have taken a slot: no trace may keep the samples of the one before.
    fillRecord();
    mKeepsWindow = true;
}

void DialogDataGraph::update(RecordData* pRecord)
{
    describeSlots();
    updateRecord(pRecord);
}

void DialogDataGraph::updateSettings()
{
    mSettings.load(mpGraph->model(), mData);
    mpGraph->setClickMovesCursor(mData.clickMovesCursor);
    if (mpSetup)
        mpSetup->updateDialog();
}

void DialogDataGraph::arrangeStrips(int used)
{
    std::vector<QString> names;
    for (int slot = 0; slot < used; ++slot)
        names.push_back(mpGraph->model().parameter(slot)->name);
    mpGraph->model().setOrder(mStrips.slotsFor(names));
}

void DialogDataGraph::keepStrips()
{
    std::vector<QString> names;
    for (const int slot : mpGraph->model().shown())
        names.push_back(mpGraph->model().parameter(slot)->name);
    mStrips.keep(names);
}

void DialogDataGraph::fillRecord()
{
    const double xmin = mpGraph->model().xmin(), xmax = mpGraph->model().xmax();
    mpGraph->clear();
    if (mpRecord)
        forEachTrace(mpRecord, [this](int slot, const Trace& trace) { fillSlot(mpGraph->model(), slot, trace); });
    // Filling moves the window of the automatic mode along.
    mpGraph->model().setWindow(xmin, xmax);
    mpGraph->model().setMessage(emptyMessage());
}

QString DialogDataGraph::emptyMessage() const
{
    const bool isLive = mZarnMode != 0; // with neither card nor profile panel in sight
    if (!mpRecord && isLive)
        return tr("No record is loaded.");
    if (!mpRecord)
        return tr("No record is loaded.\nOpen a card folder and choose a power cycle or a flight.");
    if (mpGraph->nrActive() == 0 && isLive)
        return tr("No parameter is selected.");
    if (mpGraph->nrActive() == 0)
        return tr("No parameter is selected.\nTick the parameters to show in the profile panel.");
    return {};
}

void DialogDataGraph::updateRecord(RecordData* pRecord)
{
    // The same once more is the same in another unit.
    const RecordKey key = pRecord ? recordKey() : mMarkedRecord;
    const std::array span{mSession.container.startTime(), mSession.container.endTime()};
    mKeepsWindow = mpRecord && mpRecord == pRecord && key == mMarkedRecord && span == mSpan;
    mpRecord = pRecord;
    fillRecord();
    if (!mpRecord || mKeepsWindow)
        return;
    if (!(key == mMarkedRecord))
        mpGraph->setMarker(0, 0);
    mMarkedRecord = key;
    mSpan = span;
    zoomAll();
    mpGraph->recalcFrameBuffer();
    mpGraph->setCursorPosition(mSession.container.startTime());
}

DialogDataGraph::RecordKey DialogDataGraph::recordKey() const
{
    // A flight counts its times as its power cycle does: there the marker still stands where it was set.
    const CardContainer& container = mSession.container;
    const RecordCycle* pCycle = container.loadedCycle();
    return {container.path(), container.loadedCycleNumber(), pCycle ? pCycle->dateTime : container.dateTime(),
            pCycle ? pCycle->endTime : container.endTime()};
}

void DialogDataGraph::setZarnMode(int mode)
{
    mZarnMode = mode;
    mpGraph->model().setMessage(emptyMessage());
}

std::optional<TimeSpan> DialogDataGraph::shownSpan() const
{
    const GraphModel& model = mpGraph->model();
    return hasSamples() ? std::optional(TimeSpan{model.xmin(), model.xmax()}) : std::nullopt;
}

void DialogDataGraph::setTime(double time)
{
    // Where the view time stays, what the user has zoomed to stays too.
    const bool isKept = std::exchange(mKeepsWindow, false) && static_cast<float>(time) == static_cast<float>(mpGraph->model().cursorTime());
    if (isKept)
        return;
    mpGraph->setPaced(true);
    showTime(time);
    mpGraph->setPaced(false);
}

void DialogDataGraph::showTime(double time)
{
    mpGraph->setCursorPosition(time);
    mpGraph->model().keepInside(time);
}

void DialogDataGraph::slotManMode()
{
    const GraphModel& model = mpGraph->model();
    mpButtons->setChecked(eSplitMode, model.displayMode() != eSingleGraph);
    mpButtons->setChecked(eSingleMode, model.displayMode() == eSingleGraph);
    mpButtons->setChecked(eAutomaticMode, model.graphMode() == eAutomatic);
}

void DialogDataGraph::slotSetupChanged()
{
    mSettings.store(mData);
    mSettings.load(mpGraph->model(), mData);
    // An edit applies the whole record: it must not bring back a window or a mode that the user has left with the mouse.
    mData.xRange = mpGraph->model().width();
    mData.graphMode = mpGraph->model().graphMode();
    slotGraphSetup();
}

void DialogDataGraph::slotGraphSetup()
{
    const auto colour = [](const QString& name) {
        const QColor found(name);
        return GraphColour{found.redF(), found.greenF(), found.blueF()};
    };
    mpGraph->model().setColours({colour(mData.backColor), colour(mData.gridColor), colour(mData.labelColor), colour(mData.labelBackColor)});
    mpGraph->setXrange(static_cast<float>(mData.xRange));
    mpGraph->setDisplayMode(mData.displayMode == eSingleGraph ? eSingleGraph : eSplit);
    mpGraph->setGraphMode(mData.graphMode == eManual ? eManual : eAutomatic);
    mpGraph->setCursorMode(mData.cursorMode == eFloating ? eFloating : eCenter);
    mpGraph->activateGrid(mData.gridOn);
    mpGraph->activateCursor(mData.cursorOn);
    mpGraph->activateLegend(mData.legendOn);
    mpGraph->setAutoScaleY(mData.autoscaleOn);
    mpGraph->setYmin(static_cast<float>(mData.yMin));
    mpGraph->setYmax(static_cast<float>(mData.yMax));
    mpGraph->setClickMovesCursor(mData.clickMovesCursor);
    slotManMode();
}

} // namespace ZARN
