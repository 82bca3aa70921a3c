#include "report/PaperGraph.h"

#include "analysis/TimeSpan.h"
#include "report/PaperCanvas.h"
#include "report/ReportText.h"
#include "trace/ComputedChannel.h"
#include "trace/TraceSet.h"
#include "ui/graph/model/GhostCycle.h"
#include "ui/graph/model/GraphScene.h"
#include "ui/graph/model/NormalRange.h"
#include "ui/graph/model/TraceSlot.h"

#include <algorithm>

namespace ZARN {

namespace {

constexpr double kHandles = 20.0;      // width of what a hand would drag the strips by: cut off
constexpr double kSwatch = 6.0;        // of the trace's colour, with the gap behind it
constexpr double kColumnsAPoint = 3.0; // fine enough for a printer
constexpr double kSmallestSpan = 1.0;  // seconds
constexpr qsizetype kMostLines = 3;    // of a name
constexpr qsizetype kMostNotes = 2;    // lines below it

} // namespace

PaperGraph::PaperGraph(const ReportSubject& subject, int mostStrips) : mSubject(subject), mLoaded(subject.loaded), mMost(mostStrips)
{
    mModel.traces().setCount(mostStrips);
    mModel.setOfflineMode(true);
    GraphData& settings = mModel.settings();
    settings.graphMode = eManual;
    settings.displayMode = eSplit;
    settings.cursorOn = false;
    settings.legendOn = false; // it tells of a cursor; the strips have their names beside them
    settings.times = subject.reference();
    settings.usePalette(EGraphPalette::ePrint);
    mModel.settingsChanged();
}

void PaperGraph::compare()
{
    const auto& [pCycle, shift] = mSubject.comparison;
    if (!pCycle || !pCycle->loaded.pRecord)
        return;
    mpGhost = std::make_shared<Ghost>();
    mpGhost->name = pCycle->name;
    mpGhost->traces.setCount(mMost);
    mModel.scenery().setGhost(mpGhost);
    mModel.scenery().setGhostShift(shift);
}

void PaperGraph::addGhost(int slot, const ProfileParameter& parameter, const TimeSpan& samples)
{
    const auto& [pCycle, shift] = mSubject.comparison;
    const auto pTrace = TraceSet::one(*pCycle->loaded.pRecord, mLoaded.context, parameter, ENumber::eDisplay, mGhostFilter);
    describeSlot(mpGhost->traces, slot, *pTrace);
    fillSlot(mpGhost->traces, slot, *pTrace, std::max(samples.start - shift, pCycle->part.start),
             std::min(samples.end - shift, pCycle->part.end));
    const ValueRange<double> values = mpGhost->traces.at(slot)->samples.extremes();
    mModel.traces().edit(slot, [&values](GraphParameter& own) { own.ghostValues = values; });
}

std::optional<int> PaperGraph::add(const ProfileParameter& parameter, const TimeSpan& samples, const QString& note)
{
    if (isFull() || !canShow(parameter))
        return {};
    const int slot = mUsed++;
    mNotes << note;
    const auto pTrace = TraceSet::one(*mLoaded.pRecord, mLoaded.context, parameter, ENumber::eDisplay, mFilter);
    fillSlot(mModel, slot, *pTrace, samples.start, samples.end);
    if (mModel.traces().at(slot)->samples.extremes().isEmpty())
        return {};
    describeSlot(mModel.traces(), slot, *pTrace);
    if (mpGhost)
        addGhost(slot, parameter, samples);
    std::vector<TimeSpan> flights;
    for (const RecordFlight& flight : mLoaded.flights)
        flights.push_back({flight.startTime, flight.endTime});
    const std::vector<NormalStretch> normal = normalStretches(mSubject.normal, mSubject.phases, flights, *pTrace);
    mModel.traces().edit(slot, [&normal](GraphParameter& trace) { trace.normal = normal; });
    return slot;
}

std::vector<MarkerValues> PaperGraph::values(const TimeSpan& span) const
{
    return markerValues(mModel.traces(), {span.start, span.end}, &mModel.scenery());
}

bool PaperGraph::hasNormal() const
{
    return std::ranges::any_of(mModel.traces().shown(), [this](int slot) { return !mModel.traces().at(slot)->normal.empty(); });
}

bool PaperGraph::canShow(const ProfileParameter& parameter) const
{
    return channelOf(*mLoaded.pRecord, mLoaded.context, parameter) && mLoaded.context.decoder(parameter).isNumeric();
}

void PaperGraph::setWindow(const TimeSpan& span)
{
    mModel.setWindow({span.start, std::max(span.end, span.start + kSmallestSpan)});
}

PaperGraph::Frame PaperGraph::frame()
{
    constexpr double kTall = 1000.0;
    GraphModel model;
    model.settings().legendOn = false;
    const QRectF plot = GraphLayout(model, {kTall, kTall}, kTextSize).plot();
    return {plot.top(), kTall - plot.bottom()};
}

QPointF PaperGraph::at(int strip, double time, double value) const
{
    return {xOf(time), mShift.y() + GraphLayout::yOf(value, mFrame.layout().area(strip), mModel.valueSpan(strip))};
}

void PaperGraph::draw(PaperCanvas& canvas, const QRectF& place)
{
    const QRectF graph = place.adjusted(kNames, 0, 0, 0);
    mShift = {graph.left() - kHandles, graph.top()};
    canvas.push();
    canvas.clip(graph);
    canvas.translate(mShift.x(), mShift.y());
    mFrame.update(mModel, {graph.width() + kHandles, graph.height()}, kTextSize, kColumnsAPoint);
    GraphScene(mModel, mFrame).draw(canvas);
    canvas.pop();
    for (const int index : mModel.traces().shown()) {
        const GraphParameter& trace = *mModel.traces().at(index);
        const QRectF strip = mFrame.layout().area(index).translated(mShift);
        drawName(canvas, trace.label(), mNotes[index], {place.left(), strip.top(), kNames, strip.height()}, trace.drawnColour);
    }
}

void PaperGraph::drawName(PaperCanvas& canvas, const QString& name, const QString& note, const QRectF& place, const QColor& colour)
{
    CanvasText style{kTextSize, Qt::black, true, Qt::AlignLeft | Qt::AlignTop, false};
    const double line = PaperCanvas::size(name, style).height();
    const auto room = static_cast<qsizetype>(place.height() / line) - (note.isEmpty() ? 0 : kMostNotes);
    QStringList lines = PaperCanvas::wrapped(printable(name), place.width() - kSwatch, style, std::clamp<qsizetype>(room, 1, kMostLines));
    double y = place.top() + 1;
    canvas.fillRect(QRectF(place.left(), y, 3, static_cast<double>(lines.size()) * line), colour);
    for (const QString& text : lines) {
        canvas.text({place.left() + kSwatch, y}, text, style);
        y += line;
    }
    style.bold = false;
    for (const QString& text :
         note.isEmpty() ? QStringList() : PaperCanvas::wrapped(printable(note), place.width() - kSwatch, style, kMostNotes)) {
        canvas.text({place.left() + kSwatch, y}, text, style);
        y += line;
    }
}

} // namespace ZARN
