#pragma once

#include "openstreet/core/BaseMap.h"
#include "openstreet/core/Camera.h"
#include "openstreet/core/HillShade.h"
#include "openstreet/core/TileCover.h"
#include "openstreet/core/TileStore.h"
#include "openstreet/gl/TileTextures.h"

#include <functional>

namespace VESK::OpenGL {
class Device;
}

namespace OpenStreet {

/// What is drawn: the tiles of the server over the built-in map, or the built-in map alone.
enum class MapType { eTiles = 0, eBuiltIn = 1 };

/// What a frame showed, for naming where it comes from.
struct MapSources {
    bool hasTiles = false;   ///< of the server
    bool hasBuiltIn = false; ///< the built-in map, where no tile covers it
    friend bool operator==(const MapSources&, const MapSources&) = default;
};

/// A map in an OpenGL view: the built-in map of the world, above it the tiles of a server, above them the light and shadow of the terrain.
/// Tiles that are not there yet are stood in for by parts of larger ones. Window positions are logical pixels from the left upper
/// corner, paths and addresses UTF-8. Fetches nothing before setTilesAllowed(true).
class OpenStreetMap {
public:
    OpenStreetMap();
    /// The context in which it drew must be current, or gone, or releaseGraphics() have been called.
    ~OpenStreetMap();
    OpenStreetMap(const OpenStreetMap&) = delete;
    OpenStreetMap& operator=(const OpenStreetMap&) = delete;

    /// Folder in which tiles are kept. @param pFormer the one in which they were before
    void setTileDirectory(const char* path, const char* pFormer = "");
    /// Tiles of an archive or folder in place of a server's; an empty path is the server. @return false with the problem, for people
    bool setLocalTiles(const QString& path, QString* pProblem);
    [[nodiscard]] const LocalTiles* localTiles() const { return mStore.local(); }
    /// The most detailed zoom of the tiles that are shown.
    void setHighestZoom(int zoom) { mHighestZoom = zoom; }
    /// Folder with SRTM files.
    void setTerrainPath(const char* path);
    /// See TileServer; what is not valid is answered by the built-in map alone.
    void setTileServer(const char* address);
    [[nodiscard]] const TileServer& tileServer() const { return mStore.server(); }
    /// Who asks the tile server.
    void setUserAgent(const QByteArray& text) { mStore.loader().setUserAgent(text); }
    /// What is asked for then is what the next frame shows.
    void setTilesAllowed(bool allowed);
    [[nodiscard]] bool areTilesAllowed() const { return mStore.isAllowed(); }
    /// What is shown where there are no tiles. @return false when the program comes without it
    bool loadBaseMap() { return mBaseMap.loadBuiltIn(); }
    [[nodiscard]] const BaseMap& baseMap() const { return mBaseMap; }
    void setColours(const BaseMap::Colours& colours);

    void setProjection(ProjectionType type) { mCamera.setProjection(type); }
    void setMapType(MapType type);
    void setShading(bool on) { mIsShaded = on; }
    void setBrightness(double brightness);
    void setContrast(double contrast);
    void setShadingFactor(double factor);
    /// Towards the light: metres east, north and up.
    void setLightDirection(double east, double north, double up);

    void setWindowSize(int width, int height) { mCamera.setWindowSize(width, height); }
    /// Pixels of the screen for each logical one.
    void setPixelRatio(double ratio) { mPixelRatio = ratio; }
    /// The place in the middle of the window, in degrees. The map is flat: the altitude changes nothing.
    void setPosition(double latitude, double longitude, double altitude);
    /// Metres on the ground across the window, see Camera.
    void setVisibleRange(double horizontal, double vertical) { mCamera.setVisibleRange(horizontal, vertical); }
    void setAngles(double aboutX, double aboutY) { mCamera.setAngles(aboutX, aboutY); }
    [[nodiscard]] const Camera& camera() const { return mCamera; }
    void setCamera(const Camera& camera) { mCamera = camera; }
    /// While the view moves by itself no tiles are asked for: most would have left it before they came.
    void setMoving(bool isMoving) { mIsMoving = isMoving; }

    void window2LatLong(double x, double y, double* pLatitude, double* pLongitude) const;
    /// The same for a window whose middle shows another place, at the range that is set.
    void window2LatLongFromPos(double x, double y, double middleLatitude, double middleLongitude, double* pLatitude, double* pLongitude) const;
    void latLong2Window(double latitude, double longitude, double* pX, double* pY) const;

    /// How many tiles that are seen are still being loaded or made.
    [[nodiscard]] int nrLoadingTiles() const;
    /// Called whenever a picture has changed and the view should be drawn again.
    void setChangeHandler(std::function<void()> handler) { mChanged = std::move(handler); }
    /// Why a tile that is seen does not come, for people; empty when none is missing.
    [[nodiscard]] QString lastError() const { return mStore.lastError(); }
    [[nodiscard]] TileStore& store() { return mStore; }

    /// Draws the map into the frame that was begun on the device; its context is current.
    void render(VESK::OpenGL::Device& device);
    /// What the last frame showed.
    [[nodiscard]] const MapSources& sources() const { return mSources; }
    /// Frees what lies in the context, which must be current.
    void releaseGraphics() { mTextures.clear(); }

private:
    class Frame;
    void setShadingStyle(const ShadingStyle& style);

    Camera mCamera;
    double mPixelRatio = 1.0;
    int mHighestZoom = 19;
    MapType mType = MapType::eTiles;
    bool mIsShaded = true;
    bool mIsMoving = false;
    ShadingStyle mStyle;
    BaseMap mBaseMap;
    Terrain mTerrain;
    TileStore mStore;
    TileTextures mTextures;
    std::unordered_set<TileId, TileIdHash> mUnshaded; // tiles for which the terrain has nothing
    std::vector<TileId> mAsked;
    MapSources mSources;
    int mUnfinished = 0; // tiles left to be made by later frames
    std::function<void()> mChanged;
};

} // namespace OpenStreet
