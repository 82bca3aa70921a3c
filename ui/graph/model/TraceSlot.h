#pragma once

#include "trace/Trace.h"
#include "ui/graph/model/GraphModel.h"

namespace ZARN {

/// Gives a slot of the graph the name, unit, precision and bands of a trace.
void describeSlot(ShownTraces& traces, int slot, const Trace& trace);
/// Puts the samples of a trace of the kind eDisplay into a slot: those from one time to the other, without
/// what is not a number, where the trace may be interrupted.
void fillSlot(ShownTraces& traces, int slot, const Trace& trace, double from = -std::numeric_limits<double>::infinity(),
              double to = std::numeric_limits<double>::infinity());
/// The same, the latest one being the graph's present.
void fillSlot(GraphModel& model, int slot, const Trace& trace, double from = -std::numeric_limits<double>::infinity(),
              double to = std::numeric_limits<double>::infinity());

/// How much of a trace a slot was filled with.
struct SlotFill {
    std::size_t count = 0; ///< samples of the trace
    double first = 0.0;    ///< their first time and their last
    double last = 0.0;

    [[nodiscard]] static SlotFill of(const Trace& trace);
};
/// Puts what is new of a trace behind what a slot has of it; all of it where the trace does not go on from there.
void growSlot(ShownTraces& traces, int slot, const Trace& trace, SlotFill& fill);

} // namespace ZARN
