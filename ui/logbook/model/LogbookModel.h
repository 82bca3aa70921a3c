#pragma once

#include "ui/logbook/model/LogbookUnits.h"
#include "ui/logbook/model/LogbookWorker.h"

#include <QAbstractTableModel>

#include <map>

namespace ZARN {

/// The flights of a store as a table. Knows which there are, and reads what is seen of them, a page at a time, in the worker's thread: of
/// what is not there yet the cells are empty.
class LogbookModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum EColumn { eDate, eEngine, eFlightTime, eFuel, eClimb, eVerdict, eCard, eNotes, eColumns };

    /// @param worker must outlive it
    explicit LogbookModel(LogbookWorker& worker, QObject* pParent = nullptr);

    void setFilter(const LogbookFilter& filter);
    /// Reads the store anew: it was written.
    void reload();
    /// What was read of a row; null while it was not.
    [[nodiscard]] const LogbookEntry* entry(int row) const;
    [[nodiscard]] int64_t flightOf(int row) const { return mFlights[static_cast<std::size_t>(row)]; }
    /// The row of a flight; -1 when it is not shown.
    [[nodiscard]] int rowOf(int64_t flight) const;
    [[nodiscard]] const std::vector<int64_t>& flights() const { return mFlights; }
    [[nodiscard]] const LogbookTotals& totals() const { return mTotals; }
    [[nodiscard]] static QString text(const LogbookEntry& entry, int column, const LogbookUnits& units);
    [[nodiscard]] static QString title(int column, const LogbookUnits& units);
    void setUnits(const LogbookUnits& units);
    [[nodiscard]] const LogbookUnits& units() const { return mUnits; }
    /// By which settings name the column.
    [[nodiscard]] static QString key(int column);
    [[nodiscard]] static bool isNumber(int column) { return column == eFlightTime || column == eFuel || column == eClimb; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

Q_SIGNALS:
    /// Other flights, or in another order.
    void signalSelected();

private:
    void select(bool isRead);
    [[nodiscard]] static QString tip(const LogbookEntry& entry, int column);
    void askPage(int page) const;
    void takePage(int page, std::vector<LogbookEntry> entries);

    LogbookWorker& mWorker;
    LogbookUnits mUnits;
    LogbookFilter mFilter;
    int mColumn = eDate;
    Qt::SortOrder mOrder = Qt::DescendingOrder;
    std::vector<int64_t> mFlights;
    LogbookTotals mTotals;
    unsigned mAsked = 0;   ///< counts the selections that were asked for
    unsigned mRead = 0;    ///< that which is shown
    mutable std::map<int, std::vector<LogbookEntry>> mPages; ///< an empty one is being read
    mutable std::vector<int> mUsed; ///< pages, the latest asked for last
};

} // namespace ZARN
