#pragma once

#include "project/TimeReference.h"
#include "ui/data/model/PositionMarks.h"

#include <QWidget>

class QBoxLayout;
class QDateTime;

namespace ZARN {

class JumpSlider;
class PositionBar;
class ReplayButton;
class SegmentClock;
class SpeedBox;
class TimeEntry;

/// The controls below the data views: two clocks, replay, time entry, speed, and the position over what happened in the record. Shows what it is
/// told and reports what the user does, that alone. The position has a line for itself, together with what the line above has no room for, unless
/// all have room in one; the texts of the buttons are left to their icons where they would not.
class WidgetReplayBar : public QWidget {
    Q_OBJECT

public:
    enum EReplay { eStopped = 0, eRunning = 1, ePaused = 2 };
    static constexpr int kPositions = 10000;

    /// @param emu without time-of-day clock, position slider and time entry
    explicit WidgetReplayBar(bool emu, QWidget* pParent = nullptr);

    void setReplay(int state);
    void setSpeed(double factor);
    /// The wall clock; dashes for an invalid one, or one that the clock has no digits for.
    void setDateTime(const QDateTime& dateTime);
    /// How times are told, and the span of the record in seconds since power-up.
    void setTimes(const TimeReference& times, double start, double end);
    void setMarks(PositionMarks marks);
    /// The view time since power-up: as a time of day in its clock, as it is in the entry, which follows when the user has finished typing into it.
    void setTime(int64_t milliseconds);
    /// @param position 0 to kPositions
    void setPosition(int position);

    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void signalReplay();
    void signalStop();
    void signalPosition(int position);
    void signalTime(double seconds); ///< since power-up
    void signalSpeedSlider(int hundredths);
    void signalSpeed(double factor);

protected:
    void resizeEvent(QResizeEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;

private:
    /// What the upper line holds, from the widest on; the others stand in the lower one, beside the position.
    enum EFit { eAll, eAllButPosition, eClocksAndReplay, eClocks };

    void createClocks();
    void createSliders();
    void createEntries();
    void nameTimes();
    void stepSpeed(int steps);
    void connectControls();
    void arrange();
    void fitClocks(int spare);
    void fillLines(EFit fit);
    [[nodiscard]] int widthOfText() const;
    [[nodiscard]] int widthFor(EFit fit, int buttonWidth) const;

    SegmentClock* mpDateClock = nullptr;
    SegmentClock* mpTimeClock = nullptr;
    ReplayButton* mpReplay;
    ReplayButton* mpStop;
    PositionBar* mpPosition;
    TimeEntry* mpTime;
    JumpSlider* mpSpeedSlider;
    SpeedBox* mpSpeed;
    QBoxLayout* mpUpper;
    QBoxLayout* mpLower;
    EFit mFit = eClocks;
    TimeReference mTimes;
    double mStart = 0.0; ///< of the record
};

} // namespace ZARN
