#include "ui/graph/model/KeyInteraction.h"

#include "ui/graph/model/MarkerInteraction.h"
#include "ui/graph/model/StripInteraction.h"
#include "ui/graph/model/ValueZoom.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

void KeyInteraction::press(const GraphKey& key)
{
    const double pixels = key.amount * mStep;
    switch (key.action) {
    case EGraphKey::eCursorTime: moveCursor(pixels); break;
    case EGraphKey::eCursorValue: moveValue(pixels); break;
    case EGraphKey::eMarkerStart:
    case EGraphKey::eMarkerEnd: MarkerInteraction(mModel).moveEnd(mLayout, key.action == EGraphKey::eMarkerStart, pixels); break;
    case EGraphKey::eNoMarker: MarkerInteraction(mModel).clear(); break;
    case EGraphKey::ePan: pan(key.amount); break;
    case EGraphKey::eEdge: showEdge(key.amount > 0); break;
    case EGraphKey::eZoomTime: zoomTime(key.amount); break;
    case EGraphKey::eValues: ValueZoom(mModel).move(chosen(), key.amount); break;
    case EGraphKey::eZoomValues: zoomValues(key.amount); break;
    case EGraphKey::eChoose: choose(static_cast<int>(key.amount)); break;
    case EGraphKey::eMoveStrip: moveStrip(static_cast<int>(key.amount)); break;
    case EGraphKey::eStripHeight: StripInteraction(mModel).scale(chosen(), key.amount); break;
    case EGraphKey::eGhost: moveGhost(key.amount); break;
    case EGraphKey::eScroll: scroll(static_cast<int>(key.amount)); break;
    case EGraphKey::eCommand: Q_EMIT mModel.signalCommand(static_cast<int>(key.amount)); break;
    }
}

int KeyInteraction::chosen() const
{
    const ShownTraces& traces = mModel.traces();
    if (traces.highlighted() >= 0 || mModel.settings().displayMode != eSplit)
        return traces.axis();
    return isShown(traces, mModel.cursor().strip) ? mModel.cursor().strip : traces.axis();
}

void KeyInteraction::moveCursor(double pixels)
{
    mModel.setCursorMoving(true);
    mModel.moveCursor(mModel.cursor().time + pixels / mLayout.pixelsPerSecond(), mModel.cursor().value, mModel.cursor().strip);
    mModel.setWindow(mModel.window().keeping(mModel.cursor().time));
}

void KeyInteraction::moveValue(double pixels)
{
    const bool isSplit = mModel.settings().displayMode == eSplit;
    int index = isSplit ? mModel.cursor().strip : mModel.traces().axis();
    if (isSplit && !isShown(mModel.traces(), index) && mModel.traces().count() > 0)
        index = mModel.traces().shown().front();
    double value = mModel.cursor().value;
    if (isShown(mModel.traces(), index)) {
        // From where it can be seen: the value may be that of another strip.
        const QRectF from = mLayout.area(index);
        const double start = std::clamp(GraphLayout::yOf(value, from, mModel.valueSpan(index)), from.top(), from.bottom());
        const double y = std::clamp(start + pixels, mLayout.plot().top(), mLayout.plot().bottom());
        if (isSplit)
            index = mLayout.stripAt(mModel, y);
        value = valueAt(y, mLayout.area(index), mModel.valueSpan(index));
    }
    mModel.setCursorMoving(true);
    mModel.moveCursor(mModel.cursor().time, value, isSplit ? index : mModel.cursor().strip);
}

void KeyInteraction::zoomTime(double factor)
{
    const TimeWindow& window = mModel.window();
    const double cursor = mModel.cursor().time;
    mModel.takeOverTime();
    mModel.setWindow(window.zoomedAbout(window.contains(cursor) ? cursor : (window.begin() + window.end()) / 2, factor));
}

void KeyInteraction::pan(double part)
{
    mModel.takeOverTime();
    mModel.setWindow(mModel.window().movedBy(part * mModel.window().width()));
}

void KeyInteraction::showEdge(bool isEnd)
{
    ValueRange<double> span;
    for (const int index : mModel.traces().shown()) {
        const SampleSeries& samples = mModel.traces().at(index)->samples;
        if (!samples.empty())
            span.add({samples.time(0), samples.time(samples.size() - 1)});
    }
    if (span.isEmpty())
        return;
    mModel.takeOverTime();
    mModel.setWindow(isEnd ? mModel.window().endingAt(span.greatest) : mModel.window().startingAt(span.least));
}

void KeyInteraction::zoomValues(double factor)
{
    const ValueSpan span = mModel.valueSpan(chosen());
    ValueZoom(mModel).zoom(chosen(), span[0] + (span[1] - span[0]) / 2, factor);
}

int KeyInteraction::neighbour(int step) const
{
    const std::vector<int>& shown = mModel.traces().shown();
    const auto place = std::ranges::find(shown, chosen()) - shown.begin() + step;
    return place >= 0 && place < std::ssize(shown) ? shown[static_cast<std::size_t>(place)] : -1;
}

void KeyInteraction::choose(int step)
{
    ShownTraces& traces = mModel.traces();
    const int next = traces.highlighted() < 0 ? chosen() : neighbour(step); // the first time the one that it is now
    if (next < 0)
        return;
    traces.point(-1);
    if (traces.highlighted() != next)
        traces.togglePin(next);
    mModel.moveCursor(mModel.cursor().time, mModel.cursor().value, next);
    // Its lines of the lists come into sight.
    const int row = static_cast<int>(std::ranges::find(traces.shown(), next) - traces.shown().begin());
    const auto show = [](int line, int& first, const VisibleRows& rows) {
        first = std::clamp(rows.first, std::max(0, line - rows.count + 1), line);
    };
    show(mLayout.markerSheet().lineOf(next), mModel.settings().firstTableRow, mLayout.markerSheet().visible());
    show(row, mModel.settings().firstLegendRow, mLayout.legendRows());
}

void KeyInteraction::moveStrip(int step)
{
    StripInteraction(mModel).moveTo(chosen(), neighbour(step));
}

void KeyInteraction::moveGhost(double pixels)
{
    if (mModel.scenery().ghost())
        mModel.scenery().setGhostShift(mModel.scenery().ghostShift() + pixels / mLayout.pixelsPerSecond());
}

void KeyInteraction::scroll(int pages)
{
    const bool isTable = mLayout.markerSheet().visible().isCut();
    const VisibleRows& rows = isTable ? mLayout.markerSheet().visible() : mLayout.legendRows();
    const int first = rows.first + pages * std::max(rows.count - 1, 1);
    (isTable ? mModel.settings().firstTableRow : mModel.settings().firstLegendRow) = std::clamp(first, 0, rows.all - rows.count);
    Q_EMIT mModel.signalRepaint();
}

} // namespace ZARN
