#pragma once

#include <QItemSelection>
#include <QString>

namespace ZARN {

/// Cells of a model as text: tabulators between the columns, a line a row.
class CellText {
public:
    static constexpr qint64 kMaxCells = 2000000; ///< more are for an export, not for a clipboard

    /// The rows and columns that a selection touches, rows in ascending order and each once.
    explicit CellText(const QItemSelection& selection);

    [[nodiscard]] qint64 cellCount() const;
    /// The text; empty when there is nothing or when there are more than kMaxCells. @param withHeader puts the column titles first.
    [[nodiscard]] QString text(const QAbstractItemModel& model, bool withHeader) const;

private:
    struct Rows {
        int first;
        int last;
    };
    std::vector<Rows> mRows; // ascending, apart from each other
    int mFirstColumn = 0;
    int mLastColumn = -1;
};

} // namespace ZARN
