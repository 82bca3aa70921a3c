#pragma once

#include "app/GrowthTimer.h"
#include "app/LatestTask.h"
#include "project/Session.h"
#include "ui/xy/model/XyPoints.h"

#include <QWidget>

class QComboBox;
class QLabel;

namespace ZARN {

class PictureMenu;
class RecordSession;
class WidgetXy;

/// The window in which one parameter stands over another: which, of what part of the record, in which colours. Follows the record session;
/// its points are worked out beside it.
class DialogXy : public QWidget {
    Q_OBJECT

public:
    /// Owned by the parent, but a window of its own.
    DialogXy(const Session& session, RecordSession& record, QWidget* pParent);

    /// The part that is marked in the graph; none while nothing is.
    void setMarked(const std::optional<TimeSpan>& span);
    /// Shows it, with the parameters that are ticked first where none was chosen yet.
    void open();
    [[nodiscard]] WidgetXy& view() { return *mpView; }
    /// Works the points out now or, while hidden, when it is shown.
    void refresh();
    void begin();
    void slotGrown();

protected:
    void showEvent(QShowEvent* pEvent) override;

private:
    enum ESpan { eWhole, eMarked };
    QLayout* createChoices();
    QComboBox* addChoice(QLayout& row, const QString& title);
    void slotData();
    void fillParameters();
    void slotFinished();
    void showTime();
    void showMenu(const QPoint& point);
    [[nodiscard]] XyChoice choice() const;
    [[nodiscard]] QString status() const;
    [[nodiscard]] QString about() const;

    Session mSession;
    RecordSession& mRecord;
    QComboBox* mpX = nullptr;
    QComboBox* mpY = nullptr;
    QComboBox* mpColour = nullptr;
    QComboBox* mpSpan = nullptr;
    WidgetXy* mpView;
    QLabel* mpStatus;
    PictureMenu* mpPicture;
    std::optional<TimeSpan> mMarked;
    bool mIsBehind = true; ///< something has changed that the points do not show
    XyPoints mFound;       ///< by the task
    GrowthTimer mPace;
    LatestTask mTask;
};

} // namespace ZARN
