#pragma once

#include "ui/graph/model/GraphLayout.h"
#include "ui/graph/model/TraceBuilder.h"

#include <map>

namespace ZARN {

/// The dashed lines of what the traces are compared with, in pixels. Cut into pieces that begin at times of their own and not at the
/// window's: those that stay in sight while it moves along are not made again.
class GhostLines {
public:
    /// @param layout of the frame that they are for  @param ratio pixels of the screen for each of the view's
    void update(const GraphModel& model, const GraphLayout& layout, double ratio);
    /// The line behind a trace; empty where there is none. @param area of the trace
    void place(int index, const QRectF& area, std::vector<QPointF>& points) const;

private:
    /// One trace's, for a height and a scale.
    struct Line {
        double height = 0.0;
        ValueSpan span{};
        std::vector<uint32_t> gaps;
        std::map<int64_t, std::vector<QPointF>> pieces; ///< from the piece's beginning and the area's upper edge
    };

    void updateLine(int index, double height, const ValueSpan& span);
    [[nodiscard]] std::vector<QPointF> piece(const GraphParameter& trace, const Line& line, int64_t place);
    [[nodiscard]] double begin(int64_t place) const { return static_cast<double>(place) * mLength; }

    std::shared_ptr<const Ghost> mpGhost;
    std::size_t mGeneration = 0;
    bool mGapsOn = false;
    double mLength = 0.0;           // seconds of a piece
    double mPixelsPerSecond = 1.0;  // that they were made for
    double mWindowBegin = 0.0;      // on the ghost's time
    int64_t mFirst = 0, mLast = -1; // pieces in sight
    std::map<int, Line> mLines;     // by slot
    TraceBuilder mBuilder;
};

} // namespace ZARN
