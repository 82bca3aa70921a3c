#pragma once

#include "project/DisplayLayout.h"
#include "project/RecordSession.h"
#include "project/Session.h"
#include "ui/data/DataViewList.h"
#include "ui/data/model/GraphMoment.h"

#include <QWidget>

#include <functional>
#include <memory>

class QButtonGroup;
class QSplitter;
class QStackedWidget;
class QTimer;

namespace ZARN {

class DataTabBar;
struct CycleCourse;
class ViewLink;
class WidgetReplayBar;

/// The data area: the loaded record in six tabbed views and a map, all at one view time, which the user moves in any of them, by the
/// controls below them or by the replay. Owns the views.
class DialogData : public QWidget {
    Q_OBJECT

public:
    using Clock = std::function<double()>; ///< the wall clock in seconds

    /// @param emu the reduced display: fewer controls, and the views show the newest values of a live record
    DialogData(RecordSession& record, const DataViewList& views, bool emu, QWidget* pParent = nullptr, Clock clock = {});

    /// Shows what the container holds now, from its start time on.
    void updateRecord() { mRecord.setRecord(); }
    /// Shows other parameters at the same view time.
    void updateProfile() { mRecord.changeSelection(); }
    /// Another profile file is in force.
    void loadProfile() { mRecord.changeProfile(); }
    void setZarnMode(int /*mode*/) {}
    /// The settings were changed, by another window.
    void updateSettings();

    [[nodiscard]] double viewTime() const { return mRecord.viewTime(); }
    /// The user picked a time in a view.
    void moveFrom(const QWidget& view, double time);
    /// What the graph shows; none when it is empty.
    [[nodiscard]] std::optional<TimeSpan> graphSpan() const;
    /// Brings the graph to the front with that moment; the way there from everywhere. The project is not changed.
    void showMoment(const GraphMoment& moment);
    [[nodiscard]] DataView& graph() { return mViews.view(eViewGraph); }
    /// What happened in the cycle, for the bar below; null while that is not known.
    void setCourse(const std::shared_ptr<const CycleCourse>& pCourse);
    /// Puts a bar between tabs and views; takes it over.
    void addBar(QWidget* pBar);
    /// What is ticked, as the graph shows it; without a name.
    [[nodiscard]] DisplayLayout layout() const { return mViews.view(eViewGraph).layout().value_or(DisplayLayout()); }

public Q_SLOTS:
    void slotTableTime(double time) { moveFrom(eViewTable, time); }
    void slotCursor(float time, double /*value*/) { moveFrom(eViewGraph, time); }
    void slotLimitTime(double time) { moveFrom(eViewLimits, time); }
    void slotWarningTime(double time) { moveFrom(eViewWarnings, time); }

    /// The lists have other events.
    void slotEvents();

    void slotReplayMode();
    void slotReplayStop();
    void slotSlider(int position);
    void slotValue(double seconds);
    void slotReplaySpeed(int hundredths);
    void slotReplaySpeed(double factor);
    void slotTimeoutReplay();
    void slotMapType(int type);

Q_SIGNALS:
    /// The settings that views have were changed.
    void signalSettings();
    /// The user wants the report of what is shown, from the menu of a view.
    void signalReport();
    /// The user wants to see one parameter over another.
    void signalCurves();
    /// Something else is marked in the graph.
    void signalMarker();
    /// The user changed how the graph shows what is ticked.
    void signalLayout();
    /// The user took back, or did again, what changed the ticks: those of the layout are wanted.
    void signalTicks(const DisplayLayout& layout);

protected:
    void changeEvent(QEvent* pEvent) override;

private:
    void createTabs();
    void shareRoom();
    QWidget* createHead();
    void createMapModes();
    void connectControls();
    void linkViews();
    void moveFrom(EDataView view, double time) { moveFrom(*mViews.entries[view].pWidget, time); }
    void slotRecord();
    void updateTimes();
    void updateMarks();
    void setReplay(int state);
    void updateDisplay();
    void updateControls();

    RecordSession& mRecord;
    DataViewList mViews;
    std::array<ViewLink*, eViewCount> mLinks{};
    Clock mClock;
    DataTabBar* mpTabs;
    QButtonGroup* mpMapModes;
    QStackedWidget* mpStack;
    QSplitter* mpSplitter;
    WidgetReplayBar* mpBar;
    QTimer* mpTimer;
    double mSpeed = 1.0;
    double mLastTick = 0.0;
    int mReplay = 0;
    std::shared_ptr<const CycleCourse> mpCourse;
    int mTextSize = 0;      ///< that views and map share their room by
    unsigned mReplayed = 0; ///< the version of the record that the replay goes through
};

} // namespace ZARN
