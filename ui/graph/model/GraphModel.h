#pragma once

#include "ui/graph/model/GraphParameter.h"
#include "ui/graph/model/MarkerValues.h"
#include "ui/graph/model/TraceBuilder.h"

#include <QObject>
#include <QSizeF>

namespace ZARN {

/// The colours of the graph beside those of its traces.
struct GraphColours {
    GraphColour background{1.0F, 1.0F, 1.0F};
    GraphColour grid{1.0F, 0.3F, 0.3F};
    GraphColour label{0.0F, 0.0F, 0.0F};
    GraphColour labelBackground{0.8F, 0.8F, 0.8F};
};

/// A numbered mark at the top edge.
struct TopMarker {
    int index = 0;
    double time = 0.0;
};

/// Everything that the graph knows without drawing: traces and their samples, the time window and its rules, ranges, marker, cursor, modes and
/// switches. Views repaint on signalRepaint(), and call recalculate() 50 ms after signalRecalculate() for as long as it says so.
class GraphModel : public QObject {
    Q_OBJECT

public:
    static constexpr int kCountdown = 3;
    static constexpr double kSmallestWindow = 1e-6; // seconds
    static constexpr double kLatestTime = 86400.0;  // seconds

    explicit GraphModel(QObject* pParent = nullptr);

    // The window of time; in seconds.
    [[nodiscard]] double xmin() const { return mXmin; }
    [[nodiscard]] double xmax() const { return mXmax; }
    [[nodiscard]] double width() const { return mXmax - mXmin; }
    void setXmin(float seconds);
    void setXmax(float seconds);
    void setWindow(double xmin, double xmax);
    void setT0(float seconds);
    void setXrange(float seconds);
    void zoomToMarker();
    /// Scales the window about a time that stays where it is.
    void zoomAbout(double time, double factor);
    void setTime(double seconds);
    [[nodiscard]] double time() const { return mTime; }

    // The shared range of values.
    void setYmin(float value);
    void setYmax(float value);
    [[nodiscard]] double ymin() const { return mYmin; }
    [[nodiscard]] double ymax() const { return mYmax; }
    void setAutoScaleY(bool on);
    [[nodiscard]] bool autoScaleY() const { return mAutoScaleY; }
    void setAutoScaleYSpread(double spread);
    void setYRange(double lower, double upper);
    void setYRangeOn(bool on);
    [[nodiscard]] bool getYRangeOn() const { return mYRangeOn; }
    [[nodiscard]] const std::array<double, 2>& yRange() const { return mYRange; }

    // Cursor and marker.
    void setCursorPosition(double time);
    /// The user moved the cursor. Sends signalCursor().
    void moveCursor(double time, double value, int index);
    void setCursorMoving(bool on);
    /// Moves the window, when it must, so that a time stands at least a tenth of the width inside either edge.
    void keepInside(double time);
    [[nodiscard]] double cursorTime() const { return mCursorTime; }
    [[nodiscard]] double cursorValue() const { return mCursorValue; }
    [[nodiscard]] int cursorIndex() const { return mCursorIndex; }
    [[nodiscard]] bool isCursorMoving() const { return mCursorMoving; }
    void setMarker(double start, double end);
    [[nodiscard]] double markerStart() const { return mMarkerStart; }
    [[nodiscard]] double markerEnd() const { return mMarkerEnd; }
    [[nodiscard]] bool hasMarkerRange() const { return mMarkerStart != mMarkerEnd; }
    /// Of all active traces, between the marker's earlier and later end.
    [[nodiscard]] std::vector<MarkerValues> markerValues() const;
    void addTopMarker(int index, double time);
    [[nodiscard]] const std::vector<TopMarker>& topMarkers() const { return mTopMarkers; }

    // Modes and switches.
    void setGraphMode(eGraphMode mode);
    void setDisplayMode(eDisplayMode mode);
    void setCursorMode(eCursorMode mode);
    [[nodiscard]] eGraphMode graphMode() const { return mGraphMode; }
    [[nodiscard]] eDisplayMode displayMode() const { return mDisplayMode; }
    [[nodiscard]] eCursorMode cursorMode() const { return mCursorMode; }
    /// The user takes the time axis over: manual mode, and signalManMode() when it was automatic.
    void takeOverTime();
    void activateGrid(bool on);
    void activateCursor(bool on);
    void activateLegend(bool on);
    [[nodiscard]] bool isGridOn() const { return mGridOn; }
    [[nodiscard]] bool isCursorOn() const { return mCursorOn; }
    [[nodiscard]] bool isLegendOn() const { return mLegendOn; }
    /// What is shown was recorded: traces end where their samples end, and are not extended to the present.
    void setOfflineMode(bool on);
    [[nodiscard]] const GraphColours& colours() const { return mColours; }
    void setColours(const GraphColours& colours);
    /// What stands in an empty graph.
    void setMessage(const QString& text);
    [[nodiscard]] const QString& message() const { return mMessage; }

    // Traces.
    void setMaxParameters(int count);
    [[nodiscard]] const std::vector<GraphParameter>& parameters() const { return mParameters; }
    [[nodiscard]] const GraphParameter* parameter(int index) const;
    /// The active traces in the order of their strips.
    [[nodiscard]] const std::vector<int>& shown() const { return mShown; }
    [[nodiscard]] int nrActive() const { return static_cast<int>(mShown.size()); }
    void setActive(int index, bool on);
    void activateSamples(int index, bool on);
    void setPrecision(int index, int digits);
    void setParameterColor(int index, float red, float green, float blue);
    /// Back to the colour that the slot has by itself.
    void resetParameterColor(int index);
    void setParameterName(int index, const QString& name, const QString& unit);
    void setBands(int index, std::vector<GraphBand> bands);
    /// The user dropped a strip on the place of another. Sends signalMoveParameter().
    void moveParameter(int from, int to);
    /// The strips from top to bottom; slots that are not named follow in their own order.
    void setOrder(const std::vector<int>& slotOrder);
    /// The trace that stands out in single mode: its axis, its bands; -1, as for every trace that is not shown, for none.
    void setHighlighted(int index);
    [[nodiscard]] int highlighted() const { return mHighlighted; }
    /// The trace that stands out while the pointer is on no other; -1 for none. Forgotten when the slot shows something else.
    void setPinned(int index) { mPinned = isShown(index) ? index : -1; }
    [[nodiscard]] int pinned() const { return mPinned; }

    // Samples.
    void putValue(int index, double value, bool repaint);
    /// The same as setTime() and putValue() for each sample in turn, at a fraction of the cost.
    void putValues(int index, std::span<const double> times, std::span<const double> values);
    void reserve(int index, std::size_t samples);
    bool getValue(int index, double time, double& value) const;
    /// What the views tell of a trace at the cursor: the value in force, and that of the first sample where the cursor stands before it.
    [[nodiscard]] std::optional<double> valueAtCursor(int index) const;
    void getParameterRangeX(int index, double& first, double& last) const;
    void getParameterRangeY(int index, double& lower, double& upper) const;
    [[nodiscard]] double getCurrentAverageValue() const;
    void clear();
    void reset();

    // What a frame needs.
    /// @param columns pixels of the screen that the plot is wide  @param height of the plot in pixels, which the strips share
    void setPlot(int columns, double height);
    /// Ranges of values, the overall span of the data, strips.
    void calcRanges();
    void recalcFrameBuffer();
    void calcFrame();
    /// One run of the recalculation timer. @return whether it shall run again
    bool recalculate();
    /// The range of values that is drawn over the height of a trace's area.
    [[nodiscard]] std::array<double, 2> valueRange(int index) const;
    /// The trace whose values stand at the axis in single mode; -1 when there is none.
    [[nodiscard]] int axisParameter() const { return mHighlighted >= 0 ? mHighlighted : mShown.empty() ? -1 : mShown.front(); }
    [[nodiscard]] std::array<double, 2> dataSpan() const { return mDataSpan; }
    [[nodiscard]] int countdown() const { return mCountdown; }

Q_SIGNALS:
    void signalRepaint();
    void signalRecalculate();
    void signalCursor(float time, double value);
    void signalMoveCursorFinished();
    void signalMarker(float start, float end);
    void signalManMode();
    void signalMoveParameter(int from, int to);

private:
    struct FrameKey {
        double xmin = 0.0;
        double xmax = 0.0;
        int columns = 0;
        std::size_t generation = 0;
        bool operator==(const FrameKey&) const = default;
    };
    void windowChanged();
    void changed() { Q_EMIT signalRepaint(); }
    [[nodiscard]] GraphParameter* at(int index);
    void updateShown();
    void updateColours();
    [[nodiscard]] bool isShown(int index) const;
    void extendToPresent();
    void scale(GraphParameter& parameter) const;

    std::vector<GraphParameter> mParameters;
    std::vector<int> mOrder; // of strips, all slots
    std::vector<int> mShown;
    std::vector<TopMarker> mTopMarkers;
    TraceBuilder mBuilder;
    FrameKey mFrameKey;
    std::size_t mGeneration = 1; // of what frames are made from
    int mColumns = 1000;
    double mPlotHeight = 0.0;
    int mCountdown = 0;
    double mXmin = 0.0, mXmax = 60.0;
    double mYmin = -0.5, mYmax = 1.5;
    std::array<double, 2> mYRange{0.0, 1.0};
    std::array<double, 2> mDataSpan{0.0, 0.0};
    double mSpread = 0.0;
    double mTime = 0.0;
    double mMarkerStart = 0.0, mMarkerEnd = 0.0;
    double mCursorTime = 0.0, mCursorValue = 0.0;
    int mCursorIndex = 0;
    int mHighlighted = -1, mPinned = -1;
    eGraphMode mGraphMode = eAutomatic;
    eDisplayMode mDisplayMode = eSingleGraph;
    eCursorMode mCursorMode = eFloating;
    GraphColours mColours;
    QString mMessage;
    bool mAutoScaleY = true, mYRangeOn = false, mCursorMoving = false, mDataPresent = false, mModeChanged = false;
    bool mGridOn = true, mCursorOn = true, mLegendOn = true, mOffline = false;
};

} // namespace ZARN
