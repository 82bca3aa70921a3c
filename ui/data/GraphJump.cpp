#include "ui/data/GraphJump.h"

#include <QAbstractItemView>
#include <QAction>

namespace ZARN {

GraphJump::GraphJump(QAbstractItemView* pView, const Show& show) : QObject(pView)
{
    connect(pView, &QAbstractItemView::doubleClicked, this, show);
    auto* pAction = new QAction(tr("Show in Graph"), pView);
    pAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Return));
    pAction->setShortcutContext(Qt::WidgetShortcut);
    connect(pAction, &QAction::triggered, this, [pView, show] {
        if (pView->currentIndex().isValid())
            show(pView->currentIndex());
    });
    pView->addAction(pAction);
}

} // namespace ZARN
