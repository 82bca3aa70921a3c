#include "ui/graph/model/GraphScene.h"

#include "ui/graph/model/AxisTicks.h"
#include "ui/graph/model/GraphTables.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ZARN {

namespace {

constexpr double kTickSpacing = 100.0; // pixels between labels of the time axis at least
constexpr double kGridAlpha = 0.55, kFineAlpha = 0.18;
constexpr double kBandAlpha = 0.22;
constexpr double kSampleDistance = 5.0; // pixels from sample to sample from which each can be marked

QColor faint(QColor colour, double alpha)
{
    colour.setAlphaF(static_cast<float>(alpha));
    return colour;
}

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

GraphLayout GraphScene::prepare(GraphModel& model, const QSizeF& size, double textSize, double ratio)
{
    model.calcRanges();
    const GraphLayout layout(model, size, textSize);
    model.setPlot(static_cast<int>(std::lround(layout.plot().width() * ratio)), layout.plot().height());
    model.calcFrame();
    return layout;
}

void GraphScene::setDragged(int index, double y)
{
    mDragged = index;
    mDragY = y;
}

CanvasText GraphScene::labelStyle(Qt::Alignment align) const
{
    return {mLayout.textSize(), mModel.colours().label.colour(), true, align, false};
}

void GraphScene::drawBox(Canvas& canvas, const Label& label, const CanvasText& style) const
{
    const QSizeF box = canvas.textSize(label.text, style);
    QRectF area(label.position, box);
    if (style.align & Qt::AlignHCenter)
        area.translate(-box.width() / 2, 0);
    else if (style.align & Qt::AlignRight)
        area.translate(-box.width(), 0);
    if (style.align & Qt::AlignVCenter)
        area.translate(0, -box.height() / 2);
    else if (style.align & Qt::AlignBottom)
        area.translate(0, -box.height());
    canvas.fillRect(area.adjusted(-2, 0, 2, 0), mModel.colours().labelBackground.colour());
}

void GraphScene::drawLabel(Canvas& canvas, const QPointF& position, const QString& text, Qt::Alignment align) const
{
    drawLabels(canvas, {{position, text}}, align);
}

void GraphScene::drawLabels(Canvas& canvas, const std::vector<Label>& labels, Qt::Alignment align) const
{
    const CanvasText style = labelStyle(align);
    for (const Label& label : labels)
        drawBox(canvas, label, style);
    for (const Label& label : labels)
        canvas.text(label.position, label.text, style);
}

QColor GraphScene::contrast() const
{
    return mModel.colours().background.luminance() < 0.5 ? QColor(Qt::white) : QColor(Qt::black);
}

template <typename Visitor> void GraphScene::forEachArea(Visitor visit) const
{
    if (mModel.displayMode() == eSingleGraph || mModel.nrActive() == 0)
        return visit(mLayout.plot(), mModel.axisParameter());
    for (const int index : mModel.shown())
        visit(mLayout.area(*mModel.parameter(index)), index);
}

void GraphScene::draw(Canvas& canvas)
{
    canvas.fillRect(mLayout.plot(), mModel.colours().background.colour());
    drawBands(canvas);
    drawTimeAxis(canvas);
    forEachArea([&](const QRectF& area, int index) { drawValueAxis(canvas, area, index); });
    drawTraces(canvas);
    drawMarker(canvas);
    const CursorLabels cursor(mModel, mLayout);
    drawTopMarkers(canvas, cursor);
    canvas.outline(mLayout.plot(), {faint(contrast(), 0.6)});
    drawHandles(canvas);
    const GraphTables tables(mModel, mLayout);
    tables.drawOverlay(canvas, cursor);
    drawCursor(canvas, cursor);
    tables.draw(canvas);
    drawMessage(canvas);
}

void GraphScene::drawBands(Canvas& canvas) const
{
    const auto fill = [&](const QRectF& area, double lower, double upper, int index, const QColor& colour) {
        const double top = GraphLayout::yOf(upper, area, mModel.valueRange(index)),
                     bottom = GraphLayout::yOf(lower, area, mModel.valueRange(index));
        const QRectF band = QRectF(QPointF(area.left(), top), QPointF(area.right(), bottom)).intersected(area);
        if (!band.isEmpty())
            canvas.fillRect(band, colour);
    };
    if (mModel.getYRangeOn())
        fill(mLayout.plot(), mModel.yRange()[0], mModel.yRange()[1], mModel.axisParameter(), faint(contrast(), 0.12));
    const bool isSplit = mModel.displayMode() == eSplit;
    for (const int index : mModel.shown()) {
        if (!isSplit && index != mModel.highlighted())
            continue;
        const GraphParameter& parameter = *mModel.parameter(index);
        for (const GraphBand& band : parameter.bands)
            fill(mLayout.area(parameter), band.lower, band.upper, index, faint(band.colour, kBandAlpha));
    }
}

void GraphScene::drawTimeAxis(Canvas& canvas) const
{
    const QRectF& plot = mLayout.plot();
    AxisTicks ticks(mModel.xmin(), mModel.xmax(), plot.width(), kTickSpacing);
    const double label = static_cast<double>(ticks.timeLabel(mModel.xmax()).size() + 2) * mLayout.character();
    if (label > kTickSpacing)
        ticks = AxisTicks(mModel.xmin(), mModel.xmax(), plot.width(), label);
    std::vector<QPointF> major, fine;
    std::vector<Label> labels;
    for (const AxisTick& tick : ticks.ticks()) {
        const double x = std::floor(mLayout.xOf(tick.value));
        if (mModel.isGridOn())
            (tick.isMajor ? major : fine)
                .insert((tick.isMajor ? major : fine).end(), {QPointF(x, plot.top()), QPointF(x, plot.bottom() - 1)});
        const QString text = ticks.timeLabel(tick.value);
        const double half = static_cast<double>(text.size()) * mLayout.character() / 2 + 2;
        if (tick.isMajor && x - half >= 0 && x + half <= mLayout.width())
            labels.push_back({QPointF(x, plot.bottom() + 5), text});
    }
    drawLabels(canvas, labels, Qt::AlignHCenter | Qt::AlignTop);
    const QColor colour = mModel.colours().grid.colour();
    canvas.lines(fine, {faint(colour, kFineAlpha)});
    canvas.lines(major, {faint(colour, kGridAlpha)});
}

void GraphScene::drawValueAxis(Canvas& canvas, const QRectF& area, int index) const
{
    const std::array<double, 2> range = mModel.valueRange(index);
    const AxisTicks ticks(range[0], range[1], area.height(), GraphLayout::kValueSpacing * mLayout.line());
    std::vector<QPointF> major, fine;
    std::vector<Label> labels;
    for (const AxisTick& tick : ticks.ticks()) {
        const double y = std::floor(GraphLayout::yOf(tick.value, area, range));
        if (y < area.top() || y >= area.bottom())
            continue;
        if (mModel.isGridOn())
            (tick.isMajor ? major : fine)
                .insert((tick.isMajor ? major : fine).end(), {QPointF(area.left(), y), QPointF(area.right() - 1, y)});
        // A label that would hang over into the next strip is left out.
        const double half = mLayout.line() / 2;
        if (tick.isMajor && y - half >= area.top() - 1 && y + half <= area.bottom() + 1)
            labels.push_back({QPointF(area.left() - 5, y), ticks.valueLabel(tick.value)});
    }
    drawLabels(canvas, labels, Qt::AlignRight | Qt::AlignVCenter);
    const QColor colour = mModel.colours().grid.colour();
    canvas.lines(fine, {faint(colour, kFineAlpha)});
    canvas.lines(major, {faint(colour, kGridAlpha)});
    if (mModel.displayMode() == eSplit && area.bottom() < mLayout.plot().bottom()) {
        const std::array line{QPointF(area.left(), area.bottom()), QPointF(area.right() - 1, area.bottom())};
        canvas.lines(line, {faint(contrast(), 0.6)});
    }
    const GraphParameter* pParameter = mModel.parameter(index);
    if (pParameter && mModel.displayMode() == eSingleGraph && mModel.nrActive() > 1) {
        // Whose values the axis shows; the others have ranges of their own.
        const QString text = GraphLayout::shortened(pParameter->label(), 40);
        const QPointF corner(GraphLayout::kHandleX - 4, area.top() - mLayout.line() - 3);
        canvas.fillRect(QRectF(corner.x(), corner.y() + 2, 10, mLayout.line() - 4), pParameter->drawnColour);
        canvas.text(corner + QPointF(14, 1), text, labelStyle(Qt::AlignLeft | Qt::AlignTop));
    }
}

void GraphScene::drawTraces(Canvas& canvas)
{
    const int highlighted = mModel.highlighted();
    for (const int index : mModel.shown()) {
        if (index != highlighted)
            drawTrace(canvas, *mModel.parameter(index), false);
    }
    if (const GraphParameter* pParameter = mModel.parameter(highlighted))
        drawTrace(canvas, *pParameter, true);
}

void GraphScene::drawTrace(Canvas& canvas, const GraphParameter& parameter, bool isHighlighted)
{
    const QRectF area = mLayout.area(parameter);
    const std::array range{parameter.lower, parameter.upper};
    // Vertices become pixels: the middle of a pixel is half a pixel after its edge.
    const double left = area.left() - 0.5, scale = mLayout.pixelsPerSecond();
    mPoints.clear();
    for (const QPointF& vertex : parameter.frame)
        mPoints.emplace_back(left + vertex.x() * scale, GraphLayout::yOf(vertex.y(), area, range) - 0.5);
    canvas.push();
    canvas.clip(area);
    canvas.lineStrip(mPoints, {parameter.drawnColour, isHighlighted ? 2.0 : 1.0});
    if (parameter.samplesVisible || mPoints.size() == 1)
        drawSamples(canvas, parameter);
    canvas.pop();
}

void GraphScene::drawSamples(Canvas& canvas, const GraphParameter& parameter) const
{
    if (mPoints.size() > 1 && mPoints.back().x() - mPoints.front().x() < kSampleDistance * static_cast<double>(mPoints.size()))
        return;
    for (const QPointF& point : mPoints)
        canvas.fillRect(QRectF(std::round(point.x()) - 1, std::round(point.y()) - 1, 3, 3), parameter.drawnColour);
}

void GraphScene::drawMarker(Canvas& canvas) const
{
    const QRectF& plot = mLayout.plot();
    const auto [start, end] = std::minmax({mModel.markerStart(), mModel.markerEnd()});
    const double left = std::clamp(mLayout.xOf(start), plot.left() - 2, plot.right() + 2);
    const double right = std::clamp(mLayout.xOf(end), plot.left() - 2, plot.right() + 2);
    // Where it stands before anybody has set it, it is no marker.
    if ((start == 0 && end == 0) || right < plot.left() || left > plot.right())
        return;
    canvas.push();
    canvas.clip(plot);
    canvas.fillRect(QRectF(QPointF(left, plot.top()), QPointF(right, plot.bottom())), faint(contrast(), 0.14));
    const double a = std::floor(left), b = std::floor(right);
    const std::array lines{QPointF(a, plot.top()), QPointF(a, plot.bottom() - 1), QPointF(b, plot.top()), QPointF(b, plot.bottom() - 1)};
    canvas.lines(lines, {contrast(), 1.0, false, 4.0});
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
        canvas.lines(line, {contrast()});
        const QString text = QString::number(marker.index);
        const double half = static_cast<double>(text.size()) * mLayout.character() / 2 + 3;
        if (x - half < free || cursor.covers(QRectF(x - half, plot.top() + 9, 2 * half, mLayout.line())))
            continue;
        drawLabel(canvas, QPointF(x, plot.top() + 9), text, Qt::AlignHCenter | Qt::AlignTop);
        free = x + half;
    }
}

void GraphScene::drawHandles(Canvas& canvas) const
{
    if (mModel.displayMode() != eSplit)
        return;
    for (const int index : mModel.shown()) {
        const GraphParameter& parameter = *mModel.parameter(index);
        QPointF middle = mLayout.handle(parameter);
        if (index == mDragged) {
            const QRectF& plot = mLayout.plot();
            middle.setY(std::clamp(mDragY, plot.top(), plot.bottom()));
            const std::array line{QPointF(plot.left(), middle.y()), QPointF(plot.right() - 1, middle.y())};
            canvas.lines(line, {parameter.drawnColour, 1.0, false, 6.0});
        }
        const double tall = std::clamp(mLayout.area(parameter).height() / 2 - 3, 3.0, 11.0);
        const auto arrow = [&](double sign) {
            return std::array{middle + QPointF(-6, sign * 2), middle + QPointF(6, sign * 2), middle + QPointF(0, sign * tall)};
        };
        canvas.polygon(arrow(-1), parameter.drawnColour);
        canvas.polygon(arrow(1), parameter.drawnColour);
    }
}

void GraphScene::drawMessage(Canvas& canvas) const
{
    if (mModel.message().isEmpty())
        return;
    const QRectF& plot = mLayout.plot();
    CanvasText style{mLayout.textSize() + 2, contrast(), false, Qt::AlignHCenter | Qt::AlignVCenter, false};
    const QStringList lines =
        wrapped(mModel.message(), std::max(static_cast<int>(plot.width() / canvas.textSize(QStringLiteral("x"), style).width()), 1));
    const double height = mLayout.line() + 4;
    double y = plot.center().y() - static_cast<double>(lines.size() - 1) * height / 2, width = 0.0;
    for (const QString& line : lines)
        width = std::max(width, canvas.textSize(line, style).width());
    QRectF box(0, 0, width + 2 * height, static_cast<double>(lines.size() + 1) * height);
    box.moveCenter(plot.center());
    canvas.fillRect(box.intersected(plot), faint(mModel.colours().background.colour(), 0.85)); // legend lines may stand there
    for (const QString& line : lines) {
        canvas.text(QPointF(plot.center().x(), y), line, style);
        y += height;
    }
}

} // namespace ZARN
