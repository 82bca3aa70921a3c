#pragma once

#include <QAbstractItemView>

#include <vector>

class QHeaderView;

namespace ZARN {

/// A table of rows that are all of one height, selected as wholes. It keeps nothing for a row: a recording has them by the million, and
/// the toolkit's own table takes memory and time for each.
class RowTable : public QAbstractItemView {
    Q_OBJECT

public:
    explicit RowTable(int rowHeight, QWidget* pParent = nullptr);

    [[nodiscard]] QHeaderView* horizontalHeader() const { return mpHeader; }
    [[nodiscard]] int rowHeight() const { return mRowHeight; }
    void setRowHeight(int height);
    [[nodiscard]] int columnWidth(int column) const;
    void setColumnWidth(int column, int width);
    /// Makes columns at least as wide, all at once; those beyond the list stay as they are.
    void widenColumns(const std::vector<int>& widths);
    void selectRow(int row);
    /// While true, rows and columns may come and go without a new layout for each: without rows the scroll bars would be hidden, and all of it
    /// painted once more when they are shown again. May be set within itself.
    void setHeld(bool held);

    void setModel(QAbstractItemModel* pModel) override;
    void reset() override;
    [[nodiscard]] QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    [[nodiscard]] QModelIndex indexAt(const QPoint& point) const override;
    /// Nothing: columns are as wide as their titles, whatever the rows hold.
    [[nodiscard]] int sizeHintForColumn(int column) const override;

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    /// Home and End choose a row, with Control as without it: there is nothing to do at a row that is not chosen.
    [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* pEvent) const override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    [[nodiscard]] int horizontalOffset() const override;
    [[nodiscard]] int verticalOffset() const override;
    [[nodiscard]] bool isIndexHidden(const QModelIndex& index) const override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags flags) override;
    [[nodiscard]] QRegion visualRegionForSelection(const QItemSelection& selection) const override;
    void paintEvent(QPaintEvent* pEvent) override;
    /// The current row stays in sight, whole, if it was.
    void resizeEvent(QResizeEvent* pEvent) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;

private:
    [[nodiscard]] int rows() const;
    [[nodiscard]] int firstRow() const;
    [[nodiscard]] int rowsAPage() const;
    /// The row at a height of the viewport, which may lie outside of it, or of all rows.
    [[nodiscard]] int rowAt(int y) const;
    void relayout();
    void paintRow(QPainter& painter, QStyleOptionViewItem& option, int row, int left, int right);

    QHeaderView* mpHeader;
    int mRowHeight;
    int mHeld = 0;
};

} // namespace ZARN
