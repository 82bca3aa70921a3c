#include "ui/overview/FlowLayout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace ZARN {

FlowLayout::~FlowLayout() = default;

QLayoutItem* FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? mItems[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    if (!itemAt(index))
        return nullptr;
    QLayoutItem* pItem = mItems[static_cast<std::size_t>(index)].release();
    mItems.erase(mItems.begin() + index);
    return pItem;
}

QSize FlowLayout::sizeHint() const
{
    QSize size(0, 0);
    for (const auto& pItem : mItems)
        size = {size.width() + pItem->sizeHint().width() + (size.isEmpty() ? 0 : mGap),
                std::max(size.height(), pItem->sizeHint().height())};
    return size;
}

QSize FlowLayout::minimumSize() const
{
    QSize size(0, 0);
    for (const auto& pItem : mItems)
        size = size.expandedTo(pItem->sizeHint());
    return size;
}

void FlowLayout::setGeometry(const QRect& area)
{
    QLayout::setGeometry(area);
    place(area, true);
}

std::pair<std::size_t, int> FlowLayout::row(std::size_t first, int width) const
{
    int taken = mItems[first]->sizeHint().width();
    std::size_t next = first + 1;
    for (; next < mItems.size(); ++next) {
        const int wanted = taken + mGap + mItems[next]->sizeHint().width();
        if (wanted > width)
            break;
        taken = wanted;
    }
    return {next, taken};
}

int FlowLayout::place(const QRect& area, bool isMoving) const
{
    int top = area.top();
    for (std::size_t first = 0; first < mItems.size();) {
        const auto [next, taken] = row(first, area.width());
        int left = mAlignment.testFlag(Qt::AlignRight) ? area.right() + 1 - taken : area.left();
        int height = 0;
        for (; first < next; ++first) {
            const QRect place(QPoint(left, top), mItems[first]->sizeHint());
            if (isMoving)
                mItems[first]->setGeometry(QStyle::visualRect(parentWidget()->layoutDirection(), area, place));
            left += place.width() + mGap;
            height = std::max(height, place.height());
        }
        top += height + (first < mItems.size() ? mGap / 2 : 0);
    }
    return top - area.top();
}

} // namespace ZARN
