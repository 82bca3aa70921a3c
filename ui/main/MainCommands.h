#pragma once

#include <QObject>

#include <functional>
#include <initializer_list>
#include <map>

class QAction;
class QActionGroup;
class QMenuBar;

namespace ZARN {

/// The commands of the main window: their actions, their places in the menus, and what each of them does. Owned by the window.
class MainCommands : public QObject {
    Q_OBJECT

public:
    using Run = std::function<void(QAction& action)>;

    explicit MainCommands(QObject* pParent);

    /// The action with that number; null for a number that is not used.
    [[nodiscard]] QAction* action(int id) const;
    /// All actions are in it, and none excludes another.
    [[nodiscard]] QActionGroup& group() const { return *mpGroup; }
    void fillMenus(QMenuBar& menuBar) const;
    void setEnabled(std::initializer_list<int> ids, bool isEnabled) const;
    /// From now on the command with that number does this.
    void handle(int id, Run run);
    /// Does what belongs to the action; nothing for one that nobody handles.
    void run(QAction& action) const;

Q_SIGNALS:
    void signalHelpMenuOpening();

private:
    std::map<int, QAction*> mActions;
    std::map<int, Run> mRuns;
    QActionGroup* mpGroup;
};

} // namespace ZARN
