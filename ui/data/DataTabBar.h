#pragma once

#include <QTabBar>

#include <vector>

namespace ZARN {

/// The tabs of the data area: the icon above the title, so that all six fit a small window, and a count at the icon's corner. Where they do
/// not fit, they stand closer, and the longest titles are elided.
class DataTabBar : public QTabBar {
    Q_OBJECT

public:
    explicit DataTabBar(QWidget* pParent = nullptr);

    /// The number shown at a tab's icon; 0 shows none.
    void setCount(int index, int count);
    [[nodiscard]] int countOf(int index) const;

Q_SIGNALS:
    /// A tab was clicked, the current one perhaps; it is the current one now.
    void signalClicked();

protected:
    [[nodiscard]] QSize tabSizeHint(int index) const override;
    [[nodiscard]] QSize minimumTabSizeHint(int index) const override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;

private:
    [[nodiscard]] int widestTab() const;
    void paintTab(QPainter& painter, int index);
    void paintCount(QPainter& painter, const QRect& icon, int count) const;
    [[nodiscard]] QFont titleFont(bool selected) const;

    std::vector<int> mCounts;
};

} // namespace ZARN
