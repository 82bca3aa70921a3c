#include "ui/data/RowTableAccess.h"

#include "ui/data/RowTableCell.h"

#include <algorithm>
#include <limits>

namespace ZARN {

namespace {

constexpr qsizetype kMostCells = 10000; // that are kept
constexpr qint64 kMostChildren = std::numeric_limits<int>::max();

} // namespace

void RowTableAccess::install()
{
    QAccessible::installFactory([](const QString& key, QObject* pObject) -> QAccessibleInterface* {
        auto* pTable = key == RowTable::staticMetaObject.className() ? qobject_cast<RowTable*>(pObject) : nullptr;
        return pTable ? new RowTableAccess(*pTable) : nullptr;
    });
}

RowTableAccess::RowTableAccess(RowTable& table) : QAccessibleWidget(&table, QAccessible::Table) {}

RowTableAccess::~RowTableAccess()
{
    forget();
}

RowTableAccess& RowTableAccess::of(const RowTable& table)
{
    return static_cast<RowTableAccess&>(*QAccessible::queryAccessibleInterface(const_cast<RowTable*>(&table)));
}

qint64 RowTableAccess::placeOf(int row, int column) const
{
    return static_cast<qint64>(row + 1) * columnCount() + column;
}

QAccessibleInterface* RowTableAccess::cell(int row, int column) const
{
    if (row < RowTableCell::kTitle || row >= rowCount() || column < 0 || column >= columnCount())
        return nullptr;
    const std::pair place(row, column);
    if (const auto known = mCells.constFind(place); known != mCells.cend())
        return QAccessible::accessibleInterface(*known);
    if (mCells.size() >= kMostCells)
        forget();
    auto* pCell = new RowTableCell(view(), row, column);
    mCells.insert(place, QAccessible::registerAccessibleInterface(pCell));
    return pCell;
}

int RowTableAccess::childOf(const QModelIndex& index) const
{
    const qint64 place = placeOf(index.row(), index.column());
    return index.isValid() && place < kMostChildren ? static_cast<int>(place) : -1;
}

void RowTableAccess::forget() const
{
    for (const QAccessible::Id id : std::as_const(mCells))
        QAccessible::deleteAccessibleInterface(id);
    mCells.clear();
}

QAccessibleInterface* RowTableAccess::child(int index) const
{
    const int columns = columnCount();
    return index < 0 || columns == 0 ? nullptr : cell(index / columns - 1, index % columns);
}

int RowTableAccess::childCount() const
{
    return static_cast<int>(std::min(placeOf(rowCount(), 0), kMostChildren));
}

int RowTableAccess::indexOfChild(const QAccessibleInterface* pChild) const
{
    const auto* pCell = dynamic_cast<const RowTableCell*>(pChild);
    if (!pCell)
        return -1;
    const qint64 place = placeOf(pCell->rowIndex(), pCell->columnIndex());
    return place < kMostChildren ? static_cast<int>(place) : -1;
}

QAccessibleInterface* RowTableAccess::childAt(int x, int y) const
{
    const QModelIndex index = view().indexAt(view().viewport()->mapFromGlobal(QPoint(x, y)));
    return index.isValid() ? cell(index.row(), index.column()) : nullptr;
}

QAccessibleInterface* RowTableAccess::focusChild() const
{
    const QModelIndex index = view().currentIndex();
    return index.isValid() ? cell(index.row(), index.column()) : nullptr;
}

void* RowTableAccess::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this) : QAccessibleWidget::interface_cast(type);
}

int RowTableAccess::rowCount() const
{
    return view().model() ? view().model()->rowCount() : 0;
}

int RowTableAccess::columnCount() const
{
    return view().model() ? view().model()->columnCount() : 0;
}

QString RowTableAccess::columnDescription(int column) const
{
    return view().model() ? view().model()->headerData(column, Qt::Horizontal).toString() : QString();
}

/// Its time.
QString RowTableAccess::rowDescription(int row) const
{
    return view().model() ? view().model()->index(row, 0).data().toString() : QString();
}

int RowTableAccess::selectedRowCount() const
{
    int count = 0;
    if (view().selectionModel()) {
        for (const QItemSelectionRange& range : view().selectionModel()->selection())
            count += range.height();
    }
    return count;
}

int RowTableAccess::selectedCellCount() const
{
    return static_cast<int>(std::min(static_cast<qint64>(selectedRowCount()) * columnCount(), kMostChildren));
}

QList<int> RowTableAccess::selectedRows() const
{
    QList<int> rows;
    if (view().selectionModel()) {
        for (const QItemSelectionRange& range : view().selectionModel()->selection()) {
            for (int row = range.top(); row <= range.bottom(); ++row)
                rows << row;
        }
    }
    std::ranges::sort(rows);
    return rows;
}

QList<QAccessibleInterface*> RowTableAccess::selectedCells() const
{
    QList<QAccessibleInterface*> cells;
    const int columns = columnCount();
    forget();
    for (const int row : selectedRows()) {
        if (cells.size() + columns > kMostCells)
            break;
        for (int column = 0; column < columns; ++column)
            cells << cell(row, column);
    }
    return cells;
}

bool RowTableAccess::isRowSelected(int row) const
{
    return row >= 0 && row < rowCount() && view().selectionModel()->isRowSelected(row);
}

bool RowTableAccess::select(int row, QItemSelectionModel::SelectionFlag how)
{
    if (row < 0 || row >= rowCount())
        return false;
    view().selectionModel()->select(view().model()->index(row, 0), how | QItemSelectionModel::Rows);
    return true;
}

/// Rows and columns are not what they were.
void RowTableAccess::modelChange(QAccessibleTableModelChangeEvent* /*pEvent*/)
{
    forget();
}

} // namespace ZARN
