#pragma once

#include "ui/logbook/model/LogbookModel.h"

#include <QTimer>
#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

namespace ZARN {

class DateField;

/// The flights of the logbook: what is wanted of them above, the table, what they come to below.
class LogbookFlights : public QWidget {
    Q_OBJECT

public:
    explicit LogbookFlights(LogbookWorker& worker, QWidget* pParent = nullptr);

    /// An empty one: all engines.
    void setEngine(const std::string& engine);
    /// The store was written.
    void reload() { mModel.reload(); }
    [[nodiscard]] const LogbookModel& model() const { return mModel; }
    /// Which columns are not shown, by their keys.
    void setHiddenColumns(const QStringList& keys);
    /// The filter in words, for who sees its result elsewhere.
    [[nodiscard]] QString filterText() const;
    /// What the flights that are shown come to.
    [[nodiscard]] QString totalsText() const;
    void setUnits(const LogbookUnits& units);

Q_SIGNALS:
    /// A flight that the user wants to see. @param flight from 1
    void signalOpen(const QString& cycleId, int flight);

    /// The user wants other columns.
    void signalHiddenColumns(const QStringList& keys);

protected:
    void showEvent(QShowEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;

private:
    QWidget* createFilter();
    void createTable();
    void takeFilter();
    [[nodiscard]] int leastWidth(int column) const;
    void arrange();
    void chooseColumns(const QPoint& point);
    void slotSelected();
    void slotPicked(const QModelIndex& index);

    LogbookModel mModel;
    LogbookFilter mFilter;
    DateField* mpFrom;
    DateField* mpUntil;
    QComboBox* mpVerdict;
    QLineEdit* mpText;
    QTableView* mpTable;
    QLabel* mpTotals;
    QPushButton* mpOpen;
    QTimer mTyping;
    bool mIsArranging = false; ///< the columns
    bool mIsUsers = false;     ///< the user gave the columns their widths
    int64_t mCurrent = 0; ///< the flight whose row is chosen
};

} // namespace ZARN
