#include "ui/main/CardController.h"

#include "app/Property.h"
#include "card/CardContainer.h"
#include "card/CardProblem.h"
#include "card/record/RecordFormats.h"
#include "sim/DemoCard.h"
#include "ui/main/CardTree.h"
#include "ui/main/DialogCard.h"
#include "ui/main/RecentFolders.h"
#include "ui/main/StatusProgress.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include <map>

namespace ZARN {

namespace {

constexpr int kRetryMilliseconds = 50;
constexpr int kMostListed = 4; // files; their data need the room more

} // namespace

CardController::CardController(const Session& session, DialogCard& browser, RecentFolders& recent, StatusProgress& progress,
                               QWidget* pWindow)
    : QObject(pWindow), mSession(session), mBrowser(browser), mRecent(recent), mProgress(progress), mpWindow(pWindow)
{
}

bool CardController::postpone(const Work& work)
{
    if (mBusy)
        QTimer::singleShot(kRetryMilliseconds, this, work);
    return mBusy;
}

void CardController::runBusy(const Work& work)
{
    mBusy = true;
    QApplication::setOverrideCursor(Qt::BusyCursor);
    mProgress.begin();
    work();
    mProgress.end();
    QApplication::restoreOverrideCursor();
    mBusy = false;
}

void CardController::askFolder()
{
    const QString start = QString::fromStdString(mSession.property.getString("LastPath", "."));
    const QString folder = QFileDialog::getExistingDirectory(mpWindow, tr("Open SD Card"), start,
                                                             QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    if (!folder.isEmpty())
        openFolder(folder);
}

void CardController::openFolder(const QString& path)
{
    if (postpone([this, path] { openFolder(path); }))
        return;
    const QString folder = cleaned(path);
    if (!readFolder(folder)) {
        warn(refusal(folder));
        return;
    }
    mSession.property.setString("LastPath", folder.toStdString());
    mRecent.add(folder);
    mSession.property.writeXmlFile();
    Q_EMIT signalFolderChanged();
    if (!mProblem.isEmpty())
        warn(mProblem);
}

void CardController::restoreFolder(const QString& path)
{
    if (postpone([this, path] { restoreFolder(path); }))
        return;
    if (readFolder(cleaned(path)))
        Q_EMIT signalFolderChanged();
}

bool CardController::readFolder(const QString& folder)
{
    bool found = false;
    runBusy([&] {
        found = mSession.container.readContainer(folder);
        if (found)
            mBrowser.reloadCardInfo();
    });
    if (!found) {
        // A card that is shown stays as it is; where there is none, the window says why.
        if (mSession.container.path().isEmpty()) {
            mProblem = refusal(folder);
            Q_EMIT signalFolderChanged();
        }
        return false;
    }
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
    const QString folder = parentFolder + "/DemoCard";
    if (!QFileInfo::exists(folder)) {
        // Written aside and moved, so that an interrupted run leaves no half card.
        const QString draft = folder + ".new";
        QDir(draft).removeRecursively();
        std::string error;
        const bool written = DemoCard().write(QFile::encodeName(draft).toStdString(), DemoCardOptions{}, error);
        if (!written || !QDir().rename(draft, folder)) {
            warn(tr("The demo card could not be written:\n%1").arg(error.empty() ? folder : QString::fromStdString(error)));
            return;
        }
    }
    openFolder(folder);
}

void CardController::loadCycle(unsigned int cycle, int flight)
{
    if (postpone([this, cycle, flight] { loadCycle(cycle, flight); }))
        return;
    runLoad([&] { loadNow(cycle, flight); });
}

void CardController::loadNow(unsigned int cycle, int flight)
{
    if (mSession.container.loadCycle(cycle, flight))
        mFlight = flight;
}

void CardController::loadRecords(const std::list<QString>& files)
{
    if (postpone([this, files] { loadRecords(files); }))
        return;
    runLoad([&] { mSession.container.loadFiles(files); });
}

void CardController::recalculate()
{
    if (mSession.container.recordData().count() == 0 || postpone([this] { recalculate(); }))
        return;
    runBusy([this] { mSession.container.recalculate(mFlight); });
    Q_EMIT signalRecalculated();
}

void CardController::runLoad(const Work& work)
{
    Q_EMIT signalDataChanging(); // the windows are painted while it runs
    runBusy(work);
    mIsLoaded = true;
    Q_EMIT signalDataChanged();
    if (const std::string& error = mSession.container.loadError(); !error.empty())
        warn(tr("Not everything could be loaded:\n%1").arg(QString::fromStdString(error)));
}

QString CardController::fileProblems() const
{
    std::map<QString, QStringList> reasons; // a file may have one when the folder is read, and another when it is loaded
    for (const CardProblem& problem : mSession.container.problems())
        reasons[problem.file.empty() ? tr("The folder") : CardTree::printable(problem.file)].append(problem.reason);
    QStringList entries;
    for (const auto& [file, texts] : reasons) {
        if (entries.size() == kMostListed) {
            entries.append(tr("... and %n more; all are marked under \"Raw Data\"", nullptr, static_cast<int>(reasons.size()) - kMostListed));
            break;
        }
        entries.append(file + ": " + texts.join(", "));
    }
    return entries.isEmpty() ? QString() : tr("Not everything on this card could be read:") + "\n" + entries.join("\n");
}

QString CardController::droppedFolder(const QMimeData* pData)
{
    for (const QUrl& url : pData->urls()) {
        const QFileInfo info(url.toLocalFile());
        if (info.isDir() || info.isFile())
            return RecordFormats::cardOf(info.filePath());
    }
    return {};
}

void CardController::warn(const QString& text)
{
    QMessageBox box(QMessageBox::Warning, tr("ZARN Warning"), text, QMessageBox::Ok, mpWindow);
    box.setTextFormat(Qt::PlainText); // a path may hold what looks like markup
    box.exec();
}

} // namespace ZARN
