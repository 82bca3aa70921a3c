#include "ui/map/model/MapInteraction.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QStyleHints>
#include <QTouchEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ZARN {

namespace {

constexpr double kDragStart = 4.0;    // pixels that a press may move and still be a click
constexpr double kClickRadius = 12.0; // pixels around the path in which a click means it
constexpr double kWheelFactor = 0.75; // of the range, for a notch of the wheel
constexpr double kKeyFactor = 0.7;
constexpr double kTurn = 5.0; // degrees a key press
constexpr double kOnePassage = 10.0; // seconds outside of a rectangle that do not end a passage through it

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

MapInteraction::MapInteraction(MapNavigator& navigator, MapScene& scene) : mNavigator(navigator), mScene(scene)
{
    mClick.setSingleShot(true);
    mClick.setInterval(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    connect(&mClick, &QTimer::timeout, this, [this] { Q_EMIT signalTime(mClickTime); });
}

bool MapInteraction::arrowKey(const QKeyEvent& event, double right, double down)
{
    const double much = amount(event.modifiers());
    if (event.modifiers() & Qt::AltModifier) {
        mNavigator.turn(-down * kTurn * much, right * kTurn * much);
        return true;
    }
    const OpenStreet::Camera& camera = mNavigator.camera();
    mNavigator.pan(right * much * camera.width() / 8.0, down * much * camera.height() / 8.0);
    stopFollowing();
    return true;
}

bool MapInteraction::moveByKey(const QKeyEvent& event)
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
    case Qt::Key_F: mNavigator.fit(mScene.path(), false); return true;
    case Qt::Key_Escape: mNavigator.straighten(); return true;
    default: return false;
    }
}

bool MapInteraction::keyPressed(const QKeyEvent& event)
{
    if (!moveByKey(event))
        return false;
    Q_EMIT signalMoved();
    return true;
}

void MapInteraction::pressed(const QMouseEvent& event)
{
    mWasDragged = false;
    if (event.modifiers() & Qt::ShiftModifier)
        mSelectFrom = event.position();
    else
        mDragFrom = event.position();
}

void MapInteraction::select(const QPointF& place)
{
    mScene.setSelection(QRectF(*mSelectFrom, place).normalized());
    Q_EMIT signalPointer();
}

/// Of several passages through the rectangle the one at the view time is meant, else the longest.
void MapInteraction::finishSelection(const QPointF& place)
{
    const QRectF area = QRectF(*std::exchange(mSelectFrom, std::nullopt), place).normalized();
    mScene.setSelection(std::nullopt);
    Q_EMIT signalPointer();
    if (std::max(area.width(), area.height()) < kDragStart)
        return pickTime(place);
    const std::vector<TimeSpan> passages = mScene.path().timesIn(mNavigator.camera(), area, kOnePassage);
    const double now = mScene.aircraft().time;
    auto chosen = std::ranges::find_if(passages, [now](const TimeSpan& span) { return span.holds(now); });
    if (chosen == passages.end())
        chosen = std::ranges::max_element(passages, {}, [](const TimeSpan& span) { return span.end - span.start; });
    if (chosen != passages.end())
        Q_EMIT signalMoment(GraphMoment::of(*chosen, {}, chosen->holds(now) ? now : chosen->start));
}

void MapInteraction::moved(const QMouseEvent& event)
{
    const QPointF place = event.position();
    mNavigator.setPointer(windowPoint(place));
    if (mScene.setPointer(place))
        Q_EMIT signalPointer();
    if (mSelectFrom)
        return select(place);
    if (!mDragFrom || !(event.buttons() & Qt::LeftButton))
        return;
    const QPointF step = place - *mDragFrom;
    if (!mWasDragged && std::hypot(step.x(), step.y()) < kDragStart)
        return;
    mWasDragged = true;
    mDragFrom = place;
    dragBy(step);
}

void MapInteraction::dragBy(const QPointF& step)
{
    mNavigator.drag(step.x(), step.y());
    Q_EMIT signalMoved();
    stopFollowing(); // else the next moment would pull the map out of the user's hand
}

void MapInteraction::stopFollowing()
{
    if (!mNavigator.isFollowing())
        return;
    mNavigator.setFollowing(false);
    Q_EMIT signalUpdateMode();
}

void MapInteraction::released(const QMouseEvent& event)
{
    if (mSelectFrom)
        return finishSelection(event.position());
    const bool isClick = mDragFrom && !mWasDragged;
    mDragFrom.reset();
    if (isClick)
        pickTime(event.position());
}

std::optional<double> MapInteraction::timeAt(const QPointF& place) const
{
    return mScene.path().timeNear(mNavigator.camera(), windowPoint(place), kClickRadius, mScene.aircraft().time);
}

std::vector<const MapEvent*> MapInteraction::eventsAt(const QPointF& place) const
{
    return mScene.events().near(mScene.path(), mNavigator.camera(), windowPoint(place), mScene.aircraft().time);
}

const CycleCourse::Mark* MapInteraction::incidentAt(const QPointF& place) const
{
    return mScene.marks().incidentAt(mScene.path(), mNavigator.camera(), place);
}

QString MapInteraction::textAt(const QPointF& place, const TimeReference& times) const
{
    if (const CycleCourse::Mark* pIncident = incidentAt(place))
        return times.textAt(pIncident->span.start) + QLatin1String("  ") + pIncident->title;
    const QString text = MapEvents::text(eventsAt(place), times);
    const std::optional<double> time = text.isEmpty() ? timeAt(place) : std::nullopt;
    return time ? times.textAt(*time) : text;
}

std::optional<GraphMoment> MapInteraction::momentAt(const QPointF& place) const
{
    if (const CycleCourse::Mark* pIncident = incidentAt(place))
        return pIncident->moment;
    if (const auto events = eventsAt(place); !events.empty())
        return GraphMoment::around(events.front()->time, {events.front()->parameter});
    const std::optional<double> time = timeAt(place);
    return time ? std::optional(GraphMoment::around(*time, {})) : std::nullopt;
}

/// Told after the time in which a second click could make it a double click, which zooms, or goes to the graph.
void MapInteraction::pickTime(const QPointF& place)
{
    const auto events = eventsAt(place);
    std::optional<double> time = events.empty() ? timeAt(place) : events.front()->time;
    if (const CycleCourse::Mark* pIncident = incidentAt(place))
        time = pIncident->moment.time;
    if (!time)
        return;
    mClickTime = *time;
    mClick.start();
}

void MapInteraction::doubleClicked(const QMouseEvent& event)
{
    mDragFrom.reset();
    mClick.stop();
    if (const CycleCourse::Mark* pIncident = incidentAt(event.position()))
        return Q_EMIT signalMoment(pIncident->moment);
    if (!eventsAt(event.position()).empty())
        return Q_EMIT signalMoment(*momentAt(event.position()));
    mNavigator.setPointer(windowPoint(event.position()));
    mNavigator.doubleClick();
    Q_EMIT signalMoved();
}

void MapInteraction::wheel(const QWheelEvent& event)
{
    const QPoint angle = event.angleDelta();
    const double notches = (angle.y() != 0 ? angle.y() : angle.x()) / 120.0; // Alt turns the wheel sideways
    mNavigator.setPointer(windowPoint(event.position()));
    mNavigator.zoomBy(std::pow(kWheelFactor, std::clamp(notches, -10.0, 10.0) * amount(event.modifiers())));
    Q_EMIT signalMoved();
}

void MapInteraction::left()
{
    const OpenStreet::Camera& camera = mNavigator.camera();
    mNavigator.setPointer({0.5 * camera.width(), 0.5 * camera.height()});
    if (mScene.setPointer(std::nullopt))
        Q_EMIT signalPointer();
}

void MapInteraction::touched(const QTouchEvent& event)
{
    const QList<QEventPoint>& points = event.points();
    if (event.type() == QEvent::TouchEnd || event.type() == QEvent::TouchCancel || points.isEmpty()) {
        if (event.type() == QEvent::TouchEnd && mTouch && !mWasDragged)
            pickTime(mTouch->middle);
        mTouch.reset();
        return;
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
        return;
    if (isSameHand)
        pinch(*mTouch, now);
    mTouch = now;
}

void MapInteraction::pinch(const Touch& before, const Touch& now)
{
    mWasDragged = true;
    dragBy(now.middle - before.middle);
    if (now.spread > 0.0)
        zoomTo(now.middle, mNavigator.camera().horizontalRange() * before.spread / now.spread);
    else
        mNavigator.setPointer(windowPoint(now.middle));
}

void MapInteraction::zoomTo(const QPointF& pointer, double range)
{
    mNavigator.setPointer(windowPoint(pointer));
    mNavigator.zoomCentered(range);
    Q_EMIT signalMoved();
}

bool MapInteraction::nativeGesture(const QNativeGestureEvent& event)
{
    if (event.gestureType() != Qt::ZoomNativeGesture)
        return false;
    zoomTo(event.position(), mNavigator.camera().horizontalRange() / std::max(1.0 + event.value(), 0.1));
    return true;
}

} // namespace ZARN
