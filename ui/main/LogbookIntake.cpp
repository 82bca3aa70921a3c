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

void LogbookIntake::take(const QString& folder, bool isAgain)
{
    if (mFolders.indexOf(folder, isAgain ? 1 : 0) >= 0)
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
    mResult = {};
    mTask.start([this, job, context](Progress& progress) { work(job, context, progress); });
}

void LogbookIntake::finish()
{
    const bool isCancelled = mTask.isCancelled() || mFolders.isEmpty();
    const QString folder = mFolders.isEmpty() ? QString() : mFolders.takeFirst();
    const Result result = mResult;
    if (!result.putAside.empty())
        Q_EMIT signalPutAside(QString::fromStdString(result.putAside));
    if (!isCancelled)
        Q_EMIT signalDone(folder, mTask.error().isEmpty() ? QString::fromStdString(result.error) : mTask.error(), QString::fromStdString(result.unarchived));
    if (!mFolders.isEmpty())
        begin();
}

/// In a thread of its own.
void LogbookIntake::work(const Job& job, const DecodingContext& context, Progress& progress)
{
    mResult.error = keep(job, context, progress);
    if (progress.isCancelled() || job.archive.empty())
        return;
    const Console silent([](std::string_view) {}, [](std::string_view) {}); // the window has its own lines about the same files
    mResult.unarchived = CardArchive(job.archive, silent).add(job.card, progress);
}

std::string LogbookIntake::keep(const Job& job, const DecodingContext& context, Progress& progress)
{
    QFile profile(job.profile);
    if (!profile.open(QIODevice::ReadOnly))
        return (job.profile + ": " + profile.errorString()).toStdString();
    const AnalysisKey key{job.profile.section('/', -2, -2).toStdString(), hashOf(profile.readAll().toStdString()), job.variant};
    {
        Store store(job.store, key);
        std::string error = keepIn(store, job, context, progress);
        if (!store.isDamaged())
            return error;
        mResult.putAside = std::move(error);
    }
    Store renewed(job.store, key);
    return keepIn(renewed, job, context, progress);
}

std::string LogbookIntake::keepIn(Store& store, const Job& job, const DecodingContext& context, Progress& progress)
{
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
