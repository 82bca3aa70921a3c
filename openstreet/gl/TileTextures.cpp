#include "openstreet/gl/TileTextures.h"

namespace OpenStreet {

void TileTextures::beginFrame()
{
    for (const Key& key : mOutdated)
        drop(key);
    mOutdated.clear();
    while (mSize > kLimit && !mOrder.empty() && mTextures.at(mOrder.back()).frame < mFrame)
        drop(Key(mOrder.back()));
    ++mFrame;
}

const VESK::OpenGL::Texture* TileTextures::find(ELayer layer, const TileId& id)
{
    const auto found = mTextures.find({layer, id});
    if (found == mTextures.end())
        return nullptr;
    found->second.frame = mFrame;
    mOrder.splice(mOrder.begin(), mOrder, found->second.order);
    return found->second.texture.get();
}

bool TileTextures::isOpaque(ELayer layer, const TileId& id) const
{
    const auto found = mTextures.find({layer, id});
    return found != mTextures.end() && found->second.isOpaque;
}

const VESK::OpenGL::Texture* TileTextures::set(ELayer layer, const TileId& id, const QImage& image)
{
    const Key key{layer, id};
    auto place = mTextures.find(key);
    if (place == mTextures.end()) {
        place = mTextures.emplace(key, Entry{}).first;
        place->second.texture = std::make_unique<VESK::OpenGL::Texture>();
        place->second.order = mOrder.insert(mOrder.begin(), key);
    }
    Entry& entry = place->second;
    entry.texture->setImage(image, true);
    mSize += image.sizeInBytes() - entry.bytes;
    entry.bytes = image.sizeInBytes();
    entry.isOpaque = !image.hasAlphaChannel();
    entry.frame = mFrame;
    return entry.texture.get();
}

void TileTextures::forget(ELayer layer)
{
    for (const auto& [key, entry] : mTextures) {
        if (key.layer == layer)
            mOutdated.push_back(key);
    }
}

void TileTextures::clear()
{
    mTextures.clear();
    mOrder.clear();
    mOutdated.clear();
    mSize = 0;
}

void TileTextures::drop(const Key& key)
{
    const auto found = mTextures.find(key);
    if (found == mTextures.end())
        return;
    mSize -= found->second.bytes;
    mOrder.erase(found->second.order);
    mTextures.erase(found);
}

} // namespace OpenStreet
