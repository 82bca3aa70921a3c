#include "ui/graph/model/GraphInteraction.h"

#include "ui/graph/model/CourseBand.h"
#include "ui/graph/model/CursorLabels.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ZARN {

namespace {

constexpr double kZoomStep = 0.9;
constexpr double kWideZoomStep = 1.1111111111111112;
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
    const double step = mShift || modifiers.testFlag(Qt::ShiftModifier) ? kFastKey : 1.0;
    const double second = step / mLayout.pixelsPerSecond();
    switch (key) {
    case Qt::Key_Left: moveCursorBy(-second); return true;
    case Qt::Key_Right: moveCursorBy(second); return true;
    case Qt::Key_Up: moveValueBy(-step); return true;
    case Qt::Key_Down: moveValueBy(step); return true;
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

void GraphInteraction::moveCursorBy(double seconds)
{
    mModel.setCursorMoving(true);
    mModel.moveCursor(mModel.cursor().time + seconds, mModel.cursor().value, mModel.cursor().strip);
    mModel.setWindow(mModel.window().keeping(mModel.cursor().time));
}

void GraphInteraction::moveValueBy(double pixels)
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
        value = GraphLayout::valueAt(y, mLayout.area(index), mModel.valueSpan(index));
    }
    mModel.setCursorMoving(true);
    mModel.moveCursor(mModel.cursor().time, value, isSplit ? index : mModel.cursor().strip);
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
    if (mDragged >= 0)
        return;
    if (!isControl)
        return pressedPlain(point);
    mModel.setMarker(mModel.marker().extendedTo(mLayout.timeAt(point.x())));
    sendMarker();
}

void GraphInteraction::pressedPlain(const QPointF& point)
{
    if (takeMarkerEnd(point))
        return;
    if (mModel.settings().clickMovesCursor) {
        mClick = point;
        return;
    }
    beginMarkerDrag(mLayout.timeAt(point.x()));
    sendMarker();
}

void GraphInteraction::beginMarkerDrag(double fixedTime)
{
    mMarkerDrag = true;
    mMarkerFixed = fixedTime;
    mModel.setMarker({fixedTime, fixedTime});
}

bool GraphInteraction::takeMarkerEnd(const QPointF& point)
{
    if (!mModel.marker().isRange() || !mLayout.plot().contains(point))
        return false;
    const auto distance = [&](double time) { return std::abs(mLayout.xOf(time) - point.x()); };
    const auto [start, end] = mModel.marker();
    if (std::min(distance(start), distance(end)) >= kClick)
        return false;
    mMarkerDrag = true;
    mMarkerFixed = distance(start) < distance(end) ? end : start;
    return true;
}

void GraphInteraction::sendMarker()
{
    Q_EMIT mModel.signalMarker(static_cast<float>(mModel.marker().start), static_cast<float>(mModel.marker().end));
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
        value = GraphLayout::valueAt(point.y(), mLayout.area(index), mModel.valueSpan(index));
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
    if (mClick && isFar(point, *mClick)) {
        beginMarkerDrag(mLayout.timeAt(mClick->x()));
        mClick.reset();
    }
    if (mMarkerDrag)
        return mModel.setMarker({mMarkerFixed, mLayout.timeAt(point.x())});
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
        const int target = mLayout.stripAt(mModel, point.y());
        if (mModel.traces().move(dragged, target))
            Q_EMIT mModel.signalMoveParameter(dragged, target);
        Q_EMIT mModel.signalRepaint();
    }
    mModel.setMarker(mModel.marker().ordered());
    if (mMarkerDrag && mModel.marker().isRange())
        sendMarker();
    mMarkerDrag = false;
    mCursorDrag = false;
}

void GraphInteraction::wheel(int delta, Qt::KeyboardModifiers modifiers)
{
    if (mShift || modifiers.testFlag(Qt::ShiftModifier))
        return;
    mModel.takeOverTime();
    mModel.setWindow(mModel.window().zoomedAbout(mPointerTime, delta >= 1 ? kZoomStep : kWideZoomStep));
}

} // namespace ZARN
