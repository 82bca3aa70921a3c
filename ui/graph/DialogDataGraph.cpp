#include "ui/graph/DialogDataGraph.h"

#include "app/Settings.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "ui/graph/DialogGraphSetup.h"
#include "ui/graph/GhostMenu.h"
#include "ui/graph/GraphButtons.h"
#include "ui/graph/TraceMenu.h"
#include "ui/graph/WidgetGraphES.h"
#include "ui/graph/model/MarkerValues.h"
#include "ui/graph/model/PaperColours.h"
#include "ui/graph/model/TraceColours.h"
#include "ui/picture/PictureMenu.h"

#include <QClipboard>
#include <QColorDialog>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QVBoxLayout>

#include <utility>

namespace ZARN {

namespace {

constexpr int kHeldInterval = 50;
constexpr qsizetype kMostTold = 100; // characters of names

Picture pictureOf(WidgetGraphBase& graph)
{
    const double ratio = graph.devicePixelRatioF();
    const auto paint = [&graph, ratio](Canvas& canvas, const QSize& size, bool forPaper) {
        const std::optional<PaperColours> colours = forPaper ? std::optional<PaperColours>(std::in_place, graph.model()) : std::nullopt;
        graph.paintOn(canvas, size, ratio);
    };
    return {paint, graph.size(), ratio};
}

} // namespace

DialogDataGraph::DialogDataGraph(const Session& session, QWidget* pParent)
    : QWidget(pParent), mSession(session), mpButtons(new GraphButtons), mpGraph(new WidgetGraphES), mRecord(session, mpGraph->model()),
      mCommands(mpGraph->model(), mRecord),
      mpPicture(new PictureMenu(
          session, [this] { return pictureOf(*mpGraph); },
          [&property = session.property] { return Settings::kGraphLayout.text(property); }, this)),
      mHistory([this] { return mRecord.view(); }, [this](const GraphView& from, const GraphView& to) { showView(from, to); }),
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
    connect(mpGraph, &WidgetGraphES::signalMarker, this, &DialogDataGraph::signalMarker);
    connect(mpGraph, &WidgetGraphES::signalMenu, this, &DialogDataGraph::slotMenu);
    connect(&mpGraph->model(), &GraphModel::signalIncident, this, &DialogDataGraph::slotIncident);
    connect(&mCourse, &CourseFinder::signalFound, this, &DialogDataGraph::setCourse);
    connect(&mGhosts, &GhostLoader::signalLoaded, this,
            [this](const std::shared_ptr<const GhostCycle>& pCycle, int flight) { mRecord.ghost().set(pCycle, flight); });
    connect(&mGhosts, &GhostLoader::signalFailed, this,
            [this](const QString& reason) { showProblem(tr("The cycle to compare with could not be read.\n%1").arg(reason)); });
    connect(mpButtons, &GraphButtons::signalHeld, this, [this] {
        mHistory.begin();
        mHeldTimer.start(kHeldInterval);
    });
    connect(mpButtons, &GraphButtons::signalCommand, this, &DialogDataGraph::slotCommand);
    connect(mpPicture, &PictureMenu::signalProblem, this, &DialogDataGraph::showProblem);
    mHeldTimer.setParent(this);
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
    const RecordGraph::Unshown unshown = mRecord.unshown();
    const QStringList& names = unshown.names;
    mpUnshown->setVisible(!names.isEmpty());
    const QString why = unshown.isCrowded ? tr("Only what was asked for is shown; choosing a layout shows the rest again.")
                                          : tr("The graph has room for %1 parameters.").arg(RecordGraph::kSlots);
    const QString all = tr("%1 Not shown: %2").arg(why, names.join(QLatin1String(", ")));
    const auto line = [&names](qsizetype count) { return names.mid(0, count).join(QLatin1String(", ")); };
    qsizetype told = names.size();
    while (told > 1 && line(told).size() > kMostTold)
        --told;
    mpUnshown->setText(told == names.size()
                           ? all
                           : tr("%1 Not shown: %2 and %n more", nullptr, static_cast<int>(names.size() - told)).arg(why, line(told)));
    mpUnshown->setToolTip(all);
    mpUnshown->setAccessibleDescription(all);
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
    showUnshown(); // what was asked for of another record is shown no longer
    updateSetup();
    findCourse(mRecord.hasRecord());
}

void DialogDataGraph::updateFlights(RecordData* pRecord)
{
    if (!mRecord.updateFlights(pRecord))
        mHistory.clear();
    showUnshown();
    updateSetup();
    findCourse(mRecord.hasRecord());
}

void DialogDataGraph::growRecord(RecordData* pRecord, bool /*isReviewed*/)
{
    mpGraph->setPaced(true);
    mRecord.updateFlights(pRecord);
    mpGraph->setPaced(false);
    mpCourseOf = mSession.container.record().get(); // of the same recording
}

void DialogDataGraph::growCourse(const std::shared_ptr<const CycleCourse>& pCourse)
{
    mCourse.stop();
    setCourse(pCourse);
}

void DialogDataGraph::update(RecordData* pRecord)
{
    if (!mRecord.update(pRecord))
        mHistory.clear();
    showUnshown();
    updateSetup();
    findCourse(mRecord.hasRecord());
}

void DialogDataGraph::prepare(RecordData* pRecord)
{
    findCourse(pRecord != nullptr);
}

void DialogDataGraph::setCourse(const std::shared_ptr<const CycleCourse>& pCourse)
{
    mRecord.ghost().normal().setCourse(pCourse);
    Q_EMIT signalCourse(pCourse);
}

void DialogDataGraph::findCourse(bool hasRecord)
{
    // That of the same record stays until it is found anew.
    if (std::exchange(mpCourseOf, mSession.container.record().get()) != mSession.container.record().get() || !hasRecord)
        setCourse(nullptr);
    if (hasRecord)
        mCourse.start(mSession.container.loaded());
    else
        mCourse.stop();
}

void DialogDataGraph::slotIncident(std::size_t incident)
{
    const std::shared_ptr<const CycleCourse> pCourse = mpGraph->model().scenery().course();
    if (!pCourse || incident >= pCourse->incidents.size())
        return;
    const GraphMoment& moment = pCourse->incidents[incident].moment;
    showMoment(moment);
    mRecord.showTime(moment.time);
    Q_EMIT signalTime(moment.time);
}

void DialogDataGraph::setZarnMode(int mode)
{
    mRecord.setZarnMode(mode);
}

void DialogDataGraph::showMoment(const GraphMoment& moment)
{
    mHistory.begin();
    mRecord.showMoment(moment);
    showUnshown();
    updateSetup();
}

void DialogDataGraph::setFound(const std::vector<TimeSpan>& spans)
{
    mpGraph->model().scenery().setFound(spans);
}

void DialogDataGraph::setLayout(const DisplayLayout& layout)
{
    mHistory.begin();
    mRecord.setLayout(layout);
    updateSetup();
    slotManMode();
}

Comparison DialogDataGraph::comparison() const
{
    const GraphScenery& scenery = mpGraph->model().scenery();
    return {scenery.ghost() ? scenery.ghost()->pCycle : nullptr, scenery.ghostShift()};
}

std::optional<TimeSpan> DialogDataGraph::shownSpan() const
{
    return mRecord.shownSpan();
}

bool DialogDataGraph::hasLeft(double time) const
{
    return isVisible() && mRecord.hasSamples() && !mpGraph->model().window().contains(time);
}

std::optional<TimeSpan> DialogDataGraph::markedSpan() const
{
    const GraphMarker marker = mpGraph->model().marker().ordered();
    return marker.isRange() ? std::optional(TimeSpan{marker.start, marker.end}) : std::nullopt;
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
        mCommands.run(static_cast<EGraphCommand>(command),
                      command <= eSnapshot && mpButtons->isChecked(static_cast<EGraphCommand>(command)));
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
    Picture snapshot = pictureOf(*mpGraph);
    snapshot.setTitle(mpPicture->name());
    if (!snapshot.save(path))
        showProblem(tr("The snapshot could not be saved.\n%1").arg(snapshot.error()));
}

void DialogDataGraph::copyValues()
{
    const GraphModel& model = mpGraph->model();
    QGuiApplication::clipboard()->setText(markerText(model.traces(), model.marker(), model.settings().times, &model.scenery()));
}

void DialogDataGraph::addTraceMenu(QMenu& menu)
{
    ShownTraces& traces = mpGraph->model().traces();
    const int slot = traces.highlighted();
    if (slot < 0)
        return;
    auto* pTrace = new TraceMenu(*traces.at(slot), &menu);
    const auto setStroke = [this, &traces, slot](const TraceStroke& stroke) {
        traces.edit(slot, [&stroke](GraphParameter& trace) { trace.stroke = stroke; });
        slotSetupChanged();
    };
    connect(pTrace, &TraceMenu::signalColour, this, [this, &traces, slot] {
        if (const QColor colour = askColour(traces.at(slot)->drawnColour); colour.isValid())
            traces.setColour(slot, colour);
        slotSetupChanged();
    });
    connect(pTrace, &TraceMenu::signalStroke, this, setStroke);
    connect(pTrace, &TraceMenu::signalDefault, this, [setStroke, &traces, slot] {
        traces.setColour(slot, QColor());
        setStroke({});
    });
    menu.addMenu(pTrace);
    menu.addSeparator();
}

void DialogDataGraph::addTimeMenu(QMenu& menu)
{
    QMenu* pTimes = menu.addMenu(tr("Times"));
    for (const ETimeReference kind : {ETimeReference::ePowerUp, ETimeReference::eClock, ETimeReference::eTakeOff}) {
        QAction* pAction = pTimes->addAction(TimeReference::name(kind), this, [this, kind] {
            mRecord.setTimes(kind);
            Q_EMIT signalSettings();
        });
        pAction->setCheckable(true);
        pAction->setChecked(kind == mpGraph->model().settings().times.kind());
    }
}

void DialogDataGraph::addGhostMenu(QMenu& menu)
{
    if (!mRecord.hasRecord())
        return;
    // Its actions ask further questions: it stays until the next one.
    delete mpGhostMenu;
    mpGhostMenu = new GhostMenu(mSession, mRecord, this);
    connect(mpGhostMenu, &GhostMenu::signalWish, this,
            [this](const GhostLoader::Wish& wish) { mGhosts.start(wish, mSession.profile.context()); });
    menu.addMenu(mpGhostMenu);
}

QColor DialogDataGraph::askColour(const QColor& present)
{
    return QColorDialog::getColor(present, this);
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
    addTraceMenu(menu);
    QAction* pCopy = menu.addAction(tr("Copy Values"), this, &DialogDataGraph::copyValues);
    pCopy->setEnabled(mpGraph->model().marker().isRange() && mRecord.hasSamples());
    mpPicture->addTo(menu);
    menu.addAction(tr("X against Y..."), this, &DialogDataGraph::signalCurves)->setEnabled(mRecord.hasRecord());
    menu.addAction(tr("Flight Report..."), this, &DialogDataGraph::signalReport)->setEnabled(mRecord.hasRecord());
    menu.addSeparator();
    addTimeMenu(menu);
    addGhostMenu(menu);
    addViewActions(menu);
    menu.addSeparator();
    menu.addAction(tr("Setup..."), this, &DialogDataGraph::showSetup);
    menu.exec(point);
}

} // namespace ZARN
