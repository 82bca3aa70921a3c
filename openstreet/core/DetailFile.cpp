#include "openstreet/core/DetailFile.h"

#include "openstreet/core/PackedReader.h"

#include <QCoreApplication>
#include <QDir>
#include <QtEndian>

#include <algorithm>

namespace OpenStreet {

namespace {

constexpr const char* kStart = "ZMAPD\x01";
constexpr qint64 kStartSize = 6;
constexpr qint64 kLayerSize = 7;
constexpr qint64 kEntrySize = 12;
constexpr qint64 kLargestFile = 256LL * 1024 * 1024;
constexpr quint32 kLargestTile = 8 * 1024 * 1024; // unpacked
constexpr int kMostBits = 20;
constexpr int kMostZoom = 12; // so that each tile has a key of its own

quint32 numberAt(const QByteArray& bytes, qsizetype position)
{
    return qFromLittleEndian<quint32>(bytes.constData() + position);
}

QString translated(const char* text)
{
    return QCoreApplication::translate("OpenStreet::DetailFile", text);
}

} // namespace

QString DetailFile::builtInFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1String("/../Resources/map")) + QLatin1Char('/');
}

void DetailFile::refuse(const QString& problem)
{
    mProblem = QString(QLatin1String("%1: %2")).arg(QDir::toNativeSeparators(mFile.fileName()), problem);
    mLayers.clear();
    mIndex.clear();
    mFile.close();
}

bool DetailFile::open(const QString& path, EKind kind)
{
    mFile.close();
    mFile.setFileName(path);
    mProblem.clear();
    if (!mFile.open(QIODevice::ReadOnly))
        refuse(mFile.errorString());
    else if (mFile.size() > kLargestFile || !readLayers(kind) || !readIndex())
        refuse(translated(QT_TRANSLATE_NOOP("OpenStreet::DetailFile", "this is no map of the program, or a damaged one")));
    return mProblem.isEmpty();
}

bool DetailFile::readLayers(EKind kind)
{
    mLayers.clear();
    const QByteArray start = mFile.read(kStartSize + 1);
    if (start.size() != kStartSize + 1 || !start.startsWith(kStart))
        return false;
    const int count = static_cast<quint8>(start[kStartSize]);
    const QByteArray bytes = mFile.read(kLayerSize * count);
    if (count == 0 || bytes.size() != kLayerSize * count)
        return false;
    quint32 first = 0;
    for (int i = 0; i < count; ++i) {
        const qsizetype at = kLayerSize * i;
        const Layer layer{static_cast<quint8>(bytes[at + 1]), static_cast<quint8>(bytes[at + 2]), numberAt(bytes, at + 3), first};
        if (bytes[at] != kind || layer.zoom > kMostZoom || layer.bits > kMostBits ||
            layer.tiles > (mFile.size() - mFile.pos()) / kEntrySize - first)
            return false;
        first += layer.tiles;
        mLayers.push_back(layer);
    }
    return std::ranges::is_sorted(mLayers, {}, &Layer::zoom);
}

bool DetailFile::readIndex()
{
    const Layer& last = mLayers.back();
    const qint64 size = kEntrySize * (qint64(last.first) + last.tiles);
    const QByteArray bytes = mFile.read(size); // no more than the file has
    if (bytes.size() != size)
        return false;
    mIndex.clear();
    for (qsizetype at = 0; at < bytes.size(); at += kEntrySize) {
        const Entry entry{numberAt(bytes, at), numberAt(bytes, at + 4), numberAt(bytes, at + 8)};
        if (qint64(entry.offset) + entry.size > mFile.size())
            return false;
        mIndex.push_back(entry);
    }
    return std::ranges::all_of(mLayers, [this](const Layer& layer) {
        return std::ranges::is_sorted(mIndex.begin() + layer.first, mIndex.begin() + layer.first + layer.tiles, {}, &Entry::key);
    });
}

const DetailFile::Layer* DetailFile::layer(int zoom) const
{
    const auto found = std::ranges::find(mLayers, zoom, &Layer::zoom);
    return found == mLayers.end() ? nullptr : &*found;
}

std::optional<QByteArray> DetailFile::tile(const Layer& layer, const TileId& id)
{
    const auto begin = mIndex.begin() + layer.first, end = begin + layer.tiles;
    const auto key = static_cast<quint32>(id.y) * static_cast<quint32>(TileId::count(layer.zoom)) + static_cast<quint32>(id.x);
    const auto entry = std::ranges::lower_bound(begin, end, key, {}, &Entry::key);
    if (entry == end || entry->key != key)
        return {};
    const QByteArray packed = mFile.seek(entry->offset) ? mFile.read(entry->size) : QByteArray();
    // The unpacked size stands before the stream, and would be allocated as it is.
    if (packed.size() != entry->size || packed.size() < 4 || qFromBigEndian<quint32>(packed.constData()) > kLargestTile)
        return QByteArray();
    return unpacked(packed);
}

} // namespace OpenStreet
