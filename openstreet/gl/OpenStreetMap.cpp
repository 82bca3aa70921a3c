#include "openstreet/gl/OpenStreetMap.h"

#include "openstreet/gl/TileQuads.h"
#include "vesk/gl/Device.h"

#include <QElapsedTimer>

#include <algorithm>

namespace OpenStreet {

namespace {

constexpr qint64 kFrameBudget = 12000000; // nanoseconds that a frame may spend on making tiles
constexpr std::size_t kMaxUnshaded = 8192;

} // namespace

/// One drawing of the map.
class OpenStreetMap::Frame {
public:
    Frame(OpenStreetMap& map, VESK::OpenGL::Device& device) : mMap(map), mDevice(device) {}

    void drawBuiltIn(const TileCover& cover);
    void drawServer(const TileCover& cover);
    void drawShade(const TileCover& cover);
    [[nodiscard]] int unfinished() const { return mUnfinished; }
    [[nodiscard]] const MapSources& sources() const { return mSources; }

private:
    /// Only the making of tiles counts: where drawing is slow, each frame makes one at least, and so the last one is made some time.
    [[nodiscard]] bool hasTime() const { return mSpent < kFrameBudget; }
    template <typename Make> QImage timed(Make make);
    void draw(const TilePlace& place, const VESK::OpenGL::Texture& texture, const QRectF& part);
    const VESK::OpenGL::Texture* serverTexture(const TileId& id);
    const VESK::OpenGL::Texture* builtInTexture(const TileId& id, bool isNeeded);
    const VESK::OpenGL::Texture* shadeTexture(const TileId& id);
    bool drawAncestor(const TilePlace& place, ELayer layer);
    bool drawChildren(const TilePlace& place);

    OpenStreetMap& mMap;
    VESK::OpenGL::Device& mDevice;
    qint64 mSpent = 0; // nanoseconds on making tiles
    int mUnfinished = 0;
    MapSources mSources;
};

template <typename Make> QImage OpenStreetMap::Frame::timed(Make make)
{
    QElapsedTimer clock;
    clock.start();
    QImage image = make();
    mSpent += clock.nsecsElapsed();
    return image;
}

void OpenStreetMap::Frame::draw(const TilePlace& place, const VESK::OpenGL::Texture& texture, const QRectF& part)
{
    mDevice.addTextured(VESK::OpenGL::EShading::eImage, texture, tileTriangles(mMap.mCamera, place, part));
}

const VESK::OpenGL::Texture* OpenStreetMap::Frame::serverTexture(const TileId& id)
{
    if (const VESK::OpenGL::Texture* pTexture = mMap.mTextures.find(ELayer::eServer, id))
        return pTexture;
    const QImage image = mMap.mStore.image(id);
    return image.isNull() ? nullptr : mMap.mTextures.set(ELayer::eServer, id, image);
}

const VESK::OpenGL::Texture* OpenStreetMap::Frame::builtInTexture(const TileId& id, bool isNeeded)
{
    const VESK::OpenGL::Texture* pTexture = mMap.mTextures.find(ELayer::eBuiltIn, id);
    if (pTexture || mMap.mBaseMap.isEmpty() || !isNeeded)
        return pTexture;
    return mMap.mTextures.set(ELayer::eBuiltIn, id, timed([&] { return mMap.mBaseMap.tile(id); }));
}

const VESK::OpenGL::Texture* OpenStreetMap::Frame::shadeTexture(const TileId& id)
{
    if (mMap.mUnshaded.contains(id))
        return nullptr;
    if (const VESK::OpenGL::Texture* pTexture = mMap.mTextures.find(ELayer::eShade, id))
        return pTexture;
    if (!hasTime()) {
        ++mUnfinished;
        return nullptr;
    }
    const QImage image = timed([&] { return HillShade::tile(mMap.mTerrain, id, mMap.mStyle); });
    if (!image.isNull())
        return mMap.mTextures.set(ELayer::eShade, id, image);
    if (mMap.mUnshaded.size() >= kMaxUnshaded)
        mMap.mUnshaded.clear();
    mMap.mUnshaded.insert(id);
    return nullptr;
}

/// Draws what the nearest larger tile that is here shows of the place.
bool OpenStreetMap::Frame::drawAncestor(const TilePlace& place, ELayer layer)
{
    const int farthest = layer == ELayer::eServer ? TileStore::kLevelsAbove : TileId::kMaxZoom;
    for (TileId id = place.id; id.zoom > 0 && place.id.zoom - id.zoom < farthest;) {
        id = id.parent();
        const VESK::OpenGL::Texture* pTexture = layer == ELayer::eServer ? serverTexture(id) : builtInTexture(id, false);
        if (pTexture) {
            draw(place, *pTexture, partOfAncestor(place.id, id));
            return true;
        }
    }
    return false;
}

/// Draws those of the four smaller tiles that are on the graphics card: the view has just been widened.
bool OpenStreetMap::Frame::drawChildren(const TilePlace& place)
{
    bool isAny = false;
    for (int i = 0; i < 4; ++i) {
        const TileId id{place.id.zoom + 1, place.id.x * 2 + i % 2, place.id.y * 2 + i / 2};
        const VESK::OpenGL::Texture* pTexture = mMap.mTextures.find(ELayer::eServer, id);
        if (pTexture)
            draw({id, place.column * 2 + i % 2}, *pTexture, QRectF(0, 0, 1, 1));
        isAny = isAny || pTexture;
    }
    return isAny;
}

void OpenStreetMap::Frame::drawBuiltIn(const TileCover& cover)
{
    mSources.hasBuiltIn = !mMap.mBaseMap.isEmpty();
    builtInTexture({}, true); // the world stands in where nothing else does
    for (const TilePlace& place : cover.view()) {
        if (mMap.mType == MapType::eTiles && mMap.mTextures.isOpaque(ELayer::eServer, place.id))
            continue;
        const bool mayBeMade = hasTime();
        if (const VESK::OpenGL::Texture* pTexture = builtInTexture(place.id, mayBeMade))
            draw(place, *pTexture, QRectF(0, 0, 1, 1));
        else
            drawAncestor(place, ELayer::eBuiltIn);
        if (!mayBeMade && !mMap.mTextures.has(ELayer::eBuiltIn, place.id))
            ++mUnfinished;
    }
}

void OpenStreetMap::Frame::drawServer(const TileCover& cover)
{
    bool isCovered = true;
    for (const TilePlace& place : cover.view()) {
        const VESK::OpenGL::Texture* pTexture = serverTexture(place.id);
        bool isShown = pTexture;
        if (pTexture) {
            draw(place, *pTexture, QRectF(0, 0, 1, 1));
        } else {
            isShown = drawAncestor(place, ELayer::eServer);
            isShown = drawChildren(place) || isShown;
        }
        mSources.hasTiles = mSources.hasTiles || isShown;
        isCovered = isCovered && mMap.mTextures.isOpaque(ELayer::eServer, place.id);
    }
    mSources.hasBuiltIn = mSources.hasBuiltIn && !isCovered;
}

void OpenStreetMap::Frame::drawShade(const TileCover& cover)
{
    for (const TilePlace& place : cover.view()) {
        if (const VESK::OpenGL::Texture* pTexture = shadeTexture(place.id))
            draw(place, *pTexture, QRectF(0, 0, 1, 1));
    }
}

OpenStreetMap::OpenStreetMap()
{
    QObject::connect(&mStore, &TileStore::signalTile, &mStore, [this](const TileId& id) {
        mTextures.forget(ELayer::eServer, id);
        if (mChanged && std::find(mAsked.begin(), mAsked.end(), id) != mAsked.end())
            mChanged();
    });
    QObject::connect(&mStore, &TileStore::signalLoading, &mStore, [this] {
        if (mChanged)
            mChanged();
    });
}

OpenStreetMap::~OpenStreetMap() = default;

void OpenStreetMap::setTileDirectory(const char* path, const char* pFormer)
{
    mStore.setFolder(QString::fromUtf8(path), QString::fromUtf8(pFormer));
}

bool OpenStreetMap::setLocalTiles(const QString& path, QString* pProblem)
{
    std::unique_ptr<LocalTiles> pTiles = path.isEmpty() ? nullptr : LocalTiles::open(path, pProblem);
    const bool isGood = path.isEmpty() || pTiles;
    mStore.setLocal(std::move(pTiles));
    mTextures.forget(ELayer::eServer);
    mAsked.clear();
    return isGood;
}

void OpenStreetMap::setColours(const BaseMap::Colours& colours)
{
    if (colours == mBaseMap.colours())
        return;
    mBaseMap.setColours(colours);
    mTextures.forget(ELayer::eBuiltIn);
}

void OpenStreetMap::setTerrainPath(const char* path)
{
    mTerrain.setFolder(QString::fromUtf8(path));
    mUnshaded.clear();
    mTextures.forget(ELayer::eShade);
}

void OpenStreetMap::setTileServer(const char* address)
{
    mStore.setServer(TileServer(QString::fromUtf8(address)));
    mTextures.forget(ELayer::eServer);
}

void OpenStreetMap::setTilesAllowed(bool allowed)
{
    if (allowed && !areTilesAllowed()) {
        mAsked.clear();
        mStore.want({});
    }
    mStore.setAllowed(allowed);
}

void OpenStreetMap::setMapType(MapType type)
{
    mType = type;
    mAsked.clear();
    if (type == MapType::eBuiltIn)
        mStore.want({});
}

void OpenStreetMap::setShadingStyle(const ShadingStyle& style)
{
    if (style == mStyle)
        return;
    mStyle = style;
    mTextures.forget(ELayer::eShade);
}

void OpenStreetMap::setBrightness(double brightness)
{
    ShadingStyle style = mStyle;
    style.brightness = brightness;
    setShadingStyle(style);
}

void OpenStreetMap::setContrast(double contrast)
{
    ShadingStyle style = mStyle;
    style.contrast = contrast;
    setShadingStyle(style);
}

void OpenStreetMap::setShadingFactor(double factor)
{
    ShadingStyle style = mStyle;
    style.factor = factor;
    setShadingStyle(style);
}

void OpenStreetMap::setLightDirection(double east, double north, double up)
{
    ShadingStyle style = mStyle;
    style.east = east;
    style.north = north;
    style.up = up;
    setShadingStyle(style);
}

void OpenStreetMap::setPosition(double latitude, double longitude, double /*altitude*/)
{
    mCamera.setPosition({latitude, longitude});
}

void OpenStreetMap::window2LatLong(double x, double y, double* pLatitude, double* pLongitude) const
{
    const GeoPoint place = mCamera.windowToGeo({x, y});
    *pLatitude = place.latitude;
    *pLongitude = place.longitude;
}

void OpenStreetMap::window2LatLongFromPos(double x, double y, double middleLatitude, double middleLongitude, double* pLatitude,
                                          double* pLongitude) const
{
    Camera camera = mCamera;
    camera.setPosition({middleLatitude, middleLongitude});
    const GeoPoint place = camera.windowToGeo({x, y});
    *pLatitude = place.latitude;
    *pLongitude = place.longitude;
}

void OpenStreetMap::latLong2Window(double latitude, double longitude, double* pX, double* pY) const
{
    const WindowPoint point = mCamera.geoToWindow({latitude, longitude});
    *pX = point.x;
    *pY = point.y;
}

int OpenStreetMap::nrLoadingTiles() const
{
    return mUnfinished + (mType == MapType::eTiles ? mStore.loading() : 0);
}

void OpenStreetMap::render(VESK::OpenGL::Device& device)
{
    const LocalTiles* pLocal = mStore.local();
    const TileCover cover(mCamera, mPixelRatio, pLocal ? std::min(mHighestZoom, pLocal->highestZoom()) : mHighestZoom);
    if (mType == MapType::eTiles && (pLocal || mStore.server().isValid()) && !mIsMoving) {
        std::vector<TileId> seen = cover.ids();
        if (seen != mAsked) {
            mStore.want(seen);
            mAsked = std::move(seen);
        }
    }
    mTextures.beginFrame();
    Frame frame(*this, device);
    frame.drawBuiltIn(cover);
    if (mType == MapType::eTiles)
        frame.drawServer(cover);
    if (mIsShaded && mTerrain.isAvailable())
        frame.drawShade(cover);
    mUnfinished = frame.unfinished();
    mSources = frame.sources();
}

} // namespace OpenStreet
