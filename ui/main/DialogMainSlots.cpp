// The slots of the main window: each forwards to the controller whose task it is and brings the panels up to date.

#include "app/CmdLine.h"
#include "app/Console.h"
#include "app/DataHandler.h"
#include "app/Property.h"
#include "app/gui/Kernel.h"
#include "card/CardContainer.h"
#include "card/record/RecordData.h"
#include "card/record/RecordFormats.h"
#include "profile/ui/DialogProfile.h"
#include "profile/ui/DialogProfileInfo.h"
#include "project/Project.h"
#include "ui/data/DialogData.h"
#include "ui/main/CardController.h"
#include "ui/main/CopyKey.h"
#include "ui/main/DialogAbout.h"
#include "ui/main/DialogCard.h"
#include "ui/main/DialogHelp.h"
#include "ui/main/DialogMain.h"
#include "ui/main/DialogPreferences.h"
#include "ui/main/ExportController.h"
#include "ui/main/LayoutController.h"
#include "ui/main/MainActions.h"
#include "ui/main/Notices.h"
#include "ui/main/OverviewController.h"
#include "ui/main/ProfileController.h"
#include "ui/main/ProjectController.h"
#include "ui/main/StatusProgress.h"
#include "ui/main/WidgetWelcome.h"
#include "ui/main/WindowLayout.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QFileOpenEvent>
#include <QLabel>
#include <QMimeData>
#include <QStackedWidget>

namespace ZARN {

void DialogMain::slotMenu(QAction* pAction)
{
    const int id = pAction->data().toInt();
    mSession.console.print("DialogMain::slotMenu id %d\n", id);
    switch (id) {
    case eActionNewProject: mpProjectController->newProject(); break;
    case eActionOpenProject: mpProjectController->openProject(); break;
    case eActionOpenFolder: mpCardController->askFolder(); break;
    case eActionSaveProject:
    case eActionSaveProjectAs: saveProject(id == eActionSaveProjectAs); break;
    case eActionQuit:
        mStartTimer.stop();
        close();
        break;
    case eActionExportKml: mpExportController->exportKml(); break;
    case eActionExportCsv: mpExportController->exportCsv(); break;
    case eActionExportGpx: mpExportController->exportGpx(); break;
    case eActionReport: mpExportController->writeReport(); break;
    case eActionOverview: mpOverview->toggle(pAction->isChecked()); break;
    case eActionNextIncident:
    case eActionPreviousIncident: mpOverview->step(id == eActionNextIncident); break;
    default: showInformation(id);
    }
}

void DialogMain::showInformation(int id)
{
    const std::map<int, QWidget*> windows = {
        {eActionAbout, mpAbout}, {eActionProfile, mpProfileInfo}, {eActionHelp, mpHelp}, {eActionPreferences, mpPreferences}};
    const auto found = windows.find(id);
    if (found == windows.end())
        return;
    QWidget* pWindow = found->second;
    pWindow->show();
    pWindow->raise();
    pWindow->activateWindow();
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
    QString path = mSession.container.path();
    if (path.isEmpty() && mpCardController->problem().isEmpty()) // one that was refused is not shown, and neither is the one before it
        path = QString::fromStdString(mSession.property.getString("LastPath", ""));
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
    mpProfileInfo->setProfileFile(mpProfileController->file(), mpProfileController->isChosenFile());
    mpProfileInfo->fillProfileInfo();
    mpProfile->updateProfile();
    mpLayoutController->setProfile(mpProfileController->file(), QString::fromStdString(mDesktop.folders.resourcePath()));
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

void DialogMain::slotProfileInstalled()
{
    mpProfileController->adoptInstalled(mpProfileInfo->profileFile());
    slotProfileFileChanged();
}

void DialogMain::slotUnitChanged(int index)
{
    mpProfileController->selectUnit(index);
    updateUnit();
}

void DialogMain::slotCanChanged()
{
    mpProjectController->setModified();
}

void DialogMain::slotZarnMode(int mode)
{
    if (const QString last = QString::fromStdString(mSession.property.getString("LastPath", "")); !last.isEmpty())
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
    const bool everOpened = !mSession.property.getString("LastPath", "").empty() || !mDesktop.cmdLine.operand().empty();
    mpWelcome->setProblem(everOpened ? mpCardController->problem() : QString());
    mpWelcome->setState(mSession.container.recordFiles().empty() ? WidgetWelcome::eNoCard : WidgetWelcome::eChoose);
    if (mEmu)
        return;
    mpCentre->setCurrentWidget(mpWelcome);
    mpOverview->showCard();
}

void DialogMain::showProblems()
{
    const QString problems = mpCardController->fileProblems();
    mpProblems->setText(problems);
    mpProblems->setVisible(!problems.isEmpty());
    mpCard->showProblems();
}

void DialogMain::updateExports()
{
    for (const int id : {eActionExportKml, eActionExportCsv, eActionExportGpx, eActionReport, eActionNextIncident, eActionPreviousIncident})
        action(id)->setEnabled(mpCardController->hasData());
}

void DialogMain::showRecorded()
{
    if (!mRecord.record())
        return mpProfile->setRecorded({});
    std::set<uint32_t> identifiers;
    for (const auto& [identifier, channel] : mRecord.record()->channels())
        identifiers.insert(identifier);
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
    if (mSession.container.selectedFlightNumber() == 0)
        listFlights(); // a choice of one of them leaves them
    showProblems();
    updateExports();
    mpWelcome->setState(WidgetWelcome::eEmpty); // seen when there are no data
    mpCentre->setCurrentWidget(mEmu || mpCardController->hasData() ? static_cast<QWidget*>(mpData) : mpWelcome);
}

void DialogMain::slotProjectChanged()
{
    mpProfile->updateProject();
    slotProfileChanged();
    updateTitle();
}

void DialogMain::slotTimeout()
{
    restoreCard();
    if (!mDesktop.withDefaults)
        mpProjectController->restoreProject();
    // The reduced display offers no other one.
    mpLayoutController->restore(!mEmu && !QFileInfo::exists(mpProjectController->lastPath()));
    if (mSession.project.file().isUnread(mpProjectController->lastPath()))
        mpNotices->setProblem(Notices::eProject, tr("Project unreadable"), mpProjectController->lastPath());
    mpProfile->updateProfile();
    slotProfileChanged();
    updateTitle();
    if (mpCardController->isBusy())
        connect(mpCardController, &CardController::signalIdle, this, &DialogMain::signalStarted, Qt::SingleShotConnection);
    else
        Q_EMIT signalStarted();
}

void DialogMain::restoreCard()
{
    const QFileInfo given(QString::fromStdString(mDesktop.cmdLine.operand()));
    const QString last = QString::fromStdString(mSession.property.getString("LastPath", ""));
    if (!given.filePath().isEmpty() && !given.exists())
        mSession.console.print("could not open folder <%s>\n", mDesktop.cmdLine.operand().c_str());
    if (!given.filePath().isEmpty())
        openFolder(RecordFormats::cardOf(given.filePath()));
    else if (!last.isEmpty() && !mDesktop.withDefaults)
        mpCardController->restoreFolder(last);
}

void DialogMain::slotTimeoutStartup()
{
    mpLayout->settle();
}

void DialogMain::slotCheckStyle()
{
    if (mStyleFile.isEmpty())
        return;
    const QDateTime time = QFileInfo(mStyleFile).lastModified();
    if (time == mStyleTime)
        return;
    mStyleTime = time;
    mSession.console.print("Slot Load Style <%s>\n", mStyleFile.toUtf8().constData());
    mDesktop.kernel.loadStyleFile(mStyleFile);
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

void DialogMain::dragEnterEvent(QDragEnterEvent* pEvent)
{
    if (CardController::droppedFolder(pEvent->mimeData()).isEmpty())
        return;
    mpWelcome->setDragged(true);
    pEvent->acceptProposedAction();
}

void DialogMain::dragLeaveEvent(QDragLeaveEvent* /*pEvent*/)
{
    mpWelcome->setDragged(false);
}

void DialogMain::dropEvent(QDropEvent* pEvent)
{
    mpWelcome->setDragged(false);
    const QString folder = CardController::droppedFolder(pEvent->mimeData());
    pEvent->acceptProposedAction();
    // The program that the folder comes from waits for this event to end.
    QMetaObject::invokeMethod(
        this, [this, folder] { openFolder(folder); }, Qt::QueuedConnection);
}

void DialogMain::closeEvent(QCloseEvent* pEvent)
{
    pEvent->setAccepted(cleanup());
    if (!pEvent->isAccepted())
        mDesktop.kernel.cancelRestart();
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
