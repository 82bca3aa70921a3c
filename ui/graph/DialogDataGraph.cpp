#include "ui/graph/DialogDataGraph.h"

#include "ui/graph/DialogGraphSetup.h"
#include "ui/graph/GraphButtons.h"
#include "ui/graph/GraphSnapshot.h"
#include "ui/graph/WidgetGraphES.h"
#include "ui/graph/model/MarkerValues.h"
#include "ui/graph/model/TraceColours.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QVBoxLayout>

namespace ZARN {

namespace {

constexpr int kHeldInterval = 50;

GraphSnapshot snapshotOf(const WidgetGraphBase& graph)
{
    const double ratio = graph.devicePixelRatioF();
    return {[&graph, ratio](Canvas& canvas, const QSize& size) { graph.paintOn(canvas, size, ratio); }, graph.size(), ratio};
}

} // namespace

DialogDataGraph::DialogDataGraph(const Session& session, QWidget* pParent)
    : QWidget(pParent), mpButtons(new GraphButtons), mpGraph(new WidgetGraphES), mRecord(session, mpGraph->model()),
      mCommands(mpGraph->model(), mRecord), mHistory([this] { return mRecord.view(); },
                                                     [this](const GraphView& from, const GraphView& to) { showView(from, to); }),
      mpUnshown(new QLabel)
{
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(0);
    pLayout->addWidget(mpButtons);
    mpUnshown->setObjectName("unshown");
    mpUnshown->setTextFormat(Qt::PlainText);
    mpUnshown->setWordWrap(true);
    mpUnshown->setMargin(4);
    pLayout->addWidget(mpUnshown);
    pLayout->addWidget(mpGraph, 1);
    connectGraph();
    connectHistory();
    showUnshown();
    slotManMode();
}

void DialogDataGraph::focusInEvent(QFocusEvent* /*pEvent*/)
{
    mpGraph->setFocus();
}

void DialogDataGraph::connectGraph()
{
    connect(mpGraph, &WidgetGraphES::signalCursor, this, &DialogDataGraph::signalCursor);
    connect(mpGraph, &WidgetGraphES::signalCursor, this, [this] { Q_EMIT signalTime(mpGraph->model().cursor().time); });
    connect(mpGraph, &WidgetGraphES::signalManMode, this, &DialogDataGraph::slotManMode);
    const auto keepStrips = [this] {
        mRecord.keepStrips();
        Q_EMIT signalLayout();
    };
    connect(mpGraph, &WidgetGraphES::signalMoveParameter, this, keepStrips);
    connect(&mpGraph->model(), &GraphModel::signalStrips, this, keepStrips);
    connect(&mpGraph->model(), &GraphModel::signalCommand, this, &DialogDataGraph::slotCommand);
    connect(mpGraph, &WidgetGraphES::signalMenu, this, &DialogDataGraph::slotMenu);
    connect(mpButtons, &GraphButtons::signalHeld, this, [this] {
        mHistory.begin();
        mHeldTimer.start(kHeldInterval);
    });
    connect(mpButtons, &GraphButtons::signalCommand, this, &DialogDataGraph::slotCommand);
    connect(&mHeldTimer, &QTimer::timeout, this, &DialogDataGraph::slotHeldZoom);
}

void DialogDataGraph::connectHistory()
{
    connect(mpGraph, &WidgetGraphES::signalHand, &mHistory, &GraphHistory::begin);
    // Scales, too, belong to the layout.
    connect(&mHistory, &GraphHistory::signalStep, this, &DialogDataGraph::signalLayout);
}

void DialogDataGraph::showView(const GraphView& from, const GraphView& to)
{
    if (mRecord.showView(from, to))
        Q_EMIT signalTicks(to.layout);
    updateSetup();
    slotManMode();
    Q_EMIT signalLayout();
}

void DialogDataGraph::showUnshown()
{
    const QStringList& names = mRecord.unshown();
    mpUnshown->setVisible(!names.isEmpty());
    mpUnshown->setText(tr("The graph has room for %1 parameters. Not shown: %2").arg(RecordGraph::kSlots).arg(names.join(QLatin1String(", "))));
}

void DialogDataGraph::updateProfile()
{
    mRecord.updateProfile();
    showUnshown();
    updateSetup();
}

void DialogDataGraph::setNotes(const std::vector<CycleNote>& notes)
{
    graphData().notes = notes;
    mpGraph->model().settingsChanged();
}

void DialogDataGraph::updateSettings()
{
    mRecord.updateSettings();
    updateSetup();
}

void DialogDataGraph::updateSetup()
{
    if (!mpSetup)
        return;
    mpSetup->showTraces(traceColours(mpGraph->model().traces()));
    mpSetup->updateDialog();
}

void DialogDataGraph::updateRecord(RecordData* pRecord)
{
    if (!mRecord.updateRecord(pRecord))
        mHistory.clear();
}

void DialogDataGraph::updateFlights(RecordData* pRecord)
{
    if (!mRecord.updateFlights(pRecord))
        mHistory.clear();
}

void DialogDataGraph::update(RecordData* pRecord)
{
    if (!mRecord.update(pRecord))
        mHistory.clear();
    showUnshown();
    updateSetup();
}

void DialogDataGraph::setZarnMode(int mode)
{
    mRecord.setZarnMode(mode);
}

void DialogDataGraph::showSpan(const TimeSpan& span, const std::set<std::string>& parameters)
{
    mHistory.begin();
    mRecord.showSpan(span, parameters);
    showUnshown();
    updateSetup();
}

void DialogDataGraph::setFound(const std::vector<TimeSpan>& spans)
{
    mpGraph->model().setFound(spans);
}

void DialogDataGraph::setLayout(const DisplayLayout& layout)
{
    mHistory.begin();
    mRecord.setLayout(layout);
    updateSetup();
    slotManMode();
}

std::optional<TimeSpan> DialogDataGraph::shownSpan() const
{
    return mRecord.shownSpan();
}

GraphData& DialogDataGraph::graphData()
{
    return mpGraph->model().settings();
}

void DialogDataGraph::setTime(double time)
{
    mpGraph->setPaced(true);
    mRecord.setTime(time);
    mpGraph->setPaced(false);
}

void DialogDataGraph::slotManMode()
{
    mpButtons->setChecked(eSplitMode, graphData().displayMode != eSingleGraph);
    mpButtons->setChecked(eSingleMode, graphData().displayMode == eSingleGraph);
    mpButtons->setChecked(eAutomaticMode, graphData().graphMode == eAutomatic);
}

void DialogDataGraph::slotSetupChanged()
{
    mpGraph->model().settingsChanged();
    mRecord.storeSettings();
    updateSettings();
    slotManMode();
    Q_EMIT signalLayout();
}

void DialogDataGraph::slotCommand(int command)
{
    if (command == eUndo)
        return mHistory.undo();
    if (command == eRedo)
        return mHistory.redo();
    if (command == eSetup) {
        showSetup();
    } else if (command == eSnapshot) {
        snapshot();
    } else {
        mHistory.begin();
        mCommands.run(static_cast<EGraphCommand>(command), command <= eSnapshot && mpButtons->isChecked(static_cast<EGraphCommand>(command)));
    }
    slotManMode();
    Q_EMIT signalLayout();
}

void DialogDataGraph::slotHeldZoom()
{
    if (!mCommands.hold(mpButtons->held()))
        mHeldTimer.stop();
}

void DialogDataGraph::showSetup()
{
    if (!mpSetup) {
        mpSetup = new DialogGraphSetup(this, graphData());
        connect(mpSetup, &DialogGraphSetup::signalTraceColour, this,
                [this](int slot, const QColor& colour) { mpGraph->model().traces().setColour(slot, colour); });
        connect(mpSetup, &DialogGraphSetup::signalChanging, &mHistory, &GraphHistory::begin);
        connect(mpSetup, &DialogGraphSetup::signalChanged, this, &DialogDataGraph::slotSetupChanged);
    }
    updateSetup();
    mpSetup->show();
    mpSetup->raise();
    mpSetup->activateWindow();
}

QString DialogDataGraph::askSnapshotFile()
{
    // With the suffix given here, and not when the file is written, the dialog asks before it replaces that very file.
    QFileDialog dialog(this, tr("Save Snapshot"), QString(), tr("BMP File (*.bmp);;All Files (*.*)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix("bmp");
    dialog.selectFile("./snapshot.bmp");
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().front();
}

void DialogDataGraph::showProblem(const QString& text)
{
    QMessageBox box(QMessageBox::Warning, tr("ZARN Warning"), text, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void DialogDataGraph::snapshot()
{
    const QString path = askSnapshotFile();
    if (path.isEmpty())
        return;
    GraphSnapshot snapshot = snapshotOf(*mpGraph);
    if (!snapshot.save(path))
        showProblem(tr("The snapshot could not be saved.\n%1").arg(snapshot.error()));
}

void DialogDataGraph::copyValues()
{
    const GraphModel& model = mpGraph->model();
    QGuiApplication::clipboard()->setText(markerText(model.traces(), model.marker()));
}

void DialogDataGraph::copyPicture()
{
    QGuiApplication::clipboard()->setImage(snapshotOf(*mpGraph).image());
}

void DialogDataGraph::addViewActions(QMenu& menu)
{
    mHistory.end();
    const auto add = [&](const QString& text, const char* keys, EGraphCommand command, bool isEnabled) {
        QAction* pAction = menu.addAction(text, this, [this, command] { slotCommand(command); });
        pAction->setShortcut(QKeySequence(QLatin1String(keys)));
        pAction->setEnabled(isEnabled);
        return pAction;
    };
    const GraphModel& model = mpGraph->model();
    add(tr("Undo"), "Ctrl+Z", eUndo, mHistory.canUndo());
    add(tr("Redo"), "Ctrl+Shift+Z", eRedo, mHistory.canRedo());
    menu.addSeparator();
    add(tr("Zoom Marker"), "Return", eZoomMarker, model.marker().isRange());
    add(tr("Zoom 1:1"), "Ctrl+1", eZoomAll, mRecord.hasRecord());
    menu.addSeparator();
    add(tr("Fit Scales to What Is Visible"), "Ctrl+0", eFitValues, mRecord.hasSamples());
    add(tr("Scales of the Whole Record"), "", eWholeValues, !model.settings().scale.zoomed.empty());
    QAction* pShared = add(tr("One Scale for Each Unit"), "Ctrl+U", eSharedScale, true);
    pShared->setCheckable(true);
    pShared->setChecked(model.settings().scale.isShared);
}

void DialogDataGraph::slotMenu(const QPoint& point)
{
    QMenu menu(this);
    QAction* pCopy = menu.addAction(tr("Copy Values"), this, &DialogDataGraph::copyValues);
    pCopy->setEnabled(mpGraph->model().marker().isRange() && mRecord.hasSamples());
    menu.addAction(tr("Copy Picture"), this, &DialogDataGraph::copyPicture);
    menu.addAction(tr("Snapshot..."), this, &DialogDataGraph::snapshot);
    menu.addAction(tr("Flight Report..."), this, &DialogDataGraph::signalReport)->setEnabled(mRecord.hasRecord());
    menu.addSeparator();
    addViewActions(menu);
    menu.addSeparator();
    menu.addAction(tr("Setup..."), this, &DialogDataGraph::showSetup);
    menu.exec(point);
}

} // namespace ZARN
