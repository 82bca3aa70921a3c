#pragma once

#include "openstreet/core/Camera.h"
#include "openstreet/core/DetailFile.h"
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

/// The built-in map of the world: land, lakes, coasts, rivers and borders, drawn tile by tile at any zoom. Needs no network. The outlines of the
/// world are part of the program; some zooms' tiles come out of a file with more of them, where it is there and whole.
class BaseMap {
public:
    using Line = std::vector<QPointF>; ///< x and y of the whole world run from 0 to 1, from the north-west
    using Area = std::vector<Line>;    ///< outlines, filled by the even-odd rule

    /// What is left of the map within a tile and a little around it.
    struct Geometry {
        std::vector<Area> land;
        std::vector<Area> lakes;
        std::vector<Line> coasts;
        std::vector<Line> rivers;
        std::vector<Line> borders;
    };

    struct Colours {
        QRgb water = 0xffb4d3e6;
        QRgb land = 0xfff3f0e8;
        QRgb coast = 0xff7fa3ba;
        QRgb river = 0xff94bdd6;
        QRgb border = 0xff9a86a4;
        friend bool operator==(const Colours&, const Colours&) = default;
    };

    static constexpr int kEdge = 256;

    /// @param packed the content of the map's file, as tools/make-base-map writes it. @return false, with an empty map, when it is
    /// something else.
    bool load(const QByteArray& packed);
    /// Loads the map that comes with the program. @return false without outlines of the world; what only lacks the details names problem()
    bool loadBuiltIn();
    /// Takes more detailed tiles out of a file. @return false, with problem(), when it is none
    bool loadDetail(const QString& path);
    /// Why the map is plainer than it could be, for people; empty when it is whole as far as it was looked at.
    [[nodiscard]] const QString& problem() const { return mProblem; }
    [[nodiscard]] bool isEmpty() const { return mWorld.land.empty(); }

    void setColours(const Colours& colours) { mColours = colours; }
    [[nodiscard]] const Colours& colours() const { return mColours; }

    [[nodiscard]] QImage tile(const TileId& id);
    /// What a camera sees, for a painter whose origin is the window's. @param lineScale of the width that lines have on a tile
    void paint(QPainter& painter, const Camera& camera, double lineScale);
    /// The reference stays valid until the next call.
    [[nodiscard]] const Geometry& geometry(const TileId& id);

private:
    static constexpr int kKeptTiles = 512;

    [[nodiscard]] bool readDetail(const TileId& id, Geometry& geometry);

    void paintTile(QPainter& painter, const TileId& id, const QTransform& toPixels, double lineScale);

    Geometry mWorld;
    DetailFile mDetail;
    QString mProblem;
    Colours mColours;
    QCache<TileId, Geometry> mKept{kKeptTiles};
};

} // namespace OpenStreet
