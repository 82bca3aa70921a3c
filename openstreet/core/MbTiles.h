#pragma once

#include "openstreet/core/LocalTiles.h"

struct sqlite3;
struct sqlite3_stmt;

namespace OpenStreet {

/// An archive of tiles in one SQLite database: tables "metadata" and "tiles", rows counted from the south. Read only, and never written beside.
class MbTiles : public LocalTiles {
public:
    ~MbTiles() override;
    /// @param problem receives why it is none
    [[nodiscard]] static std::unique_ptr<LocalTiles> open(const QString& path, QString& problem);
    [[nodiscard]] std::optional<QByteArray> read(const TileId& id) override;

private:
    explicit MbTiles(const QString& path) : LocalTiles(path) {}
    /// @return false with what is wrong
    bool open(QString& problem);
    bool hasPictures(QString& problem);
    [[nodiscard]] QString metadata(const char* name);
    void readMetadata();

    sqlite3* mpBase = nullptr;
    sqlite3_stmt* mpTile = nullptr;
};

} // namespace OpenStreet
