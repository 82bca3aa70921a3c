#pragma once

#include "project/Session.h"
#include "ui/data/DataViews.h"

#include <QDateTime>
#include <QWidget>

#include <functional>
#include <span>

class QButtonGroup;
class QSplitter;
class QStackedWidget;
class QTimer;

namespace ZARN {

class DataTabBar;
class WidgetReplayBar;

/// The data area: the loaded record in six tabbed views and a map, all at one view time, which the user moves in any of them, by the
/// controls below them or by the replay. Owns the views.
class DialogData : public QWidget {
    Q_OBJECT

public:
    using Clock = std::function<double()>; ///< the wall clock in seconds

    /// @param emu the reduced display: fewer controls, and the views show the newest values of a live record
    DialogData(const Session& session, const DataViews& views, bool emu, QWidget* pParent = nullptr, Clock clock = {});

    /// Shows what the container holds now, from its start time on.
    void updateRecord();
    /// Takes the record from all views and stops the replay: its data are about to change.
    void releaseRecord();
    /// Shows other parameters or units at the same view time.
    void updateProfile();
    /// Another profile file is in force: makes the fault matrix anew.
    void loadProfile();
    void setZarnMode(int /*mode*/) {}
    /// The settings were changed, by another window.
    void updateSettings();

    /// Flights, statistics and events of the record that is shown were worked out anew: the view time stays, and a replay goes on.
    void recalculated();
    [[nodiscard]] double viewTime() const { return mViewTime; }
    /// What the graph shows; none when it is empty.
    [[nodiscard]] std::optional<TimeSpan> graphSpan() const { return mViews.view(eViewGraph).shownSpan(); }

public Q_SLOTS:
    void slotTableTime(double time);
    void slotCursor(float time, double value);
    /// Told to the fault matrix, too: there it was only pointed at.
    void slotFaultTime(double time);
    void slotLimitTime(double time);
    void slotWarningTime(double time);
    void slotMapTime(double time);

    void slotReplayMode();
    void slotReplayStop();
    void slotSlider(int position);
    void slotValue(int seconds);
    void slotReplaySpeed(int hundredths);
    void slotReplaySpeed(double factor);
    void slotTimeoutReplay();
    void slotMapType(int type);

Q_SIGNALS:
    /// The user wants the report of what is shown, from the menu of a view.
    void signalReport();

private:
    using Targets = std::span<const EDataView>;

    void createTabs();
    QWidget* createHead();
    void createMapModes();
    void connectControls();
    void moveFromView(double time, Targets targets);
    void moveFromControl(double time);
    void push(Targets targets);
    void showRecord();
    void setReplay(int state);
    void updateDisplay();
    void updateControls();
    void updateEventCounts();

    Session mSession;
    DataViews mViews;
    Clock mClock;
    DataTabBar* mpTabs;
    QButtonGroup* mpMapModes;
    QStackedWidget* mpStack;
    QSplitter* mpSplitter;
    WidgetReplayBar* mpBar;
    QTimer* mpTimer;
    RecordData* mpRecord = nullptr;
    QDateTime mBase; ///< wall clock at the time 0 of the record
    double mStart = 0.0;
    double mEnd = 0.0;
    double mViewTime = 0.0;
    double mSpeed = 1.0;
    double mLastTick = 0.0;
    int mReplay = 0;
    bool mUpdatingControls = false; ///< the controls are being written: what they signal is not the user
    bool mPushing = false;          ///< the views are being told: what they signal is an echo
};

} // namespace ZARN
