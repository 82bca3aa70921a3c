#pragma once

#include "ui/logbook/model/TrendScene.h"

#include <QWidget>

namespace ZARN {

/// A trend as a chart. A point is chosen by the mouse or the arrow keys, and opened by a double click or Return.
class WidgetTrend : public QWidget {
    Q_OBJECT

public:
    explicit WidgetTrend(QWidget* pParent = nullptr);

    /// Null shows nothing.
    void setTrend(std::shared_ptr<const JudgedTrend> pTrend);
    void choose(int point);
    [[nodiscard]] QSize sizeHint() const override { return {600, 300}; }

Q_SIGNALS:
    void signalChosen(int point);
    void signalOpen(int point);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseDoubleClickEvent(QMouseEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    bool event(QEvent* pEvent) override;

private:
    [[nodiscard]] int pointAt(const QPointF& place) const;
    [[nodiscard]] TrendScene scene() const;

    std::shared_ptr<const JudgedTrend> mpTrend;
    int mChosen = -1;
};

} // namespace ZARN
