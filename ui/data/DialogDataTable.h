#pragma once

#include "project/Session.h"
#include "ui/data/model/DataView.h"
#include "ui/data/model/GraphMoment.h"

#include <QWidget>

class QLabel;
class QStackedLayout;
class QTableView;
class QTimer;

namespace ZARN {

class CardContainer;
class CellModel;
class DataTableModel;
class LiveTableModel;
class RowTable;
class TimeFollower;

/// The data table: a row for every tenth of a second at which something was recorded, a column for every shown parameter. In live
/// mode a row for every shown parameter, with its newest value.
class DialogDataTable : public QWidget, public DataView {
    Q_OBJECT

public:
    explicit DialogDataTable(const Session& session, QWidget* pParent = nullptr);

    void updateProfile() override;
    void updateRecord(RecordData* pRecord) override;
    void growRecord(RecordData* pRecord, bool isReviewed) override;
    [[nodiscard]] int growthPeriod() const override { return mMode == 0 ? DataView::growthPeriod() : 0; }
    void update(RecordData* pRecord) override;
    void updateFlights(RecordData* /*pRecord*/) override {} // the time, which is told next, is all that it shows of them
    void setTime(double time) override;
    void updateSettings() override;
    /// @param mode 0 shows the record, anything else is the live mode
    void setZarnMode(int mode) override;
    void setPaused(bool paused) override;

    [[nodiscard]] const DataTableModel& model() const { return *mpModel; }

Q_SIGNALS:
    /// The time of the row that the user chose last, in seconds; the selection may be of many, or of all.
    void signalTime(double time);
    /// The user wants to see a cell in the graph.
    void signalMoment(const GraphMoment& moment);

protected:
    void changeEvent(QEvent* pEvent) override;

private Q_SLOTS:
    void slotTimeoutRefresh();
    void slotFont();

private:
    void createView();
    void createLiveView();
    [[nodiscard]] double timeOf(int row) const;
    void updateColumns();
    void fill();
    void updateTimer();
    void sizeTimes();
    void sizeColumns();
    void widenColumns();
    [[nodiscard]] QFont cellFont() const;

    const Property& mProperty;
    const CardContainer& mContainer;
    DataTableModel* mpModel;
    LiveTableModel* mpLive;
    RowTable* mpView;
    TimeFollower* mpFollower = nullptr; ///< owned by the view
    QTableView* mpLiveView;
    QStackedLayout* mpViews;
    QLabel* mpHint;
    QTimer* mpTimer;
    RecordData* mpRecord = nullptr;
    int mMode = 0;
    bool mPaused = false;
    bool mWidened = false; ///< the columns were made wide enough for the texts of a record
};

} // namespace ZARN
