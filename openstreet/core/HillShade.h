#pragma once

#include "openstreet/core/Terrain.h"
#include "openstreet/core/TileId.h"

#include <QImage>

namespace OpenStreet {

/// How the terrain is lit.
struct ShadingStyle {
    double east = -1.0, north = 1.0, up = 1.2; ///< direction towards the light
    double contrast = 1.0;                     ///< by how much slopes differ from flat ground; 0 makes all ground flat
    double brightness = 1.0;                   ///< of flat ground; 1 leaves the map as it is
    double factor = 0.5;                       ///< how much of the shading is laid over the map, 0..1

    friend bool operator==(const ShadingStyle&, const ShadingStyle&) = default;
};

/// Light and shadow of the terrain, tile by tile, to be laid over the map.
class HillShade {
public:
    static constexpr int kEdge = 256;
    static constexpr int kLeastZoom = 8; ///< a tile above it would take dozens of files

    /// @return shades as black and white with premultiplied alpha, clear where the height is not known; null when the terrain has nothing
    /// for the tile.
    [[nodiscard]] static QImage tile(Terrain& terrain, const TileId& id, const ShadingStyle& style);

    /// How bright a slope is compared with the map beneath: 1 leaves it, 0 is black, 2 white.
    /// @param eastward rise in metres a metre to the east; @param northward the same to the north.
    [[nodiscard]] static double brightness(double eastward, double northward, const ShadingStyle& style);
};

} // namespace OpenStreet
