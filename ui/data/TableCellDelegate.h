#pragma once

#include <QStyledItemDelegate>

namespace ZARN {

/// Paints the cells of a CellModel. Each is asked for once and drawn without the style's detours: a page of a wide table must follow
/// the scroll bar. A cell in a threshold state keeps its colour when its row is selected, and carries a mark beside the colour.
class TableCellDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// @param index of a CellModel
    void paint(QPainter* pPainter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Tells what a cell has no room for.
    bool helpEvent(QHelpEvent* pEvent, QAbstractItemView* pView, const QStyleOptionViewItem& option, const QModelIndex& index) override;
};

} // namespace ZARN
