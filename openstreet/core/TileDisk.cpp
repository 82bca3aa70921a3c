#include "openstreet/core/TileDisk.h"

#include "openstreet/core/TileImage.h"

#include <QDataStream>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <vector>

namespace OpenStreet {

namespace {

constexpr quint32 kMagic = 0x5A544C31; // "ZTL1"
constexpr qint64 kLargestFile = TileImage::kMaxBytes + qint64(16) * 1024;
constexpr qint64 kTouchAfter = 3600; // seconds; a new time on every use would wear the disk for nothing

} // namespace

void TileDisk::setFolder(const QString& folder)
{
    mFolder = folder.isEmpty() || folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    mOrder.clear();
    mFiles.clear();
    mSize = 0;
    mIndexed = false;
}

QString TileDisk::path(const QString& server, const TileId& id)
{
    return QString(QLatin1String("%1/%2/%3/%4.tile")).arg(server).arg(id.zoom).arg(id.x).arg(id.y);
}

void TileDisk::index()
{
    if (mIndexed || mFolder.isEmpty())
        return;
    mIndexed = true;
    std::vector<File> found;
    QDirIterator files(mFolder, {QString(QLatin1String("*.tile"))}, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        const QFileInfo info = files.fileInfo();
        found.push_back({info.filePath().mid(mFolder.size()), info.size(), info.lastModified().toSecsSinceEpoch()});
    }
    std::sort(found.begin(), found.end(), [](const File& a, const File& b) { return a.used > b.used; });
    for (File& file : found) {
        mSize += file.size;
        mFiles[file.path] = mOrder.insert(mOrder.end(), file);
    }
}

qint64 TileDisk::size()
{
    index();
    return mSize;
}

void TileDisk::use(const QString& path, qint64 size)
{
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    const auto known = mFiles.find(path);
    if (known != mFiles.end()) {
        File& file = *known->second;
        mSize += size - file.size;
        file.size = size;
        if (now - file.used > kTouchAfter) {
            file.used = now;
            QFile handle(fullPath(path));
            if (handle.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
                handle.setFileTime(QDateTime::fromSecsSinceEpoch(now), QFileDevice::FileModificationTime);
        }
        mOrder.splice(mOrder.begin(), mOrder, known->second);
    } else {
        mFiles[path] = mOrder.insert(mOrder.begin(), File{path, size, now});
        mSize += size;
    }
    while (mSize > mLimit && mOrder.size() > 1)
        drop(QString(mOrder.back().path));
}

void TileDisk::drop(const QString& path)
{
    index();
    const auto known = mFiles.find(path);
    if (known == mFiles.end())
        return;
    QFile::remove(fullPath(path));
    mSize -= known->second->size;
    mOrder.erase(known->second);
    mFiles.erase(known);
}

void TileDisk::clear()
{
    index();
    while (!mOrder.empty())
        drop(QString(mOrder.back().path));
}

bool TileDisk::has(const QString& server, const TileId& id)
{
    index();
    return mFiles.contains(path(server, id));
}

std::optional<TileRecord> TileDisk::read(const QString& server, const TileId& id)
{
    if (mFolder.isEmpty())
        return {};
    index();
    const QString name = path(server, id);
    QFile file(fullPath(name));
    if (!QFileInfo(file).isFile())
        drop(name); // somebody else has removed it
    if (!QFileInfo(file).isFile() || file.size() > kLargestFile || !file.open(QIODevice::ReadOnly))
        return {};
    QDataStream stream(&file);
    stream.setVersion(QDataStream::Qt_6_0);
    quint32 magic = 0;
    TileRecord record;
    stream >> magic >> record.expires >> record.etag >> record.lastModified >> record.body;
    if (stream.status() != QDataStream::Ok || magic != kMagic || record.body.isEmpty()) {
        use(name, file.size());
        drop(name);
        return {};
    }
    use(name, file.size());
    return record;
}

void TileDisk::write(const QString& server, const TileId& id, const TileRecord& record)
{
    if (mFolder.isEmpty())
        return;
    index();
    const QString name = path(server, id);
    const QString full = fullPath(name);
    if (!QDir().mkpath(QFileInfo(full).path()))
        return;
    QSaveFile file(full);
    if (!file.open(QIODevice::WriteOnly))
        return;
    QDataStream stream(&file);
    stream.setVersion(QDataStream::Qt_6_0);
    stream << kMagic << record.expires << record.etag << record.lastModified << record.body;
    const qint64 written = file.size();
    if (stream.status() != QDataStream::Ok || !file.flush() || file.error() != QFileDevice::NoError || !file.commit())
        return;
    use(name, written);
}

} // namespace OpenStreet
