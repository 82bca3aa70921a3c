#include "ui/overview/FlowLayout.h"

#include <algorithm>

namespace ZARN {

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

std::vector<FlowLayout::Row> FlowLayout::rows(int width) const
{
    std::vector<Row> rows;
    for (std::size_t i = 0; i < mItems.size(); ++i) {
        const QSize size = mItems[i]->sizeHint();
        if (rows.empty() || rows.back().width + spacing() + size.width() > width)
            rows.push_back({i, -spacing(), 0});
        Row& row = rows.back();
        row = {i + 1, row.width + spacing() + size.width(), std::max(row.height, size.height())};
    }
    return rows;
}

int FlowLayout::heightForWidth(int width) const
{
    int height = -spacing();
    for (const Row& row : rows(width))
        height += row.height + spacing();
    return std::max(height, 0);
}

QSize FlowLayout::minimumSize() const
{
    QSize size(0, 0);
    for (const auto& pItem : mItems)
        size = size.expandedTo(pItem->sizeHint());
    return size;
}

void FlowLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    std::size_t i = 0;
    int y = rect.top();
    for (const Row& row : rows(rect.width())) {
        int x = rect.right() + 1 - row.width;
        for (; i < row.end; ++i) {
            const QSize size = mItems[i]->sizeHint();
            mItems[i]->setGeometry({QPoint(x, y), size});
            x += size.width() + spacing();
        }
        y += row.height + spacing();
    }
}

} // namespace ZARN
