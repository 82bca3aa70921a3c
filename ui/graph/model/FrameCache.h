#pragma once

#include "ui/graph/model/ShownTraces.h"
#include "ui/graph/model/TimeWindow.h"
#include "ui/graph/model/TraceBuilder.h"
#include "ui/graph/model/TraceGaps.h"

namespace ZARN {

/// The vertices of what a window shows of each trace, made anew only when something that they are made from has changed.
class FrameCache {
public:
    /// @param columns pixels of the screen that the plot is wide
    void update(const ShownTraces& traces, const TimeWindow& window, int columns);
    /// The same for as many columns as before.
    void update(const ShownTraces& traces, const TimeWindow& window) { update(traces, window, mKey.columns); }
    /// Whether an update would find nothing to do.
    [[nodiscard]] bool isCurrent(const ShownTraces& traces, const TimeWindow& window) const;
    /// (Seconds after the window's start, value) of a shown trace.
    [[nodiscard]] const std::vector<QPointF>& vertices(int index) const;

private:
    struct Key {
        TimeWindow window;
        int columns = 1000;
        std::size_t generation = 0;
        bool operator==(const Key&) const = default;
    };

    /// Where a trace is interrupted; nowhere when that is not wanted.
    std::span<const uint32_t> gapsOf(const ShownTraces& traces, int index);

    struct Gaps {
        TraceGaps found;
        std::span<const uint32_t> places;
        std::size_t generation = 0; // of the traces that they are of
    };

    Key mKey;
    std::vector<Gaps> mGaps; // by slot
    TraceBuilder mBuilder;
    std::vector<std::vector<QPointF>> mVertices; // by slot
};

} // namespace ZARN
