// The commands of DialogDataGraph.

#include "card/CardContainer.h"
#include "ui/canvas/Canvas.h"
#include "ui/graph/DialogDataGraph.h"
#include "ui/graph/DialogGraphSetup.h"
#include "ui/graph/GraphButtons.h"
#include "ui/graph/GraphSnapshot.h"
#include "ui/graph/WidgetGraphES.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMenu>
#include <QMessageBox>

#include <algorithm>

namespace ZARN {

namespace {

constexpr float kMargin = 0.1F; // of the record's span, before and after it
constexpr float kMomentMargin = 0.5F; // seconds around a record of one moment
constexpr float kZoom = 0.97F;
constexpr float kZoomInLimit = 5000.0F, kZoomOutLimit = 1.0F; // seconds
constexpr float kDefaultRange = 60.0F;

} // namespace

void DialogDataGraph::slotCommand(int command)
{
    switch (command) {
    case eZoomAll:
        zoomAll();
        mData.xRange = mSession.container.endTime() - mSession.container.startTime();
        break;
    case eZoomMarker: mpGraph->zoomToMarker(); break;
    case eClearAll: clearGraph(); break;
    case eAutomaticMode:
        mData.graphMode = mpButtons->isChecked(eAutomaticMode) ? eAutomatic : eManual;
        mpGraph->setGraphMode(static_cast<eGraphMode>(mData.graphMode));
        break;
    case eSplitMode: setDisplayMode(eSplit); break;
    case eSingleMode: setDisplayMode(eSingleGraph); break;
    case eResetAll:
        setDisplayMode(eSplit);
        setRange(kDefaultRange);
        showTime(mpGraph->model().cursorTime());
        break;
    case eSetup: showSetup(); break;
    case eSnapshot: snapshot(); break;
    default: break;
    }
    slotManMode();
}

void DialogDataGraph::setDisplayMode(int mode)
{
    mData.displayMode = mode;
    mpGraph->setDisplayMode(mode == eSingleGraph ? eSingleGraph : eSplit);
}

void DialogDataGraph::zoomAll()
{
    if (!mpRecord)
        return;
    const auto start = static_cast<float>(mSession.container.startTime()), end = static_cast<float>(mSession.container.endTime());
    const float margin = end > start ? kMargin * (end - start) : kMomentMargin;
    mpGraph->model().setWindow(static_cast<double>(start - margin), static_cast<double>(end + margin));
}

void DialogDataGraph::slotHeldZoom()
{
    const auto width = static_cast<float>(mpGraph->model().width());
    const EGraphCommand held = mpButtons->held();
    if (held != eZoomIn && held != eZoomOut)
        return mHeldTimer.stop();
    const float wanted = held == eZoomIn ? std::min(width * kZoom, kZoomInLimit) : std::max(width / kZoom, kZoomOutLimit);
    setRange(wanted);
}

void DialogDataGraph::setRange(float seconds)
{
    // In the automatic mode the end of the window stays, and the cursor, or all of the record, would soon be left behind.
    const GraphModel& model = mpGraph->model();
    const double cursor = model.cursorTime();
    const bool wasInSight = model.xmin() <= cursor && cursor <= model.xmax();
    mpGraph->setXrange(seconds);
    mData.xRange = static_cast<double>(seconds);
    const bool isBeside = model.xmax() < mSession.container.startTime() || model.xmin() > mSession.container.endTime();
    if (mpRecord && (wasInSight || isBeside))
        showTime(cursor);
}

bool DialogDataGraph::hasSamples() const
{
    const GraphModel& model = mpGraph->model();
    return std::ranges::any_of(model.shown(), [&model](int index) { return !model.parameter(index)->samples.empty(); });
}

void DialogDataGraph::clearGraph()
{
    mpGraph->clear();
    if (mpRecord && mpGraph->nrActive() > 0 && mZarnMode != 0)
        mpGraph->model().setMessage(tr("The graph was cleared."));
    else if (mpRecord && mpGraph->nrActive() > 0)
        mpGraph->model().setMessage(tr(
            "The graph was cleared.\nTick a parameter in the profile panel, or choose another power cycle or flight, to fill it again."));
}

void DialogDataGraph::showSetup()
{
    if (!mpSetup) {
        mpSetup = new DialogGraphSetup(this, mData);
        connect(mpSetup, &DialogGraphSetup::signalChanged, this, &DialogDataGraph::slotSetupChanged);
    }
    mpSetup->updateDialog();
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
    const auto paint = [this](Canvas& canvas, const QSize& size) { mpGraph->paintOn(canvas, size, devicePixelRatioF()); };
    GraphSnapshot snapshot(paint, mpGraph->size(), devicePixelRatioF());
    if (!snapshot.save(path))
        showProblem(tr("The snapshot could not be saved.\n%1").arg(snapshot.error()));
}

void DialogDataGraph::copyValues()
{
    const GraphModel& model = mpGraph->model();
    const auto [start, end] = std::minmax({model.markerStart(), model.markerEnd()});
    QGuiApplication::clipboard()->setText(markerText(model.markerValues(), start, end));
}

void DialogDataGraph::copyPicture()
{
    const auto paint = [this](Canvas& canvas, const QSize& size) { mpGraph->paintOn(canvas, size, devicePixelRatioF()); };
    QGuiApplication::clipboard()->setImage(GraphSnapshot(paint, mpGraph->size(), devicePixelRatioF()).image());
}

void DialogDataGraph::slotMenu(const QPoint& point)
{
    QMenu menu(this);
    QAction* pCopy = menu.addAction(tr("Copy Values"), this, &DialogDataGraph::copyValues);
    pCopy->setEnabled(mpGraph->model().hasMarkerRange() && hasSamples());
    menu.addAction(tr("Copy Picture"), this, &DialogDataGraph::copyPicture);
    menu.addAction(tr("Snapshot..."), this, &DialogDataGraph::snapshot);
    menu.addAction(tr("Flight Report..."), this, &DialogDataGraph::signalReport)->setEnabled(mpRecord != nullptr);
    menu.addSeparator();
    QAction* pMarker = menu.addAction(tr("Zoom Marker"), this, [this] { slotCommand(eZoomMarker); });
    pMarker->setEnabled(mpGraph->model().hasMarkerRange());
    menu.addAction(tr("Zoom 1:1"), this, [this] { slotCommand(eZoomAll); })->setEnabled(mpRecord != nullptr);
    menu.addSeparator();
    menu.addAction(tr("Setup..."), this, &DialogDataGraph::showSetup);
    menu.exec(point);
}

} // namespace ZARN
