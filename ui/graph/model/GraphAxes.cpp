#include "ui/graph/model/GraphAxes.h"

#include "ui/canvas/ColourContrast.h"
#include "ui/canvas/ShortName.h"
#include "ui/graph/model/AxisLabels.h"
#include "ui/graph/model/AxisTicks.h"

#include <QCoreApplication>

#include <array>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kTickSpacing = 100.0; // pixels between labels of the time axis at least
constexpr double kGridAlpha = 0.55, kFineAlpha = 0.18;
constexpr double kBandAlpha = 0.22, kReferenceAlpha = 0.12;
constexpr double kEdgeAlpha = 0.6; // between strips
constexpr double kLabelGap = 5.0;  // between the labels of an axis and the plot
constexpr double kLabelContrast = 4.5;

} // namespace

void GraphAxes::draw(Canvas& canvas) const
{
    drawBands(canvas);
    drawTimeAxis(canvas);
    const bool isSplit = mModel.settings().displayMode == eSplit;
    for (const ValueAxis& axis : mLayout.axes())
        drawValueAxis(canvas, axis, isSplit || &axis == &mLayout.axes().front());
}

void GraphAxes::drawBands(Canvas& canvas) const
{
    const ValueScale& scale = mModel.settings().scale;
    const bool isSplit = mModel.settings().displayMode == eSplit;
    if (scale.isReferenceShown)
        drawBand(canvas, mModel.traces().axis(), scale.reference, mLabels.contrast(kReferenceAlpha));
    for (const int index : mModel.traces().shown()) {
        if (!isSplit && index != mModel.traces().highlighted())
            continue;
        for (const GraphBand& band : mModel.traces().at(index)->bands)
            drawBand(canvas, index, {band.lower, band.upper}, withAlpha(band.colour, kBandAlpha));
    }
}

void GraphAxes::drawBand(Canvas& canvas, int index, const ValueSpan& values, const QColor& colour) const
{
    const QRectF area = mLayout.area(index);
    const ValueSpan span = mModel.valueSpan(index);
    const double top = GraphLayout::yOf(values[1], area, span), bottom = GraphLayout::yOf(values[0], area, span);
    const QRectF band = QRectF(QPointF(area.left(), top), QPointF(area.right(), bottom)).intersected(area);
    if (!band.isEmpty())
        canvas.fillRect(band, colour);
}

void GraphAxes::drawTimeAxis(Canvas& canvas) const
{
    const QRectF& plot = mLayout.plot();
    const TimeReference& times = mModel.settings().times;
    // Round are the times that are told.
    const TimeWindow window = mModel.window().movedBy(times.shift());
    AxisTicks ticks = AxisTicks::ofTime(window.begin(), window.end(), plot.width(), kTickSpacing);
    const double label = static_cast<double>(ticks.timeLabel(window.end()).size() + 2) * mLayout.character();
    if (label > kTickSpacing)
        ticks = AxisTicks::ofTime(window.begin(), window.end(), plot.width(), label);
    const double free = drawTimeTitle(canvas);
    std::vector<QPointF> major, fine;
    std::vector<GraphLabels::Label> labels;
    for (const AxisTick& tick : ticks.ticks()) {
        const double recorded = tick.value - times.shift();
        const double x = std::floor(mLayout.xOf(recorded));
        std::vector<QPointF>& lines = tick.isMajor ? major : fine;
        lines.insert(lines.end(), {QPointF(x, plot.top()), QPointF(x, plot.bottom() - 1)});
        const QString text = ticks.timeLabel(times.kind() == ETimeReference::eClock ? times.told(recorded) : tick.value);
        const double half = static_cast<double>(text.size()) * mLayout.character() / 2 + 2;
        if (tick.isMajor && x - half >= free && x + half <= mLayout.view().width())
            labels.push_back({QPointF(x, plot.bottom() + 5), text});
    }
    mLabels.draw(canvas, labels, Qt::AlignHCenter | Qt::AlignTop);
    drawGrid(canvas, fine, major);
}

double GraphAxes::drawTimeTitle(Canvas& canvas) const
{
    const TimeReference& times = mModel.settings().times;
    if (times.kind() == ETimeReference::ePowerUp)
        return 0.0;
    // Little room: the tick at the take-off itself is worth more.
    const bool isTakeOff = times.kind() == ETimeReference::eTakeOff;
    const QString text =
        isTakeOff ? QCoreApplication::translate("ZARN::GraphAxes", "Take-off") : times.title();
    const QPointF corner(4, mLayout.plot().bottom() + 5);
    canvas.text(corner, text, mLabels.style(Qt::AlignLeft | Qt::AlignTop));
    return corner.x() + static_cast<double>(text.size()) * mLayout.character() + 4;
}

void GraphAxes::drawValueAxis(Canvas& canvas, const ValueAxis& axis, bool hasGrid) const
{
    const QRectF area = mLayout.area(axis.index);
    const ValueSpan span = mModel.valueSpan(axis.index);
    const AxisTicks ticks(span[0], span[1], area.height(), valueSpacing(area.height(), mLayout.line()));
    const double right = axis.labels.right();
    std::vector<QPointF> major, fine, marks;
    std::vector<GraphLabels::Label> labels;
    for (const AxisTick& tick : isStateStrip(mModel, axis.index) ? std::vector<AxisTick>() : ticks.ticks()) {
        const double y = std::floor(GraphLayout::yOf(tick.value, area, span));
        if (y < area.top() || y >= area.bottom())
            continue;
        std::vector<QPointF>& lines = tick.isMajor ? major : fine;
        lines.insert(lines.end(), {QPointF(area.left(), y), QPointF(area.right() - 1, y)});
    }
    for (const AxisLabel& label : axisLabels(mModel, axis.index, ticks, area.height(), mLayout.line())) {
        const double y = area.top() + label.y;
        labels.push_back({QPointF(right - kLabelGap, y), label.text});
        const double mark = area.top() + label.tick.value_or(0);
        if (label.tick)
            marks.insert(marks.end(), {QPointF(right - kLabelGap + 2, mark), QPointF(right - 1, mark)});
    }
    const bool isSplit = mModel.settings().displayMode == eSplit;
    const std::optional<QColor> colour = isSplit || !axis.isOwn ? std::nullopt : axisColour(axis.index);
    mLabels.draw(canvas, labels, Qt::AlignRight | Qt::AlignVCenter, colour);
    if (hasGrid)
        drawGrid(canvas, fine, major);
    if (isSplit && area.bottom() < mLayout.plot().bottom()) {
        const std::array line{QPointF(area.left(), area.bottom()), QPointF(area.right() - 1, area.bottom())};
        canvas.lines(line, {mLabels.contrast(kEdgeAlpha)});
    }
    if (isSplit || mModel.traces().count() <= 1)
        return;
    if (mLayout.axes().size() > 1) {
        marks.insert(marks.end(), {QPointF(right - 1, area.top()), QPointF(right - 1, area.bottom() - 1)});
        canvas.lines(marks, {colour.value_or(mModel.colours().label)});
    }
    drawAxisName(canvas, axis, hasGrid);
}

std::optional<QColor> GraphAxes::axisColour(int index) const
{
    // One trace needs no telling which.
    if (mModel.traces().count() <= 1)
        return std::nullopt;
    return readableOn(mModel.colours().labelBackground, mModel.traces().at(index)->drawnColour, kLabelContrast);
}

void GraphAxes::drawAxisName(Canvas& canvas, const ValueAxis& axis, bool isFront) const
{
    const GraphParameter& trace = *mModel.traces().at(axis.index);
    const double top = mLayout.plot().top() - mLayout.line() - 3;
    if (!isFront) {
        // No room for more than the unit: the colour tells whose it is.
        const auto room = static_cast<int>((axis.labels.width() - kLabelGap) / mLayout.character());
        const CanvasText style = mLabels.style(Qt::AlignRight | Qt::AlignTop, axis.isOwn ? axisColour(axis.index) : std::nullopt);
        return canvas.text(QPointF(axis.labels.right() - kLabelGap, top + 1), cutText(trace.unit, room), style);
    }
    // Whose values the grid stands at; the others have spans of their own.
    const QPointF corner(mLayout.axes().size() > 1 ? axis.labels.left() : GraphLayout::kHandleX - 4, top);
    const bool isUnit = !axis.isOwn && mModel.settings().scale.isShared && !trace.unit.isEmpty();
    if (!isUnit)
        canvas.fillRect(QRectF(corner.x(), corner.y() + 2, 10, mLayout.line() - 4), trace.drawnColour);
    const QString text =
        isUnit ? QLatin1Char('[') + trace.unit + QLatin1Char(']') : shortName(trace.label(), GraphLayout::kLongestLabel);
    canvas.text(corner + QPointF(isUnit ? 0 : 14, 1), text, mLabels.style(Qt::AlignLeft | Qt::AlignTop));
}

void GraphAxes::drawGrid(Canvas& canvas, std::span<const QPointF> fine, std::span<const QPointF> major) const
{
    if (!mModel.settings().gridOn)
        return;
    const QColor& colour = mModel.colours().grid;
    canvas.lines(fine, {withAlpha(colour, kFineAlpha)});
    canvas.lines(major, {withAlpha(colour, kGridAlpha)});
}

} // namespace ZARN
