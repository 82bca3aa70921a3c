#include "ui/graph/model/GraphAxes.h"

#include "ui/canvas/ColourContrast.h"
#include "ui/graph/model/AxisTicks.h"

#include <array>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kTickSpacing = 100.0; // pixels between labels of the time axis at least
constexpr double kGridAlpha = 0.55, kFineAlpha = 0.18;
constexpr double kBandAlpha = 0.22, kReferenceAlpha = 0.12;
constexpr double kEdgeAlpha = 0.6; // between strips

} // namespace

void GraphAxes::draw(Canvas& canvas) const
{
    drawBands(canvas);
    drawTimeAxis(canvas);
    if (mModel.settings().displayMode == eSingleGraph || mModel.traces().count() == 0)
        return drawValueAxis(canvas, mModel.traces().axis());
    for (const int index : mModel.traces().shown())
        drawValueAxis(canvas, index);
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
    const QString text = times.title();
    const QPointF corner(4, mLayout.plot().bottom() + 5);
    canvas.text(corner, text, mLabels.style(Qt::AlignLeft | Qt::AlignTop));
    return corner.x() + static_cast<double>(text.size()) * mLayout.character() + 4;
}

void GraphAxes::drawValueAxis(Canvas& canvas, int index) const
{
    const QRectF area = mLayout.area(index);
    const ValueSpan span = mModel.valueSpan(index);
    const AxisTicks ticks(span[0], span[1], area.height(), GraphLayout::valueSpacing(area.height(), mLayout.line()));
    std::vector<QPointF> major, fine;
    std::vector<GraphLabels::Label> labels;
    for (const AxisTick& tick : isStateStrip(mModel, index) ? std::vector<AxisTick>() : ticks.ticks()) {
        const double y = std::floor(GraphLayout::yOf(tick.value, area, span));
        if (y < area.top() || y >= area.bottom())
            continue;
        std::vector<QPointF>& lines = tick.isMajor ? major : fine;
        lines.insert(lines.end(), {QPointF(area.left(), y), QPointF(area.right() - 1, y)});
        // A label that would hang over into the next strip is left out.
        const double half = mLayout.line() / 2;
        if (tick.isMajor && y - half >= area.top() - 1 && y + half <= area.bottom() + 1)
            labels.push_back({QPointF(area.left() - 5, y), ticks.valueLabel(tick.value)});
    }
    mLabels.draw(canvas, labels, Qt::AlignRight | Qt::AlignVCenter);
    drawGrid(canvas, fine, major);
    const bool isSplit = mModel.settings().displayMode == eSplit;
    if (isSplit && area.bottom() < mLayout.plot().bottom()) {
        const std::array line{QPointF(area.left(), area.bottom()), QPointF(area.right() - 1, area.bottom())};
        canvas.lines(line, {mLabels.contrast(kEdgeAlpha)});
    }
    if (const GraphParameter* pTrace = mModel.traces().at(index); pTrace && !isSplit && mModel.traces().count() > 1)
        drawAxisName(canvas, *pTrace);
}

void GraphAxes::drawAxisName(Canvas& canvas, const GraphParameter& trace) const
{
    // Whose values the axis shows; the others have spans of their own.
    const QString text = GraphLayout::shortened(trace.label(), GraphLayout::kLongestLabel);
    const QPointF corner(GraphLayout::kHandleX - 4, mLayout.plot().top() - mLayout.line() - 3);
    canvas.fillRect(QRectF(corner.x(), corner.y() + 2, 10, mLayout.line() - 4), trace.drawnColour);
    canvas.text(corner + QPointF(14, 1), text, mLabels.style(Qt::AlignLeft | Qt::AlignTop));
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
