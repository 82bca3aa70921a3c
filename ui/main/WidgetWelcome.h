#pragma once

#include <QFrame>

class QLabel;

namespace ZARN {

/// What stands in place of the data while no card is open: how to open one.
class WidgetWelcome : public QFrame {
    Q_OBJECT

public:
    explicit WidgetWelcome(QWidget* pParent = nullptr);

    /// Says why there is no card; empty for no reason.
    void setProblem(const QString& problem);
    /// Marks the page while a folder hovers over the window.
    void setDragged(bool dragged);
    void setWithCard(bool withCard);

Q_SIGNALS:
    void signalOpenFolder();
    void signalOpenDemoCard();

private:
    QFrame* mpArea;
    QLabel* mpHeading;
    QLabel* mpText;
    QLabel* mpProblem;
    QWidget* mpButtons;
};

} // namespace ZARN
