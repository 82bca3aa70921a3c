#pragma once

#include <QAccessible>
#include <QModelIndex>

namespace ZARN {

class RowTable;

/// A cell of a RowTable, or the title of a column, as assistive technology asks for it. Made and kept by RowTableAccess, as long as the rows
/// are what they were.
class RowTableCell : public QAccessibleInterface, public QAccessibleTableCellInterface {
public:
    static constexpr int kTitle = -1; ///< the row of the titles

    RowTableCell(const RowTable& table, int row, int column) : mTable(table), mRow(row), mColumn(column) {}

    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*pChild*/) const override { return -1; }
    /// The name is what stands in the cell; the description says in words what its colour tells.
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    [[nodiscard]] bool isSelected() const override;
    [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override;
    [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override;
    [[nodiscard]] int columnIndex() const override { return mColumn; }
    [[nodiscard]] int rowIndex() const override { return mRow; }
    [[nodiscard]] int columnExtent() const override { return 1; }
    [[nodiscard]] int rowExtent() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* table() const override { return parent(); }

private:
    [[nodiscard]] QModelIndex index() const;
    [[nodiscard]] QVariant data(int role) const;

    const RowTable& mTable;
    const int mRow;
    const int mColumn;
};

} // namespace ZARN
