#include "openstreet/core/TileServer.h"

#include <QCryptographicHash>

#include <algorithm>

namespace OpenStreet {

namespace {

constexpr const char* kDefault = "https://tile.openstreetmap.org/{z}/{x}/{y}.png";
constexpr const char* kPlaces[] = {"{z}", "{x}", "{y}"};

QString completed(QString address)
{
    address = address.trimmed();
    if (address.isEmpty())
        return QString::fromLatin1(kDefault);
    if (address.startsWith(QLatin1String("http://")) && QUrl(address).host().endsWith(QLatin1String("openstreetmap.org")))
        address.insert(4, QLatin1Char('s')); // who runs it asks for that
    if (!address.contains(QLatin1String("://")))
        address.prepend(QLatin1String("https://"));
    if (!address.contains(QLatin1Char('{')))
        address += QLatin1String(address.endsWith(QLatin1Char('/')) ? "{z}/{x}/{y}.png" : "/{z}/{x}/{y}.png");
    return address;
}

} // namespace

TileServer::TileServer(const QString& address) : mTemplate(completed(address))
{
    const QUrl example = url({1, 0, 0});
    const QString authority = mTemplate.section(QLatin1String("://"), 1).section(QLatin1Char('/'), 0, 0);
    const bool isOneServer = std::ranges::none_of(kPlaces, [&](const char* place) { return authority.contains(QLatin1String(place)); });
    const bool isWhole = std::ranges::all_of(kPlaces, [this](const char* place) { return mTemplate.contains(QLatin1String(place)); });
    const bool web = example.scheme() == QLatin1String("https") || example.scheme() == QLatin1String("http");
    mValid = web && isOneServer && isWhole && example.isValid() && !example.host().isEmpty();
}

QString TileServer::name() const
{
    const QUrl example = url({});
    QString host = example.host();
    // Which of the equal sub-domains it is says nothing to people.
    if (mTemplate.contains(QLatin1String("//{s}.")))
        host = host.section(QLatin1Char('.'), 1);
    return example.port() < 0 ? host : QString(QLatin1String("%1:%2")).arg(host).arg(example.port());
}

QUrl TileServer::url(const TileId& id) const
{
    QString text = mTemplate;
    text.replace(QLatin1String("{z}"), QString::number(id.zoom));
    text.replace(QLatin1String("{x}"), QString::number(id.x));
    text.replace(QLatin1String("{y}"), QString::number(id.y));
    text.replace(QLatin1String("{s}"), QString(QLatin1Char("abc"[(id.x + id.y) % 3])));
    return QUrl(text, QUrl::StrictMode);
}

QString TileServer::key() const
{
    return QString::fromLatin1(QCryptographicHash::hash(mTemplate.toUtf8(), QCryptographicHash::Sha256).toHex().left(16));
}

} // namespace OpenStreet
