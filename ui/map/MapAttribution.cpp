#include "ui/map/MapAttribution.h"

#include <QEvent>
#include <QTextDocumentFragment>
#include <QUrl>

#include <algorithm>

namespace ZARN {

namespace {

constexpr int kPadding = 3;
constexpr int kMargin = 8; // pixels from the window's edges

QString link(const QString& address, const QString& text)
{
    return QStringLiteral("<a href='%1'>%2</a>").arg(address.toHtmlEscaped(), text.toHtmlEscaped());
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
}

QStringList MapAttribution::serverLinks(const OpenStreet::TileServer& server, const QString& own)
{
    // Who serves the tiles says what they are made of; hardly one is not made of this.
    QStringList result{link(QStringLiteral("https://www.openstreetmap.org/copyright"), QStringLiteral("(c) OpenStreetMap contributors"))};
    const QUrl example = server.url({});
    QUrl host;
    host.setScheme(example.scheme());
    host.setHost(example.host());
    host.setPort(example.port());
    if (!own.isEmpty())
        result << own.toHtmlEscaped();
    if (!example.host().endsWith(QLatin1String("openstreetmap.org")))
        result << link(host.toString(), server.name());
    return result;
}

QString MapAttribution::links(const OpenStreet::MapSources& sources, const OpenStreet::OpenStreetMap& map, const QString& own)
{
    QStringList result;
    if (const OpenStreet::LocalTiles* pLocal = map.localTiles(); sources.hasTiles && pLocal)
        result << (pLocal->attribution().isEmpty() ? pLocal->name() : pLocal->attribution()).toHtmlEscaped();
    else if (sources.hasTiles)
        result << serverLinks(map.tileServer(), own);
    if (sources.hasBuiltIn) {
        result << link(QStringLiteral("https://www.naturalearthdata.com"), QStringLiteral("Natural Earth"))
               << link(QStringLiteral("https://www.soest.hawaii.edu/pwessel/gshhg/"), QStringLiteral("GSHHG"))
               << link(QStringLiteral("https://www.geonames.org"), QStringLiteral("GeoNames"))
               << link(QStringLiteral("https://ourairports.com"), QStringLiteral("OurAirports"));
    }
    return result.join(QStringLiteral(", "));
}

void MapAttribution::setSources(const OpenStreet::MapSources& sources, const OpenStreet::OpenStreetMap& map, const QString& own)
{
    const QString html = links(sources, map, own);
    setVisible(!html.isEmpty());
    if (html != text())
        setText(html);
    place();
}

void MapAttribution::draw(Canvas& canvas, const MapStyle& style) const
{
    if (!isVisibleTo(parentWidget()))
        return;
    const QString plain = QTextDocumentFragment::fromHtml(text()).toPlainText();
    CanvasText look{style.textSize, style.colours.text, false, Qt::AlignRight | Qt::AlignVCenter};
    const double width = canvas.textSize(plain, look).width();
    look.size *= std::min(1.0, (geometry().width() - 2.0 * kPadding) / width);
    const QSizeF box = canvas.textSize(plain, look) + QSizeF(2 * kPadding, 2 * kPadding);
    const QRectF place(QRectF(geometry()).bottomRight() - QPointF(box.width(), box.height()), box);
    canvas.fillRect(place, style.colours.textGround);
    canvas.text(QPointF(place.right() - kPadding, place.center().y()), plain, look);
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
