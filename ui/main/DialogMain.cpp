#include "ui/main/DialogMain.h"

#include "app/CmdLine.h"
#include "app/Console.h"
#include "app/DataHandler.h"
#include "app/Property.h"
#include "app/gui/ImageHandler.h"
#include "app/gui/Kernel.h"
#include "app/gui/WheelGuard.h"
#include "card/CardContainer.h"
#include "profile/ui/DialogProfile.h"
#include "profile/ui/DialogProfileInfo.h"
#include "project/Project.h"
#include "ui/data/DialogData.h"
#include "ui/main/CardController.h"
#include "ui/main/DialogAbout.h"
#include "ui/main/DialogCard.h"
#include "ui/main/DialogHelp.h"
#include "ui/main/DialogPreferences.h"
#include "ui/main/ExportController.h"
#include "ui/main/LayoutController.h"
#include "ui/main/MainActions.h"
#include "ui/main/Notices.h"
#include "ui/main/OverviewController.h"
#include "ui/main/ProfileController.h"
#include "ui/main/ProjectController.h"
#include "ui/main/RecentFolders.h"
#include "ui/main/StatusProgress.h"
#include "ui/main/WidgetWelcome.h"
#include "ui/main/WindowLayout.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QComboBox>
#include <QFileInfo>
#include <QFileOpenEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace ZARN {

namespace {

constexpr int kRestoreDelay = 20;   // milliseconds from here on: the event loop runs
constexpr int kStartupDelay = 1000; // the window has its size
constexpr int kStylePeriod = 500;   // from look to look at the style file
constexpr int kMessageDuration = 8000;
constexpr int kSelectorWidth = 200;
constexpr int kMargin = 8;

} // namespace

DialogMain::DialogMain(const Session& session, const Desktop& desktop)
    : mSession(session), mRecord(session.container), mDesktop(desktop), mEmu(desktop.cmdLine.getSwitch("-emu")),
      mpActionGroup(new QActionGroup(this)), mpRecentGroup(new QActionGroup(this)),
      mpCatalogue(std::make_unique<ProfileCatalogue>(session.console, desktop.folders.resourcePath(), desktop.folders.dataPath()))
{
    setAcceptDrops(true);
    createPanels();
    createActions();
    if (!mEmu)
        createMenus();
    createToolBar();
    openToolBarsToKeys();
    createStatusBar();
    createControllers();
    createLayouts();
    connectPanels();
    setWindowIcon(ImageHandler::icon("zarn"));
    startTimers();
    mpLayout->restoreWindow();
    if (mEmu) {
        mpSide->hide();
        mpCard->hide();
        mpProfile->hide();
        mpToolBar->hide();
        mpCentre->setCurrentWidget(mpData); // what arrives is shown at once
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
    mSession.property.setString("LastProjectPath", mDesktop.folders.dataPath() + "/CurrentProject.xml");
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
    mpSide = new QSplitter(Qt::Vertical);
    mpSide->setChildrenCollapsible(false);
    mpSide->addWidget(mpCard);
    mpSide->addWidget(mpProfile);
    mpWelcome = new WidgetWelcome;
    const QString dataPath = QString::fromStdString(mDesktop.folders.dataPath());
    mpData = new DialogData(mRecord, DataViews::create(mSession, dataPath), mEmu);
    mpCentre = new QStackedWidget;
    mpCentre->addWidget(mpWelcome);
    mpCentre->addWidget(mpData);
    mpProblems = new QLabel;
    mpProblems->setObjectName("cardProblems");
    mpProblems->setTextFormat(Qt::PlainText); // names of files
    mpProblems->setTextInteractionFlags(Qt::TextSelectableByMouse);
    mpProblems->setWordWrap(true);
    mpProblems->hide();
    auto* pRight = new QWidget;
    auto* pRightLayout = new QVBoxLayout(pRight);
    pRightLayout->setContentsMargins(0, 0, 0, 0);
    pRightLayout->addWidget(mpProblems);
    pRightLayout->addWidget(mpCentre, 1);
    mpSplitter = new QSplitter(Qt::Horizontal);
    mpSplitter->setChildrenCollapsible(false);
    mpSplitter->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    mpSplitter->addWidget(mpSide);
    mpSplitter->addWidget(pRight);
    mpSplitter->setStretchFactor(0, 1);
    mpSplitter->setStretchFactor(1, 2);
    setCentralWidget(mpSplitter);
}

void DialogMain::createActions()
{
    mpActionGroup->setExclusionPolicy(QActionGroup::ExclusionPolicy::None);
    mpRecentGroup->setExclusionPolicy(QActionGroup::ExclusionPolicy::None);
    for (const MainAction& entry : MainAction::all()) {
        mActions[entry.id] = entry.create(this);
        mpActionGroup->addAction(mActions[entry.id]);
    }
    connect(mpActionGroup, &QActionGroup::triggered, this, &DialogMain::slotMenu);
    connect(mpRecentGroup, &QActionGroup::triggered, this, &DialogMain::slotMenuRecent);
}

QAction* DialogMain::action(int id) const
{
    const auto found = mActions.find(id);
    return found == mActions.end() ? nullptr : found->second;
}

void DialogMain::createMenus()
{
    addActions(mpActionGroup->actions()); // those without a place in a menu have their keys
    QMenu* pFile = menuBar()->addMenu(tr("&File"));
    pFile->addAction(action(eActionOpenFolder));
    pFile->addSeparator();
    pFile->addAction(action(eActionQuit));
    QMenu* pExtras = menuBar()->addMenu(tr("&Extras"));
    for (const int id : {eActionPreferences, eActionExportKml, eActionExportCsv})
        pExtras->addAction(action(id));
    QMenu* pHelp = menuBar()->addMenu(tr("&Help"));
    for (const int id : {eActionPreferences, eActionAbout, eActionProfile})
        pHelp->addAction(action(id));
    connect(pHelp, &QMenu::aboutToShow, this, &DialogMain::slotMenuPrefAbout);
}

void DialogMain::createToolBar()
{
    mpToolBar = addToolBar(tr("Main Toolbar"));
    mpToolBar->setObjectName("MainToolBar");
    mpToolBar->setMovable(false);
    mpToolBar->addAction(action(eActionOpenFolder));
    mpFolderMenu = new QMenu(this);
    auto* pFolderButton = qobject_cast<QToolButton*>(mpToolBar->widgetForAction(action(eActionOpenFolder)));
    pFolderButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon); // the one to begin with; all others are told by their tool tips
    pFolderButton->setMenu(mpFolderMenu);
    pFolderButton->setPopupMode(QToolButton::MenuButtonPopup);
    mpToolBar->addSeparator();
    for (const int id : {eActionOverview, eActionPreviousIncident, eActionNextIncident})
        mpToolBar->addAction(action(id));
    mpToolBar->addSeparator();
    mpToolBar->addAction(action(eActionExportKml));
    addMorePaths();
    mpToolBar->addAction(action(eActionExportCsv));
    mpToolBar->addSeparator();
    mpProfiles = new QComboBox;
    mpProfiles->setObjectName("profiles");
    mpProfiles->setMinimumWidth(kSelectorWidth);
    mpProfiles->setToolTip(tr("Profile: what the recorded bytes mean"));
    mpProfiles->setAccessibleName(tr("Profile"));
    connect(mpProfiles, &QComboBox::textActivated, this, qOverload<const QString&>(&DialogMain::slotProfileChanged));
    WheelGuard::install(*mpProfiles);
    mpToolBar->addWidget(mpProfiles);
    mpToolBar->addSeparator();
    addUnits();
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

// Behind the arrow of the one button: other files of the flight path.
void DialogMain::addMorePaths()
{
    auto* pButton = qobject_cast<QToolButton*>(mpToolBar->widgetForAction(action(eActionExportKml)));
    auto* pMenu = new QMenu(pButton);
    pMenu->addAction(action(eActionExportGpx));
    pMenu->addAction(action(eActionReport));
    pButton->setMenu(pMenu);
    pButton->setPopupMode(QToolButton::MenuButtonPopup);
}

void DialogMain::addUnits()
{
    mpUnits = new QComboBox;
    mpUnits->setObjectName("units");
    mpUnits->setMinimumWidth(kSelectorWidth);
    mpUnits->setToolTip(tr("Units of all displays"));
    mpUnits->setAccessibleName(tr("Units"));
    mpUnits->addItem(tr("Metric"), "0");
    mpUnits->addItem(tr("Imperial"), "1");
    connect(mpUnits, &QComboBox::activated, this, &DialogMain::slotUnitChanged);
    WheelGuard::install(*mpUnits);
    mpToolBar->addWidget(mpUnits);
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
    mpNotices->setProblem(Notices::eGraphics, mDesktop.graphicsProblem);
    const QString unsaved = tr("Settings cannot be saved");
    const QString file = QString::fromStdString(mSession.property.configFile());
    if (mSession.property.isUnread())
        mpNotices->setProblem(Notices::eSettings, tr("Settings unreadable: defaults are in force"), file);
    else if (!QFileInfo(QFileInfo(file).absolutePath()).isWritable())
        mpNotices->setProblem(Notices::eSettings, unsaved, file);
    mpNotices->watch(mSession.property.file(), Notices::eSettings, unsaved);
    mpNotices->watch(mSession.project.file(), Notices::eProject, tr("Project cannot be saved"));
}

void DialogMain::createControllers()
{
    auto* pRecent = new RecentFolders(mSession.property, *mpFolderMenu);
    connect(pRecent, &RecentFolders::signalChosen, this, &DialogMain::openFolder);
    mpCardController = new CardController(mSession, *mpCard, *pRecent, *mpProgress, this);
    mpProjectController = new ProjectController(mSession, this);
    mpExportController = new ExportController(
        mSession, *mpCardController, [this] { return mpData->graphSpan(); }, this);
    mpOverview = new OverviewController(mSession, mRecord, *mpCardController, *mpCard, *mpData, *mpCentre, *action(eActionOverview), this);
    mpProfileController = std::make_unique<ProfileController>(mSession, *mpCatalogue, *mpProfiles, *mpUnits);
    mpLayout = std::make_unique<WindowLayout>(mSession.property, *this, *mpSplitter, *mpSide);
    mpAbout = new DialogAbout(this);
    mpHelp = new DialogHelp(QString::fromStdString(mSession.property.getString("Locale", "us")), this);
    mpProfileInfo = new DialogProfileInfo(mSession, *mpCatalogue, this);
    mpPreferences = new DialogPreferences(mSession, mDesktop.kernel, this);
}

void DialogMain::createLayouts()
{
    const QString file = QString::fromStdString(mDesktop.folders.dataPath() + '/' + LayoutStore::kFileName);
    mpLayouts = std::make_unique<LayoutStore>(mSession.console, file, QString::fromStdString(mSession.property.getString("Locale", "us")));
    mpNotices->watch(mpLayouts->file(), Notices::eLayouts, tr("Layouts cannot be saved"));
    if (mpLayouts->isUnread())
        mpNotices->setProblem(Notices::eLayouts, tr("Layouts unreadable"), file);
    mpLayoutController = new LayoutController(mSession, *mpLayouts, *mpLayoutBar, *mpData, this);
    connect(mpLayoutController, &LayoutController::signalChosen, mpProfile, &DialogProfile::updateProfile);
    connect(mpLayoutController, &LayoutController::signalChosen, this, &DialogMain::slotCanChanged);
    connect(mpLayoutController, &LayoutController::signalChosen, this, qOverload<>(&DialogMain::slotProfileChanged));
}

void DialogMain::connectPanels()
{
    connect(mpProfile, &DialogProfile::signalChanged, this, &DialogMain::slotCanChanged);
    connect(mpProfile, &DialogProfile::signalChanged, this, qOverload<>(&DialogMain::slotProfileChanged));
    connect(mpCard, &DialogCard::signalLoadRecord, this, &DialogMain::slotLoadRecord);
    connect(mpCard, &DialogCard::signalLoadCycle, this, &DialogMain::slotLoadCycle);
    connect(&mRecord, &RecordSession::recordChanged, this, &DialogMain::showRecorded);
    connect(mpProfileInfo, &DialogProfileInfo::signalProfileChanged, this, &DialogMain::slotProfileInstalled);
    connect(mpPreferences, &DialogPreferences::signalProfileFileChanged, this, &DialogMain::slotProfileFileChanged);
    connect(mpPreferences, &DialogPreferences::signalTilesChanged, mpData, &DialogData::updateSettings);
    connect(mpData, &DialogData::signalReport, action(eActionReport), &QAction::trigger);
    connect(mpCardController, &CardController::signalFolderChanged, this, &DialogMain::slotFolderChanged);
    connect(mpCardController, &CardController::signalDataChanging, this, &DialogMain::slotDataChanging);
    connect(mpCardController, &CardController::signalDataChanged, this, &DialogMain::slotDataChanged);
    connect(mpCardController, &CardController::signalRecalculated, this, &DialogMain::slotRecalculated);
    connect(mpCardController, &CardController::signalCancelled, this, &DialogMain::showLoaded);
    connect(mpProjectController, &ProjectController::signalChanged, this, &DialogMain::slotProjectChanged);
    connect(mpExportController, &ExportController::signalWritten, this,
            [this](const QString& path) { statusBar()->showMessage(tr("Written: %1").arg(path), kMessageDuration); });
    connect(mpWelcome, &WidgetWelcome::signalOpenFolder, action(eActionOpenFolder), &QAction::trigger);
    connect(mpWelcome, &WidgetWelcome::signalOpenDemoCard, this,
            [this] { mpCardController->openDemoCard(QString::fromStdString(mDesktop.folders.dataPath())); });
}

void DialogMain::startTimers()
{
    std::string style;
    mDesktop.cmdLine.getParameter("-s", style);
    mStyleFile = QString::fromStdString(style);
    mStyleTime = QFileInfo(mStyleFile).lastModified(); // applied by the start
    connect(&mStyleTimer, &QTimer::timeout, this, &DialogMain::slotCheckStyle);
    mStyleTimer.start(kStylePeriod);
    mStartTimer.setSingleShot(true);
    connect(&mStartTimer, &QTimer::timeout, this, &DialogMain::slotTimeout);
    mStartTimer.start(kRestoreDelay);
    QTimer::singleShot(kStartupDelay, this, &DialogMain::slotTimeoutStartup);
}

} // namespace ZARN
