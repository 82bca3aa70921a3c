#include "ui/data/TableCellDelegate.h"

#include "profile/Threshold.h"
#include "ui/data/model/CellModel.h"

#include <QPainter>

namespace ZARN {

namespace {

constexpr int kPadding = 4;
constexpr int kWordPadding = 2;
const QColor kMark(120, 0, 0);

/// A bar at the left edge: a short one for a warning, the whole height for a limit.
void paintMark(QPainter& painter, const QRect& rect, int state)
{
    const int height = state == eThresholdLimit ? rect.height() : rect.height() / 2;
    painter.fillRect(QRect(rect.left(), rect.bottom() - height + 1, 3, height), kMark);
}

QColor textColour(const QStyleOptionViewItem& option, bool ownGround, bool selected)
{
    if (ownGround)
        return Qt::black;
    return option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
}

} // namespace

void TableCellDelegate::paint(QPainter* pPainter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const TableCell cell = static_cast<const CellModel*>(index.model())->cell(index);
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool ownGround = cell.background.isValid() && (!selected || cell.state != eThresholdOk);
    if (ownGround)
        pPainter->fillRect(option.rect, cell.background);
    else if (selected)
        pPainter->fillRect(option.rect, option.palette.highlight());
    if (cell.state == eThresholdWarning || cell.state == eThresholdLimit)
        paintMark(*pPainter, option.rect, cell.state);
    if (cell.text.isEmpty())
        return;
    const int padding = cell.isNumber ? kPadding : kWordPadding;
    const QRect room = option.rect.adjusted(padding, 0, -padding, 0);
    // Half a number would be a wrong one: what does not fit ends with an ellipsis.
    const bool fits = option.fontMetrics.horizontalAdvance(cell.text) <= room.width();
    pPainter->setPen(textColour(option, ownGround, selected));
    pPainter->drawText(room, Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip | (cell.isNumber ? Qt::AlignRight : Qt::AlignLeft),
                       fits ? cell.text : option.fontMetrics.elidedText(cell.text, Qt::ElideRight, room.width()));
}

} // namespace ZARN
