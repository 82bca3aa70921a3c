#pragma once

#include "ui/graph/model/GraphModel.h"
#include "ui/graph/model/MarkerTableCells.h"

#include <QRectF>
#include <QSizeF>

#include <algorithm>

namespace ZARN {

/// One axis of values: where its labels stand, left of the plot.
struct ValueAxis {
    int index = -1;     ///< the trace whose values it shows; -1 where there is no trace
    bool isOwn = false; ///< of no other trace
    QRectF labels;      ///< as high as the area of the trace, and to its edge
};

/// Where the parts of the graph lie in a view, in pixels, and which time and value a pixel stands for. Made anew for each frame.
class GraphLayout {
public:
    /// What the legend tells of a trace, by what the view has room for: nothing but its line over the plot, its value at the cursor, or
    /// its extremes too.
    enum class ELegend { eNone, eCursor, eFull };

    GraphLayout() = default;
    GraphLayout(const GraphModel& model, const QSizeF& size, double textSize);

    [[nodiscard]] QRectF view() const { return {QPointF(), mSize}; }
    [[nodiscard]] const QRectF& plot() const { return mPlot; }
    [[nodiscard]] const QRectF& legend() const { return mLegendRect; } ///< right of the plot or below it; empty without one
    [[nodiscard]] const QRectF& table() const { return mTable; }       ///< of the marker's values below the plot; empty without one
    [[nodiscard]] ELegend legendKind() const { return mLegend; }
    [[nodiscard]] double textSize() const { return mTextSize; }
    [[nodiscard]] double line() const { return mLine; }
    [[nodiscard]] double character() const { return mCharacter; }
    // In characters, as the legend shows them: the longest name, and every number.
    [[nodiscard]] int nameLength() const { return mNameLength; }
    [[nodiscard]] int numberLength() const { return mNumberLength; }

    /// The one next to the plot first; in split mode that of each strip.
    [[nodiscard]] const std::vector<ValueAxis>& axes() const { return mAxes; }
    /// What the marker's table says, and which of its lines are shown.
    [[nodiscard]] const MarkerTableCells& markerSheet() const { return mSheet; }
    /// Which traces the legend shows where it is a list.
    [[nodiscard]] const VisibleRows& legendRows() const { return mLegendRows; }

    /// The area of a shown trace: its strip, or the plot.
    [[nodiscard]] QRectF area(int index) const;
    /// The line of the legend for the shown trace number `row`: beside the plot, or over it where the view is too narrow for that; empty
    /// when there is no room for it.
    [[nodiscard]] QRectF legendLine(const GraphModel& model, std::size_t row) const;
    /// Whether the legend's lines stand beside the strips, each at its own. Rounded, some strips have room for one and others none: all go
    /// by the height before that.
    [[nodiscard]] bool isLegendInStrips() const { return !mStrips.empty() && !mIsBelow && mStripHeight >= mLine; }
    /// The line over the plot or in the strip that names a trace.
    [[nodiscard]] QRectF overlayLine(const GraphModel& model, std::size_t row) const;
    /// The strip under a height of the view, as its parameter's index; the nearest one outside of the plot; -1 when nothing is shown.
    [[nodiscard]] int stripAt(const GraphModel& model, double y) const;
    /// The middle of a strip's handle.
    [[nodiscard]] QPointF handle(int index) const { return {kHandleX, area(index).center().y()}; }

    [[nodiscard]] double xOf(double time) const { return mPlot.left() + (time - mXmin) * mPixelsPerSecond; }
    [[nodiscard]] double timeAt(double x) const { return mXmin + (x - mPlot.left()) / mPixelsPerSecond; }
    [[nodiscard]] double pixelsPerSecond() const { return mPixelsPerSecond; }
    [[nodiscard]] static double yOf(double value, const QRectF& area, const ValueSpan& span);

    /// What the line over the plot says of a trace; with its value where nothing else tells that.
    [[nodiscard]] QString overlayText(const GraphModel& model, int index) const;

    static constexpr double kHandleX = 10.0;
    static constexpr double kSwatch = 10.0;        ///< of a trace's colour, before its name
    static constexpr double kHandleReach = 1500.0; ///< squared distance within which a handle is hit
    static constexpr int kLongestName = 24;
    static constexpr int kLongestState = 10; ///< of the name of a state in a column of numbers
    static constexpr int kLongestLabel = 40; ///< of a name with its unit over the plot

private:
    struct LegendKind {
        ELegend legend;
        int leastName; ///< characters of a name; all of it where it has fewer
        double part;   ///< of the view's width at most
    };
    /// @return false when there is no room for it beside the plot
    bool placeLegendBeside(const GraphModel& model, const LegendKind& kind);
    void placeLegend(const GraphModel& model, double bottom);
    void placeLegendBelow(const GraphModel& model, double bottom);
    /// Strips tell their values themselves as long as they have room for a line. @param height of all without a panel  @param panel its height
    [[nodiscard]] bool isPanelWanted(const GraphModel& model, double height, double panel) const;
    void placeStrips(const GraphModel& model);
    /// @return how high it is with the gap above it; 0 without one
    double placeTable(const GraphModel& model);
    [[nodiscard]] int legendLines() const;
    /// Where the room left of the plot ends.
    [[nodiscard]] double placeAxes(const GraphModel& model, double height);
    [[nodiscard]] double axisWidth(const GraphModel& model, int index, double height) const;
    void moveAxes(const GraphModel& model);
    void placeLegendRows(const GraphModel& model);

    QSizeF mSize;
    QRectF mPlot;
    std::vector<ValueAxis> mAxes;
    MarkerTableCells mSheet;
    VisibleRows mLegendRows;
    std::vector<QRectF> mStrips; // by slot; empty in a single graph
    double mStripHeight = 0.0;   // of the lowest, before it is rounded to pixels
    QRectF mLegendRect;
    QRectF mTable;
    ELegend mLegend = ELegend::eNone;
    double mTextSize = 11.0, mLine = 14.0, mCharacter = 7.0;
    int mNameLength = 0, mNumberLength = 8;
    bool mIsBelow = false; // the legend
    int mLegendColumns = 1;
    double mXmin = 0.0, mPixelsPerSecond = 1.0;
};

/// The trace whose axis lies there; -1 for none.
[[nodiscard]] int axisAt(const GraphLayout& layout, const QPointF& point);

/// Which value stands at a height of the view.
[[nodiscard]] double valueAt(double y, const QRectF& area, const ValueSpan& span);

/// Between labels of a value axis of that height at least; low strips need theirs closer to have any.
[[nodiscard]] inline double valueSpacing(double height, double line)
{
    return (height < 6 * line ? 1.2 : 1.8) * line;
}

// In sight of those that call it for each vertex.
/// Whether a trace has a strip of states, which has their names in it and no values at its axis.
[[nodiscard]] inline bool isStateStrip(const GraphModel& model, int index)
{
    const GraphParameter* pTrace = model.traces().at(index);
    return pTrace && pTrace->pStates && model.settings().displayMode == eSplit;
}

inline double GraphLayout::yOf(double value, const QRectF& area, const ValueSpan& span)
{
    constexpr double kFar = 1e6; // pixels: beyond every view, and small enough for every canvas
    const double range = span[1] - span[0];
    if (!(range > 0))
        return area.center().y();
    return std::clamp(area.bottom() - (value - span[0]) / range * area.height(), -kFar, kFar);
}

} // namespace ZARN
