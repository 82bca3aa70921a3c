#pragma once

#include "ui/data/RowTable.h"

#include <QAccessibleWidget>
#include <QHash>

namespace ZARN {

/// A RowTable as assistive technology sees it: a table whose children are the titles of its columns and its cells, row by row. Cells are made
/// when they are asked for and forgotten when the rows change, or when there are too many; the toolkit makes one of these for a table and
/// owns it.
class RowTableAccess : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    /// To be called before the first table is shown.
    static void install();
    [[nodiscard]] static RowTableAccess& of(const RowTable& table);

    /// A cell, or the title of a column in the row RowTableCell::kTitle; null outside of the table.
    [[nodiscard]] QAccessibleInterface* cell(int row, int column) const;
    /// The number of a cell among the children; -1 for those beyond what a number of children can be.
    [[nodiscard]] int childOf(const QModelIndex& index) const;

protected:
    ~RowTableAccess() override;

private: // what is asked for through the toolkit's interfaces
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* pChild) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* cellAt(int row, int column) const override { return row < 0 ? nullptr : cell(row, column); }
    [[nodiscard]] int selectedCellCount() const override;
    /// The first ones of them.
    [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override;
    [[nodiscard]] QString columnDescription(int column) const override;
    [[nodiscard]] QString rowDescription(int row) const override;
    [[nodiscard]] int selectedColumnCount() const override { return 0; } // rows are selected
    [[nodiscard]] int selectedRowCount() const override;
    [[nodiscard]] int columnCount() const override;
    [[nodiscard]] int rowCount() const override;
    [[nodiscard]] QList<int> selectedColumns() const override { return {}; }
    [[nodiscard]] QList<int> selectedRows() const override;
    [[nodiscard]] bool isColumnSelected(int /*column*/) const override { return false; }
    [[nodiscard]] bool isRowSelected(int row) const override;
    bool selectRow(int row) override { return select(row, QItemSelectionModel::Select); }
    bool selectColumn(int /*column*/) override { return false; }
    bool unselectRow(int row) override { return select(row, QItemSelectionModel::Deselect); }
    bool unselectColumn(int /*column*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* pEvent) override;

private:
    explicit RowTableAccess(RowTable& table);
    [[nodiscard]] RowTable& view() const { return static_cast<RowTable&>(*widget()); }
    [[nodiscard]] qint64 placeOf(int row, int column) const;
    bool select(int row, QItemSelectionModel::SelectionFlag how);
    void forget() const;

    mutable QHash<std::pair<int, int>, QAccessible::Id> mCells; // by row and column
};

} // namespace ZARN
