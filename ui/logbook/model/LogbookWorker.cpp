#include "ui/logbook/model/LogbookWorker.h"

#include "app/FileName.h"
#include "store/StoreRescue.h"

#include <QFileInfo>

namespace ZARN {

LogbookWorker::LogbookWorker(const QString& path, QObject* pParent) : QObject(pParent), mPath(path), mpPlace(new QObject)
{
    mpPlace->moveToThread(&mThread);
    connect(&mThread, &QThread::finished, mpPlace, &QObject::deleteLater);
    mThread.start();
}

LogbookWorker::~LogbookWorker()
{
    mThread.quit(); // what still waits is dropped
    mThread.wait();
}

void LogbookWorker::post(std::function<void()> work)
{
    QMetaObject::invokeMethod(mpPlace, std::move(work), Qt::QueuedConnection);
}

LogbookReader* LogbookWorker::reader()
{
    if (mpReader && !mpReader->isInPlace()) // removed, or another one in its place
        mpReader.reset();
    if (mpReader)
        return mpReader.get();
    const bool isThere = QFileInfo::exists(mPath);
    Q_EMIT signalFound(isThere);
    if (!isThere && mWasRead)
        Q_EMIT signalFailed(tr("%1: it was removed while it was shown; what is shown is what it held, whatever is chosen").arg(mPath));
    if (!isThere)
        return nullptr;
    // Brings an older form up. Where nothing can be written the reader tells what can be read all the same.
    if (const LogbookEditor editor(encodeFileName(mPath)); editor.isDamaged())
        Q_EMIT signalPutAside(QString::fromStdString(editor.error()));
    mpReader = std::make_unique<LogbookReader>(encodeFileName(mPath));
    mVersion = mpReader->version();
    if (!check())
        return nullptr;
    mWasRead = true;
    Q_EMIT signalChanged();
    return mpReader.get();
}

bool LogbookWorker::check()
{
    if (!mpReader || mpReader->error().empty())
        return true;
    const std::string error = mpReader->error();
    const bool isDamaged = mpReader->isDamaged();
    mpReader.reset(); // to be tried anew
    if (isDamaged)
        rescue(error);
    else
        Q_EMIT signalFailed(QString::fromStdString(error));
    return false;
}

/// Looks a second time, and puts it aside.
void LogbookWorker::rescue(const std::string& found)
{
    const StoreRescue rescued = rescueStore(encodeFileName(mPath), found);
    if (rescued.isDamaged)
        Q_EMIT signalPutAside(QString::fromStdString(rescued.error));
    else
        Q_EMIT signalFailed(QString::fromStdString(rescued.error));
}

void LogbookWorker::edit(const std::function<void(LogbookEditor&)>& work, const std::function<void(const QString&)>& then)
{
    post([this, work, then] {
        LogbookEditor editor(encodeFileName(mPath));
        work(editor);
        const QString error = QString::fromStdString(editor.error());
        if (editor.isDamaged())
            Q_EMIT signalPutAside(error);
        QMetaObject::invokeMethod(this, [then, error] { then(error); }, Qt::QueuedConnection);
    });
    look();
}

void LogbookWorker::run(const std::function<void()>& work, const std::function<void()>& then)
{
    post([this, work, then] {
        work();
        QMetaObject::invokeMethod(this, then, Qt::QueuedConnection);
    });
}

void LogbookWorker::look()
{
    post([this] {
        if (!mpReader && !mWasRead && !QFileInfo::exists(mPath))
            return;
        LogbookReader* pReader = reader();
        if (!pReader)
            return;
        const int64_t version = pReader->version();
        if (check() && std::exchange(mVersion, version) != version)
            Q_EMIT signalChanged();
    });
}

} // namespace ZARN
