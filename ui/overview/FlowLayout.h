#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace ZARN {

/// Lays widgets out in a row, as wide as they want to be, and goes on in the next row where the width ends. Rows end at the right edge.
class FlowLayout : public QLayout {
public:
    void addItem(QLayoutItem* pItem) override { mItems.emplace_back(pItem); }
    [[nodiscard]] int count() const override { return static_cast<int>(mItems.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override { return minimumSize(); }
    /// That of the largest widget: each may have a row of its own.
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    struct Row {
        std::size_t end = 0; ///< behind its last item
        int width = 0;
        int height = 0;
    };
    [[nodiscard]] std::vector<Row> rows(int width) const;

    std::vector<std::unique_ptr<QLayoutItem>> mItems;
};

} // namespace ZARN
