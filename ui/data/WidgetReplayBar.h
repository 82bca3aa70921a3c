#pragma once

#include <QWidget>

class QBoxLayout;
class QDateTime;
class QLCDNumber;

namespace ZARN {

class JumpSlider;
class ReplayButton;
class SpeedBox;
class TimeEntry;

/// The row of controls below the data views: two clocks, replay, position, time entry and speed. Shows what it is told and reports
/// what the user does, that alone. Breaks into two lines where one would be too wide, and leaves the texts of its buttons to their
/// icons where those would be, too.
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
    /// The view time: as a time of day in its clock, as it is in the entry, which follows when the user has finished typing into it.
    void setTime(int64_t milliseconds);
    /// @param position 0 to kPositions
    void setPosition(int position);

    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void signalReplay();
    void signalStop();
    void signalPosition(int position);
    void signalTime(int seconds);
    void signalSpeedSlider(int hundredths);
    void signalSpeed(double factor);

protected:
    void resizeEvent(QResizeEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;

private:
    void createClocks();
    void createSliders();
    void createEntries();
    void stepSpeed(int steps);
    void connectControls();
    void arrange();
    void fillLines(bool oneLine);
    [[nodiscard]] int widthOfText() const;
    [[nodiscard]] int widthOfReplay(int buttonWidth) const;
    [[nodiscard]] int widthOfClocks() const;

    QLCDNumber* mpDateClock = nullptr;
    QLCDNumber* mpTimeClock = nullptr;
    ReplayButton* mpReplay;
    ReplayButton* mpStop;
    JumpSlider* mpPosition;
    TimeEntry* mpTime;
    JumpSlider* mpSpeedSlider;
    SpeedBox* mpSpeed;
    QBoxLayout* mpUpper;
    QBoxLayout* mpLower;
    bool mOneLine = false;
};

} // namespace ZARN
