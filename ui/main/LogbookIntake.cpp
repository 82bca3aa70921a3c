#include "ui/main/LogbookIntake.h"

#include "app/Console.h"
#include "app/FileName.h"
#include "app/Property.h"
#include "app/Settings.h"
#include "profile/Profile.h"
#include "store/CardArchive.h"
#include "store/CardScan.h"
#include "store/Store.h"
#include "store/StoreText.h"

#include <QFile>

namespace ZARN {

LogbookIntake::LogbookIntake(const Session& session, QString store, QObject* pParent)
    : QObject(pParent), mSession(session), mStore(std::move(store))
{
    connect(&mTask, &BackgroundTask::signalFinished, this, &LogbookIntake::finish);
}

void LogbookIntake::take(const QString& folder)
{
    if (mFolders.contains(folder))
        return;
    mFolders.append(folder);
    if (!mTask.isRunning())
        begin();
}

void LogbookIntake::cancel()
{
    mFolders.clear();
    mTask.cancel();
}

void LogbookIntake::begin()
{
    const std::string archive = Settings::kArchive.get(mSession.property) ? Settings::kArchiveDir.get(mSession.property) : std::string();
    const Job job{encodeFileName(mFolders.front()), encodeFileName(mStore), mProfile, mSession.profile.currentVariant(), archive};
    // By the profile's file alone, as any other program would find it.
    const DecodingContext context(mSession.profile.loadedModel(), EUnit::eMetric);
    mError.clear();
    mTask.start([this, job, context](Progress& progress) { mError = QString::fromStdString(work(job, context, progress)); });
}

void LogbookIntake::finish()
{
    const bool isCancelled = mTask.isCancelled() || mFolders.isEmpty();
    const QString folder = mFolders.isEmpty() ? QString() : mFolders.takeFirst();
    if (!isCancelled)
        Q_EMIT signalDone(folder, mTask.error().isEmpty() ? mError : mTask.error());
    if (!mFolders.isEmpty())
        begin();
}

/// In a thread of its own.
std::string LogbookIntake::work(const Job& job, const DecodingContext& context, Progress& progress)
{
    std::string error = keep(job, context, progress);
    if (progress.isCancelled() || job.archive.empty())
        return error;
    const Console silent([](std::string_view) {}, [](std::string_view) {}); // the window has its own lines about the same files
    const std::string problem = CardArchive(job.archive, silent).add(job.card, progress);
    return error.empty() || problem.empty() ? error + problem : error + "\n" + problem;
}

std::string LogbookIntake::keep(const Job& job, const DecodingContext& context, Progress& progress)
{
    QFile profile(job.profile);
    if (!profile.open(QIODevice::ReadOnly))
        return (job.profile + ": " + profile.errorString()).toStdString();
    Store store(job.store, {job.profile.section('/', -2, -2).toStdString(), hashOf(profile.readAll().toStdString()), job.variant});
    if (!store.error().empty())
        return store.error();
    store.writePrecisions(context.model());
    const Console silent([](std::string_view) {}, [](std::string_view) {});
    CardScan scan(silent, context, store, 1, progress);
    const std::string failure = scan.run({job.card}, [](const ScanCount&) {}, [](const std::string&) {});
    const std::string end = store.finish();
    return failure.empty() ? end : failure;
}

} // namespace ZARN
