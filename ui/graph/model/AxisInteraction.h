#pragma once

#include "ui/graph/model/GraphLayout.h"

namespace ZARN {

/// The pointer on a value axis: has its trace show other values. The wheel zooms, dragging moves, a double click fits.
class AxisInteraction {
public:
    explicit AxisInteraction(GraphModel& model) : mModel(model) {}

    // These return whether an axis lies there.
    bool press(const GraphLayout& layout, const QPointF& point);
    bool zoom(const GraphLayout& layout, const QPointF& point, double factor);
    bool toggleFit(const GraphLayout& layout, const QPointF& point);

    [[nodiscard]] bool isOn() const { return mIndex >= 0; }
    void move(const QPointF& point);
    void release() { mIndex = -1; }

private:
    GraphModel& mModel;
    int mIndex = -1;     // of the trace whose axis is dragged
    ValueSpan mSpan{};   // when it was taken
    double mStart = 0.0; // the pointer's height then
    double mHeight = 1.0;
};

} // namespace ZARN
