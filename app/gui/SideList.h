#pragma once

#include <QListWidget>

namespace ZARN {

/// A list of a few names that stands beside what they choose: as wide as the longest of them, whatever the size of the text.
class SideList : public QListWidget {
    Q_OBJECT

public:
    explicit SideList(int leastWidth = 0, QWidget* pParent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {sizeHint().width(), QListWidget::minimumSizeHint().height()}; }

protected:
    void changeEvent(QEvent* pEvent) override;

private:
    const int mLeastWidth;
};

} // namespace ZARN
