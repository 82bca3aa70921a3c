#include "ui/data/TableCellDelegate.h"

#include "profile/Threshold.h"
#include "ui/canvas/ColourContrast.h"
#include "ui/canvas/Palette.h"
#include "ui/data/model/CellModel.h"
#include "ui/data/model/ShownParameter.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kPadding = 4;
constexpr int kWordPadding = 2;

/// A bar at the left edge: a short one for a warning, the whole height for a limit.
void paintMark(QPainter& painter, const QRect& rect, int state, const QColor& text)
{
    const int height = state == eThresholdLimit ? rect.height() : rect.height() / 2;
    painter.fillRect(QRect(rect.left(), rect.bottom() - height + 1, 3, height), text == Qt::white ? text : Palette::screen().tables.mark);
}

QColor textColour(const QStyleOptionViewItem& option, const TableCell& cell, bool ownGround, bool selected)
{
    if (ownGround) {
        // A page has few grounds, most of them side by side, and the contrast is dear to work out.
        static QColor ground, text;
        if (ground != cell.background)
            text = textColourOn(ground = cell.background);
        return text;
    }
    return option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
}

QRect roomForText(const QRect& cell, bool isNumber)
{
    const int padding = isNumber ? kPadding : kWordPadding;
    return cell.adjusted(padding, 0, -padding, 0);
}

bool fits(const QString& text, const QStyleOptionViewItem& option, const QRect& room)
{
    return option.fontMetrics.horizontalAdvance(text) <= room.width();
}

/// The widest character of a number, for the font that cells are drawn in: measuring each text would cost as much as drawing it.
int digitWidth(const QStyleOptionViewItem& option)
{
    static QFont font;
    static int width = 0;
    if (width == 0 || font != option.font) {
        font = option.font;
        width = 0;
        for (const QChar character : QString("0123456789-.+einfa"))
            width = std::max(width, option.fontMetrics.horizontalAdvance(character));
    }
    return width;
}

QString fittingText(const TableCell& cell, const QStyleOptionViewItem& option, const QRect& room)
{
    const bool surely = cell.isNumber && cell.text.size() * digitWidth(option) <= room.width();
    if (surely || fits(cell.text, option, room))
        return cell.text;
    return option.fontMetrics.elidedText(cell.text, Qt::ElideRight, room.width());
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
    const QColor colour = textColour(option, cell, ownGround, selected);
    if (cell.state == eThresholdWarning || cell.state == eThresholdLimit)
        paintMark(*pPainter, option.rect, cell.state, colour);
    if (cell.text.isEmpty())
        return;
    const QRect room = roomForText(option.rect, cell.isNumber);
    pPainter->setPen(colour);
    // Half a number would be a wrong one: what does not fit ends with an ellipsis.
    pPainter->drawText(room, Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip | (cell.isNumber ? Qt::AlignRight : Qt::AlignLeft),
                       fittingText(cell, option, room));
}

bool TableCellDelegate::helpEvent(QHelpEvent* pEvent, QAbstractItemView* pView, const QStyleOptionViewItem& option,
                                  const QModelIndex& index)
{
    if (pEvent->type() == QEvent::ToolTip && index.isValid()) {
        const TableCell cell = static_cast<const CellModel*>(index.model())->cell(index);
        if (!fits(cell.text, option, roomForText(option.rect, cell.isNumber))) {
            const QString state = ShownParameter::stateName(cell.state);
            QToolTip::showText(pEvent->globalPos(), "<qt>" + cell.text.toHtmlEscaped() + (state.isEmpty() ? "" : "<br/>" + state) + "</qt>",
                               pView);
            return true;
        }
    }
    return QStyledItemDelegate::helpEvent(pEvent, pView, option, index);
}

} // namespace ZARN
