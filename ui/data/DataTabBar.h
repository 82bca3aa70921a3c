#pragma once

#include <QTabBar>

#include <vector>

namespace ZARN {

/// The tabs of the data area: the icon above the title, so that all six fit a small window, and a count at the icon's corner. Where the titles do
/// not fit, the tabs stand closer, then long titles take two lines, then they are smaller; at last the longest are cut.
/// No tab moves when another is selected.
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
    void resizeEvent(QResizeEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;
    void tabInserted(int index) override;

private:
    enum EFit { eWide, eClose, eTwoLines };

    [[nodiscard]] QString title(int index, EFit fit) const;
    [[nodiscard]] int icon() const;
    [[nodiscard]] int tabWidth(int index, EFit fit) const;
    /// Takes the first arrangement that the width has room for.
    void arrange();
    void paintTab(QPainter& painter, int index);
    void paintCount(QPainter& painter, const QRect& icon, int count) const;
    [[nodiscard]] QFont titleFont(bool selected) const;

    std::vector<int> mCounts;
    EFit mFit = eWide;
    int mSmaller = 0; ///< pixels by which titles are smaller than other texts
    static constexpr int kNoLimit = 100000;
    int mWidest = kNoLimit; ///< of tabs, pixels
};

} // namespace ZARN
