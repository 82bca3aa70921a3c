#pragma once

#include "ui/graph/model/AxisInteraction.h"
#include "ui/graph/model/MarkerInteraction.h"
#include "ui/graph/model/StripInteraction.h"

#include <optional>

namespace ZARN {

/// A strip that is dragged with its handle, and the height where the pointer is; none when the index is below 0.
struct DraggedStrip {
    int index = -1;
    double y = 0.0;
};

/// Turns what the user does with keys, pointer and wheel into calls of the model. Knows no widget: events come as points and flags, and
/// the layout is that of the frame that the user saw.
class GraphInteraction {
public:
    explicit GraphInteraction(GraphModel& model) : mModel(model), mAxis(model), mStrip(model), mMarker(model) {}

    void setLayout(const GraphLayout& layout) { mLayout = layout; }
    void setPanningAllowed(bool on) { mPanningAllowed = on; }
    void setShiftPressed(bool on) { mShift = on; }

    // Keys. All return whether the key means something here.
    // Modifiers as the event tells them, for keys may have been pressed elsewhere.
    bool keyPressed(int key, Qt::KeyboardModifiers modifiers = {});
    bool keyReleased(int key);
    /// No key is held any more: the view lost the focus.
    void forgetKeys() { mShift = mControl = mAlt = false; }

    // The pointer.
    void pressed(Qt::MouseButton button, const QPointF& point, Qt::KeyboardModifiers modifiers);
    void moved(const QPointF& point);
    /// @return true when the right button was released where it had been pressed: a menu is wanted.
    bool released(Qt::MouseButton button, const QPointF& point);
    /// The second press of a double click of the left button. @return whether it means something else than the first one
    bool doublePressed(const QPointF& point, Qt::KeyboardModifiers modifiers);
    void left() { mModel.traces().point(-1); }
    // Wheel and touch pad mean what lies under the pointer: time, the values of an axis, the rows of a list.
    /// @param delta of the wheel, 120 for a notch forward
    void wheel(int delta, Qt::KeyboardModifiers modifiers);
    /// Two fingers went sideways.
    void swiped(double pixels);
    /// @param factor of the span that is seen
    void zoom(double factor);

    [[nodiscard]] DraggedStrip dragged() const { return {mDragged, mPointer.y()}; }
    /// What the pointer can take where it is.
    [[nodiscard]] Qt::CursorShape shape() const;

private:
    struct Pan {
        bool isOn = false;
        bool hasMoved = false;
        TimeWindow window;
        QPointF start;
    };
    void pressedPlain(const QPointF& point);
    void pressedLeft(const QPointF& point, Qt::KeyboardModifiers modifiers);
    void releasedLeft(const QPointF& point);
    void pan(const QPointF& point);
    void beginCursorDrag(const QPointF& point);
    void cursorTo(const QPointF& point);
    void scroll(bool isTable, int delta);
    /// The trace whose line of the legend is seen under the pointer; -1 for none.
    [[nodiscard]] int legendAt(const QPointF& point) const;
    [[nodiscard]] int handleAt(const QPointF& point) const;
    /// Beside and below the plot, where the graph tells in words and no time lies under the pointer.
    [[nodiscard]] bool isInWords(const QPointF& point) const;

    GraphModel& mModel;
    GraphLayout mLayout;
    GraphLayout mDragLayout; // in which the cursor was taken: in the center mode the window moves along with it
    QPointF mPointer;
    double mPointerTime = 0.0;
    Pan mPan;
    AxisInteraction mAxis;
    StripInteraction mStrip;
    MarkerInteraction mMarker;
    int mDragged = -1;                // parameter whose strip is dragged
    std::optional<QPointF> mClick;    // where the button went down, as long as it may still become a click
    std::optional<double> mGhostDrag; // the ghost's shift less the time under the pointer
    double mScrolled = 0.0;           // lines of a list, less than one
    bool mCursorDrag = false;
    bool mPanningAllowed = true;
    bool mShift = false, mControl = false, mAlt = false;
};

} // namespace ZARN
