#pragma once

#include "openstreet/core/Camera.h"
#include "openstreet/core/TileId.h"

#include <QByteArray>
#include <QCache>
#include <QImage>
#include <QPointF>
#include <QRectF>

#include <vector>

class QPainter;
class QTransform;

namespace OpenStreet {

/// The built-in map of the world: land, lakes, coasts and borders, drawn tile by tile at any zoom. Needs no network and no files.
class BaseMap {
public:
    using Line = std::vector<QPointF>; ///< x and y of the whole world run from 0 to 1, from the north-west
    using Area = std::vector<Line>;    ///< outlines, filled by the even-odd rule

    /// What is left of the map within a tile and a little around it.
    struct Geometry {
        std::vector<Area> land;
        std::vector<Area> lakes;
        std::vector<Line> coasts;
        std::vector<Line> borders;
    };

    static constexpr int kEdge = 256;

    /// @param packed the content of the map's file, as tools/make-base-map writes it. @return false, with an empty map, when it is
    /// something else.
    bool load(const QByteArray& packed);
    /// Loads the map that comes with the program.
    bool loadBuiltIn();
    [[nodiscard]] bool isEmpty() const { return mWorld.land.empty(); }

    static constexpr QRgb kWater = 0xffb4d3e6;

    [[nodiscard]] QImage tile(const TileId& id);
    /// What a camera sees, for a painter whose origin is the window's. @param lineScale of the width that lines have on a tile
    void paint(QPainter& painter, const Camera& camera, double lineScale);
    /// The reference stays valid until the next call.
    [[nodiscard]] const Geometry& geometry(const TileId& id);

private:
    static constexpr int kKeptTiles = 512;

    void paintTile(QPainter& painter, const TileId& id, const QTransform& toPixels, double lineScale);

    Geometry mWorld;
    QCache<TileId, Geometry> mKept{kKeptTiles};
};

} // namespace OpenStreet
