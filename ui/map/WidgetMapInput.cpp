#include "card/CardContainer.h"
#include "ui/map/WidgetMap.h"
#include "ui/map/model/ToolTipText.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QToolTip>
#include <QTouchEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kDragStart = 4.0;    // pixels that a press may move and still be a click
constexpr double kClickRadius = 12.0; // pixels around the path in which a click means it
constexpr double kWheelFactor = 0.75; // of the range, for a notch of the wheel
constexpr double kKeyFactor = 0.7;
constexpr double kTurn = 5.0; // degrees a key press

OpenStreet::WindowPoint windowPoint(const QPointF& point)
{
    return {point.x(), point.y()};
}

/// What a key does in amount: Shift much, Control little.
double amount(Qt::KeyboardModifiers modifiers)
{
    if (modifiers & Qt::ShiftModifier)
        return 3.0;
    return modifiers & Qt::ControlModifier ? 0.25 : 1.0;
}

} // namespace

bool WidgetMap::arrowKey(const QKeyEvent& event, double right, double down)
{
    const double much = amount(event.modifiers());
    if (event.modifiers() & Qt::AltModifier)
        mNavigator.turn(-down * kTurn * much, right * kTurn * much);
    else
        mNavigator.pan(right * much * width() / 8.0, down * much * height() / 8.0);
    if (!(event.modifiers() & Qt::AltModifier) && mNavigator.isFollowing()) {
        mNavigator.setFollowing(false);
        Q_EMIT signalUpdateMode();
    }
    return true;
}

bool WidgetMap::moveByKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: mNavigator.zoomAboutMiddle(std::pow(kKeyFactor, amount(event.modifiers() & ~Qt::ShiftModifier))); return true;
    case Qt::Key_Minus:
    case Qt::Key_Underscore: mNavigator.zoomAboutMiddle(std::pow(kKeyFactor, -amount(event.modifiers() & ~Qt::ShiftModifier))); return true;
    case Qt::Key_Left: return arrowKey(event, -1.0, 0.0);
    case Qt::Key_Right: return arrowKey(event, 1.0, 0.0);
    case Qt::Key_Up: return arrowKey(event, 0.0, -1.0);
    case Qt::Key_Down: return arrowKey(event, 0.0, 1.0);
    case Qt::Key_F: fitPath(); return true;
    case Qt::Key_Escape: mNavigator.straighten(); return true;
    default: return false;
    }
}

void WidgetMap::keyPressEvent(QKeyEvent* pEvent)
{
    if (!moveByKey(*pEvent))
        return QWidget::keyPressEvent(pEvent);
    mIsDirty = true;
    QToolTip::hideText(); // what it told of is moving away
}

void WidgetMap::mousePressEvent(QMouseEvent* pEvent)
{
    if (pEvent->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(pEvent);
    mDragFrom = pEvent->position();
    mWasDragged = false;
}

void WidgetMap::mouseMoveEvent(QMouseEvent* pEvent)
{
    const QPointF place = pEvent->position();
    mNavigator.setPointer(windowPoint(place));
    if (!mDragFrom || !(pEvent->buttons() & Qt::LeftButton))
        return;
    const QPointF step = place - *mDragFrom;
    if (!mWasDragged && std::hypot(step.x(), step.y()) < kDragStart)
        return;
    mWasDragged = true;
    mDragFrom = place;
    dragBy(step);
}

void WidgetMap::dragBy(const QPointF& step)
{
    mNavigator.drag(step.x(), step.y());
    mIsDirty = true;
    if (!mNavigator.isFollowing())
        return;
    mNavigator.setFollowing(false); // else the next moment would pull the map out of the user's hand
    Q_EMIT signalUpdateMode();
}

void WidgetMap::mouseReleaseEvent(QMouseEvent* pEvent)
{
    if (pEvent->button() != Qt::LeftButton)
        return QWidget::mouseReleaseEvent(pEvent);
    const bool isClick = mDragFrom && !mWasDragged;
    mDragFrom.reset();
    if (isClick)
        pickTime(pEvent->position());
}

std::optional<double> WidgetMap::timeAt(const QPointF& place) const
{
    return mScene.path().timeNear(mNavigator.camera(), windowPoint(place), kClickRadius, mScene.aircraft().time);
}

/// Told after the time in which a second click could make it a double click, which only zooms.
void WidgetMap::pickTime(const QPointF& place)
{
    const auto events = mScene.events().near(mScene.path(), mNavigator.camera(), windowPoint(place), mScene.aircraft().time);
    const std::optional<double> time = events.empty() ? timeAt(place) : events.front()->time;
    if (!time)
        return;
    mClickTime = *time;
    mClick.start();
}

void WidgetMap::mouseDoubleClickEvent(QMouseEvent* pEvent)
{
    if (pEvent->button() != Qt::LeftButton)
        return QWidget::mouseDoubleClickEvent(pEvent);
    mDragFrom.reset();
    mClick.stop();
    mNavigator.setPointer(windowPoint(pEvent->position()));
    mNavigator.doubleClick();
    mIsDirty = true;
}

void WidgetMap::wheelEvent(QWheelEvent* pEvent)
{
    const QPoint angle = pEvent->angleDelta();
    const double notches = (angle.y() != 0 ? angle.y() : angle.x()) / 120.0; // Alt turns the wheel sideways
    mNavigator.setPointer(windowPoint(pEvent->position()));
    mNavigator.zoomBy(std::pow(kWheelFactor, std::clamp(notches, -10.0, 10.0) * amount(pEvent->modifiers())));
    mIsDirty = true;
    QToolTip::hideText();
    pEvent->accept();
}

void WidgetMap::leaveEvent(QEvent* pEvent)
{
    QWidget::leaveEvent(pEvent);
    mNavigator.setPointer({0.5 * width(), 0.5 * height()});
}

void WidgetMap::showToolTip(const QPoint& place, const QPoint& globalPlace)
{
    QString text = MapEvents::text(mScene.events().near(mScene.path(), mNavigator.camera(), windowPoint(place), mScene.aircraft().time));
    if (const std::optional<double> time = timeAt(place); text.isEmpty() && time)
        text = CardContainer::time(*time);
    QToolTip::showText(globalPlace, plainToolTip(text), this);
}

bool WidgetMap::touch(const QTouchEvent& event)
{
    const QList<QEventPoint>& points = event.points();
    if (event.type() == QEvent::TouchEnd || event.type() == QEvent::TouchCancel || points.isEmpty()) {
        if (event.type() == QEvent::TouchEnd && mTouch && !mWasDragged)
            pickTime(mTouch->middle);
        mTouch.reset();
        return true;
    }
    Touch now{points[0].position(), 0.0};
    if (points.size() > 1) {
        const QPointF apart = points[1].position() - points[0].position();
        now = {points[0].position() + apart * 0.5, std::max(std::hypot(apart.x(), apart.y()), 1.0)};
    }
    if (event.type() == QEvent::TouchBegin)
        mWasDragged = false;
    const bool isSameHand = mTouch && (mTouch->spread > 0.0) == (now.spread > 0.0);
    const QPointF step = isSameHand ? now.middle - mTouch->middle : QPointF();
    if (isSameHand && !mWasDragged && now.spread <= 0.0 && std::hypot(step.x(), step.y()) < kDragStart)
        return true;
    if (isSameHand) {
        mWasDragged = true;
        dragBy(step);
        mNavigator.setPointer(windowPoint(now.middle));
        if (now.spread > 0.0)
            zoomCentered(mNavigator.camera().horizontalRange() * mTouch->spread / now.spread);
    }
    mTouch = now;
    return true;
}

bool WidgetMap::nativeGesture(const QNativeGestureEvent& event)
{
    if (event.gestureType() != Qt::ZoomNativeGesture)
        return false;
    mNavigator.setPointer(windowPoint(event.position()));
    zoomCentered(mNavigator.camera().horizontalRange() / std::max(1.0 + event.value(), 0.1));
    return true;
}

bool WidgetMap::event(QEvent* pEvent)
{
    switch (pEvent->type()) {
    case QEvent::ToolTip: {
        const auto& help = static_cast<const QHelpEvent&>(*pEvent);
        showToolTip(help.pos(), help.globalPos());
        return true;
    }
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel: pEvent->accept(); return touch(static_cast<const QTouchEvent&>(*pEvent));
    case QEvent::NativeGesture:
        if (nativeGesture(static_cast<const QNativeGestureEvent&>(*pEvent)))
            return true;
        break;
    default: break;
    }
    return QWidget::event(pEvent);
}

} // namespace ZARN
