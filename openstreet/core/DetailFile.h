#pragma once

#include "openstreet/core/TileId.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <optional>
#include <vector>

namespace OpenStreet {

/// A file of the detailed part of the built-in map, as tools/make-map-data writes it: packed tiles of some zooms. The index is held in memory,
/// a tile is read when it is asked for. What the file says of itself is believed only as far as its size bears it out.
class DetailFile {
public:
    enum EKind { eShores = 1, ePlaces = 2, eAirfields = 3 };
    struct Layer {
        int zoom = 0; ///< of its tiles
        int bits = 0; ///< of a coordinate along a tile's edge
        quint32 tiles = 0;
        quint32 first = 0; ///< place of its first tile in the index
    };

    /// @return false, with problem(), when the file is not there or something else than a file of that kind
    bool open(const QString& path, EKind kind);
    [[nodiscard]] const QString& problem() const { return mProblem; }
    /// By zoom.
    [[nodiscard]] const std::vector<Layer>& layers() const { return mLayers; }
    /// The layer with tiles of that zoom, or null.
    [[nodiscard]] const Layer* layer(int zoom) const;
    /// What a tile holds, unpacked; empty bytes for one that is damaged, and nothing where the layer has no tile.
    [[nodiscard]] std::optional<QByteArray> tile(const Layer& layer, const TileId& id);

    /// The folder of the files that come with the program, with a trailing "/".
    [[nodiscard]] static QString builtInFolder();

private:
    struct Entry {
        quint32 key = 0;
        quint32 offset = 0;
        quint32 size = 0;
    };
    bool readLayers(EKind kind);
    bool readIndex();
    void refuse(const QString& problem);

    QFile mFile;
    QString mProblem;
    std::vector<Layer> mLayers;
    std::vector<Entry> mIndex;
};

} // namespace OpenStreet
