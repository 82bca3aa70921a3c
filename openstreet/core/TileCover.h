#pragma once

#include "openstreet/core/Camera.h"
#include "openstreet/core/TileId.h"

#include <QRectF>

#include <vector>

namespace OpenStreet {

/// A tile where it is drawn: its column goes on counting beyond the date line, where the same tiles come again.
struct TilePlace {
    TileId id;
    int column = 0;
};

/// Which tiles a window shows.
class TileCover {
public:
    static constexpr double kTilePixels = 256.0;
    static constexpr std::size_t kMaxTiles = 600;

    /// @param pixelRatio device pixels in a logical pixel; @param maxZoom the most detailed level that there is.
    TileCover(const Camera& camera, double pixelRatio, int maxZoom);

    [[nodiscard]] int zoom() const { return mZoom; }
    /// The tiles that are seen, those in the middle first.
    [[nodiscard]] const std::vector<TilePlace>& view() const { return mView; }
    /// The tiles that are seen, each once, in the same order.
    [[nodiscard]] std::vector<TileId> ids() const;

    /// World metres of the corners of a tile in Web Mercator: north-west and south-east.
    static void bounds(const TilePlace& place, WorldPoint& northWest, WorldPoint& southEast);

private:
    /// Columns and rows of the window's bounding box, both ends included.
    struct Span {
        int left, right, top, bottom;
        [[nodiscard]] std::size_t count() const;
    };
    [[nodiscard]] Span spanAt(const Camera& camera, int zoom) const;
    /// A turned view shows a part only of the box around it.
    [[nodiscard]] static bool isSeen(const Camera& camera, const TilePlace& place);

    int mZoom = 0;
    std::vector<TilePlace> mView;
};

/// Which part of an ancestor's picture shows the tile: 0..1 from the left upper corner.
[[nodiscard]] QRectF partOfAncestor(const TileId& id, const TileId& ancestor);

} // namespace OpenStreet
