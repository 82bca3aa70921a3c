#pragma once

#include <QSplitter>

class QLabel;
class QStackedWidget;
class QVBoxLayout;

namespace ZARN {

class DialogCard;
class DialogData;
class DialogProfile;
class WidgetWelcome;

/// What stands in the main window: at the left the card browser above the profile panel, at the right what is wrong with the card above
/// the data, or what is shown in place of them.
class MainPanels : public QSplitter {
    Q_OBJECT

public:
    /// Takes the panels over.
    MainPanels(DialogCard* pCard, DialogProfile* pProfile, DialogData* pData);

    [[nodiscard]] QSplitter& side() { return *mpSide; }
    /// The pages of the right side; others may be added.
    [[nodiscard]] QStackedWidget& pages() { return *mpPages; }
    [[nodiscard]] WidgetWelcome& welcome() { return *mpWelcome; }
    /// The data, or the page in their place.
    void showData(bool isData);
    /// For good: nothing is chosen, the data are all there is.
    void hideSide();
    /// Puts something above all else of the right side; taken over.
    void addNotice(QWidget* pNotice);
    /// What of the card could not be read; empty for nothing.
    void setProblems(const QString& problems);

private:
    QWidget* createRight();

    QSplitter* mpSide;
    QStackedWidget* mpPages;
    WidgetWelcome* mpWelcome;
    QVBoxLayout* mpRight = nullptr;
    QWidget* mpData;
    QLabel* mpProblems;
};

} // namespace ZARN
