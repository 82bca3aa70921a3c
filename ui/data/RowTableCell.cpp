#include "ui/data/RowTableCell.h"

#include "ui/data/RowTable.h"
#include "ui/data/RowTableAccess.h"

#include <QHeaderView>

namespace ZARN {

bool RowTableCell::isValid() const
{
    return mTable.model() && mColumn < mTable.model()->columnCount() && mRow < mTable.model()->rowCount();
}

QModelIndex RowTableCell::index() const
{
    return mRow == kTitle || !isValid() ? QModelIndex() : mTable.model()->index(mRow, mColumn);
}

QVariant RowTableCell::data(int role) const
{
    if (!isValid())
        return {};
    return mRow == kTitle ? mTable.model()->headerData(mColumn, Qt::Horizontal, role) : index().data(role);
}

QAccessibleInterface* RowTableCell::parent() const
{
    return &RowTableAccess::of(mTable);
}

QString RowTableCell::text(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name: return data(Qt::DisplayRole).toString();
    case QAccessible::Description: return mRow == kTitle ? QString() : data(Qt::ToolTipRole).toString();
    default: return {};
    }
}

QRect RowTableCell::rect() const
{
    if (!isValid())
        return {};
    if (mRow != kTitle) {
        const QRect cell = mTable.visualRect(index());
        return {mTable.viewport()->mapToGlobal(cell.topLeft()), cell.size()};
    }
    const QHeaderView& header = *mTable.horizontalHeader();
    return {header.viewport()->mapToGlobal(QPoint(header.sectionViewportPosition(mColumn), 0)),
            QSize(header.sectionSize(mColumn), header.height())};
}

QAccessible::Role RowTableCell::role() const
{
    return mRow == kTitle ? QAccessible::ColumnHeader : QAccessible::Cell;
}

QAccessible::State RowTableCell::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    state.readOnly = true;
    if (mRow == kTitle || state.invalid)
        return state;
    state.selectable = state.multiSelectable = state.focusable = true;
    state.selected = isSelected();
    state.focused = mTable.hasFocus() && mTable.currentIndex() == index();
    state.offscreen = !mTable.viewport()->rect().intersects(mTable.visualRect(index()));
    return state;
}

void* RowTableCell::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface*>(this) : nullptr;
}

bool RowTableCell::isSelected() const
{
    return index().isValid() && mTable.selectionModel()->isSelected(index());
}

QList<QAccessibleInterface*> RowTableCell::columnHeaderCells() const
{
    if (mRow == kTitle || !isValid())
        return {};
    return {RowTableAccess::of(mTable).cell(kTitle, mColumn)};
}

/// The time that a row is of.
QList<QAccessibleInterface*> RowTableCell::rowHeaderCells() const
{
    if (mRow == kTitle || mColumn == 0 || !isValid())
        return {};
    return {RowTableAccess::of(mTable).cell(mRow, 0)};
}

} // namespace ZARN
