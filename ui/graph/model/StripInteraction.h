#pragma once

#include "ui/graph/model/GraphLayout.h"

namespace ZARN {

/// Makes strips higher and lower, and moves them past each other. Tells of it with the signals of the model.
class StripInteraction {
public:
    explicit StripInteraction(GraphModel& model) : mModel(model) {}

    /// The strip whose lower edge can be taken there, left of the plot; -1 for none.
    [[nodiscard]] int edgeAt(const GraphLayout& layout, const QPointF& point) const;
    /// @return whether the lower edge of a strip lies there, which is taken then: it moves between its two strips
    bool press(const GraphLayout& layout, const QPointF& point);
    [[nodiscard]] bool isOn() const { return mUpper >= 0; }
    void move(const QPointF& point);
    void release();

    /// Into the place of another. @return whether both are strips
    bool moveTo(int index, int target);
    void scale(int index, double factor);

private:
    void setHeight(int index, double strips);

    GraphModel& mModel;
    int mUpper = -1, mLower = -1;                          // the strips at the edge
    double mStart = 0.0;                                   // the pointer's height when the edge was taken
    double mUpperHeight = 1.0, mBoth = 2.0, mPixels = 1.0; // then: heights in strips, pixels of one
};

} // namespace ZARN
