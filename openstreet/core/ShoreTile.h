#pragma once

#include "openstreet/core/BaseMap.h"
#include "openstreet/core/DetailFile.h"
#include "openstreet/core/PackedReader.h"

namespace OpenStreet {

/// Reads a tile of coasts, lakes, rivers and borders.
class ShoreTile {
public:
    ShoreTile(const QByteArray& bytes, const DetailFile::Layer& layer, const TileId& id);

    /// @return false, with some of it, when the bytes are damaged.
    bool read(BaseMap::Geometry& geometry);

private:
    struct Point {
        int x, y;
    };
    [[nodiscard]] std::vector<Point> part();
    [[nodiscard]] QPointF place(const Point& point) const;
    [[nodiscard]] BaseMap::Line line(const std::vector<Point>& points) const;
    [[nodiscard]] bool isAlongEdge(const Point& a, const Point& b) const;
    void addCoasts(const std::vector<Point>& ring, std::vector<BaseMap::Line>& coasts) const;

    PackedReader mBytes;
    const QPointF mCorner; ///< of the tile in the world
    const double mUnit;
    const int mLow, mHigh; ///< between which rings were cut
};

} // namespace OpenStreet
