#pragma once

#include "openstreet/core/Camera.h"
#include "openstreet/core/TileId.h"

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
    /// The tiles around those that are seen, one deep, each once.
    [[nodiscard]] std::vector<TileId> ring() const;

    /// World metres of the corners of a tile in Web Mercator: north-west and south-east.
    static void bounds(const TilePlace& place, WorldPoint& northWest, WorldPoint& southEast);

private:
    /// Columns and rows of the window's bounding box, both ends included.
    struct Span {
        int left, right, top, bottom;
        [[nodiscard]] std::size_t count() const;
    };
    [[nodiscard]] Span spanAt(const Camera& camera, int zoom) const;

    int mZoom = 0;
    Span mSpan{};
    std::vector<TilePlace> mView;
};

} // namespace OpenStreet
