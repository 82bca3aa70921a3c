#pragma once

#include "ui/data/model/GraphMoment.h"
#include "ui/map/model/MapNavigator.h"
#include "ui/map/model/MapScene.h"

#include <QObject>
#include <QTimer>

#include <optional>

class QKeyEvent;
class QMouseEvent;
class QNativeGestureEvent;
class QTouchEvent;
class QWheelEvent;

namespace ZARN {

/// Turns what the user does on the map with keys, pointer, wheel and fingers into moves of the view, clicks into times of the path, and
/// rectangles drawn with Shift held into stretches of it. Knows no widget.
class MapInteraction : public QObject {
    Q_OBJECT

public:
    MapInteraction(MapNavigator& navigator, MapScene& scene);

    /// @return whether the key means something here.
    bool keyPressed(const QKeyEvent& event);
    void pressed(const QMouseEvent& event);
    void moved(const QMouseEvent& event);
    void released(const QMouseEvent& event);
    void doubleClicked(const QMouseEvent& event);
    void wheel(const QWheelEvent& event);
    void left();
    void touched(const QTouchEvent& event);
    /// @return whether the gesture means something here.
    bool nativeGesture(const QNativeGestureEvent& event);
    /// Another path: a click that is waiting meant the one before.
    void forgetClick() { mClick.stop(); }
    /// Whether a click has picked a time, which it tells unless it becomes a double click.
    [[nodiscard]] bool hasPicked() const { return mClick.isActive(); }

    /// What is to be told of a place of the window: its events, else the time of the path there; empty for nothing.
    [[nodiscard]] QString textAt(const QPointF& place, const TimeReference& times) const;
    /// What the graph can show of a place of the window: its event, else the time of the path there; none elsewhere.
    [[nodiscard]] std::optional<GraphMoment> momentAt(const QPointF& place) const;

Q_SIGNALS:
    /// The view has been moved, or is about to.
    void signalMoved();
    /// What is told of the place under the pointer, or the rectangle that is drawn, is another one.
    void signalPointer();
    /// The user's moves have switched the following of the aircraft off.
    void signalUpdateMode();
    /// The user picked a place of the path; its time in seconds.
    void signalTime(double time);
    /// The user wants to see an event, or what was in a rectangle, in the graph.
    void signalMoment(const GraphMoment& moment);

private:
    struct Touch {
        QPointF middle;
        double spread = 0.0; ///< pixels between two fingers; 0 with one
    };

    bool moveByKey(const QKeyEvent& event);
    bool arrowKey(const QKeyEvent& event, double right, double down);
    void dragBy(const QPointF& step);
    void stopFollowing();
    void pinch(const Touch& before, const Touch& now);
    void zoomTo(const QPointF& pointer, double range);
    [[nodiscard]] std::optional<double> timeAt(const QPointF& place) const;
    [[nodiscard]] const CycleCourse::Mark* incidentAt(const QPointF& place) const;
    [[nodiscard]] std::vector<const MapEvent*> eventsAt(const QPointF& place) const;
    void pickTime(const QPointF& place);
    void select(const QPointF& place);
    void finishSelection(const QPointF& place);

    MapNavigator& mNavigator;
    MapScene& mScene;
    QTimer mClick; // runs while a click may become a double click
    double mClickTime = 0.0;
    std::optional<QPointF> mDragFrom;
    std::optional<QPointF> mSelectFrom;
    bool mWasDragged = false;
    std::optional<Touch> mTouch;
};

} // namespace ZARN
