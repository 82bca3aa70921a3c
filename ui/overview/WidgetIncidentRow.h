#pragma once

#include <QAbstractButton>

class QLabel;

namespace ZARN {

/// A sentence about an incident, or about several that are alike: the sign, when it was, what it was. A click or Return shows it.
class WidgetIncidentRow : public QAbstractButton {
    Q_OBJECT

public:
    WidgetIncidentRow(int state, const QString& time, const QString& head, const QString& detail, QWidget* pParent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

Q_SIGNALS:
    void signalCopy();

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    bool event(QEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    void enterEvent(QEnterEvent* pEvent) override;
    void leaveEvent(QEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;

private:
    void giveRoom();

    QLabel* mpTime;
};

} // namespace ZARN
