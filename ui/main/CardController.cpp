#include "ui/main/CardController.h"

#include "app/Property.h"
#include "app/Settings.h"
#include "card/CardContainer.h"
#include "card/CardProblem.h"
#include "card/record/RecordFormats.h"
#include "profile/Profile.h"
#include "sim/DemoCard.h"
#include "ui/main/CardTree.h"
#include "ui/main/DialogCard.h"
#include "ui/main/RecentFolders.h"
#include "ui/main/StatusProgress.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include <map>

namespace ZARN {

namespace {

constexpr int kMostListed = 4; // files; their data need the room more

} // namespace

CardController::CardController(const Session& session, DialogCard& browser, RecentFolders& recent, StatusProgress& progress,
                               QWidget* pWindow)
    : QObject(pWindow), mSession(session), mBrowser(browser), mRecent(recent), mProgress(progress), mpWindow(pWindow)
{
    connect(&mTask, &BackgroundTask::signalProgress, this, [this](int percent) { mProgress.setProgress(percent); });
    connect(&mTask, &BackgroundTask::signalFinished, this, &CardController::slotFinished);
    connect(&mProgress, &StatusProgress::signalCancelled, this, &CardController::cancel);
}

CardController::~CardController() = default;

void CardController::start(Job job)
{
    mNext = std::move(job);
    if (mTask.isRunning())
        mTask.cancel();
    else
        begin();
}

void CardController::begin()
{
    mJob = std::exchange(mNext, {});
    mJobDecoding = mDecoding;
    mContext = mSession.profile.context();
    mpDraft = std::make_unique<CardContainer>(mSession.container, mContext);
    mProgress.begin();
    mTask.start([this](Progress& progress) {
        mpDraft->setProgress(progress);
        mIsDone = mJob->work(*mpDraft);
    });
}

void CardController::slotFinished()
{
    mProgress.end();
    const Job job = *std::exchange(mJob, {});
    if (mNext)
        begin();
    else if (mTask.isCancelled())
        Q_EMIT signalCancelled();
    else if (!mTask.error().isEmpty()) {
        mDecodedBy = mJobDecoding; // or it would be tried for ever
        Q_EMIT signalCancelled();
        warn(tr("Not everything could be loaded:\n%1").arg(mTask.error()));
    } else {
        if (!mIsDone)
            Q_EMIT signalCancelled(); // nor of the load whose place it took
        job.finish(mIsDone);
    }
    if (mTask.isRunning())
        return;
    mpDraft.reset();
    recalculateIfOutdated();
}

void CardController::cancel()
{
    mNext.reset();
    mTask.cancel();
}

void CardController::askFolder()
{
    const QString last = Settings::kLastPath.text(mSession.property);
    const QString folder = QFileDialog::getExistingDirectory(mpWindow, tr("Open SD Card"), last.isEmpty() ? "." : last,
                                                             QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    if (!folder.isEmpty())
        openFolder(folder);
}

void CardController::openFolder(const QString& path)
{
    const QString folder = cleaned(path);
    mBrowser.dropChoice();
    start({[folder](CardContainer& card) { return card.readContainer(folder); },
           [this, folder](bool isRead) { finishOpening(folder, isRead); }});
}

void CardController::finishOpening(const QString& folder, bool isRead)
{
    if (!showFolder(folder, isRead)) {
        warn(refusal(folder));
        return;
    }
    Settings::kLastPath.set(mSession.property, folder);
    mRecent.add(folder);
    mSession.property.writeXmlFile();
    Q_EMIT signalFolderChanged();
    if (!mProblem.isEmpty())
        warn(mProblem);
}

void CardController::restoreFolder(const QString& path)
{
    const QString folder = cleaned(path);
    start({[folder](CardContainer& card) { return card.readContainer(folder); },
           [this, folder](bool isRead) {
               if (showFolder(folder, isRead))
                   Q_EMIT signalFolderChanged();
           }});
}

bool CardController::showFolder(const QString& folder, bool isRead)
{
    if (!isRead) {
        // A card that is shown stays as it is; where there is none, the window says why.
        if (mSession.container.path().isEmpty() && !mSession.container.isLive()) {
            mProblem = refusal(folder);
            Q_EMIT signalFolderChanged();
        }
        return false;
    }
    if (mSession.container.recordData().count() != 0)
        Q_EMIT signalDataChanging(); // of another card: nothing of it may be shown or noted under this one's name
    mSession.container.adopt(*mpDraft);
    mSession.container.forgetRecord();
    mBrowser.reloadCardInfo();
    mIsLoaded = false;
    mProblem = mSession.container.recordFiles().empty()
                   ? tr("The folder %1 holds no record file (%2).").arg(QDir::toNativeSeparators(folder), RecordFormats::patternText())
                   : QString();
    return true;
}

QString CardController::refusal(const QString& folder)
{
    return tr("The folder %1 is not there, or cannot be read.").arg(QDir::toNativeSeparators(folder));
}

QString CardController::cleaned(const QString& path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

bool CardController::hasData() const
{
    return mIsLoaded && mSession.container.recordData().count() != 0;
}

void CardController::openDemoCard(const QString& parentFolder)
{
    const QString folder = cleaned(parentFolder + "/DemoCard");
    const auto pError = std::make_shared<std::string>();
    const auto write = [folder, pError] {
        // Written aside and moved, so that an interrupted run leaves no half card.
        const QString draft = folder + ".new";
        QDir(draft).removeRecursively();
        return DemoCard().write(QFile::encodeName(draft).toStdString(), DemoCardOptions{}, *pError) && QDir().rename(draft, folder);
    };
    mBrowser.dropChoice();
    start({[folder, write](CardContainer& card) { return (QFileInfo::exists(folder) || write()) && card.readContainer(folder); },
           [this, folder, pError](bool isRead) {
               if (isRead || QFileInfo::exists(folder))
                   return finishOpening(folder, isRead);
               warn(tr("The demo card could not be written:\n%1").arg(pError->empty() ? folder : QString::fromStdString(*pError)));
           }});
}

void CardController::beginLive(const QDateTime& powerUp, std::shared_ptr<RecordData> pRecord)
{
    cancel();
    mSession.container.beginLive(powerUp, std::move(pRecord));
    mBrowser.reloadCardInfo();
    mProblem.clear();
    mIsLoaded = true;
    mFlight = -1;
    mDecodedBy = mDecoding;
    Q_EMIT signalDataChanged();
}

void CardController::loadCycle(unsigned int cycle, int flight)
{
    if (mSession.container.isLive())
        return Q_EMIT signalLiveChosen(flight);
    load([cycle, flight](CardContainer& card) { return card.loadCycle(cycle, flight); }, flight);
}

void CardController::loadRecords(const std::list<QString>& files)
{
    load(
        [files](CardContainer& card) {
            card.loadFiles(files);
            return true;
        },
        {});
}

void CardController::load(const std::function<bool(CardContainer&)>& work, std::optional<int> flight)
{
    start({work, [this, work, flight](bool isDone) {
               if (!mpDraft->loadError().empty() && mSession.container.recordData().count() != 0 &&
                   mpDraft->record() != mSession.container.record()) {
                   // There may be enough memory for one record, but not for two.
                   Q_EMIT signalDataChanging();
                   mSession.container.forgetRecord();
                   return load(work, flight);
               }
               if (isDone && flight)
                   mFlight = *flight;
               finishLoad();
           }});
}

void CardController::finishLoad()
{
    mSession.container.adopt(*mpDraft);
    mDecodedBy = mJobDecoding;
    mIsLoaded = true;
    Q_EMIT signalDataChanged();
    if (const std::string& error = mSession.container.loadError(); !error.empty())
        warn(tr("Not everything could be loaded:\n%1").arg(QString::fromStdString(error)));
}

void CardController::recalculate()
{
    ++mDecoding;
    if (!mTask.isRunning())
        recalculateIfOutdated();
}

void CardController::recalculateIfOutdated()
{
    if (mSession.container.recordData().count() == 0 || mDecodedBy == mDecoding) {
        Q_EMIT signalIdle();
        return;
    }
    start({[flight = mFlight](CardContainer& card) {
               card.recalculate(flight);
               return true;
           },
           [this](bool) {
               if (mSession.container.isLive())
                   mSession.container.adoptFlights(*mpDraft); // the records have grown since
               else
                   mSession.container.adopt(*mpDraft);
               mDecodedBy = mJobDecoding;
               Q_EMIT signalRecalculated();
           }});
}

QString CardController::fileProblems() const
{
    std::map<QString, QStringList> reasons; // a file may have one when the folder is read, and another when it is loaded
    for (const CardProblem& problem : mSession.container.problems())
        reasons[problem.file.empty() ? tr("The folder") : CardTree::printable(problem.file)].append(problem.reason);
    QStringList entries;
    for (const auto& [file, texts] : reasons) {
        if (entries.size() == kMostListed) {
            entries.append(
                tr("... and %n more; all are marked under \"Raw Data\"", nullptr, static_cast<int>(reasons.size()) - kMostListed));
            break;
        }
        entries.append(file + ": " + texts.join(", "));
    }
    return entries.isEmpty() ? QString() : tr("Not everything on this card could be read:") + "\n" + entries.join("\n");
}

void CardController::warn(const QString& text)
{
    QMessageBox box(QMessageBox::Warning, tr("ZARN Warning"), text, QMessageBox::Ok, mpWindow);
    box.setTextFormat(Qt::PlainText); // a path may hold what looks like markup
    box.exec();
}

} // namespace ZARN
