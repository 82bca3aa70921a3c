#include "openstreet/core/TileStore.h"

#include "openstreet/core/TileCover.h"
#include "openstreet/core/TileImage.h"

#include <QDateTime>
#include <QPainter>

#include <algorithm>
#include <limits>

namespace OpenStreet {

namespace {

constexpr std::size_t kMaxFailures = 4096; // failures remembered of single tiles
constexpr int kStandInEdge = 256;          // pixels
constexpr int kLevelsBelow = 2;            // of smaller tiles that stand in for a larger one: at most 20 pictures

} // namespace

TileStore::TileStore(QObject* pParent, Clock clock) : QObject(pParent), mClock(std::move(clock))
{
    if (!mClock)
        mClock = [] { return QDateTime::currentSecsSinceEpoch(); };
    mWork.setSingleShot(true);
    mWork.setInterval(0);
    mRetry.setSingleShot(true);
    connect(&mWork, &QTimer::timeout, this, &TileStore::work);
    connect(&mRetry, &QTimer::timeout, this, &TileStore::schedule);
    connect(&mLoader, &TileLoader::signalFinished, this, &TileStore::slotFinished);
}

void TileStore::setFolder(const QString& folder, const QString& former)
{
    mDisk.setFolder(folder);
    mFormer.setFolder(former);
    schedule();
}

void TileStore::setLocal(std::unique_ptr<LocalTiles> pLocal)
{
    if (!pLocal && !mpLocal)
        return;
    mpLocal = std::move(pLocal);
    forget();
}

void TileStore::setServer(const TileServer& server)
{
    if (server == mServer)
        return;
    mServer = server;
    forget();
}

void TileStore::forget()
{
    mLoader.cancelAll();
    mImages.clear();
    mFailures.clear();
    mServerFailure = {};
    for (auto& [id, wanted] : mWanted)
        wanted = {};
    schedule();
    tellLoading();
}

void TileStore::setAllowed(bool allowed)
{
    if (allowed == mAllowed)
        return;
    mAllowed = allowed;
    if (!allowed) {
        mLoader.cancelAll();
        for (auto& [id, wanted] : mWanted)
            wanted.state = wanted.state == eOnItsWay ? eAsk : wanted.state;
    }
    schedule();
    tellLoading();
}

void TileStore::want(const std::vector<TileId>& view)
{
    std::unordered_map<TileId, Wanted, TileIdHash> before;
    before.swap(mWanted);
    mOrderWanted.clear();
    for (const TileId& id : view) {
        Wanted wanted;
        if (const auto known = before.find(id); known != before.end()) {
            wanted = known->second;
            before.erase(known);
        }
        if (wanted.state == eSettled && !mImages.contains(id))
            wanted.state = eNew;
        if (mWanted.emplace(id, wanted).second)
            mOrderWanted.push_back(id);
    }
    for (const auto& [id, wanted] : before) {
        if (wanted.state == eOnItsWay)
            mLoader.cancel(id);
    }
    schedule();
}

QImage TileStore::image(const TileId& id)
{
    const Kept* pKept = mImages.object(id);
    return pKept ? pKept->image : QImage();
}

int TileStore::loading() const
{
    return static_cast<int>(std::count_if(mWanted.begin(), mWanted.end(), [this](const auto& entry) {
        const auto& [id, wanted] = entry;
        if (wanted.state == eSettled)
            return false;
        return wanted.state != eAsk || (mayAsk() && waitUntil(id) <= now());
    }));
}

void TileStore::schedule()
{
    if (!mWork.isActive())
        mWork.start();
}

void TileStore::work()
{
    while (ask()) {
    }
    if (lookUp())
        schedule();
    else
        scheduleRetry();
    tellLoading();
}

void TileStore::tellLoading()
{
    const int count = loading();
    if (count == mToldLoading)
        return;
    mToldLoading = count;
    Q_EMIT signalLoading();
}

/// Looks for the first tile that was not looked for. @return whether there was one.
bool TileStore::lookUp()
{
    const auto next = std::find_if(mOrderWanted.begin(), mOrderWanted.end(), [this](const TileId& id) { return mWanted[id].state == eNew; });
    if (next == mOrderWanted.end())
        return false;
    const TileId id = *next;
    Wanted& wanted = mWanted[id];
    if (const Kept* pKept = mImages.object(id); pKept && pKept->expires > now()) {
        wanted.state = eSettled;
        return true;
    }
    wanted.state = eAsk;
    if (readKept(id, wanted) || mImages.contains(id))
        return true;
    if (const QImage other = standIn(id); !other.isNull()) {
        keep(id, other, 0);
        Q_EMIT signalTile(id);
    }
    return true;
}

std::optional<TileRecord> TileStore::record(const TileId& id)
{
    if (mpLocal) {
        const std::optional<QByteArray> bytes = id.zoom <= mpLocal->highestZoom() ? mpLocal->read(id) : std::nullopt;
        return bytes ? std::optional(TileRecord{*bytes, {}, {}, std::numeric_limits<qint64>::max()}) : std::nullopt;
    }
    if (std::optional<TileRecord> kept = mDisk.read(mServer.key(), id))
        return kept;
    std::optional<TileRecord> former = mFormer.has(mServer.key(), id) ? mFormer.read(mServer.key(), id) : std::nullopt;
    if (former && former->expires > now())
        return former;
    if (former)
        mFormer.remove(mServer.key(), id);
    return {};
}

bool TileStore::readKept(const TileId& id, Wanted& wanted)
{
    std::optional<TileRecord> kept = record(id);
    if (!kept)
        return false;
    const QImage image = TileImage::decode(kept->body);
    if (image.isNull()) {
        if (!mpLocal)
            mDisk.remove(mServer.key(), id);
        return false;
    }
    if (kept->expires > now())
        wanted.state = eSettled;
    kept->body.clear();
    wanted.known = *kept;
    keep(id, image, kept->expires);
    Q_EMIT signalTile(id);
    return true;
}

QImage TileStore::readPicture(const TileId& id)
{
    if (!mpLocal && !mDisk.has(mServer.key(), id) && !mFormer.has(mServer.key(), id))
        return {};
    const std::optional<TileRecord> kept = record(id);
    return kept ? TileImage::decode(kept->body) : QImage();
}

QImage TileStore::standIn(const TileId& id)
{
    QImage result(kStandInEdge, kStandInEdge, QImage::Format_RGBA8888_Premultiplied);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    bool isAny = false;
    for (TileId larger = id; larger.zoom > 0 && id.zoom - larger.zoom < kLevelsAbove && !isAny;) {
        larger = larger.parent();
        const QImage picture = readPicture(larger);
        const QRectF part = partOfAncestor(id, larger);
        isAny = !picture.isNull();
        painter.drawImage(result.rect(), picture,
                          QRectF(part.x() * picture.width(), part.y() * picture.height(), part.width() * picture.width(),
                                 part.height() * picture.height()));
    }
    isAny = drawKept(painter, id, result.rect(), kLevelsBelow) || isAny;
    painter.end();
    return isAny ? result : QImage();
}

/// Draws the smaller tiles at the place, each in a quarter of the target. @return whether there was one
bool TileStore::drawKept(QPainter& painter, const TileId& id, const QRectF& target, int levels)
{
    bool isAny = false;
    const QSizeF half = target.size() / 2.0;
    for (int i = 0; i < 4 && levels > 0 && id.zoom < TileId::kMaxZoom; ++i) {
        const TileId smaller{id.zoom + 1, id.x * 2 + i % 2, id.y * 2 + i / 2};
        const QRectF quarter(target.topLeft() + QPointF(i % 2 * half.width(), i / 2 * half.height()), half);
        const QImage picture = readPicture(smaller);
        if (!picture.isNull())
            painter.drawImage(quarter, picture);
        isAny = !picture.isNull() || drawKept(painter, smaller, quarter, levels - 1) || isAny;
    }
    return isAny;
}

QString TileStore::lastError() const
{
    for (const TileId& id : mOrderWanted) {
        const EState state = mWanted.at(id).state;
        if (state != eAsk && state != eOnItsWay)
            continue;
        if (const auto failure = mFailures.find(id); failure != mFailures.end() && state == eAsk)
            return failure->second.reason;
        if (mServerFailure.count > 0)
            return mServerFailure.reason;
    }
    return {};
}

/// Sends one request when one may be sent and one is due. @return whether it did.
bool TileStore::ask()
{
    if (!mayAsk() || !mLoader.isFree() || mServerFailure.until > now())
        return false;
    const auto next = std::find_if(mOrderWanted.begin(), mOrderWanted.end(), [this](const TileId& id) {
        return mWanted[id].state == eAsk && waitUntil(id) <= now();
    });
    if (next == mOrderWanted.end())
        return false;
    // What may lie on the disk is looked for first, so that tiles come in the order of their importance.
    const bool isEarlierOpen = std::any_of(mOrderWanted.begin(), next, [this](const TileId& id) { return mWanted[id].state == eNew; });
    if (isEarlierOpen)
        return false;
    const TileId id = *next;
    Wanted& wanted = mWanted[id];
    wanted.state = eOnItsWay;
    mLoader.get(id, mServer.url(id), wanted.known);
    return true;
}

qint64 TileStore::waitUntil(const TileId& id) const
{
    const auto failure = mFailures.find(id);
    return std::max(mServerFailure.until, failure == mFailures.end() ? 0 : failure->second.until);
}

void TileStore::scheduleRetry()
{
    mRetry.stop();
    if (!mayAsk() || !mLoader.isFree())
        return;
    qint64 earliest = 0;
    for (const auto& [id, wanted] : mWanted) {
        const qint64 until = waitUntil(id);
        if (wanted.state == eAsk && (earliest == 0 || until < earliest))
            earliest = until;
    }
    if (earliest > 0)
        mRetry.start(static_cast<int>(std::clamp<qint64>(earliest - now(), 1, kMissingPause) * 1000));
}

qint64 TileStore::pause(int failures)
{
    return std::min(kFirstPause << std::clamp(failures - 1, 0, 16), kLongestPause);
}

void TileStore::slotFinished(const TileId& id, const TileReply& reply)
{
    switch (reply.kind) {
    case TileReply::eTile: takeTile(id, reply); break;
    case TileReply::eNotModified: takeNotModified(id, reply); break;
    case TileReply::eMissing:
    case TileReply::eRefused:
    case TileReply::eFailed: fail(id, reply); break;
    }
    schedule();
    tellLoading();
}

void TileStore::takeTile(const TileId& id, const TileReply& reply)
{
    TileReply refused = reply;
    const QImage image = TileImage::decode(reply.record.body, &refused.reason);
    if (image.isNull()) {
        refused.kind = TileReply::eRefused;
        fail(id, refused);
        return;
    }
    mServerFailure = {};
    mFailures.erase(id);
    if (reply.mayBeKept)
        mDisk.write(mServer.key(), id, reply.record);
    keep(id, image, reply.record.expires);
    if (const auto wanted = mWanted.find(id); wanted != mWanted.end())
        wanted->second.state = eSettled;
    Q_EMIT signalTile(id);
}

void TileStore::takeNotModified(const TileId& id, const TileReply& reply)
{
    mServerFailure = {};
    mFailures.erase(id);
    if (std::optional<TileRecord> kept = mDisk.read(mServer.key(), id)) {
        kept->expires = reply.record.expires;
        if (!reply.record.etag.isEmpty())
            kept->etag = reply.record.etag;
        mDisk.write(mServer.key(), id, *kept);
    }
    if (Kept* pKept = mImages.object(id))
        pKept->expires = reply.record.expires;
    if (const auto wanted = mWanted.find(id); wanted != mWanted.end())
        wanted->second.state = eSettled;
}

void TileStore::fail(const TileId& id, const TileReply& reply)
{
    if (mFailures.size() >= kMaxFailures)
        mFailures.clear();
    Failure& failure = mFailures[id];
    ++failure.count;
    const bool isServer = reply.kind == TileReply::eFailed;
    failure.until = now() + (isServer ? pause(failure.count) : kMissingPause);
    failure.reason = reply.reason;
    if (isServer) {
        ++mServerFailure.count;
        mServerFailure.reason = reply.reason;
        mServerFailure.until = now() + std::max(pause(mServerFailure.count), std::min<qint64>(reply.retryAfter, kMissingPause));
    } else {
        mServerFailure = {}; // it answers
    }
    if (const auto wanted = mWanted.find(id); wanted != mWanted.end())
        wanted->second.state = eAsk;
}

void TileStore::keep(const TileId& id, const QImage& image, qint64 expires)
{
    mImages.insert(id, new Kept{image, expires}, image.sizeInBytes());
}

} // namespace OpenStreet
