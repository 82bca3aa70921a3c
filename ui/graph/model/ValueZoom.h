#pragma once

#include "ui/graph/model/GraphModel.h"

namespace ZARN {

/// Has the traces show other values: what the user does at a value axis. Whatever stands on one scale with a trace goes with it. An index
/// that no trace has changes nothing.
class ValueZoom {
public:
    explicit ValueZoom(GraphModel& model) : mModel(model) {}

    /// Not taken where it is no span, or too small or too great for an axis.
    void set(int index, const ValueSpan& span);
    /// Scales the span about a value that stays where it is; a factor below 1 looks closer.
    void zoom(int index, double value, double factor);
    /// Moves up by a part of the span.
    void move(int index, double part);
    /// Shows what the window of time has of the trace; where it does that already, what its own scale has.
    void toggleFit(int index);
    /// The same for all shown traces at once.
    void toggleFit();
    /// All traces back to their own scales.
    void showAll();
    /// The scale of each unit, or of each trace. What was zoomed to was the other's.
    void setShared(bool on);

private:
    [[nodiscard]] ValueRange<double> visible(int index) const;
    void toggleFit(const std::vector<int>& traces);

    GraphModel& mModel;
};

} // namespace ZARN
