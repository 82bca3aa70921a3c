#pragma once

#include "openstreet/core/TileId.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <list>
#include <optional>
#include <unordered_map>

namespace OpenStreet {

/// A tile as it was delivered.
struct TileRecord {
    QByteArray body;
    QByteArray etag;         ///< empty when the server named none
    QByteArray lastModified; ///< the same
    qint64 expires = 0;      ///< seconds since 1970 from which on the server is asked again
};

/// The tiles that are kept on disk: one file a tile, FOLDER/SERVER/ZOOM/X/Y.tile. Holds to a limit; what was used least recently goes first.
/// Touches no other files. What cannot be read or written counts as not there: the map works without.
class TileDisk {
public:
    static constexpr qint64 kDefaultLimit = 256LL * 1024 * 1024;

    void setFolder(const QString& folder);
    /// Keeps no more than that from the next tile on.
    void setLimit(qint64 bytes) { mLimit = bytes; }
    /// Removes all tiles that are kept.
    void clear();
    /// Bytes of all tiles kept.
    [[nodiscard]] qint64 size();

    /// @param server the key of the tile server.
    [[nodiscard]] bool has(const QString& server, const TileId& id);
    [[nodiscard]] std::optional<TileRecord> read(const QString& server, const TileId& id);
    void write(const QString& server, const TileId& id, const TileRecord& record);
    void remove(const QString& server, const TileId& id) { drop(path(server, id)); }

private:
    struct File {
        QString path; ///< below the folder
        qint64 size = 0;
        qint64 used = 0; ///< seconds since 1970
    };
    using Order = std::list<File>;

    [[nodiscard]] static QString path(const QString& server, const TileId& id);
    [[nodiscard]] QString fullPath(const QString& path) const { return mFolder + path; }
    void index();
    void use(const QString& path, qint64 size);
    void drop(const QString& path);

    QString mFolder; ///< with a trailing "/"; empty: keep nothing
    qint64 mLimit = kDefaultLimit;
    qint64 mSize = 0;
    bool mIndexed = false;
    Order mOrder; // the most recently used first
    std::unordered_map<QString, Order::iterator> mFiles;
};

} // namespace OpenStreet
