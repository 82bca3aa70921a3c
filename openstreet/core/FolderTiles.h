#pragma once

#include "openstreet/core/LocalTiles.h"

#include <QStringList>

namespace OpenStreet {

/// A folder of tiles, ZOOM/X/Y.png, with rows that count from the north.
class FolderTiles : public LocalTiles {
public:
    /// @param problem receives why it is none
    [[nodiscard]] static std::unique_ptr<LocalTiles> open(const QString& path, QString& problem);
    [[nodiscard]] std::optional<QByteArray> read(const TileId& id) override;

private:
    explicit FolderTiles(const QString& path) : LocalTiles(path) {}
    bool findZooms();
};

} // namespace OpenStreet
