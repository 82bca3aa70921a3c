#pragma once

#include "openstreet/core/TileId.h"
#include "vesk/gl/Texture.h"

#include <list>
#include <memory>
#include <unordered_map>

namespace OpenStreet {

/// The layers of the map that are made of tiles, from the lowest to the highest.
enum class ELayer { eBuiltIn = 0, eServer = 1, eShade = 2 };

/// The textures of tiles, up to a limit: what was not drawn for the longest time goes first, never what this frame draws. All calls but
/// has() want the context current in which the textures live.
class TileTextures {
public:
    static constexpr qint64 kLimit = 160LL * 1024 * 1024;

    /// To be called before the first tile of a frame: makes room.
    void beginFrame();
    [[nodiscard]] bool has(ELayer layer, const TileId& id) const { return mTextures.contains({layer, id}); }
    /// The texture of a tile, which counts as drawn; null when there is none.
    [[nodiscard]] const VESK::OpenGL::Texture* find(ELayer layer, const TileId& id);
    /// Whether nothing beneath the tile can be seen.
    [[nodiscard]] bool isOpaque(ELayer layer, const TileId& id) const;
    /// Takes a picture over as the tile's texture.
    const VESK::OpenGL::Texture* set(ELayer layer, const TileId& id, const QImage& image);
    /// The picture is out of date: the tile needs a new one.
    void forget(ELayer layer, const TileId& id) { mOutdated.push_back({layer, id}); }
    void forget(ELayer layer);
    void clear();
    [[nodiscard]] qint64 size() const { return mSize; }

private:
    struct Key {
        ELayer layer;
        TileId id;
        friend bool operator==(const Key&, const Key&) = default;
    };
    struct KeyHash {
        std::size_t operator()(const Key& key) const { return TileIdHash()(key.id) * 3 + static_cast<std::size_t>(key.layer); }
    };
    struct Entry {
        std::unique_ptr<VESK::OpenGL::Texture> texture;
        qint64 bytes = 0;
        bool isOpaque = false;
        int frame = 0;
        std::list<Key>::iterator order;
    };

    void drop(const Key& key);

    std::unordered_map<Key, Entry, KeyHash> mTextures;
    std::list<Key> mOrder; // of drawing, the latest first
    std::list<Key> mOutdated;
    qint64 mSize = 0;
    int mFrame = 0;
};

} // namespace OpenStreet
