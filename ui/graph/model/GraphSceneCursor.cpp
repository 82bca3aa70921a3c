// The cursor of GraphScene and what it tells.

#include "card/CardContainer.h"
#include "ui/graph/model/GraphScene.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

std::optional<double> GraphScene::cursorX() const
{
    const double x = std::floor(mLayout.xOf(mModel.cursorTime()));
    const bool isInPlot = x >= mLayout.plot().left() && x <= mLayout.plot().right();
    return mModel.isCursorOn() && isInPlot ? std::optional(x) : std::nullopt;
}

std::array<double, 2> GraphScene::besideCursor(double x, const QString& text) const
{
    const QRectF& plot = mLayout.plot();
    const double width = static_cast<double>(text.size()) * mLayout.character() + 12;
    const double left = x - plot.left(), right = plot.right() - x;
    const bool isRight = width < right || (width > left && left < right);
    return isRight ? std::array{x, x + width} : std::array{x - width, x};
}

double GraphScene::clearOfTime(double middle, double half) const
{
    const std::optional<double> x = cursorX();
    if (!x)
        return middle;
    const auto [left, right] = besideCursor(*x, CardContainer::time(mModel.cursorTime()));
    if (middle + half < left || middle - half > right)
        return middle;
    const bool fitsBefore = left - 2 * half >= mLayout.plot().left(), fitsAfter = right + 2 * half <= mLayout.plot().right();
    if (fitsBefore && (!fitsAfter || middle < (left + right) / 2))
        return left - half;
    return fitsAfter ? right + half : middle;
}

void GraphScene::drawCursor(Canvas& canvas) const
{
    const QRectF& plot = mLayout.plot();
    const std::optional<double> place = cursorX();
    if (!place)
        return;
    const double x = *place;
    const std::array line{QPointF(x, plot.top()), QPointF(x, plot.bottom() - 1)};
    canvas.lines(line, {contrast()});
    // Above the strips, for the first one's value stands at its top; over a single graph the axis has its name.
    const double y = mModel.displayMode() == eSplit ? plot.top() - mLayout.line() - 1 : plot.top() + 3;
    drawAtCursor(canvas, QPointF(x, y), CardContainer::time(mModel.cursorTime()), Qt::AlignTop);
    if (mModel.displayMode() == eSplit)
        drawCursorValues(canvas, x);
    else
        drawCursorValue(canvas, x);
}

void GraphScene::drawAtCursor(Canvas& canvas, const QPointF& position, const QString& text, Qt::Alignment vertical) const
{
    const bool isRight = besideCursor(position.x(), text).back() > position.x();
    drawLabel(canvas, position + QPointF(isRight ? 5 : -5, 0), text, (isRight ? Qt::AlignLeft : Qt::AlignRight) | vertical);
}

void GraphScene::drawCursorValues(Canvas& canvas, double x) const
{
    const double height = canvas.textSize(QStringLiteral("0"), labelStyle(Qt::AlignTop)).height();
    for (const int index : mModel.shown()) {
        const QRectF area = mLayout.area(*mModel.parameter(index));
        const std::optional<double> value = mModel.valueAtCursor(index);
        if (!value || area.height() < height)
            continue;
        const double y = area.top() + std::min(3.0, (area.height() - height) / 2);
        const QString name = GraphLayout::shortened(mModel.parameter(index)->name, GraphLayout::kLongestName);
        drawAtCursor(canvas, QPointF(x, y), name + QLatin1Char('/') + QString::number(*value, 'f', 2), Qt::AlignTop);
    }
}

void GraphScene::drawCursorValue(Canvas& canvas, double x) const
{
    if (!mModel.isCursorMoving() || mModel.axisParameter() < 0)
        return;
    const QRectF& plot = mLayout.plot();
    const double y = std::floor(GraphLayout::yOf(mModel.cursorValue(), plot, mModel.valueRange(mModel.axisParameter())));
    if (y < plot.top() || y >= plot.bottom())
        return;
    const std::array line{QPointF(plot.left(), y), QPointF(plot.right() - 1, y)};
    QColor colour = contrast();
    colour.setAlphaF(0.7F);
    canvas.lines(line, {colour, 1.0, false, 3.0});
    const double label = std::clamp(y - 2, plot.top() + 2 * mLayout.line() + 6, plot.bottom());
    drawAtCursor(canvas, QPointF(x, label), QString::number(mModel.cursorValue(), 'f', 2), Qt::AlignBottom);
}

} // namespace ZARN
