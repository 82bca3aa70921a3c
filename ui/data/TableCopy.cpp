#include "ui/data/TableCopy.h"

#include "ui/data/model/CellText.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QKeyEvent>
#include <QToolTip>

namespace ZARN {

TableCopy::TableCopy(QAbstractItemView* pView) : QObject(pView), mpView(pView)
{
    pView->installEventFilter(this);
    pView->setContextMenuPolicy(Qt::ActionsContextMenu);
    const auto add = [this](const QString& text, bool withHeader) {
        auto* pAction = new QAction(text, mpView);
        connect(pAction, &QAction::triggered, this, [this, withHeader] { copy(withHeader); });
        mpView->addAction(pAction);
    };
    add(tr("Copy"), false);
    add(tr("Copy with Column Titles"), true);
}

void TableCopy::copy(bool withHeader) const
{
    const CellText cells(mpView->selectionModel()->selection());
    if (cells.cellCount() > CellText::kMaxCells) {
        QToolTip::showText(
            QCursor::pos(),
            tr("That is too much for the clipboard: %1 cells. Select fewer rows, or export a CSV file.").arg(cells.cellCount()));
        return;
    }
    const QString text = cells.text(*mpView->model(), withHeader);
    if (!text.isEmpty())
        QApplication::clipboard()->setText(text);
}

bool TableCopy::eventFilter(QObject* pObject, QEvent* pEvent)
{
    const bool isKey = pEvent->type() == QEvent::ShortcutOverride || pEvent->type() == QEvent::KeyPress;
    if (!isKey || !static_cast<QKeyEvent*>(pEvent)->matches(QKeySequence::Copy))
        return QObject::eventFilter(pObject, pEvent);
    const bool hasRows = mpView->selectionModel()->hasSelection();
    if (hasRows && pEvent->type() == QEvent::KeyPress)
        copy(false);
    pEvent->setAccepted(hasRows); // overrides the window's shortcut of the same key
    return true;
}

} // namespace ZARN
