#include "ui/graph/model/GraphInteraction.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kZoomStep = 0.9;
constexpr double kWideZoomStep = 1.1111111111111112;
constexpr double kFastKey = 10.0;
constexpr double kClick = 4.0; // pixels that a hand may tremble

} // namespace

bool GraphInteraction::keyPressed(int key)
{
    switch (key) {
    case Qt::Key_Shift: mShift = true; return true;
    case Qt::Key_Control: mControl = true; return true;
    case Qt::Key_Alt: mAlt = true; return true;
    default: break;
    }
    const double step = mShift ? kFastKey : 1.0;
    const double second = step / mLayout.pixelsPerSecond();
    switch (key) {
    case Qt::Key_Left: moveCursorBy(-second, 0); return true;
    case Qt::Key_Right: moveCursorBy(second, 0); return true;
    case Qt::Key_Up: moveCursorBy(0, -step); return true;
    case Qt::Key_Down: moveCursorBy(0, step); return true;
    default: return false;
    }
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

void GraphInteraction::moveCursorBy(double seconds, double pixels)
{
    double value = mModel.cursorValue();
    int index = mModel.cursorIndex();
    const bool isSplit = mModel.displayMode() == eSplit;
    const GraphParameter* pParameter = mModel.parameter(isSplit ? index : mModel.axisParameter());
    if (pixels != 0 && pParameter && mModel.nrActive() > 0) {
        const double y = GraphLayout::yOf(value, mLayout.area(*pParameter), {pParameter->lower, pParameter->upper}) + pixels;
        if (isSplit) {
            index = mLayout.stripAt(mModel, y);
            pParameter = mModel.parameter(index);
        }
        value = GraphLayout::valueAt(y, mLayout.area(*pParameter), {pParameter->lower, pParameter->upper});
    }
    mModel.setCursorMoving(true);
    mModel.moveCursor(mModel.cursorTime() + seconds, value, index);
    if (seconds != 0)
        mModel.keepInside(mModel.cursorTime());
}

int GraphInteraction::handleAt(const QPointF& point) const
{
    if (mModel.displayMode() != eSplit)
        return -1;
    int found = -1;
    double least = GraphLayout::kHandleReach;
    for (const int index : mModel.shown()) {
        const QPointF distance = point - mLayout.handle(*mModel.parameter(index));
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
        mPan = {true, false, mModel.xmin(), mModel.xmax(), point};
}

void GraphInteraction::pressedLeft(const QPointF& point, Qt::KeyboardModifiers modifiers)
{
    const bool isShift = mShift || modifiers.testFlag(Qt::ShiftModifier);
    const bool isControl = mControl || modifiers.testFlag(Qt::ControlModifier);
    const int line = isShift || isControl ? -1 : mLayout.legendAt(mModel, point);
    if (line >= 0) {
        mModel.setPinned(mModel.pinned() == line ? -1 : line);
        return mModel.setHighlighted(line);
    }
    if (isInWords(point))
        return;
    mDragged = handleAt(point);
    const double time = mLayout.timeAt(point.x());
    if (isShift)
        return beginCursorDrag(point);
    if (!isControl)
        mModel.setMarker(time, time);
    else if (time < mModel.markerStart())
        mModel.setMarker(time, mModel.markerEnd());
    else
        mModel.setMarker(mModel.markerStart(), time);
    mMarkerDrag = !isControl && mDragged < 0;
    sendMarker();
}

void GraphInteraction::sendMarker()
{
    Q_EMIT mModel.signalMarker(static_cast<float>(mModel.markerStart()), static_cast<float>(mModel.markerEnd()));
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
    const bool isSplit = mModel.displayMode() == eSplit;
    const int index = isSplit ? mLayout.stripAt(mModel, point.y()) : mModel.axisParameter();
    double value = mModel.cursorValue();
    if (const GraphParameter* pParameter = mModel.parameter(index))
        value = GraphLayout::valueAt(point.y(), mLayout.area(*pParameter), {pParameter->lower, pParameter->upper});
    const QRectF& plot = mDragLayout.plot();
    const double x = std::clamp(point.x(), plot.left(), plot.right());
    mModel.moveCursor(mDragLayout.timeAt(x), value, isSplit ? index : mModel.cursorIndex());
}

void GraphInteraction::moved(const QPointF& point)
{
    const bool isClick = std::hypot(point.x() - mPan.start.x(), point.y() - mPan.start.y()) < kClick;
    mPointer = point;
    if (mPan.isOn && (mPan.hasMoved || !isClick))
        pan(point);
    mPointerTime = mLayout.timeAt(point.x());
    if (mPan.isOn)
        return;
    if (mDragged >= 0)
        return Q_EMIT mModel.signalRepaint();
    if (mMarkerDrag)
        return mModel.setMarker(mModel.markerStart(), mLayout.timeAt(point.x()));
    if (mCursorDrag)
        return cursorTo(point);
    const int line = mLayout.legendAt(mModel, point);
    mModel.setHighlighted(line >= 0 ? line : mModel.pinned());
}

void GraphInteraction::pan(const QPointF& point)
{
    mPan.hasMoved = true;
    const double seconds = (mPan.start.x() - point.x()) / mLayout.pixelsPerSecond();
    mModel.takeOverTime();
    mModel.setWindow(mPan.xmin + seconds, mPan.xmax + seconds);
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
        if (mPan.isOn && mPan.hasMoved)
            mModel.setWindow(mModel.xmin(), mModel.xmax());
        mPan.isOn = mPan.hasMoved = false;
        return isMenu;
    }
    return false;
}

void GraphInteraction::releasedLeft(const QPointF& point)
{
    const int dragged = mDragged;
    mDragged = -1;
    if (dragged >= 0) {
        const int target = mLayout.stripAt(mModel, point.y());
        if (target >= 0 && target != dragged)
            mModel.moveParameter(dragged, target);
        Q_EMIT mModel.signalRepaint();
    }
    if (mModel.markerEnd() < mModel.markerStart())
        mModel.setMarker(mModel.markerEnd(), mModel.markerStart());
    if (mMarkerDrag && mModel.hasMarkerRange())
        sendMarker();
    mMarkerDrag = false;
    mCursorDrag = false;
}

void GraphInteraction::wheel(int delta, Qt::KeyboardModifiers modifiers)
{
    if (mShift || modifiers.testFlag(Qt::ShiftModifier))
        return;
    mModel.takeOverTime();
    mModel.zoomAbout(mPointerTime, delta >= 1 ? kZoomStep : kWideZoomStep);
}

} // namespace ZARN
