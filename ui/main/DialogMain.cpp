#include "ui/main/DialogMain.h"

#include "app/CmdLine.h"
#include "app/Console.h"
#include "app/DataHandler.h"
#include "app/Property.h"
#include "app/Settings.h"
#include "app/gui/ImageHandler.h"
#include "app/gui/Kernel.h"
#include "card/CardContainer.h"
#include "card/CardProblem.h"
#include "card/record/RecordData.h"
#include "card/record/RecordFormats.h"
#include "profile/ui/DialogProfile.h"
#include "project/Project.h"
#include "ui/data/DialogData.h"
#include "ui/main/CardController.h"
#include "ui/main/CopyKey.h"
#include "ui/main/DialogCard.h"
#include "ui/main/ExportController.h"
#include "ui/main/FindController.h"
#include "ui/main/FolderDrop.h"
#include "ui/main/LayoutController.h"
#include "ui/main/LiveController.h"
#include "ui/main/LogbookController.h"
#include "ui/main/MainActions.h"
#include "ui/main/MainCommands.h"
#include "ui/main/MainPanels.h"
#include "ui/main/MainToolBar.h"
#include "ui/main/NoteController.h"
#include "ui/main/Notices.h"
#include "ui/main/OverviewController.h"
#include "ui/main/ProfileController.h"
#include "ui/main/ProjectController.h"
#include "ui/main/RecentFolders.h"
#include "ui/main/StatusProgress.h"
#include "ui/main/StyleWatch.h"
#include "ui/main/WidgetWelcome.h"
#include "ui/main/WindowController.h"
#include "ui/main/WindowLayout.h"
#include "ui/main/XyController.h"
#include "ui/overview/DialogOverview.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QFileOpenEvent>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kRestoreDelay = 20;   // milliseconds from here on: the event loop runs
constexpr int kStartupDelay = 1000; // the window has its size
constexpr int kMessageDuration = 8000;

} // namespace

DialogMain::DialogMain(const Session& session, const WindowEnvironment& environment)
    : mSession(session), mRecord(session.container), mEnvironment(environment), mEmu(environment.cmdLine.getSwitch("-emu")),
      mpCommands(new MainCommands(this)),
      mpRecentGroup(new QActionGroup(this)), mpCatalogue(std::make_unique<ProfileCatalogue>(session.console, environment.folders.resourcePath(), environment.folders.dataPath()))
{
    createPanels();
    if (!mEmu)
        createMenus();
    createToolBar();
    openToolBarsToKeys();
    createStatusBar();
    createControllers();
    createLayouts();
    connectPanels();
    connectCommands();
    startTimers();
    mEnvironment.kernel.applyFontSize(Settings::kFontSize.get(mSession.property)); // the style of all of it at once
    mpLayout->restoreWindow();
    if (mEmu) {
        mpPanels->hideSide();
        mpToolBar->hide();
        mpPanels->showData(true); // what arrives is shown at once
    }
    updateUnit();
    loadProfile();
    if (mEmu)
        mRecord.setRecord();
    fillProfiles();
    updateTitle();
    updateExports();
    mpCard->focusList(); // not the first field for text: it would take keys that are meant for the window
    show();
    mpLayout->restoreSplitters();
    Settings::kLastProjectPath.set(mSession.property, mEnvironment.folders.dataPath() + "/CurrentProject.xml");
}

DialogMain::~DialogMain()
{
    mSession.property.file().setListener({});
    mSession.project.file().setListener({});
}

void DialogMain::createPanels()
{
    mpCard = new DialogCard(mSession.container);
    mpLayoutBar = new LayoutBar;
    mpProfile = new DialogProfile(mSession, mpLayoutBar);
    const QString dataPath = QString::fromStdString(mEnvironment.folders.dataPath());
    mpData = new DialogData(mRecord, DataViewList::create(mSession, dataPath), mEmu);
    mpPanels = new MainPanels(mpCard, mpProfile, mpData);
    setCentralWidget(mpPanels);
    const auto* pDrop = new FolderDrop(this);
    connect(pDrop, &FolderDrop::signalDragged, &mpPanels->welcome(), &WidgetWelcome::setDragged);
    connect(pDrop, &FolderDrop::signalDropped, this, &DialogMain::openFolder);
}

QAction* DialogMain::action(int id) const
{
    return mpCommands->action(id);
}

void DialogMain::createMenus()
{
    addActions(mpCommands->group().actions()); // those without a place in a menu have their keys
    mpCommands->fillMenus(*menuBar());
    connect(mpCommands, &MainCommands::signalHelpMenuOpening, this, &DialogMain::slotMenuPrefAbout);
}

void DialogMain::createToolBar()
{
    mpToolBar = new MainToolBar([this](int id) { return action(id); });
    addToolBar(mpToolBar);
    connect(mpToolBar, &MainToolBar::signalProfile, this, qOverload<const QString&>(&DialogMain::slotProfileChanged));
    connect(mpToolBar, &MainToolBar::signalUnit, this, &DialogMain::slotUnitChanged);
}

/// The toolkit leaves tool bars to the mouse, but some commands are in no menu.
void DialogMain::openToolBarsToKeys()
{
    for (const QToolBar* pBar : findChildren<QToolBar*>()) {
        for (QToolButton* pButton : pBar->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly)) {
            if (pButton->defaultAction())
                pButton->setFocusPolicy(Qt::TabFocus);
        }
    }
}

void DialogMain::createStatusBar()
{
    mpProgress = new StatusProgress;
    statusBar()->addPermanentWidget(mpProgress);
    mpProgress->hide(); // the bar shows what is added
    createNotices();
}

void DialogMain::createNotices()
{
    mpNotices = new Notices(this);
    mpNotices->setProblem(Notices::eGraphics, mEnvironment.graphicsProblem);
    const QString unsaved = tr("Settings cannot be saved");
    const QString file = QString::fromStdString(mSession.property.configFile());
    if (mSession.property.isUnread())
        mpNotices->setProblem(Notices::eSettings, tr("Settings unreadable: defaults are in force"), file);
    else if (!QFileInfo(QFileInfo(file).absolutePath()).isWritable())
        mpNotices->setProblem(Notices::eSettings, unsaved, file);
    mpNotices->watch(mSession.property.file(), Notices::eSettings, unsaved);
    mpNotices->watch(mSession.project.file(), Notices::eProject, tr("Project cannot be saved"));
    std::string style;
    mEnvironment.cmdLine.getParameter("-s", style);
    new StyleWatch(mSession.console, mEnvironment.kernel, *mpNotices, QString::fromStdString(style), this);
}

void DialogMain::createControllers()
{
    auto* pRecent = new RecentFolders(mSession.property, mpToolBar->folders());
    connect(pRecent, &RecentFolders::signalChosen, this, &DialogMain::openFolder);
    mpCardController = new CardController(mSession, *mpCard, *pRecent, *mpProgress, this);
    mpProjectController = new ProjectController(mSession, this);
    mpExportController = new ExportController(
        mSession, *mpCardController, [this] { return mpData->graphSpan(); }, this);
    mpOverview =
        new OverviewController(mSession, mRecord, *mpCardController, *mpCard, *mpData, mpPanels->pages(), *action(eActionOverview), this);
    mpFind = new FindController(mSession, mRecord, *mpData, mpPanels->pages(), *action(eActionFind), this);
    mpLogbook =
        new LogbookController(mSession, {*mpCardController, *mpCard, *mpOverview, *mpPanels, *mpCommands, *mpNotices, mRecord, mEmu},
                              QString::fromStdString(mEnvironment.folders.dataPath()), this);
    const auto* pNotes = new NoteController(mSession, mRecord, mpLogbook->worker(), *mpCommands, *mpNotices, this);
    connect(pNotes, &NoteController::signalChanged, &mpOverview->view(), &DialogOverview::reset);
    mpXy = new XyController(mSession, mRecord, *mpData, *action(eActionXy), this);
    const auto* pLive = new LiveController(mSession, {*mpCardController, *mpCard, *mpData, *mpPanels, *mpCommands, mRecord}, this);
    connect(pLive, &LiveController::signalBegun, this, &DialogMain::updateTitle);
    if (mEnvironment.cmdLine.getSwitch("-connect"))
        connect(this, &DialogMain::signalStarted, pLive, &LiveController::connectLast, Qt::SingleShotConnection);
    mpProfileController = std::make_unique<ProfileController>(mSession, *mpCatalogue, mpToolBar->profiles(), mpToolBar->units());
    mpWindows = new WindowController(mSession, mEnvironment, *mpCatalogue, *mpProfileController, *mpCommands, this);
    mpLayout = std::make_unique<WindowLayout>(mSession.property, *this, *mpPanels, mpPanels->side());
}

void DialogMain::createLayouts()
{
    mpLayoutController =
        new LayoutController(mSession, QString::fromStdString(mEnvironment.folders.dataPath()), *mpNotices, *mpLayoutBar, *mpData, this);
    connect(mpLayoutController, &LayoutController::signalChosen, mpProfile, &DialogProfile::updateProfile);
    connect(mpLayoutController, &LayoutController::signalChosen, this, &DialogMain::slotCanChanged);
    connect(mpLayoutController, &LayoutController::signalChosen, this, qOverload<>(&DialogMain::slotProfileChanged));
}

void DialogMain::connectPanels()
{
    connect(mpProfile, &DialogProfile::signalChanged, this, &DialogMain::slotCanChanged);
    connect(mpProfile, &DialogProfile::signalFormulasChanged, this, &DialogMain::slotFormulasChanged);
    connect(mpProfile, &DialogProfile::signalChanged, this, qOverload<>(&DialogMain::slotProfileChanged));
    connect(mpProfile, &DialogProfile::signalShow, this, &DialogMain::slotShowParameter);
    connect(mpCard, &DialogCard::signalLoadRecord, this, &DialogMain::slotLoadRecord);
    connect(mpCard, &DialogCard::signalLoadCycle, this, &DialogMain::slotLoadCycle);
    connect(&mRecord, &RecordSession::recordChanged, this, &DialogMain::showRecorded);
    connect(mpWindows, &WindowController::signalProfileFileChanged, this, &DialogMain::slotProfileFileChanged);
    connect(mpWindows, &WindowController::signalTilesChanged, mpData, &DialogData::updateSettings);
    connect(mpData, &DialogData::signalReport, action(eActionReport), &QAction::trigger);
    connect(mpCardController, &CardController::signalFolderChanged, this, &DialogMain::slotFolderChanged);
    connect(mpCardController, &CardController::signalDataChanging, this, &DialogMain::slotDataChanging);
    connect(mpCardController, &CardController::signalDataChanged, this, &DialogMain::slotDataChanged);
    connect(mpCardController, &CardController::signalRecalculated, this, &DialogMain::slotRecalculated);
    connect(mpCardController, &CardController::signalCancelled, this, &DialogMain::showLoaded);
    connect(mpProjectController, &ProjectController::signalChanged, this, &DialogMain::slotProjectChanged);
    const auto tellWritten = [this](const QString& path) { statusBar()->showMessage(tr("Written: %1").arg(path), kMessageDuration); };
    connect(mpExportController, &ExportController::signalWritten, this, tellWritten);
    connect(mpLogbook, &LogbookController::signalWritten, this, tellWritten);
    connect(&mpPanels->welcome(), &WidgetWelcome::signalOpenFolder, action(eActionOpenFolder), &QAction::trigger);
    connect(&mpPanels->welcome(), &WidgetWelcome::signalOpenDemoCard, this,
            [this] { mpCardController->openDemoCard(QString::fromStdString(mEnvironment.folders.dataPath())); });
}

void DialogMain::startTimers()
{
    mStartTimer.setSingleShot(true);
    connect(&mStartTimer, &QTimer::timeout, this, &DialogMain::slotTimeout);
    mStartTimer.start(kRestoreDelay);
    QTimer::singleShot(kStartupDelay, this, &DialogMain::slotTimeoutStartup);
}

void DialogMain::connectCommands()
{
    connect(&mpCommands->group(), &QActionGroup::triggered, this, &DialogMain::slotMenu);
    mpRecentGroup->setExclusionPolicy(QActionGroup::ExclusionPolicy::None);
    connect(mpRecentGroup, &QActionGroup::triggered, this, &DialogMain::slotMenuRecent);
    const auto on = [this](int id, auto&& run) { mpCommands->handle(id, [run](QAction&) { run(); }); };
    on(eActionNewProject, [this] { mpProjectController->newProject(); });
    on(eActionOpenProject, [this] { mpProjectController->openProject(); });
    on(eActionOpenFolder, [this] { mpCardController->askFolder(); });
    on(eActionSaveProject, [this] { saveProject(false); });
    on(eActionSaveProjectAs, [this] { saveProject(true); });
    on(eActionQuit, [this] {
        mStartTimer.stop();
        close();
    });
    on(eActionExportKml, [this] { mpExportController->exportKml(); });
    on(eActionExportCsv, [this] { mpExportController->exportCsv(); });
    on(eActionExportGpx, [this] { mpExportController->exportGpx(); });
    on(eActionReport, [this] { mpExportController->writeReport(mRecord, mpData->graph().comparison()); });
    mpCommands->handle(eActionOverview, [this](const QAction& action) { mpOverview->toggle(action.isChecked()); });
    on(eActionXy, [this] { mpXy->open(); });
    on(eActionFind, [this] { mpFind->open(); });
    on(eActionNextIncident, [this] { mpOverview->step(true); });
    on(eActionPreviousIncident, [this] { mpOverview->step(false); });
}

void DialogMain::slotMenu(QAction* pAction)
{
    mSession.console.print("DialogMain::slotMenu id %d\n", pAction->data().toInt());
    mpCommands->run(*pAction);
}

void DialogMain::slotMenuRecent(QAction* /*pAction*/) {}

void DialogMain::slotMenuPrefAbout() {}

bool DialogMain::saveProject(bool askName)
{
    return mpProjectController->saveProject(askName);
}

bool DialogMain::askSaveProject()
{
    return mpProjectController->askSaveProject();
}

bool DialogMain::isProjectModified() const
{
    return mpProjectController->isModified();
}

void DialogMain::updateTitle()
{
    QString path = mSession.container.isLive() ? mSession.container.name() : mSession.container.path();
    if (path.isEmpty() && mpCardController->problem().isEmpty()) // one that was refused is not shown, and neither is the one before it
        path = Settings::kLastPath.text(mSession.property);
    setWindowTitle(path.isEmpty() ? QString("ZARN") : "ZARN " + QDir::cleanPath(path).section('/', -2, -1));
}

void DialogMain::updateUnit()
{
    mpProfileController->updateUnit();
    mpProfile->updateProfile();
    mpCardController->recalculate();
    mRecord.changeUnit();
}

void DialogMain::loadProfile()
{
    mpProfileController->load();
    tellProfileProblem();
    mpWindows->tellProfile();
    mpLogbook->setProfile(mpProfileController->file());
    mpProfile->setExamples(mpProfileController->formulas());
    mpProfile->updateProfile();
    mpLayoutController->setProfile(mpProfileController->file(), QString::fromStdString(mEnvironment.folders.resourcePath()));
    mpCardController->recalculate(); // flights and their statistic are decoded by the profile
    mRecord.changeProfile();
}

void DialogMain::tellProfileProblem()
{
    const QString& problem = mpProfileController->problem();
    if (problem.isEmpty())
        return mpNotices->setProblem(Notices::eProfile, {});
    mpNotices->setProblem(Notices::eProfile, mpProfileController->file().isEmpty() ? tr("No profile") : tr("Another profile is in force"),
                          problem);
    mpNotices->tell(problem);
}

void DialogMain::fillProfiles()
{
    mpProfileController->fill();
}

void DialogMain::updateProfiles()
{
    mpProfileController->update();
}

void DialogMain::setProgress(int percent)
{
    mpProgress->setProgress(percent);
}

void DialogMain::openFolder(const QString& path)
{
    mpCardController->openFolder(path);
}

void DialogMain::slotProfileChanged()
{
    mRecord.changeSelection();
    mpLayoutController->update();
}

void DialogMain::slotProfileChanged(const QString& name)
{
    if (mpProfileController->select(name))
        return slotProfileFileChanged();
    fillProfiles();
    mpNotices->tell(mpProfileController->problem());
}

void DialogMain::slotProfileFileChanged()
{
    loadProfile();
    fillProfiles();
    updateTitle();
}

void DialogMain::slotUnitChanged(int index)
{
    mpProfileController->selectUnit(index);
    updateUnit();
}

void DialogMain::slotFormulasChanged()
{
    mpProjectController->keep();
    mRecord.changeProfile();
    mpLayoutController->update();
}

void DialogMain::slotShowParameter(const QString& name)
{
    if (!mRecord.record())
        return;
    mpPanels->showData(true);
    mpData->showMoment(GraphMoment::around(mRecord.viewTime(), {name.toStdString()}));
}

void DialogMain::slotCanChanged()
{
    mpProjectController->setModified();
}

void DialogMain::slotZarnMode(int mode)
{
    if (const QString last = Settings::kLastPath.text(mSession.property); !last.isEmpty())
        mpCardController->restoreFolder(last);
    mpData->setZarnMode(mode);
}

void DialogMain::slotLoadRecord(const std::list<QString>& files)
{
    if (!files.empty())
        mpCardController->loadRecords(files);
}

void DialogMain::slotLoadCycle(unsigned int cycle, int flight)
{
    mpCardController->loadCycle(cycle, flight);
}

void DialogMain::slotFolderChanged()
{
    updateTitle();
    showProblems();
    updateExports();
    // Before the first folder was opened there is nothing that could be missing.
    const bool everOpened = Settings::kLastPath.isSet(mSession.property) || !mEnvironment.cmdLine.operand().empty();
    mpPanels->welcome().setProblem(everOpened ? mpCardController->problem() : QString());
    mpPanels->welcome().setState(mSession.container.recordFiles().empty() ? WidgetWelcome::eNoCard : WidgetWelcome::eChoose);
    if (mEmu)
        return;
    mpPanels->showData(false);
    mpOverview->showCard();
}

void DialogMain::showProblems()
{
    mpPanels->setProblems(mpCardController->fileProblems());
    mpCard->showProblems();
}

void DialogMain::updateExports()
{
    mpCommands->setEnabled({eActionExportKml, eActionExportCsv, eActionExportGpx, eActionReport, eActionNextIncident, eActionPreviousIncident},
                           mpCardController->hasData());
}

void DialogMain::showRecorded()
{
    if (!mRecord.record())
        return mpProfile->setRecorded({});
    std::set<uint32_t> identifiers;
    for (const RecordChannel* pChannel : mRecord.record()->channels())
        identifiers.insert(pChannel->identifier());
    mpProfile->setRecorded(std::move(identifiers));
}

void DialogMain::slotDataChanging()
{
    mRecord.clearRecord();
}

void DialogMain::slotRecalculated()
{
    mRecord.changeFlights();
    listFlights();
}

void DialogMain::listFlights()
{
    if (const auto cycle = mSession.container.loadedCycleNumber())
        mpCard->addFlights(*cycle);
}

void DialogMain::showLoaded()
{
    mpCard->showLoaded();
}

void DialogMain::slotDataChanged()
{
    mRecord.setRecord();
    if (mSession.container.selectedFlightNumber() == 0 || !mpCard->listsLoaded())
        listFlights(); // a choice of one of them leaves them
    showProblems();
    updateExports();
    const bool isUnread = std::ranges::any_of(mSession.container.loadProblems(), &CardProblem::isSystemError);
    mpPanels->welcome().setState(isUnread ? WidgetWelcome::eUnread : WidgetWelcome::eEmpty); // seen when there are no data
    mpPanels->showData(mEmu || mpCardController->hasData());
}

void DialogMain::slotProjectChanged()
{
    mpProfile->updateProject();
    slotProfileChanged();
    mRecord.changeProfile(); // it may have formulas
    updateTitle();
}

void DialogMain::slotTimeout()
{
    restoreCard();
    if (!mEnvironment.withDefaults)
        mpProjectController->restoreProject();
    mpLayoutController->restore(!QFileInfo::exists(mpProjectController->lastPath()));
    if (mSession.project.file().isUnread(mpProjectController->lastPath()))
        mpNotices->setProblem(Notices::eProject, tr("Project unreadable"), mpProjectController->lastPath());
    mpProfile->updateProfile();
    mRecord.changeProfile(); // the project may have formulas
    updateTitle();
    if (mpCardController->isBusy())
        connect(mpCardController, &CardController::signalIdle, this, &DialogMain::signalStarted, Qt::SingleShotConnection);
    else
        Q_EMIT signalStarted();
}

void DialogMain::restoreCard()
{
    const QFileInfo given(QString::fromStdString(mEnvironment.cmdLine.operand()));
    const QString last = Settings::kLastPath.text(mSession.property);
    if (!given.filePath().isEmpty() && !given.exists())
        mSession.console.print("could not open folder <%s>\n", mEnvironment.cmdLine.operand().c_str());
    if (!given.filePath().isEmpty())
        openFolder(RecordFormats::cardOf(given.filePath()));
    else if (!last.isEmpty() && !mEnvironment.withDefaults)
        mpCardController->restoreFolder(last);
}

void DialogMain::slotTimeoutStartup()
{
    mpLayout->settle();
}

bool DialogMain::eventFilter(QObject* pObject, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::WindowBlocked && pObject == this)
        Q_EMIT signalStarted(); // who ends the program at a question has seen it start
    if (CopyKey::isLeftToWindow(pObject, pEvent))
        return true;
    if (pEvent->type() != QEvent::FileOpen)
        return QMainWindow::eventFilter(pObject, pEvent);
    const QFileInfo info(static_cast<QFileOpenEvent*>(pEvent)->file());
    openFolder(info.isDir() ? info.absoluteFilePath() : info.absolutePath());
    return true;
}

void DialogMain::closeEvent(QCloseEvent* pEvent)
{
    pEvent->setAccepted(cleanup());
    if (!pEvent->isAccepted())
        mEnvironment.kernel.cancelRestart();
}

bool DialogMain::cleanup()
{
    if (!mpProjectController->saveAtQuit())
        return false;
    const bool wasTold = mpNotices->hasProblem(Notices::eSettings);
    if (!mEmu && mpLayout->store() && !mSession.property.writeXmlFile() && !wasTold)
        mpNotices->tell(tr("The settings could not be saved:\n%1").arg(QString::fromStdString(mSession.property.configFile())));
    mpNotices->showWaiting(); // there is no later
    return true;
}

} // namespace ZARN
