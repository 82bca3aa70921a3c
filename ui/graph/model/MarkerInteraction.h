#pragma once

#include "ui/graph/model/GraphLayout.h"

namespace ZARN {

/// Sets the marker: drags it open, takes one of its ends, moves an end by pixels. Tells of it with the signal of the model.
class MarkerInteraction {
public:
    static constexpr double kReach = 4.0; ///< pixels beside an end

    explicit MarkerInteraction(GraphModel& model) : mModel(model) {}

    /// Whether an end of the marker lies there.
    [[nodiscard]] bool isEnd(const GraphLayout& layout, const QPointF& point) const;
    /// Begins a drag with that end. @return whether there is one
    bool take(const GraphLayout& layout, const QPointF& point);
    /// Begins a drag that marks from a time on.
    void begin(double time);
    [[nodiscard]] bool isOn() const { return mIsOn; }
    void move(double time) { mModel.setMarker({mFixed, time}); }
    void release();

    /// The start goes to a time before it, the end to any other one.
    void extend(double time);
    /// Moves an end by pixels, and the window along; without a marker it begins at the cursor.
    void moveEnd(const GraphLayout& layout, bool isStart, double pixels);
    void clear();

private:
    void send();

    GraphModel& mModel;
    bool mIsOn = false;
    double mFixed = 0.0; // the end that is not dragged
};

} // namespace ZARN
