#pragma once

#include "project/RecordSession.h"
#include "project/Session.h"
#include "ui/main/WindowEnvironment.h"

#include <QMainWindow>
#include <QTimer>

#include <list>
#include <memory>

class QActionGroup;

namespace ZARN {

class CardController;
class DialogCard;
class DialogData;
class DialogProfile;
class ExportController;
class FindController;
class LayoutBar;
class LayoutController;
class LogbookController;
class MainCommands;
class MainPanels;
class MainToolBar;
class Notices;
class OverviewController;
class ProfileCatalogue;
class ProfileController;
class ProjectController;
class StatusProgress;
class WindowController;
class WindowLayout;
class XyController;

/// The main window: actions, menus, tool bar, card browser and profile panel at the left, the data at the right. It connects and forwards; what
/// the commands do is in one controller each. Owned by the main function; what it is given outlives it.
class DialogMain : public QMainWindow {
    Q_OBJECT

public:
    /// Shows itself.
    DialogMain(const Session& session, const WindowEnvironment& environment);
    ~DialogMain() override;

    /// The action with that number; null for a number that is not used.
    [[nodiscard]] QAction* action(int id) const;
    bool saveProject(bool askName);
    bool askSaveProject();
    void updateTitle();
    void updateUnit();
    void loadProfile();
    void fillProfiles();
    void updateProfiles();
    void setProgress(int percent);
    void openFolder(const QString& path);
    [[nodiscard]] CardController& card() { return *mpCardController; }
    [[nodiscard]] bool isProjectModified() const;

    /// Sees all events of the application first: a folder that the system asks the program to open.
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

public Q_SLOTS:
    void slotMenu(QAction* pAction);
    void slotMenuRecent(QAction* pAction);
    void slotMenuPrefAbout();
    /// Other parameters are shown.
    void slotProfileChanged();
    /// The user chose an entry of the profile selector.
    void slotProfileChanged(const QString& name);
    /// Another profile file is in force.
    void slotProfileFileChanged();
    void slotUnitChanged(int index);
    /// The user changed the project in the profile panel.
    void slotCanChanged();
    void slotFormulasChanged();
    /// In the graph, at the view time.
    void slotShowParameter(const QString& name);
    /// Another mode of the engine unit: reads the card anew.
    void slotZarnMode(int mode);
    void slotLoadRecord(const std::list<QString>& files);
    void slotLoadCycle(unsigned int cycle, int flight);

Q_SIGNALS:
    /// The work of the last run is restored: the start has succeeded.
    void signalStarted();

protected:
    void closeEvent(QCloseEvent* pEvent) override;

private Q_SLOTS:
    void slotTimeout();
    void slotTimeoutStartup();
    void slotFolderChanged();
    void slotDataChanging();
    void slotDataChanged();
    void slotRecalculated();
    void slotProjectChanged();

private:
    void createMenus();
    void createToolBar();
    void openToolBarsToKeys();
    void createPanels();
    void createStatusBar();
    void createControllers();
    void connectPanels();
    void connectCommands();
    void startTimers();
    void createNotices();
    void createLayouts();
    void restoreCard();
    void tellProfileProblem();
    void showProblems();
    /// Lists the flights of what is loaded.
    void listFlights();
    /// Marks in the card browser what is loaded.
    void showLoaded();
    /// What needs loaded data is offered while there are some.
    void updateExports();
    /// Tells the profile panel what the loaded data hold.
    void showRecorded();
    bool cleanup();

    Session mSession;
    RecordSession mRecord;
    WindowEnvironment mEnvironment;
    bool mEmu;
    MainCommands* mpCommands;
    QActionGroup* mpRecentGroup;
    MainToolBar* mpToolBar = nullptr;
    MainPanels* mpPanels = nullptr;
    DialogCard* mpCard = nullptr;
    LayoutBar* mpLayoutBar = nullptr;
    DialogProfile* mpProfile = nullptr;
    DialogData* mpData = nullptr;
    WindowController* mpWindows = nullptr;
    Notices* mpNotices = nullptr;
    StatusProgress* mpProgress = nullptr;
    std::unique_ptr<ProfileCatalogue> mpCatalogue;
    std::unique_ptr<ProfileController> mpProfileController;
    std::unique_ptr<WindowLayout> mpLayout;
    CardController* mpCardController = nullptr;
    ProjectController* mpProjectController = nullptr;
    ExportController* mpExportController = nullptr;
    FindController* mpFind = nullptr;
    XyController* mpXy = nullptr;
    OverviewController* mpOverview = nullptr;
    LogbookController* mpLogbook = nullptr;
    LayoutController* mpLayoutController = nullptr;
    QTimer mStartTimer;
};

} // namespace ZARN
