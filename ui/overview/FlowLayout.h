#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace ZARN {

/// Places its items in a row, and what has no room there in further rows. Wants one row, and is content with the widest item's width.
class FlowLayout : public QLayout {
public:
    /// @param gap pixels between items of a row; between rows half of them  @param alignment where rows that are not filled stand
    explicit FlowLayout(int gap, Qt::Alignment alignment = Qt::AlignLeft) : mGap(gap), mAlignment(alignment) {}
    ~FlowLayout() override;

    void addItem(QLayoutItem* pItem) override { mItems.emplace_back(pItem); }
    [[nodiscard]] int count() const override { return static_cast<int>(mItems.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override { return place({0, 0, width, 0}, false); }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& area) override;

private:
    /// @return the height that it takes
    int place(const QRect& area, bool isMoving) const;
    /// The first item behind the row that begins with that one, and the row's width.
    [[nodiscard]] std::pair<std::size_t, int> row(std::size_t first, int width) const;

    std::vector<std::unique_ptr<QLayoutItem>> mItems;
    const int mGap;
    const Qt::Alignment mAlignment;
};

} // namespace ZARN
