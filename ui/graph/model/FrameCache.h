#pragma once

#include "ui/graph/model/ShownTraces.h"
#include "ui/graph/model/TimeWindow.h"
#include "ui/graph/model/TraceBuilder.h"

namespace ZARN {

/// The vertices of what a window shows of each trace, made anew only when something that they are made from has changed.
class FrameCache {
public:
    /// @param columns pixels of the screen that the plot is wide
    void update(const ShownTraces& traces, const TimeWindow& window, int columns);
    /// The same for as many columns as before.
    void update(const ShownTraces& traces, const TimeWindow& window) { update(traces, window, mKey.columns); }
    /// Whether traces are interrupted where nothing was recorded for long, or no number.
    void setGapsOn(bool on) { mGapsOn = on; }
    /// Whether an update would find nothing to do.
    [[nodiscard]] bool isCurrent(const ShownTraces& traces, const TimeWindow& window) const;
    /// (Seconds after the window's start, value) of a shown trace.
    [[nodiscard]] const std::vector<QPointF>& vertices(int index) const;

private:
    struct Key {
        TimeWindow window;
        int columns = 1000;
        std::size_t generation = 0;
        bool gapsOn = false;
        bool operator==(const Key&) const = default;
    };

    /// Where a trace is interrupted, found once for its samples.
    const std::vector<uint32_t>& gapsOf(const ShownTraces& traces, int index);

    Key mKey;
    bool mGapsOn = false;
    std::vector<std::vector<uint32_t>> mGaps; // by slot
    std::vector<std::size_t> mGapsOf;         // the generation of the traces that they are of
    TraceBuilder mBuilder;
    std::vector<std::vector<QPointF>> mVertices; // by slot
};

} // namespace ZARN
