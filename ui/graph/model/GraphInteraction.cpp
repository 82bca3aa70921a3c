#include "ui/graph/model/GraphInteraction.h"

#include "ui/graph/model/CourseBand.h"
#include "ui/graph/model/CursorLabels.h"
#include "ui/graph/model/KeyInteraction.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ZARN {

namespace {

constexpr double kZoomStep = 0.9;
constexpr double kNotch = 120.0; // of the wheel
constexpr double kFastKey = 10.0;
constexpr double kClick = 4.0; // pixels that a hand may tremble

bool isFar(const QPointF& a, const QPointF& b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y()) >= kClick;
}

} // namespace

bool GraphInteraction::keyPressed(int key, Qt::KeyboardModifiers modifiers)
{
    switch (key) {
    case Qt::Key_Shift: mShift = true; return true;
    case Qt::Key_Control: mControl = true; return true;
    case Qt::Key_Alt: mAlt = true; return true;
    default: break;
    }
    if (const GraphKey* pKey = GraphKey::find(key, modifiers)) {
        KeyInteraction(mModel, mLayout, mShift || modifiers.testFlag(Qt::ShiftModifier) ? kFastKey : 1.0).press(*pKey);
        return true;
    }
    return false;
}

bool GraphInteraction::keyReleased(int key)
{
    switch (key) {
    case Qt::Key_Shift: mShift = false; return true;
    case Qt::Key_Control: mControl = false; return true;
    case Qt::Key_Alt: mAlt = false; return true;
    default: return false;
    }
}

int GraphInteraction::legendAt(const QPointF& point) const
{
    const std::vector<int>& shown = mModel.traces().shown();
    for (std::size_t row = 0; row < shown.size(); ++row) {
        const QRectF line = mLayout.legendLine(mModel, row);
        if (line.contains(point)) // over the plot it gives way to the cursor's labels
            return mLayout.legendKind() == GraphLayout::ELegend::eNone && CursorLabels(mModel, mLayout).covers(line) ? -1 : shown[row];
    }
    return -1;
}

int GraphInteraction::handleAt(const QPointF& point) const
{
    if (mModel.settings().displayMode != eSplit)
        return -1;
    int found = -1;
    double least = GraphLayout::kHandleReach;
    for (const int index : mModel.traces().shown()) {
        const QPointF distance = point - mLayout.handle(index);
        const double squared = QPointF::dotProduct(distance, distance);
        if (squared < least) {
            least = squared;
            found = index;
        }
    }
    return found;
}

void GraphInteraction::pressed(Qt::MouseButton button, const QPointF& point, Qt::KeyboardModifiers modifiers)
{
    mPointer = point;
    mPointerTime = mLayout.timeAt(point.x());
    if (button == Qt::LeftButton)
        return pressedLeft(point, modifiers);
    if (button == Qt::MiddleButton && !isInWords(point)) {
        mModel.setCursorMoving(true);
        return beginCursorDrag(point);
    }
    if (button == Qt::RightButton && mPanningAllowed)
        mPan = {true, false, mModel.window(), point};
}

void GraphInteraction::pressedLeft(const QPointF& point, Qt::KeyboardModifiers modifiers)
{
    const bool isShift = mShift || modifiers.testFlag(Qt::ShiftModifier);
    const bool isControl = mControl || modifiers.testFlag(Qt::ControlModifier);
    const int line = isShift || isControl ? -1 : legendAt(point);
    if (line >= 0) {
        mModel.traces().togglePin(line);
        return mModel.traces().point(line);
    }
    if (const auto incident = CourseBand(mModel, mLayout).incidentAt(point))
        return Q_EMIT mModel.signalIncident(*incident);
    if (isInWords(point))
        return;
    if ((mAlt || modifiers.testFlag(Qt::AltModifier)) && mModel.scenery().ghost()) {
        mGhostDrag = mModel.scenery().ghostShift() - mLayout.timeAt(point.x());
        return;
    }
    mDragged = handleAt(point);
    if (isShift)
        return beginCursorDrag(point);
    if (mDragged >= 0 || mStrip.press(mLayout, point) || mAxis.press(mLayout, point))
        return;
    if (isControl)
        mMarker.extend(mLayout.timeAt(point.x()));
    else
        pressedPlain(point);
}

void GraphInteraction::pressedPlain(const QPointF& point)
{
    if (mMarker.take(mLayout, point))
        return;
    if (mModel.settings().clickMovesCursor) {
        mClick = point;
        return;
    }
    const double time = mLayout.timeAt(point.x());
    mMarker.begin(time);
    mMarker.extend(time);
}

bool GraphInteraction::doublePressed(const QPointF& point, Qt::KeyboardModifiers modifiers)
{
    const bool isPlain = !mShift && !mControl && modifiers == Qt::NoModifier;
    return isPlain && handleAt(point) < 0 && mStrip.edgeAt(mLayout, point) < 0 && mAxis.toggleFit(mLayout, point);
}

bool GraphInteraction::isInWords(const QPointF& point) const
{
    return mLayout.table().contains(point) || mLayout.legend().contains(point);
}

void GraphInteraction::beginCursorDrag(const QPointF& point)
{
    mCursorDrag = true;
    mDragLayout = mLayout;
    cursorTo(point);
}

void GraphInteraction::cursorTo(const QPointF& point)
{
    const bool isSplit = mModel.settings().displayMode == eSplit;
    const int index = isSplit ? mLayout.stripAt(mModel, point.y()) : mModel.traces().axis();
    double value = mModel.cursor().value;
    if (mModel.traces().at(index))
        value = valueAt(point.y(), mLayout.area(index), mModel.valueSpan(index));
    const QRectF& plot = mDragLayout.plot();
    const double x = std::clamp(point.x(), plot.left(), plot.right());
    mModel.moveCursor(mDragLayout.timeAt(x), value, isSplit ? index : mModel.cursor().strip);
}

void GraphInteraction::moved(const QPointF& point)
{
    mPointer = point;
    if (mPan.isOn && (mPan.hasMoved || isFar(point, mPan.start)))
        pan(point);
    mPointerTime = mLayout.timeAt(point.x());
    if (mPan.isOn)
        return;
    if (mDragged >= 0)
        return Q_EMIT mModel.signalRepaint();
    if (mGhostDrag)
        return mModel.scenery().setGhostShift(*mGhostDrag + mLayout.timeAt(point.x()));
    if (mStrip.isOn())
        return mStrip.move(point);
    if (mAxis.isOn())
        return mAxis.move(point);
    if (mClick && isFar(point, *mClick)) {
        mMarker.begin(mLayout.timeAt(mClick->x()));
        mClick.reset();
    }
    if (mMarker.isOn())
        return mMarker.move(mLayout.timeAt(point.x()));
    if (mClick)
        return;
    if (mCursorDrag)
        return cursorTo(point);
    mModel.traces().point(legendAt(point));
}

void GraphInteraction::pan(const QPointF& point)
{
    mPan.hasMoved = true;
    const double seconds = (mPan.start.x() - point.x()) / mLayout.pixelsPerSecond();
    mModel.takeOverTime();
    mModel.setWindow(mPan.window.movedBy(seconds));
}

bool GraphInteraction::released(Qt::MouseButton button, const QPointF& point)
{
    if (button == Qt::LeftButton) {
        releasedLeft(point);
    } else if (button == Qt::MiddleButton) {
        mCursorDrag = false;
        mModel.setCursorMoving(false);
        Q_EMIT mModel.signalMoveCursorFinished();
    } else if (button == Qt::RightButton) {
        const bool isMenu = !mPan.hasMoved;
        mPan.isOn = mPan.hasMoved = false;
        return isMenu;
    }
    return false;
}

void GraphInteraction::releasedLeft(const QPointF& point)
{
    mGhostDrag.reset();
    const int dragged = mDragged;
    mDragged = -1;
    if (std::exchange(mClick, std::nullopt))
        beginCursorDrag(point);
    if (dragged >= 0) {
        mStrip.moveTo(dragged, mLayout.stripAt(mModel, point.y()));
        Q_EMIT mModel.signalRepaint();
    }
    mStrip.release();
    mAxis.release();
    mMarker.release();
    mCursorDrag = false;
}

void GraphInteraction::wheel(int delta, Qt::KeyboardModifiers modifiers)
{
    if (mShift || modifiers.testFlag(Qt::ShiftModifier))
        return;
    const bool isTable = mLayout.table().contains(mPointer) && mLayout.markerSheet().visible().isCut();
    if (isTable || (mLayout.legend().contains(mPointer) && mLayout.legendRows().isCut() && !mLayout.isLegendInStrips()))
        return scroll(isTable, delta);
    // A notch is a step, and what a touch pad tells a part of one.
    zoom(std::pow(kZoomStep, static_cast<double>(delta) / kNotch));
}

void GraphInteraction::zoom(double factor)
{
    if (!(factor > 0) || !std::isfinite(factor) || mAxis.zoom(mLayout, mPointer, factor))
        return;
    mModel.takeOverTime();
    mModel.setWindow(mModel.window().zoomedAbout(mPointerTime, factor));
}

void GraphInteraction::swiped(double pixels)
{
    mModel.takeOverTime();
    mModel.setWindow(mModel.window().movedBy(-pixels / mLayout.pixelsPerSecond()));
}

void GraphInteraction::scroll(bool isTable, int delta)
{
    constexpr double kLines = 3.0; // a notch
    const VisibleRows& rows = isTable ? mLayout.markerSheet().visible() : mLayout.legendRows();
    mScrolled -= kLines * delta / kNotch;
    const double whole = std::trunc(mScrolled);
    mScrolled -= whole;
    (isTable ? mModel.settings().firstTableRow : mModel.settings().firstLegendRow) =
        std::clamp(rows.first + static_cast<int>(whole), 0, rows.all - rows.count);
    Q_EMIT mModel.signalRepaint();
}

Qt::CursorShape GraphInteraction::shape() const
{
    if (mPan.isOn)
        return Qt::ClosedHandCursor;
    if (mStrip.isOn() || mAxis.isOn())
        return mStrip.isOn() ? Qt::SplitVCursor : Qt::SizeVerCursor;
    if (legendAt(mPointer) >= 0 || handleAt(mPointer) >= 0)
        return Qt::PointingHandCursor;
    if (mStrip.edgeAt(mLayout, mPointer) >= 0)
        return Qt::SplitVCursor;
    if (axisAt(mLayout, mPointer) >= 0)
        return Qt::SizeVerCursor;
    return mMarker.isEnd(mLayout, mPointer) ? Qt::SplitHCursor : Qt::ArrowCursor;
}

} // namespace ZARN
