#pragma once

#include <QFrame>

class QLabel;

namespace ZARN {

class Heading;

/// What stands in place of the data while there are none: how to come to some.
class WidgetWelcome : public QFrame {
    Q_OBJECT

public:
    /// A card is to be opened, something of it to be chosen; what was chosen is empty, or could not be read.
    enum EState { eNoCard, eChoose, eEmpty, eUnread };

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
    void resizeEvent(QResizeEvent* pEvent) override;

private:
    void giveRoom();

    QFrame* mpArea;
    QWidget* mpColumn; ///< the texts, no wider than is good to read
    Heading* mpHeading;
    QLabel* mpText;
    QLabel* mpProblem;
    QWidget* mpButtons;
};

} // namespace ZARN
