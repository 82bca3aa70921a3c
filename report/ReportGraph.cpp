#include "report/ReportGraph.h"

#include "analysis/EventList.h"
#include "report/PaperCanvas.h"
#include "trace/ComputedChannel.h"
#include "trace/TraceSet.h"
#include "ui/graph/model/GraphScene.h"
#include "ui/graph/model/TraceSlot.h"

#include <set>

namespace ZARN {

namespace {

constexpr const char* kMain[] = {"EngineSpeedA", "ManifoldPressureA", "ThrottleA", "FuelA", "Altitude", "GroundSpeed"};
constexpr int kMostStrips = 10;
constexpr double kTextSize = 7.0;
constexpr double kHandles = 20.0;      // width of what a hand would drag the strips by: cut off
constexpr double kNames = 88.0;        // width of what the strips' names have
constexpr double kSwatch = 6.0;        // of the trace's colour, with the gap behind it
constexpr double kColumnsAPoint = 3.0; // fine enough for a printer
constexpr double kSmallestSpan = 1.0;  // seconds

} // namespace

ReportGraph::ReportGraph(const LoadedCard& loaded, const EventList& limits) : mLoaded(loaded)
{
    const ProfileModel& model = loaded.context.model();
    mModel.traces().setCount(kMostStrips);
    mModel.setOfflineMode(true);
    GraphData& settings = mModel.settings();
    settings.graphMode = eManual;
    settings.displayMode = eSplit;
    settings.cursorOn = false;
    settings.legendOn = false; // it tells of a cursor; the strips have their names in them
    settings.backColor = Palette::print().graph.ground.name();
    settings.gridColor = Palette::print().graph.grid.name();
    settings.labelColor = Palette::print().graph.label.name();
    settings.labelBackColor = Palette::print().graph.labelGround.name();
    mModel.settingsChanged();
    std::set<std::string> taken;
    for (const char* key : kMain) {
        const ProfileParameter& parameter = model.ofZarnType(key);
        if (!parameter.name.empty() && taken.insert(parameter.name).second)
            addParameter(parameter);
    }
    for (const int state : {eThresholdLimit, eThresholdWarning}) { // what was worst first: there is room for some only
        for (const Event& event : limits.events()) {
            const bool isInside = event.state == state && event.time >= loaded.startTime && event.time <= loaded.endTime;
            const ProfileParameter* pParameter = isInside ? model.find(limits.source(event).parameter) : nullptr;
            if (pParameter && taken.insert(pParameter->name).second)
                addParameter(*pParameter);
        }
    }
    mModel.setWindow({loaded.startTime, std::max(loaded.endTime, loaded.startTime + kSmallestSpan)});
}

void ReportGraph::addParameter(const ProfileParameter& parameter)
{
    if (!channelOf(*mLoaded.pRecord, mLoaded.context, parameter) || !mLoaded.context.decoder(parameter).isNumeric())
        return;
    if (mUsed == kMostStrips) {
        ++mLeftOut;
        return;
    }
    const int slot = mUsed++;
    const auto pTrace = TraceSet::one(*mLoaded.pRecord, mLoaded.context, parameter, ENumber::eDisplay, mFilter);
    describeSlot(mModel.traces(), slot, *pTrace);
    fillSlot(mModel, slot, *pTrace, mLoaded.startTime, mLoaded.endTime);
}

void ReportGraph::draw(PaperCanvas& canvas, const QRectF& place) const
{
    const QRectF graph = place.adjusted(kNames, 0, 0, 0);
    canvas.push();
    canvas.clip(graph);
    canvas.translate(graph.left() - kHandles, graph.top());
    GraphFrame frame;
    frame.update(mModel, {graph.width() + kHandles, graph.height()}, kTextSize, kColumnsAPoint);
    GraphScene(mModel, frame).draw(canvas);
    canvas.pop();
    for (const int index : mModel.traces().shown()) {
        const QRectF strip = frame.layout().area(index);
        drawName(canvas, *mModel.traces().at(index), {place.left(), place.top() + strip.top(), kNames, strip.height()});
    }
}

void ReportGraph::drawName(PaperCanvas& canvas, const GraphParameter& parameter, const QRectF& place) const
{
    const CanvasText style{kTextSize, Qt::black, true, Qt::AlignLeft | Qt::AlignTop, false};
    const QStringList lines = canvas.wrapped(parameter.label(), place.width() - kSwatch, style);
    const double line = canvas.textSize(lines.front(), style).height();
    canvas.push();
    canvas.clip(place);
    canvas.fillRect(QRectF(place.left(), place.top() + 2, 3, static_cast<double>(lines.size()) * line), parameter.colour);
    for (qsizetype i = 0; i < lines.size(); ++i)
        canvas.text(place.topLeft() + QPointF(kSwatch, 2 + static_cast<double>(i) * line), lines[i], style);
    canvas.pop();
}

} // namespace ZARN
