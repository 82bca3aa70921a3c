#pragma once

#include "analysis/TimeSpan.h"
#include "ui/graph/model/GraphCursor.h"
#include "ui/graph/model/GraphMarker.h"
#include "ui/graph/model/ShownTraces.h"
#include "ui/graph/model/TimeWindow.h"

#include <QObject>

namespace ZARN {

/// Everything that a graph knows without being seen: settings, window of time, cursor, marker, traces. Has the rules that concern several
/// of these, and tells of every change.
class GraphModel : public QObject {
    Q_OBJECT

public:
    static constexpr double kLatestTime = 86400.0; // seconds

    explicit GraphModel(QObject* pParent = nullptr);

    [[nodiscard]] const GraphData& settings() const { return mSettings; }
    /// To be changed in place; settingsChanged() has the graph follow.
    [[nodiscard]] GraphData& settings() { return mSettings; }
    void settingsChanged();
    [[nodiscard]] const GraphColours& colours() const { return mColours; }

    [[nodiscard]] const TimeWindow& window() const { return mWindow; }
    /// One that has no number is not taken.
    void setWindow(const TimeWindow& window);
    /// The user takes the time axis over: manual mode. Sends signalManMode() when it was automatic.
    void takeOverTime();
    /// Shows what is marked, in the manual mode; nothing where that has no width. Sends signalManMode().
    void zoomToMarker();

    [[nodiscard]] const GraphCursor& cursor() const { return mCursor; }
    /// In the center mode the window moves along.
    void setCursorPosition(double time);
    /// The user moved the cursor. Sends signalCursor().
    void moveCursor(double time, double value, int strip);
    void setCursorMoving(bool on);
    [[nodiscard]] const GraphMarker& marker() const { return mMarker; }
    void setMarker(const GraphMarker& marker);
    [[nodiscard]] const std::vector<TopMarker>& topMarkers() const { return mTopMarkers; }
    void addTopMarker(const TopMarker& marker);
    /// The parts of the record that a search found, in order of time.
    [[nodiscard]] const std::vector<TimeSpan>& found() const { return mFound; }
    void setFound(std::vector<TimeSpan> spans);
    /// What stands in an empty graph.
    [[nodiscard]] const QString& message() const { return mMessage; }
    void setMessage(const QString& text);

    [[nodiscard]] const ShownTraces& traces() const { return mTraces; }
    [[nodiscard]] ShownTraces& traces() { return mTraces; }
    /// The values at the bottom and at the top of a trace's area; of -1, those of a graph without traces.
    [[nodiscard]] ValueSpan valueSpan(int index) const;

    /// The present: what is put is put at it, and in the automatic mode the window ends with it.
    void setTime(double seconds);
    void putValue(int index, double value, bool repaint);
    /// The same as setTime() and putValue() for each sample in turn, at a fraction of the cost.
    void putValues(int index, std::span<const double> times, std::span<const double> values);
    /// What is shown was recorded: traces end where their samples end, and are not extended to the present.
    void setOfflineMode(bool on);
    void clear();
    void reset();

    /// In the automatic mode, while something is recorded, traces go on to the present with their last value.
    void extendToPresent();

Q_SIGNALS:
    void signalRepaint();
    /// The window of time is another one.
    void signalWindow();
    void signalCursor(float time, double value);
    void signalMoveCursorFinished();
    void signalMarker(float start, float end);
    void signalManMode();
    void signalMoveParameter(int from, int to);
    /// The user made strips higher or lower.
    void signalStrips();
    /// A key stands for a command of the graph.
    void signalCommand(int command);

private:
    GraphData mSettings;
    GraphColours mColours;
    TimeWindow mWindow;
    GraphCursor mCursor;
    GraphMarker mMarker;
    std::vector<TopMarker> mTopMarkers;
    std::vector<TimeSpan> mFound;
    QString mMessage;
    ShownTraces mTraces;
    double mTime = 0.0;
    bool mDataPresent = false;
    bool mIsOffline = false;
};

} // namespace ZARN
