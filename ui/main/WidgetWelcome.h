#pragma once

#include <QFrame>

class QLabel;

namespace ZARN {

class Heading;

/// What stands in place of the data while there are none: how to come to some.
class WidgetWelcome : public QFrame {
    Q_OBJECT

public:
    enum EState { eNoCard, eChoose, eEmpty }; ///< a card is to be opened, something of it to be chosen; what was chosen is empty

    explicit WidgetWelcome(QWidget* pParent = nullptr);

    /// Says why there is no card; empty for no reason.
    void setProblem(const QString& problem);
    /// Marks the page while a folder hovers over the window.
    void setDragged(bool dragged);
    void setState(EState state);

Q_SIGNALS:
    void signalOpenFolder();
    void signalOpenDemoCard();

protected:
    void changeEvent(QEvent* pEvent) override;

private:
    void giveRoom();

    QFrame* mpArea;
    Heading* mpHeading;
    QLabel* mpText;
    QLabel* mpProblem;
    QWidget* mpButtons;
};

} // namespace ZARN
