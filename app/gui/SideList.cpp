#include "app/gui/SideList.h"

#include <QEvent>
#include <QScrollBar>

#include <algorithm>

namespace ZARN {

SideList::SideList(int leastWidth, QWidget* pParent) : QListWidget(pParent), mLeastWidth(leastWidth)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

QSize SideList::sizeHint() const
{
    constexpr int kBeside = 12;
    const int names = sizeHintForColumn(0) + 2 * frameWidth() + verticalScrollBar()->sizeHint().width() + kBeside;
    return {std::max(mLeastWidth, names), QListWidget::sizeHint().height()};
}

void SideList::changeEvent(QEvent* pEvent)
{
    QListWidget::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::StyleChange)
        updateGeometry();
}

} // namespace ZARN
