#pragma once

#include "openstreet/core/LocalTiles.h"
#include "openstreet/core/TileLoader.h"
#include "openstreet/core/TileServer.h"

#include <QCache>
#include <QImage>
#include <QTimer>

#include <functional>
#include <unordered_set>
#include <vector>

class QPainter;

namespace OpenStreet {

/// The pictures of a server's tiles: out of memory, else off the disk, else - only when that is allowed - out of the network; or those of an
/// archive or folder of the user's, and then nothing else. What is on
/// its way is stood in for by what the disk has of other zooms. Asks for nothing but the tiles that are wanted now, two at a time, and for
/// each again only when it has expired. After failures it waits, longer from time to time. Lives on one thread; works off one tile per turn
/// of the event loop.
class TileStore : public QObject {
    Q_OBJECT

public:
    using Clock = std::function<qint64()>; ///< seconds since 1970

    static constexpr qint64 kMemoryLimit = 96LL * 1024 * 1024;
    static constexpr qint64 kFirstPause = 2; ///< seconds after a failure; doubles from failure to failure
    static constexpr qint64 kLongestPause = 300;
    /// Zoom levels by which a larger tile may be stretched: beyond it the built-in map tells more.
    static constexpr int kLevelsAbove = 5;
    static constexpr qint64 kMissingPause = 3600; ///< before a tile is asked for again that the server lacks

    explicit TileStore(QObject* pParent = nullptr, Clock clock = {});

    /// @param former where tiles were kept before; those that have not expired are still read there
    void setFolder(const QString& folder, const QString& former = {});
    /// Tiles of the user's in place of the server's; null for the server again.
    void setLocal(std::unique_ptr<LocalTiles> pLocal);
    [[nodiscard]] const LocalTiles* local() const { return mpLocal.get(); }
    /// Another server: forgets what is in memory, cancels what is on its way.
    void setServer(const TileServer& server);
    [[nodiscard]] const TileServer& server() const { return mServer; }
    /// Whether the network may be used; not before this was called with true.
    void setAllowed(bool allowed);
    [[nodiscard]] bool isAllowed() const { return mAllowed; }
    [[nodiscard]] TileDisk& disk() { return mDisk; }
    [[nodiscard]] TileLoader& loader() { return mLoader; }

    /// The tiles that are seen from now on, the most important first; the others that are on their way are cancelled.
    void want(const std::vector<TileId>& view);
    /// The picture of a tile, or what stands in for it, which need not cover it; null when it is not in memory.
    [[nodiscard]] QImage image(const TileId& id);
    /// How many of the tiles that are seen are still to come: not those that wait for a failed server or a refusal to pass.
    [[nodiscard]] int loading() const;
    /// Why a tile that is wanted does not come, for people; empty when all of them are here or on their way for the first time.
    [[nodiscard]] QString lastError() const;

Q_SIGNALS:
    /// A tile has a new picture.
    void signalTile(const OpenStreet::TileId& id);
    /// The number of tiles to come has changed.
    void signalLoading();

private:
    enum EState { eNew, eAsk, eOnItsWay, eSettled }; ///< not looked for yet; wanted from the server; being fetched; nothing left to do
    struct Wanted {
        EState state = eNew;
        TileRecord known; ///< what the server said of the picture that is here; without the body
    };
    struct Kept {
        QImage image;
        qint64 expires = 0;
    };
    struct Failure {
        int count = 0;
        qint64 until = 0;
        QString reason = {};
    };

    [[nodiscard]] qint64 now() const { return mClock(); }
    [[nodiscard]] bool mayAsk() const { return mAllowed && !mpLocal && mServer.isValid(); }
    void forget();
    /// A tile as it is kept, here or where tiles were kept before, or of the user's.
    [[nodiscard]] std::optional<TileRecord> record(const TileId& id);
    void work();
    void tellLoading();
    void schedule();
    bool lookUp();
    /// @return whether the tile is on the disk
    bool readKept(const TileId& id, Wanted& wanted);
    [[nodiscard]] QImage readPicture(const TileId& id);
    /// What the disk has of other zooms for the place, or null.
    [[nodiscard]] QImage standIn(const TileId& id);
    bool drawKept(QPainter& painter, const TileId& id, const QRectF& target, int levels);
    bool ask();
    void scheduleRetry();
    void slotFinished(const TileId& id, const TileReply& reply);
    void takeTile(const TileId& id, const TileReply& reply);
    void takeNotModified(const TileId& id, const TileReply& reply);
    void fail(const TileId& id, const TileReply& reply);
    void keep(const TileId& id, const QImage& image, qint64 expires);
    [[nodiscard]] qint64 waitUntil(const TileId& id) const;
    static qint64 pause(int failures);

    Clock mClock;
    TileServer mServer;
    TileDisk mDisk;
    TileDisk mFormer;
    std::unique_ptr<LocalTiles> mpLocal;
    TileLoader mLoader;
    bool mAllowed = false;
    int mToldLoading = 0;
    QCache<TileId, Kept> mImages{kMemoryLimit}; // at the cost of their bytes
    std::vector<TileId> mOrderWanted;
    std::unordered_map<TileId, Wanted, TileIdHash> mWanted;
    std::unordered_map<TileId, Failure, TileIdHash> mFailures;
    Failure mServerFailure;
    QTimer mWork;
    QTimer mRetry;
};

} // namespace OpenStreet
