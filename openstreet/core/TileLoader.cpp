#include "openstreet/core/TileLoader.h"

#include "openstreet/core/TileImage.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include <algorithm>

namespace OpenStreet {

namespace {

constexpr qint64 kDefaultLife = 7 * 24 * 3600; // seconds, for a server that names no time of expiry
constexpr qint64 kLeastLife = 300;             // so that a server that names none worth the word is not asked at every move
constexpr qint64 kLongestLife = 365LL * 24 * 3600;
constexpr const char* kTooLarge = "zarnTooLarge";

/// Seconds of a header like "Retry-After: 120"; a date is rare there and counts as none.
qint64 seconds(const QByteArray& text)
{
    bool ok = false;
    const qint64 value = text.trimmed().toLongLong(&ok);
    return ok ? std::clamp<qint64>(value, 0, kLongestLife) : -1;
}

/// Whether a server of that answer is to be left alone for a while: it fails, or wants no more of these requests.
bool isFailing(int status)
{
    constexpr int kStatus[] = {401, 403, 408, 418, 429}; // 418: what some tell whom they have shut out
    return status < 300 || status >= 500 || std::find(std::begin(kStatus), std::end(kStatus), status) != std::end(kStatus);
}

qint64 announcedBytes(const QNetworkReply& reply)
{
    return reply.header(QNetworkRequest::ContentLengthHeader).toLongLong();
}

/// A date of HTTP as seconds since 1970; -1 when it is none.
qint64 httpDate(const QByteArray& text)
{
    QString date = QString::fromLatin1(text).trimmed();
    if (date.endsWith(QLatin1String(" GMT")))
        date.chop(4);
    QDateTime time = QLocale::c().toDateTime(date, QLatin1String("ddd, dd MMM yyyy hh:mm:ss"));
    time.setTimeSpec(Qt::UTC);
    return time.isValid() ? time.toSecsSinceEpoch() : -1;
}

/// How long an answer is good, by its own word.
qint64 lifetime(const QNetworkReply& reply, bool& mayBeKept)
{
    const QByteArray control = reply.rawHeader("Cache-Control").toLower();
    mayBeKept = !control.contains("no-store");
    for (const QByteArray& item : control.split(',')) {
        const QByteArray directive = item.trimmed();
        if (directive.startsWith("max-age=")) {
            const qint64 age = std::max<qint64>(seconds(reply.rawHeader("Age")), 0);
            return std::max<qint64>(seconds(directive.mid(8)) - age, 0);
        }
        if (directive == "no-cache")
            return 0;
    }
    if (reply.hasRawHeader("Expires")) {
        const qint64 date = httpDate(reply.rawHeader("Date"));
        const qint64 expires = httpDate(reply.rawHeader("Expires"));
        return expires < 0 ? 0 : std::max<qint64>(expires - (date < 0 ? QDateTime::currentSecsSinceEpoch() : date), 0);
    }
    return kDefaultLife;
}

} // namespace

TileLoader::TileLoader(QObject* pParent) : QObject(pParent), mUserAgent("map view")
{
    mManager.setAutoDeleteReplies(false);
}

TileLoader::~TileLoader()
{
    cancelAll();
}

void TileLoader::setTimeouts(int quiet, int total)
{
    mQuietTimeout = quiet;
    mTotalTimeout = total;
}

void TileLoader::get(const TileId& id, const QUrl& url, const TileRecord& known)
{
    cancel(id);
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::UserAgentHeader, mUserAgent);
    request.setRawHeader("Accept", "image/png,image/jpeg,image/webp");
    request.setRawHeader("Accept-Encoding", "identity"); // pictures are packed already, and nothing can swell
    if (!known.etag.isEmpty())
        request.setRawHeader("If-None-Match", known.etag);
    if (!known.lastModified.isEmpty())
        request.setRawHeader("If-Modified-Since", known.lastModified);
    // No attribute about loading from a cache: the toolkit, which has none, would have every cache on the way ask the server anew.
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::SameOriginRedirectPolicy);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, true);
    request.setMaximumRedirectsAllowed(3);
    request.setTransferTimeout(mQuietTimeout);
    QNetworkReply* pReply = mManager.get(request);
    mReplies[id] = pReply;
    connectReply(id, pReply);
}

void TileLoader::connectReply(const TileId& id, QNetworkReply* pReply)
{
    pReply->setReadBufferSize(TileImage::kMaxBytes + 1);
    connect(pReply, &QNetworkReply::metaDataChanged, this, [this, pReply] { watchSize(pReply); });
    connect(pReply, &QNetworkReply::readyRead, this, [this, pReply] { watchSize(pReply); });
    connect(pReply, &QNetworkReply::finished, this, [this, id, pReply] { finish(id, pReply); });
    // A server that sends a byte now and then would hold the request for ever.
    QTimer::singleShot(mTotalTimeout, pReply, [pReply] { pReply->abort(); });
}

void TileLoader::watchSize(QNetworkReply* pReply) const
{
    if (std::max(announcedBytes(*pReply), pReply->bytesAvailable()) <= TileImage::kMaxBytes || pReply->isFinished())
        return;
    pReply->setProperty(kTooLarge, true);
    pReply->abort();
}

void TileLoader::cancel(const TileId& id)
{
    const auto found = mReplies.find(id);
    if (found == mReplies.end())
        return;
    QNetworkReply* pReply = found->second;
    mReplies.erase(found);
    pReply->disconnect(this);
    pReply->abort();
    pReply->deleteLater();
}

void TileLoader::cancelAll()
{
    while (!mReplies.empty())
        cancel(TileId(mReplies.begin()->first));
}

void TileLoader::finish(const TileId& id, QNetworkReply* pReply)
{
    mReplies.erase(id);
    pReply->deleteLater();
    const TileReply reply = judge(*pReply);
    Q_EMIT signalFinished(id, reply);
}

void TileLoader::readHeaders(const QNetworkReply& reply, TileReply& result)
{
    const qint64 life = std::clamp(lifetime(reply, result.mayBeKept), kLeastLife, kLongestLife);
    result.record.expires = QDateTime::currentSecsSinceEpoch() + life;
    result.record.etag = reply.rawHeader("ETag");
    result.record.lastModified = reply.rawHeader("Last-Modified");
    result.retryAfter = std::max<qint64>(seconds(reply.rawHeader("Retry-After")), 0);
}

TileReply TileLoader::judge(QNetworkReply& reply) const
{
    TileReply result;
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    readHeaders(reply, result);
    result.reason = status == 0 ? reply.errorString() : QCoreApplication::translate("OpenStreet::TileLoader", "HTTP status %1").arg(status);
    // What is announced counts even when the connection ends before any of it came.
    if (reply.property(kTooLarge).toBool() || (status == 200 && announcedBytes(reply) > TileImage::kMaxBytes)) {
        result.kind = TileReply::eRefused;
        result.reason = QCoreApplication::translate("OpenStreet::TileLoader", "more than 4 MiB");
    } else if (status == 304) {
        result.kind = TileReply::eNotModified;
    } else if (status == 200 && reply.error() == QNetworkReply::NoError) {
        result.kind = TileReply::eTile;
        result.record.body = reply.readAll();
    } else if (status == 200) {
        result.reason = reply.errorString(); // the connection broke off
    } else if (!isFailing(status)) {
        result.kind = status < 400 ? TileReply::eRefused : TileReply::eMissing;
    }
    return result;
}

} // namespace OpenStreet
