#include "ui/graph/model/GraphScene.h"

#include "ui/canvas/ColourContrast.h"
#include "ui/graph/model/CourseBand.h"
#include "ui/graph/model/FoundMarks.h"
#include "ui/graph/model/GraphAxes.h"
#include "ui/graph/model/GraphTables.h"
#include "ui/graph/model/NormalRange.h"
#include "ui/graph/model/NoteMarks.h"
#include "ui/graph/model/TraceColours.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ZARN {

namespace {

constexpr float kGhostShare = 0.6F;     // of the trace's colour in that of its ghost
constexpr double kLeastContrast = 3.0;
constexpr double kSampleDistance = 5.0; // pixels from sample to sample from which each can be marked

/// The lines of a text, broken between words where they have more characters than that.
QStringList wrapped(const QString& text, int most)
{
    QStringList lines;
    for (const QString& paragraph : text.split(QLatin1Char('\n'))) {
        QString line;
        for (const QString& word : paragraph.split(QLatin1Char(' '))) {
            if (!line.isEmpty() && line.size() + 1 + word.size() > most)
                lines << std::exchange(line, QString());
            line += line.isEmpty() ? word : QLatin1Char(' ') + word;
        }
        lines << line;
    }
    return lines;
}

} // namespace

void GraphScene::draw(Canvas& canvas) const
{
    canvas.fillRect(mLayout.view(), mModel.colours().labelBackground);
    canvas.fillRect(mLayout.plot(), mModel.colours().background);
    const CourseBand course(mModel, mLayout);
    course.drawFlights(canvas);
    NormalRange(mModel, mLayout).draw(canvas);
    GraphAxes(mModel, mLayout).draw(canvas);
    course.draw(canvas);
    FoundMarks(mModel, mLayout).draw(canvas);
    drawTraces(canvas);
    drawMarker(canvas);
    const CursorLabels cursor(mModel, mLayout);
    drawTopMarkers(canvas, cursor);
    NoteMarks(mModel, mLayout, mLabels).draw(canvas);
    canvas.outline(mLayout.plot(), {mLabels.contrast(0.6)});
    drawHandles(canvas);
    NormalRange(mModel, mLayout).drawKey(canvas, mLabels);
    const GraphTables tables(mModel, mLayout);
    tables.drawOverlay(canvas, cursor);
    cursor.draw(canvas, mLabels);
    tables.draw(canvas);
    drawMessage(canvas);
}

void GraphScene::drawTraces(Canvas& canvas) const
{
    // Grounds before all lines and names after them: a canvas that gathers lines draws them at once then.
    const std::map<int, std::vector<StateSteps::Run>> states = stateRuns();
    const StateSteps steps(mModel, mLayout);
    for (const auto& [index, runs] : states)
        steps.drawGrounds(canvas, index, runs);
    std::vector<QPointF> points; // one memory for all of them
    drawGhost(canvas, points);
    const int highlighted = mModel.traces().highlighted();
    for (const int index : mModel.traces().shown()) {
        if (index != highlighted)
            drawTrace(canvas, index, 0, points);
    }
    if (highlighted >= 0)
        drawTrace(canvas, highlighted, 1, points);
    for (const auto& [index, runs] : states)
        steps.drawNames(canvas, index, runs);
}

std::map<int, std::vector<StateSteps::Run>> GraphScene::stateRuns() const
{
    std::map<int, std::vector<StateSteps::Run>> states;
    for (const int index : mModel.traces().shown()) {
        if (isStateStrip(mModel, index))
            states[index] = StateSteps(mModel, mLayout).runs(index, mFrame.traces().vertices(index));
    }
    return states;
}

void GraphScene::drawGhost(Canvas& canvas, std::vector<QPointF>& points) const
{
    for (const int index : mModel.traces().shown()) {
        const QRectF area = mLayout.area(index);
        mFrame.ghost().place(index, area, points);
        if (points.empty())
            continue;
        canvas.push();
        canvas.clip(area);
        const QColor dimmed = mixed(mModel.colours().background, mModel.traces().at(index)->drawnColour, kGhostShare);
        canvas.lineStrip(points, {readableOn(mModel.colours().background, dimmed, kLeastContrast)});
        canvas.pop();
    }
}

void GraphScene::place(const std::vector<QPointF>& vertices, int index, std::vector<QPointF>& points) const
{
    const QRectF area = mLayout.area(index);
    const ValueSpan span = mModel.valueSpan(index);
    // Vertices become pixels: the middle of a pixel is half a pixel after its edge.
    const double left = area.left() - 0.5, scale = mLayout.pixelsPerSecond();
    points.clear();
    for (const QPointF& vertex : vertices)
        points.emplace_back(left + vertex.x() * scale, GraphLayout::yOf(vertex.y(), area, span) - 0.5);
}

void GraphScene::drawTrace(Canvas& canvas, int index, int wider, std::vector<QPointF>& points) const
{
    const GraphParameter& trace = *mModel.traces().at(index);
    const QRectF area = mLayout.area(index);
    place(mFrame.traces().vertices(index), index, points);
    canvas.push();
    canvas.clip(area);
    if (trace.samplesVisible || points.size() == 1)
        drawSamples(canvas, points, trace.drawnColour);
    if (const double dash = dashOf(trace); dash > 0)
        makeDashes(points, dash, std::fmod(mModel.window().begin() * mLayout.pixelsPerSecond(), 2 * dash), area.left(), area.right());
    canvas.lineStrip(points, {trace.drawnColour, static_cast<double>(trace.stroke.width + wider)});
    canvas.pop();
}

void GraphScene::drawSamples(Canvas& canvas, std::span<const QPointF> points, const QColor& colour)
{
    if (points.size() > 1 && points.back().x() - points.front().x() < kSampleDistance * static_cast<double>(points.size()))
        return;
    for (const QPointF& point : points)
        canvas.fillRect(QRectF(std::round(point.x()) - 1, std::round(point.y()) - 1, 3, 3), colour);
}

void GraphScene::drawMarker(Canvas& canvas) const
{
    const QRectF& plot = mLayout.plot();
    const auto [start, end] = mModel.marker().ordered();
    const double left = std::clamp(mLayout.xOf(start), plot.left() - 2, plot.right() + 2);
    const double right = std::clamp(mLayout.xOf(end), plot.left() - 2, plot.right() + 2);
    // Where it stands before anybody has set it, it is no marker.
    if ((start == 0 && end == 0) || right < plot.left() || left > plot.right())
        return;
    canvas.push();
    canvas.clip(plot);
    canvas.fillRect(QRectF(QPointF(left, plot.top()), QPointF(right, plot.bottom())), mLabels.contrast(0.14));
    const double a = std::floor(left), b = std::floor(right);
    const std::array lines{QPointF(a, plot.top()), QPointF(a, plot.bottom() - 1), QPointF(b, plot.top()), QPointF(b, plot.bottom() - 1)};
    canvas.lines(lines, {mLabels.contrast(), 1.0, false, 4.0});
    canvas.pop();
}

void GraphScene::drawTopMarkers(Canvas& canvas, const CursorLabels& cursor) const
{
    const QRectF& plot = mLayout.plot();
    double free = plot.left() - mLayout.line(); // labels never overlap: what comes too close shows its line alone
    for (const TopMarker& marker : mModel.topMarkers()) {
        const double x = std::floor(mLayout.xOf(marker.time));
        if (!(x >= plot.left()) || x > plot.right())
            continue;
        const std::array line{QPointF(x, plot.top()), QPointF(x, plot.top() + 8)};
        canvas.lines(line, {mLabels.contrast()});
        const QString text = QString::number(marker.index);
        const double half = static_cast<double>(text.size()) * mLayout.character() / 2 + 3;
        if (x - half < free || cursor.covers(QRectF(x - half, plot.top() + 9, 2 * half, mLayout.line())))
            continue;
        mLabels.draw(canvas, {QPointF(x, plot.top() + 9), text}, Qt::AlignHCenter | Qt::AlignTop);
        free = x + half;
    }
}

void GraphScene::drawHandles(Canvas& canvas) const
{
    if (mModel.settings().displayMode != eSplit)
        return;
    for (const int index : mModel.traces().shown()) {
        const QColor& colour = mModel.traces().at(index)->drawnColour;
        QPointF middle = mLayout.handle(index);
        if (index == mDragged.index) {
            const QRectF& plot = mLayout.plot();
            middle.setY(std::clamp(mDragged.y, plot.top(), plot.bottom()));
            const std::array line{QPointF(plot.left(), middle.y()), QPointF(plot.right() - 1, middle.y())};
            canvas.lines(line, {colour, 1.0, false, 6.0});
        }
        const double tall = std::clamp(mLayout.area(index).height() / 2 - 3, 3.0, 11.0);
        const auto arrow = [&](double sign) {
            return std::array{middle + QPointF(-6, sign * 2), middle + QPointF(6, sign * 2), middle + QPointF(0, sign * tall)};
        };
        canvas.polygon(arrow(-1), colour);
        canvas.polygon(arrow(1), colour);
    }
}

void GraphScene::drawMessage(Canvas& canvas) const
{
    if (mModel.scenery().message().isEmpty())
        return;
    const QRectF& plot = mLayout.plot();
    CanvasText style{mLayout.textSize() + 2, mLabels.contrast(), false, Qt::AlignHCenter | Qt::AlignVCenter, false};
    const QStringList lines = wrapped(mModel.scenery().message(),
                                      std::max(static_cast<int>(plot.width() / canvas.textSize(QStringLiteral("x"), style).width()), 1));
    const double height = mLayout.line() + 4;
    double y = plot.center().y() - static_cast<double>(lines.size() - 1) * height / 2, width = 0.0;
    for (const QString& line : lines)
        width = std::max(width, canvas.textSize(line, style).width());
    QRectF box(0, 0, width + 2 * height, static_cast<double>(lines.size() + 1) * height);
    box.moveCenter(plot.center());
    canvas.fillRect(box.intersected(plot), withAlpha(mModel.colours().background, 0.85)); // legend lines may stand there
    for (const QString& line : lines) {
        canvas.text(QPointF(plot.center().x(), y), line, style);
        y += height;
    }
}

} // namespace ZARN
