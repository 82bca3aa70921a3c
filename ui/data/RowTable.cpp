#include "ui/data/RowTable.h"

#include "ui/data/RowTableAccess.h"

#include <QAbstractItemDelegate>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kStep = 40; // pixels to the side

} // namespace

RowTable::RowTable(int rowHeight, QWidget* pParent)
    : QAbstractItemView(pParent), mpHeader(new QHeaderView(Qt::Horizontal, this)), mRowHeight(rowHeight)
{
    [[maybe_unused]] static const bool isInstalled = (RowTableAccess::install(), true);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    horizontalScrollBar()->setSingleStep(kStep);
    connect(mpHeader, &QHeaderView::sectionResized, this, &RowTable::relayout);
    connect(mpHeader, &QHeaderView::sectionCountChanged, this, &RowTable::relayout);
    connect(mpHeader, &QHeaderView::geometriesChanged, this, &RowTable::relayout);
}

/// A screen reader reads the cell that the cursor comes to; the toolkit tells it of its own tables alone.
void RowTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QAbstractItemView::currentChanged(current, previous);
    if (!QAccessible::isActive() || !current.isValid())
        return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(RowTableAccess::of(*this).childOf(current));
    QAccessible::updateAccessibility(&event);
}

int RowTable::columnWidth(int column) const
{
    return mpHeader->sectionSize(column);
}

void RowTable::setColumnWidth(int column, int width)
{
    mpHeader->resizeSection(column, width);
}

void RowTable::widenColumns(const std::vector<int>& widths)
{
    {
        const QSignalBlocker once(mpHeader); // else each asks all titles for their size
        for (int column = 0; column < std::min(mpHeader->count(), static_cast<int>(widths.size())); ++column)
            mpHeader->resizeSection(column, std::max(columnWidth(column), widths[static_cast<std::size_t>(column)]));
    }
    relayout();
}

void RowTable::setRowHeight(int height)
{
    mRowHeight = height;
    relayout();
}

void RowTable::selectRow(int row)
{
    if (row >= 0 && row < rows())
        selectionModel()->setCurrentIndex(model()->index(row, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void RowTable::setModel(QAbstractItemModel* pModel)
{
    QAbstractItemView::setModel(pModel);
    mpHeader->setModel(pModel);
    if (pModel) {
        connect(pModel, &QAbstractItemModel::rowsInserted, this, &RowTable::relayout);
        connect(pModel, &QAbstractItemModel::rowsRemoved, this, &RowTable::relayout);
    }
    relayout();
}

void RowTable::reset()
{
    QAbstractItemView::reset();
    relayout();
}

void RowTable::setHeld(bool held)
{
    mHeld += held ? 1 : -1;
    if (mHeld == 0)
        relayout();
}

void RowTable::relayout()
{
    if (mHeld > 0)
        return;
    updateGeometries();
    viewport()->update();
}

int RowTable::rows() const
{
    return model() ? model()->rowCount(rootIndex()) : 0;
}

int RowTable::firstRow() const
{
    return verticalScrollBar()->value();
}

int RowTable::rowsAPage() const
{
    return std::max(1, viewport()->height() / mRowHeight);
}

int RowTable::rowAt(int y) const
{
    return firstRow() + (y >= 0 ? y / mRowHeight : -1 - (-1 - y) / mRowHeight);
}

QRect RowTable::visualRect(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    // Far rows are as far as a number of pixels can be.
    const qint64 top = std::clamp((static_cast<qint64>(index.row()) - firstRow()) * mRowHeight, qint64(-1000000000), qint64(1000000000));
    return {mpHeader->sectionViewportPosition(index.column()), static_cast<int>(top), mpHeader->sectionSize(index.column()) - 1,
            mRowHeight - 1};
}

QModelIndex RowTable::indexAt(const QPoint& point) const
{
    const int column = mpHeader->logicalIndexAt(point.x()), row = rowAt(point.y());
    return column >= 0 && row >= 0 && row < rows() ? model()->index(row, column) : QModelIndex();
}

int RowTable::sizeHintForColumn(int /*column*/) const
{
    return 0;
}

void RowTable::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    if (!index.isValid())
        return;
    const int row = index.row(), first = firstRow(), page = rowsAPage();
    QScrollBar& vertical = *verticalScrollBar();
    if (hint == PositionAtCenter)
        vertical.setValue(row - page / 2);
    else if (hint == PositionAtTop || (hint == EnsureVisible && row < first))
        vertical.setValue(row);
    else if (hint == PositionAtBottom || (hint == EnsureVisible && row >= first + page))
        vertical.setValue(row - page + 1);
    const QRect cell = visualRect(index);
    QScrollBar& horizontal = *horizontalScrollBar();
    if (cell.left() < 0 || cell.width() > viewport()->width())
        horizontal.setValue(horizontal.value() + cell.left());
    else if (cell.right() >= viewport()->width())
        horizontal.setValue(horizontal.value() + cell.right() + 1 - viewport()->width());
}

QItemSelectionModel::SelectionFlags RowTable::selectionCommand(const QModelIndex& index, const QEvent* pEvent) const
{
    if (pEvent && pEvent->type() == QEvent::KeyPress) {
        const auto* pKey = static_cast<const QKeyEvent*>(pEvent);
        if (pKey->key() == Qt::Key_Home || pKey->key() == Qt::Key_End) {
            const bool isMore = pKey->modifiers().testFlag(Qt::ShiftModifier);
            return (isMore ? QItemSelectionModel::SelectCurrent : QItemSelectionModel::ClearAndSelect) | QItemSelectionModel::Rows;
        }
    }
    return QAbstractItemView::selectionCommand(index, pEvent);
}

QModelIndex RowTable::moveCursor(CursorAction action, Qt::KeyboardModifiers /*modifiers*/)
{
    const int lastRow = rows() - 1, lastColumn = mpHeader->count() - 1;
    if (lastRow < 0 || lastColumn < 0)
        return {};
    const QModelIndex now = currentIndex();
    if (!now.isValid())
        return model()->index(0, 0);
    int row = now.row(), column = now.column();
    switch (action) {
    case MoveUp:
    case MovePrevious: --row; break;
    case MoveDown:
    case MoveNext: ++row; break;
    case MoveLeft: --column; break;
    case MoveRight: ++column; break;
    case MovePageUp: row -= rowsAPage(); break;
    case MovePageDown: row += rowsAPage(); break;
    case MoveHome: row = 0; break;
    case MoveEnd: row = lastRow; break;
    }
    return model()->index(std::clamp(row, 0, lastRow), std::clamp(column, 0, lastColumn));
}

int RowTable::horizontalOffset() const
{
    return mpHeader->offset();
}

int RowTable::verticalOffset() const
{
    return static_cast<int>(std::min<qint64>(static_cast<qint64>(firstRow()) * mRowHeight, 1000000000));
}

bool RowTable::isIndexHidden(const QModelIndex& /*index*/) const
{
    return false;
}

void RowTable::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags flags)
{
    const int lastRow = rows() - 1;
    if (lastRow < 0)
        return;
    const QRect box = rect.normalized();
    const int top = rowAt(box.top()), bottom = rowAt(box.bottom());
    if (bottom < 0 || top > lastRow) {
        selectionModel()->select(QItemSelection(), flags);
        return;
    }
    const QItemSelection selection(model()->index(std::max(top, 0), 0), model()->index(std::min(bottom, lastRow), 0));
    selectionModel()->select(selection, flags | QItemSelectionModel::Rows);
}

QRegion RowTable::visualRegionForSelection(const QItemSelection& selection) const
{
    QRegion region;
    for (const QItemSelectionRange& range : selection) {
        const int top = std::max(range.top(), firstRow()), bottom = std::min(range.bottom(), firstRow() + rowsAPage());
        if (top <= bottom)
            region += QRect(0, (top - firstRow()) * mRowHeight, viewport()->width(), (bottom - top + 1) * mRowHeight);
    }
    return region;
}

void RowTable::paintRow(QPainter& painter, QStyleOptionViewItem& option, int row, int left, int right)
{
    for (int column = left; column <= right; ++column) {
        const QModelIndex index = model()->index(row, column);
        option.rect = visualRect(index);
        option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
        itemDelegateForIndex(index)->paint(&painter, option, index);
    }
}

void RowTable::paintEvent(QPaintEvent* pEvent)
{
    const int columns = mpHeader->count();
    if (columns == 0 || rows() == 0)
        return;
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const QColor grid = QColor::fromRgba(static_cast<QRgb>(style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this)));
    QPainter painter(viewport());
    const QRect area = pEvent->rect();
    const auto columnAt = [&](int x, int otherwise) {
        const int column = mpHeader->logicalIndexAt(x);
        return column < 0 ? otherwise : column;
    };
    const int left = columnAt(area.left(), 0), right = columnAt(area.right(), columns - 1);
    const int top = rowAt(area.top()), bottom = std::min(rowAt(area.bottom()), rows() - 1);
    for (int row = top; row <= bottom; ++row)
        paintRow(painter, option, row, left, right);
    // A line a pixel wide costs several times what a rectangle does.
    const int end = mpHeader->sectionViewportPosition(right) + mpHeader->sectionSize(right), below = (bottom + 1 - firstRow()) * mRowHeight;
    for (int row = top; row <= bottom; ++row) {
        const int y = (row + 1 - firstRow()) * mRowHeight - 1;
        painter.fillRect(QRect(QPoint(area.left(), y), QPoint(std::min(area.right(), end - 1), y)), grid);
    }
    for (int column = left; column <= right; ++column) {
        const int x = mpHeader->sectionViewportPosition(column) + mpHeader->sectionSize(column) - 1;
        painter.fillRect(QRect(QPoint(x, area.top()), QPoint(x, std::min(area.bottom(), below - 1))), grid);
    }
}

void RowTable::resizeEvent(QResizeEvent* pEvent)
{
    const int row = currentIndex().row(), before = pEvent->oldSize().height();
    const bool wasSeen = row >= firstRow() && (row - firstRow()) * mRowHeight < before;
    QAbstractItemView::resizeEvent(pEvent);
    if (wasSeen && row >= firstRow() + rowsAPage())
        verticalScrollBar()->setValue(row - rowsAPage() + 1);
}

void RowTable::updateGeometries()
{
    if (mHeld > 0)
        return;
    const int height = mpHeader->isHidden() ? 0 : mpHeader->sizeHint().height();
    setViewportMargins(0, height, 0, 0);
    const QRect area = viewport()->geometry();
    mpHeader->setGeometry(area.left(), area.top() - height, area.width(), height);
    verticalScrollBar()->setPageStep(rowsAPage());
    verticalScrollBar()->setRange(0, std::max(0, rows() - rowsAPage()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setRange(0, std::max(0, mpHeader->length() - viewport()->width()));
    mpHeader->setOffset(horizontalScrollBar()->value());
    QAbstractItemView::updateGeometries();
}

void RowTable::scrollContentsBy(int /*dx*/, int /*dy*/)
{
    mpHeader->setOffset(horizontalScrollBar()->value());
    viewport()->update();
}

} // namespace ZARN
