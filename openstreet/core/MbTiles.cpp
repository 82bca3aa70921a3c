#include "openstreet/core/MbTiles.h"

#include "openstreet/core/TileImage.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextDocumentFragment>
#include <QUrl>

#include <algorithm>

#include <sqlite3.h>

namespace OpenStreet {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("OpenStreet::MbTiles", text);
}

/// The bytes of the first column; empty for what is larger than a tile may be.
QByteArray blob(sqlite3_stmt* pStatement)
{
    const int size = sqlite3_column_bytes(pStatement, 0);
    if (size <= 0 || size > TileImage::kMaxBytes)
        return {};
    return {static_cast<const char*>(sqlite3_column_blob(pStatement, 0)), size};
}

/// Vector tiles are protocol buffers, mostly packed.
bool isVector(const QString& format, const QByteArray& bytes)
{
    return format == QLatin1String("pbf") || format == QLatin1String("mvt") || bytes.startsWith("\x1f\x8b") || bytes.startsWith('\x1a');
}

} // namespace

MbTiles::~MbTiles()
{
    sqlite3_finalize(mpTile);
    sqlite3_close(mpBase);
}

std::unique_ptr<LocalTiles> MbTiles::open(const QString& path, QString& problem)
{
    std::unique_ptr<MbTiles> pResult(new MbTiles(path));
    if (pResult->open(problem))
        return pResult;
    return nullptr;
}

bool MbTiles::open(QString& problem)
{
    if (!QFileInfo(mPath).isFile()) {
        problem = translated(QT_TRANSLATE_NOOP("OpenStreet::MbTiles", "there is no such file"));
        return false;
    }
    // Nothing is locked or written, also on a medium that takes nothing.
    QUrl address = QUrl::fromLocalFile(QFileInfo(mPath).absoluteFilePath());
    address.setQuery(QStringLiteral("mode=ro&immutable=1"));
    const int flags = SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX;
    const QByteArray uri = address.toEncoded();
    const bool isOpen = sqlite3_open_v2(uri.constData(), &mpBase, flags, nullptr) == SQLITE_OK;
    if (isOpen)
        sqlite3_limit(mpBase, SQLITE_LIMIT_LENGTH, static_cast<int>(4 * TileImage::kMaxBytes));
    constexpr const char* kSelect = "SELECT tile_data FROM tiles WHERE zoom_level = ?1 AND tile_column = ?2 AND tile_row = ?3";
    if (!isOpen || sqlite3_prepare_v2(mpBase, kSelect, -1, &mpTile, nullptr) != SQLITE_OK) {
        problem = translated(QT_TRANSLATE_NOOP("OpenStreet::MbTiles", "this is no archive of tiles (%1)"))
                      .arg(QString::fromUtf8(sqlite3_errmsg(mpBase)));
        return false;
    }
    if (!hasPictures(problem))
        return false;
    readMetadata();
    return true;
}

bool MbTiles::hasPictures(QString& problem)
{
    sqlite3_stmt* pAny = nullptr;
    QByteArray bytes;
    if (sqlite3_prepare_v2(mpBase, "SELECT tile_data FROM tiles LIMIT 1", -1, &pAny, nullptr) == SQLITE_OK &&
        sqlite3_step(pAny) == SQLITE_ROW)
        bytes = blob(pAny);
    sqlite3_finalize(pAny);
    if (!bytes.isEmpty() && !TileImage::decode(bytes).isNull())
        return true;
    if (bytes.isEmpty())
        problem = translated(QT_TRANSLATE_NOOP("OpenStreet::MbTiles", "the archive holds no tile that can be read"));
    else if (isVector(metadata("format"), bytes))
        problem = translated(
            QT_TRANSLATE_NOOP("OpenStreet::MbTiles", "the archive holds vector tiles; only pictures (PNG, JPEG, WebP) can be shown"));
    else
        problem = translated(QT_TRANSLATE_NOOP("OpenStreet::MbTiles", "its tiles are no pictures of the formats PNG, JPEG or WebP"));
    return false;
}

QString MbTiles::metadata(const char* name)
{
    sqlite3_stmt* pRow = nullptr;
    QString result;
    if (sqlite3_prepare_v2(mpBase, "SELECT value FROM metadata WHERE name = ?1", -1, &pRow, nullptr) == SQLITE_OK) {
        sqlite3_bind_text(pRow, 1, name, -1, SQLITE_STATIC);
        constexpr int kMost = 1000; // characters
        if (sqlite3_step(pRow) == SQLITE_ROW && sqlite3_column_text(pRow, 0))
            result =
                QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(pRow, 0)), sqlite3_column_bytes(pRow, 0)).left(kMost);
    }
    sqlite3_finalize(pRow);
    return result.trimmed();
}

void MbTiles::readMetadata()
{
    if (const QString name = metadata("name"); !name.isEmpty())
        mName = name;
    mAttribution = QTextDocumentFragment::fromHtml(metadata("attribution")).toPlainText().simplified();
    sqlite3_stmt* pZoom = nullptr;
    if (sqlite3_prepare_v2(mpBase, "SELECT max(zoom_level) FROM tiles", -1, &pZoom, nullptr) == SQLITE_OK &&
        sqlite3_step(pZoom) == SQLITE_ROW)
        mHighestZoom = std::clamp(sqlite3_column_int(pZoom, 0), 0, TileId::kMaxZoom);
    sqlite3_finalize(pZoom);
}

std::optional<QByteArray> MbTiles::read(const TileId& id)
{
    sqlite3_reset(mpTile);
    sqlite3_bind_int(mpTile, 1, id.zoom);
    sqlite3_bind_int(mpTile, 2, id.x);
    sqlite3_bind_int(mpTile, 3, TileId::count(id.zoom) - 1 - id.y);
    std::optional<QByteArray> result;
    if (sqlite3_step(mpTile) == SQLITE_ROW)
        result = blob(mpTile);
    sqlite3_reset(mpTile);
    return result;
}

} // namespace OpenStreet
