#include "ui/graph/model/CursorLabels.h"

#include "ui/canvas/CanvasFont.h"
#include "ui/canvas/ShortName.h"
#include "ui/graph/model/GraphTexts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kDistance = 5.0; // from the cursor's line
constexpr double kLevelAlpha = 0.7;

} // namespace

CursorLabels::CursorLabels(const GraphModel& model, const GraphLayout& layout) : mModel(model), mLayout(layout)
{
    const double x = std::floor(layout.xOf(model.cursor().time));
    if (!model.settings().cursorOn || !(x >= layout.plot().left()) || !(x <= layout.plot().right()))
        return;
    mX = x;
    addTime();
    if (model.settings().displayMode == eSplit)
        addValues();
    if (model.cursor().isMoving)
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
    const QString text = graphTime(mModel.settings().times.told(mModel.cursor().time));
    add(mModel.settings().displayMode == eSplit ? plot.top() - mLayout.line() - 1 : plot.top() + 3, text, isRightOf(text));
}

void CursorLabels::addValues()
{
    const double height = mLayout.line() - 2;
    for (const int index : mModel.traces().shown()) {
        const QRectF area = mLayout.area(index);
        const std::optional<double> value = mModel.traces().valueAt(index, mModel.cursor().time);
        if (!value || area.height() < height)
            continue;
        const GraphParameter& trace = *mModel.traces().at(index);
        const QString name = shortName(trace.name, GraphLayout::kLongestName);
        const QString text = name + QLatin1Char('/') + (trace.pStates ? trace.text(*value) : graphNumber(*value, 2));
        add(area.top() + std::min(3.0, (area.height() - height) / 2), text, isRightOf(text));
    }
}

void CursorLabels::addMoved()
{
    const bool isSplit = mModel.settings().displayMode == eSplit;
    const int index = isSplit ? mModel.cursor().strip : mModel.traces().axis();
    if (!isShown(mModel.traces(), index))
        return;
    const QRectF area = mLayout.area(index);
    const double y = std::floor(GraphLayout::yOf(mModel.cursor().value, area, mModel.valueSpan(index)));
    if (y < area.top() || y >= area.bottom())
        return;
    mY = y;
    const QString text = graphNumber(mModel.cursor().value, 2);
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

void CursorLabels::draw(Canvas& canvas, const GraphLabels& labels) const
{
    if (!mX)
        return;
    const QRectF& plot = mLayout.plot();
    const std::array upright{QPointF(*mX, plot.top()), QPointF(*mX, plot.bottom() - 1)};
    canvas.lines(upright, {labels.contrast()});
    if (mY) {
        const std::array level{QPointF(plot.left(), *mY), QPointF(plot.right() - 1, *mY)};
        canvas.lines(level, {labels.contrast(kLevelAlpha), 1.0, false, 3.0});
    }
    for (const Label& label : mLabels)
        labels.draw(canvas, {label.position, label.text}, label.align);
}

} // namespace ZARN
