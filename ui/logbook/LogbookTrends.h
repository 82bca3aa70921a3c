#pragma once

#include "profile/DecodingContext.h"
#include "ui/logbook/model/LogbookWorker.h"
#include "ui/logbook/model/TrendScene.h"

#include <QWidget>

class QLabel;
class QListWidget;
class QPushButton;

namespace ZARN {

class WidgetTrend;

/// The trends of an engine: a list of them with the unusual and drifting ones on top, and the chosen one as a chart.
class LogbookTrends : public QWidget {
    Q_OBJECT

public:
    explicit LogbookTrends(LogbookWorker& worker, QWidget* pParent = nullptr);

    /// An empty one: none.
    void setEngine(const std::string& engine);
    /// In whose units figures are shown.
    void setContext(const DecodingContext& context);
    /// Reads what is shown anew; waits until it is seen.
    void reload();

Q_SIGNALS:
    /// A flight that the user wants to see. @param flight from 1
    void signalOpen(const QString& cycleId, int flight);

protected:
    void showEvent(QShowEvent* pEvent) override;

private:
    using Trends = std::vector<std::shared_ptr<const JudgedTrend>>;
    void read();
    void fill(Trends trends);
    void slotCurrent(int row);
    void slotPoint(int point);
    void open(int point);
    QWidget* createPointRow();

    LogbookWorker& mWorker;
    std::string mEngine;
    DecodingContext mContext;
    Trends mTrends;
    QListWidget* mpList;
    QLabel* mpTitle;
    WidgetTrend* mpChart;
    QLabel* mpPoint;
    QPushButton* mpOpen;
    QWidget* mpPointRow;
    int mPoint = -1; ///< the flight that is told of
    bool mIsOld = true;
    unsigned mAsked = 0;
};

} // namespace ZARN
