#pragma once

#include "openstreet/core/DetailFile.h"

#include <QCache>
#include <QPointF>
#include <QRectF>

namespace OpenStreet {

/// A place that a map names.
struct MapPlace {
    enum EKind { eTown, eLargeAirfield, eMediumAirfield, eSmallAirfield, eSeaplaneBase };
    EKind kind = eTown;
    QPointF at;    ///< x and y of the whole world run from 0 to 1, from the north-west
    QString ident; ///< of an airfield, "EDMA"; empty for one without
    QString name;
    double inhabitants = 0.0; ///< of a town, about; 0 where nobody counted
    int elevation = 0;        ///< of an airfield in feet
    int runwayHeading = -1;   ///< true heading of the longest runway in degrees below 180; -1 when it is not known
    quint32 runwayLength = 0; ///< feet; 0 when it is not known
};

/// Towns and airfields of the built-in map, by tile. Tiles are read when they are asked for, and kept.
class PlaceIndex {
public:
    /// Looks for places.bin and airfields.bin. @param folder with a trailing "/"
    void open(const QString& folder);
    /// Why places are lacking, for people; empty when all files are there and whole as far as they were looked at.
    [[nodiscard]] const QString& problem() const { return mProblem; }

    /// The places of a part of the world, those that matter most first within each tile, and no more than so many of it.
    /// @param zoom of the view: from it on, smaller places are told of
    [[nodiscard]] std::vector<const MapPlace*> in(const QRectF& part, int zoom, std::size_t mostOfTile);

private:
    using Places = std::vector<MapPlace>;
    static constexpr int kKeptTiles = 256;

    struct Source {
        DetailFile file;
        DetailFile::EKind kind;
        QCache<TileId, Places> kept{kKeptTiles};
    };
    const Places& tile(Source& source, const DetailFile::Layer& layer, const TileId& id);
    void add(Source& source, const QRectF& part, int zoom, std::size_t mostOfTile, std::vector<const MapPlace*>& result);
    static bool read(const QByteArray& bytes, DetailFile::EKind kind, const DetailFile::Layer& layer, const TileId& id, Places& places);

    Source mTowns{{}, DetailFile::ePlaces};
    Source mAirfields{{}, DetailFile::eAirfields};
    QString mProblem;
};

} // namespace OpenStreet
