#include "ui/map/MapAttribution.h"

#include <QEvent>
#include <QStringList>
#include <QUrl>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kPadding = 3;
constexpr int kMargin = 8; // pixels from the window's edges

QString link(const QString& address, const QString& text)
{
    return QStringLiteral("<a style='color:#1d4f91' href='%1'>%2</a>").arg(address.toHtmlEscaped(), text.toHtmlEscaped());
}

} // namespace

MapAttribution::MapAttribution(QWidget* pParent) : QLabel(pParent)
{
    setObjectName(QStringLiteral("mapAttribution"));
    setAccessibleName(tr("Sources of the map"));
    setTextFormat(Qt::RichText);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setOpenExternalLinks(true);
    setMargin(kPadding);
    setStyleSheet(QStringLiteral("#mapAttribution {background-color: #e1ffffff; color: #404040;}"));
}

QString MapAttribution::links(const OpenStreet::MapSources& sources, const OpenStreet::TileServer& server)
{
    QStringList result;
    if (sources.hasTiles) {
        // Who serves the tiles says what they are made of; hardly one is not made of this.
        result << link(QStringLiteral("https://www.openstreetmap.org/copyright"), QStringLiteral("(c) OpenStreetMap contributors"));
        const QUrl example = server.url({});
        QUrl host;
        host.setScheme(example.scheme());
        host.setHost(example.host());
        host.setPort(example.port());
        if (!example.host().endsWith(QLatin1String("openstreetmap.org")))
            result << link(host.toString(), server.name());
    }
    if (sources.hasBuiltIn)
        result << link(QStringLiteral("https://www.naturalearthdata.com"), QStringLiteral("Natural Earth"));
    return result.join(QStringLiteral(", "));
}

void MapAttribution::setSources(const OpenStreet::MapSources& sources, const OpenStreet::TileServer& server)
{
    const QString html = links(sources, server);
    setVisible(!html.isEmpty());
    if (html != text())
        setText(html);
    place();
}

void MapAttribution::changeEvent(QEvent* pEvent)
{
    QLabel::changeEvent(pEvent);
    if (pEvent->type() == QEvent::FontChange || pEvent->type() == QEvent::StyleChange)
        place();
}

void MapAttribution::place()
{
    const QSize room = parentWidget()->size() - 2 * QSize(kMargin, kMargin);
    setWordWrap(false);
    QSize wanted = sizeHint();
    if (wanted.width() > room.width()) {
        setWordWrap(true);
        wanted = QSize(room.width(), heightForWidth(room.width()));
    }
    const QPoint corner(parentWidget()->width() - kMargin, parentWidget()->height() - kMargin);
    setGeometry(QRect(corner - QPoint(wanted.width(), wanted.height()), wanted));
}

} // namespace ZARN
