#pragma once

#include "ui/graph/model/GraphKeys.h"
#include "ui/graph/model/GraphLayout.h"

namespace ZARN {

/// Does in a graph what its keys mean.
class KeyInteraction {
public:
    /// @param layout of the frame that the user sees  @param step of what moves by pixels: 1, or more where it goes fast
    KeyInteraction(GraphModel& model, const GraphLayout& layout, double step) : mModel(model), mLayout(layout), mStep(step) {}

    void press(const GraphKey& key);
    /// The trace that the keys for values are for: the one that stands out, else that of the cursor's strip or of the axis; -1 for none.
    [[nodiscard]] int chosen() const;

private:
    void moveCursor(double pixels);
    void moveValue(double pixels);
    void zoomTime(double factor);
    void pan(double part);
    void showEdge(bool isEnd);
    void zoomValues(double factor);
    void choose(int step);
    void moveStrip(int step);
    void moveGhost(double pixels);
    void scroll(int pages);
    [[nodiscard]] int neighbour(int step) const;

    GraphModel& mModel;
    const GraphLayout& mLayout;
    double mStep;
};

} // namespace ZARN
