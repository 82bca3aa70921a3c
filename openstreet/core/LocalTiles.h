#pragma once

#include "openstreet/core/TileId.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>

namespace OpenStreet {

/// Tiles that the user has on the disk: an archive of the form MBTiles, or a folder with files ZOOM/X/Y.png, .jpg or .webp. Only read.
class LocalTiles {
public:
    virtual ~LocalTiles() = default;
    LocalTiles(const LocalTiles&) = delete;
    LocalTiles& operator=(const LocalTiles&) = delete;

    /// @param pProblem receives why there is nothing to read, with the path, for people. @return null then
    [[nodiscard]] static std::unique_ptr<LocalTiles> open(const QString& path, QString* pProblem);

    /// The picture of a tile as it is kept; none when there is no such tile.
    [[nodiscard]] virtual std::optional<QByteArray> read(const TileId& id) = 0;
    /// For people: the name that the archive gives itself, else that of the file or folder.
    [[nodiscard]] const QString& name() const { return mName; }
    /// Whose map it is, as plain text; empty when it does not say so.
    [[nodiscard]] const QString& attribution() const { return mAttribution; }
    /// The most detailed zoom.
    [[nodiscard]] int highestZoom() const { return mHighestZoom; }
    [[nodiscard]] const QString& path() const { return mPath; }

protected:
    explicit LocalTiles(QString path);

    QString mPath;
    QString mName;
    QString mAttribution;
    int mHighestZoom = TileId::kMaxZoom;
};

} // namespace OpenStreet
