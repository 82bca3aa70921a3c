#pragma once

#include "openstreet/core/TileDisk.h"

#include <QNetworkAccessManager>
#include <QObject>
#include <QUrl>

#include <unordered_map>

class QNetworkReply;

namespace OpenStreet {

/// What came of one request for a tile.
struct TileReply {
    enum EKind {
        eTile,        ///< the record holds bytes that claim to be a tile
        eNotModified, ///< the tile that is known is still good; the record holds a new time of expiry
        eMissing,     ///< the server has no such tile
        eRefused,     ///< the answer is no tile or too large
        eFailed       ///< the server or the way to it fails: later may be better
    };
    EKind kind = eFailed;
    TileRecord record;
    bool mayBeKept = true; ///< on disk
    qint64 retryAfter = 0; ///< seconds that the server asks to wait; 0 when it says nothing
    QString reason;        ///< why there is no tile, for people
};

/// Fetches tiles over HTTP, at most two at a time and so over at most two connections. Sends no cookies and no credentials, follows
/// redirections only within the server, and reads no answer beyond what a tile may have.
class TileLoader : public QObject {
    Q_OBJECT

public:
    static constexpr int kMaxRequests = 2;
    static constexpr int kQuietTimeout = 15000; ///< milliseconds without a byte
    static constexpr int kTotalTimeout = 60000;

    explicit TileLoader(QObject* pParent = nullptr);
    ~TileLoader() override;

    /// Who asks: program, version and what it does, as server operators want to know.
    void setUserAgent(const QByteArray& text) { mUserAgent = text; }
    void setTimeouts(int quiet, int total);

    [[nodiscard]] bool isFree() const { return mReplies.size() < kMaxRequests; }
    [[nodiscard]] bool isLoading(const TileId& id) const { return mReplies.contains(id); }
    /// Asks for a tile; with what is known of it, only whether it has changed.
    void get(const TileId& id, const QUrl& url, const TileRecord& known);
    /// Nothing is signalled of a tile that was cancelled.
    void cancel(const TileId& id);
    void cancelAll();

Q_SIGNALS:
    void signalFinished(const OpenStreet::TileId& id, const OpenStreet::TileReply& reply);

private:
    void connectReply(const TileId& id, QNetworkReply* pReply);
    void watchSize(QNetworkReply* pReply) const;
    void finish(const TileId& id, QNetworkReply* pReply);
    [[nodiscard]] TileReply judge(QNetworkReply& reply) const;
    static void readHeaders(const QNetworkReply& reply, TileReply& result);

    QNetworkAccessManager mManager;
    QByteArray mUserAgent;
    int mQuietTimeout = kQuietTimeout;
    int mTotalTimeout = kTotalTimeout;
    std::unordered_map<TileId, QNetworkReply*, TileIdHash> mReplies;
};

} // namespace OpenStreet
