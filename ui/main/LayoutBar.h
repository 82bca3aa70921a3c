#pragma once

#include <QStringList>
#include <QWidget>

#include <array>
#include <vector>

class QAction;
class QComboBox;
class QLabel;

namespace ZARN {

/// The selector of layouts with the menu of what can be done with them. Knows no layouts but by name; its owner fills it and does what it
/// asks for.
class LayoutBar : public QWidget {
    Q_OBJECT

public:
    enum ECommand { eSave, eSaveAs, eRename, eRemove, eImport, eExport, eCommands };
    struct Entry {
        QString name;
        QString text;
        bool isOwn = false; ///< the user's, to be renamed or removed
    };
    /// What is in force.
    struct State {
        QString name;           ///< of the layout that was chosen last; empty for none
        bool isChanged = false; ///< what is shown is not that any more
        QStringList missing;    ///< names of its parameters that there are not
    };

    explicit LayoutBar(QWidget* pParent = nullptr);

    void setLayouts(const std::vector<Entry>& entries);
    void setState(const State& state);

Q_SIGNALS:
    /// The user chose a layout, be it the one that is in force.
    void signalChosen(const QString& name);
    void signalCommand(int command);

private:
    void createMenu();
    void showState();
    void showMissing();

    QComboBox* mpLayouts;
    QLabel* mpMissing;
    std::array<QAction*, eCommands> mActions{};
    std::vector<Entry> mEntries;
    State mState;
};

} // namespace ZARN
