#include "ui/graph/model/CursorLabels.h"

#include "ui/canvas/CanvasFont.h"
#include "ui/graph/model/GraphTexts.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kDistance = 5.0; // from the cursor's line

} // namespace

CursorLabels::CursorLabels(const GraphModel& model, const GraphLayout& layout) : mModel(model), mLayout(layout)
{
    const double x = std::floor(layout.xOf(model.cursorTime()));
    if (!model.isCursorOn() || !(x >= layout.plot().left()) || !(x <= layout.plot().right()))
        return;
    mX = x;
    addTime();
    if (model.displayMode() == eSplit)
        addValues();
    if (model.isCursorMoving())
        addMoved();
}

bool CursorLabels::covers(const QRectF& rect) const
{
    return std::ranges::any_of(mLabels, [&rect](const Label& label) { return label.box.intersects(rect); });
}

double CursorLabels::widthOf(const QString& text) const
{
    return canvasTextSize(text, mLayout.textSize(), true).width() + kDistance + 2;
}

bool CursorLabels::isRightOf(const QString& text) const
{
    const double width = widthOf(text), left = *mX - mLayout.plot().left(), right = mLayout.plot().right() - *mX;
    return width < right || (width > left && left < right);
}

void CursorLabels::add(double top, const QString& text, bool isRight)
{
    const double width = widthOf(text);
    const QPointF corner(isRight ? *mX : *mX - width, top);
    mLabels.push_back({QPointF(*mX + (isRight ? kDistance : -kDistance), top), text,
                       (isRight ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignTop, QRectF(corner, QSizeF(width, mLayout.line() - 2))});
}

void CursorLabels::addTime()
{
    // Above the strips, for the first one's value stands at its top; over a single graph the axis has its name.
    const QRectF& plot = mLayout.plot();
    const QString text = graphTime(mModel.cursorTime());
    add(mModel.displayMode() == eSplit ? plot.top() - mLayout.line() - 1 : plot.top() + 3, text, isRightOf(text));
}

void CursorLabels::addValues()
{
    const double height = mLayout.line() - 2;
    for (const int index : mModel.shown()) {
        const QRectF area = mLayout.area(*mModel.parameter(index));
        const std::optional<double> value = mModel.valueAtCursor(index);
        if (!value || area.height() < height)
            continue;
        const QString name = GraphLayout::shortened(mModel.parameter(index)->name, GraphLayout::kLongestName);
        const QString text = name + QLatin1Char('/') + graphNumber(*value, 2);
        add(area.top() + std::min(3.0, (area.height() - height) / 2), text, isRightOf(text));
    }
}

void CursorLabels::addMoved()
{
    const bool isSplit = mModel.displayMode() == eSplit;
    const int index = isSplit ? mModel.cursorIndex() : mModel.axisParameter();
    if (!std::ranges::count(mModel.shown(), index))
        return;
    const QRectF area = mLayout.area(*mModel.parameter(index));
    const double y = std::floor(GraphLayout::yOf(mModel.cursorValue(), area, mModel.valueRange(index)));
    if (y < area.top() || y >= area.bottom())
        return;
    mY = y;
    const QString text = graphNumber(mModel.cursorValue(), 2);
    const double height = mLayout.line() - 2;
    for (const bool isRight : {!isRightOf(mLabels.front().text), isRightOf(mLabels.front().text)}) {
        const double room = isRight ? mLayout.plot().right() - *mX : *mX - mLayout.plot().left();
        double top = std::max(area.top(), y - 2 - height);
        QRectF box(isRight ? *mX : *mX - widthOf(text), top, widthOf(text), height);
        for (const Label& label : mLabels) {
            if (label.box.intersects(box)) // below what stands there
                box.moveTop(top = label.box.bottom() + 1);
        }
        if (widthOf(text) < room && box.bottom() <= area.bottom())
            return add(top, text, isRight);
    }
}

} // namespace ZARN
