#pragma once

#include "analysis/Condition.h"
#include "app/GrowthTimer.h"
#include "app/LatestTask.h"
#include "project/Session.h"
#include "ui/find/model/FindHits.h"

#include <QTimer>

#include <set>

class QAction;
class QStackedWidget;

namespace ZARN {

class DialogData;
class FindBar;
class RecordSession;

/// Finds where something held in what is loaded: opens the bar, searches when the condition or the data are others, goes from one place to
/// the next and has the graph mark them. Owned by the main window; what it is given outlives it.
class FindController : public QObject {
    Q_OBJECT

public:
    FindController(const Session& session, RecordSession& record, DialogData& data, QStackedWidget& pages, QAction& action,
                   QObject* pParent = nullptr);

    /// Shows the bar, over the data.
    void open();

private:
    void slotRecord();
    void updateTimes();
    void updateParameters();
    void searchSoon();
    void search();
    void begin(const std::string& condition);
    void searchGrown();
    void slotFound();
    void slotClosed();
    void step(bool forward);
    void go(std::size_t hit);
    void show(std::size_t hit);
    void setHits(const FindHits& hits);

    Session mSession;
    RecordSession& mRecord;
    DialogData& mData;
    QStackedWidget& mPages;
    QAction& mAction;
    FindBar* mpBar; ///< owned by the data area
    FindHits mHits;
    QTimer mDelay;                   ///< while the user types on
    std::set<std::string> mOperands; ///< of the condition that the hits are of
    ConditionTimes mFound;           ///< by the task
    std::string mCondition;          ///< that was searched last; empty for none
    GrowthTimer mPace;
    LatestTask mSearch;
};

} // namespace ZARN
