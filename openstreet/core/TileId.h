#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace OpenStreet {

/// One square of the Web Mercator tile pyramid: zoom 0 is the world in one tile, each further level halves the edges. x counts
/// from the date line to the east, y from the northern end to the south.
struct TileId {
    static constexpr int kMaxZoom = 22;

    int zoom = 0;
    int x = 0;
    int y = 0;

    friend bool operator==(const TileId&, const TileId&) = default;

    /// Tiles along an edge of the world at a zoom of 0..kMaxZoom.
    [[nodiscard]] static constexpr int count(int zoom) { return 1 << zoom; }
    [[nodiscard]] constexpr bool isValid() const
    {
        return zoom >= 0 && zoom <= kMaxZoom && x >= 0 && y >= 0 && x < count(zoom) && y < count(zoom);
    }
    /// The tile that covers this one a level above; the world stays the world.
    [[nodiscard]] constexpr TileId parent() const { return zoom > 0 ? TileId{zoom - 1, x / 2, y / 2} : *this; }
};

/// For the toolkit's hashed containers.
[[nodiscard]] inline std::size_t qHash(const TileId& id, std::size_t seed = 0)
{
    return seed ^ std::hash<std::uint64_t>()((static_cast<std::uint64_t>(id.zoom) << 48) ^ (static_cast<std::uint64_t>(id.x) << 24) ^
                                             static_cast<std::uint64_t>(id.y));
}

/// For those of the standard library.
struct TileIdHash {
    std::size_t operator()(const TileId& id) const { return qHash(id); }
};

} // namespace OpenStreet
