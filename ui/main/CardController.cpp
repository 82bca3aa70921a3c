#include "ui/main/CardController.h"

#include "app/Property.h"
#include "card/CardContainer.h"
#include "sim/DemoCard.h"
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

namespace ZARN {

namespace {

constexpr int kRetryMilliseconds = 50;
constexpr int kMostListed = 8; // files; a message must fit the screen

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
    else
        Q_EMIT signalFolderChanged();
}

void CardController::openFolder(const QString& path)
{
    if (postpone([this, path] { openFolder(path); }))
        return;
    if (!readFolder(path)) {
        mRecent.remove(path);
    } else {
        mSession.property.setString("LastPath", path.toStdString());
        mRecent.add(path);
        mSession.property.writeXmlFile();
    }
    Q_EMIT signalFolderChanged();
    if (!mProblem.isEmpty())
        warn(mProblem);
}

void CardController::restoreFolder(const QString& path)
{
    if (postpone([this, path] { restoreFolder(path); }))
        return;
    readFolder(path);
    Q_EMIT signalFolderChanged();
}

bool CardController::readFolder(const QString& path)
{
    bool found = false;
    runBusy([&] {
        found = mSession.container.readContainer(path);
        mBrowser.reloadCardInfo();
    });
    if (!found)
        mProblem = tr("The folder %1 is not there, or cannot be read.").arg(QDir::toNativeSeparators(path));
    else if (mSession.container.recordFiles().empty())
        mProblem = tr("The folder %1 holds no record file (*.CAN, *.can, *.xcb).").arg(QDir::toNativeSeparators(path));
    else
        mProblem = folderProblems();
    return found;
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
    if (mSession.container.loadCycle(cycle, flight)) {
        mFiles.clear();
        mFlight = flight;
    }
}

void CardController::loadRecords(const std::list<QString>& files)
{
    if (postpone([this, files] { loadRecords(files); }))
        return;
    mFiles = files;
    runLoad([&] { mSession.container.loadFiles(mFiles); });
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
    reportLoad();
}

void CardController::reportLoad()
{
    Q_EMIT signalDataChanged();
    QStringList problems;
    if (const std::string& error = mSession.container.loadError(); !error.empty())
        problems.append(QString::fromStdString(error));
    if (const std::vector<CardProblem>& lost = mSession.container.loadProblems(); !lost.empty())
        problems.append(listed(lost));
    if (!problems.isEmpty())
        warn(tr("Not everything could be loaded:\n%1").arg(problems.join('\n')));
}

QString CardController::folderProblems() const
{
    const std::vector<CardProblem>& problems = mSession.container.problems();
    if (problems.empty())
        return {};
    return tr("%n problem(s) of the card:", nullptr, static_cast<int>(problems.size())) + "\n" + listed(problems);
}

QString CardController::listed(const std::vector<CardProblem>& problems)
{
    QStringList lines;
    for (const CardProblem& problem : problems) {
        if (lines.size() == kMostListed) {
            lines.append(tr("... and %n more", nullptr, static_cast<int>(problems.size()) - kMostListed));
            break;
        }
        const QString file = problem.file.empty() ? tr("The folder") : QString::fromStdString(problem.file).simplified();
        lines.append(file + ": " + problem.reason);
    }
    return lines.join('\n');
}

QString CardController::droppedFolder(const QMimeData* pData)
{
    for (const QUrl& url : pData->urls()) {
        const QFileInfo info(url.toLocalFile());
        if (info.isDir())
            return info.absoluteFilePath();
        if (info.isFile())
            return info.absolutePath();
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
