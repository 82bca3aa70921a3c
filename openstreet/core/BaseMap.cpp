#include "openstreet/core/BaseMap.h"

#include "openstreet/core/BaseMapReader.h"
#include "openstreet/core/Clip.h"

#include <QFile>
#include <QPainter>
#include <QPainterPath>

static void initialiseWorldResource()
{
    Q_INIT_RESOURCE(world); // of a static library, which nothing else would pull in
}

namespace OpenStreet {

namespace {

constexpr double kMargin = 4.0 / BaseMap::kEdge; // of a tile's edge, for what is drawn across its edges
constexpr QRgb kWater = 0xffb4d3e6;
constexpr QRgb kLand = 0xfff3f0e8;
constexpr QRgb kCoast = 0xff7fa3ba;
constexpr QRgb kBorder = 0xff9a86a4;

QRectF box(const TileId& id)
{
    const double edge = 1.0 / TileId::count(id.zoom);
    return QRectF(id.x * edge, id.y * edge, edge, edge).marginsAdded(QMarginsF(edge, edge, edge, edge) * kMargin);
}

void fill(QPainter& painter, const std::vector<BaseMap::Area>& areas, QRgb colour)
{
    for (const BaseMap::Area& area : areas) {
        QPainterPath path;
        path.setFillRule(Qt::OddEvenFill);
        for (const BaseMap::Line& ring : area)
            path.addPolygon(QPolygonF(QList<QPointF>(ring.begin(), ring.end())));
        painter.fillPath(path, QColor(colour));
    }
}

void stroke(QPainter& painter, const std::vector<BaseMap::Line>& lines, const QPen& pen)
{
    painter.setPen(pen);
    for (const BaseMap::Line& line : lines)
        painter.drawPolyline(line.data(), static_cast<int>(line.size()));
}

QPen pen(QRgb colour, double width, Qt::PenStyle style)
{
    QPen result(QColor(colour), width, style);
    result.setCosmetic(true);
    return result;
}

} // namespace

bool BaseMap::loadBuiltIn()
{
    initialiseWorldResource();
    QFile file(QStringLiteral(":/openstreet/world.bin"));
    return file.open(QIODevice::ReadOnly) && load(file.readAll());
}

bool BaseMap::load(const QByteArray& packed)
{
    mKept.clear();
    mWorld = {};
    Geometry world;
    if (!BaseMapReader(qUncompress(packed)).read(world))
        return false;
    mWorld = std::move(world);
    return true;
}

const BaseMap::Geometry& BaseMap::geometry(const TileId& id)
{
    if (id.zoom <= 0)
        return mWorld;
    if (const Geometry* pKnown = mKept.object(id))
        return *pKnown;
    const Geometry& parent = geometry(id.parent());
    const QRectF area = box(id);
    auto* pCut = new Geometry{clipAreas(parent.land, area), clipAreas(parent.lakes, area), clipLines(parent.coasts, area),
                              clipLines(parent.borders, area)};
    mKept.insert(id, pCut); // which owns it from here on
    return *pCut;
}

QImage BaseMap::tile(const TileId& id)
{
    const Geometry& parts = geometry(id);
    QImage image(kEdge, kEdge, QImage::Format_RGBX8888);
    image.fill(QColor(kWater));
    const double scale = static_cast<double>(kEdge) * TileId::count(id.zoom);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-static_cast<double>(id.x) * kEdge, -static_cast<double>(id.y) * kEdge);
    painter.scale(scale, scale);
    fill(painter, parts.land, kLand);
    fill(painter, parts.lakes, kWater);
    stroke(painter, parts.borders, pen(kBorder, 1.2, Qt::DashLine));
    stroke(painter, parts.coasts, pen(kCoast, 1.0, Qt::SolidLine));
    return image;
}

} // namespace OpenStreet
