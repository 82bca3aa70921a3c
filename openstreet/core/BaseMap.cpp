#include "openstreet/core/BaseMap.h"

#include "openstreet/core/BaseMapReader.h"
#include "openstreet/core/Clip.h"
#include "openstreet/core/TileCover.h"

#include <QFile>
#include <QPainter>
#include <QPainterPath>
#include <QTransform>

static void initialiseWorldResource()
{
    Q_INIT_RESOURCE(world); // of a static library, which nothing else would pull in
}

namespace OpenStreet {

namespace {

constexpr double kMargin = 4.0 / BaseMap::kEdge; // of a tile's edge, for what is drawn across its edges
constexpr int kMostDetailed = 10; // zoom: finer tiles tell nothing more
constexpr QRgb kLand = 0xfff3f0e8;
constexpr QRgb kCoast = 0xff7fa3ba;
constexpr QRgb kBorder = 0xff9a86a4;

QRectF box(const TileId& id)
{
    const double edge = 1.0 / TileId::count(id.zoom);
    return QRectF(id.x * edge, id.y * edge, edge, edge).marginsAdded(QMarginsF(edge, edge, edge, edge) * kMargin);
}

QPolygonF moved(const BaseMap::Line& line, const QTransform& toPixels)
{
    return toPixels.map(QPolygonF(QList<QPointF>(line.begin(), line.end())));
}

void fill(QPainter& painter, const std::vector<BaseMap::Area>& areas, const QTransform& toPixels, QRgb colour)
{
    for (const BaseMap::Area& area : areas) {
        QPainterPath path;
        path.setFillRule(Qt::OddEvenFill);
        for (const BaseMap::Line& ring : area)
            path.addPolygon(moved(ring, toPixels));
        painter.fillPath(path, QColor(colour));
    }
}

void stroke(QPainter& painter, const std::vector<BaseMap::Line>& lines, const QTransform& toPixels, const QPen& pen)
{
    painter.setPen(pen);
    for (const BaseMap::Line& line : lines)
        painter.drawPolyline(moved(line, toPixels));
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
    QImage image(kEdge, kEdge, QImage::Format_RGBX8888);
    image.fill(QColor(kWater));
    const double scale = static_cast<double>(kEdge) * TileId::count(id.zoom);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QTransform toPixels(scale, 0, 0, scale, -static_cast<double>(id.x) * kEdge, -static_cast<double>(id.y) * kEdge);
    paintTile(painter, id, toPixels, 1.0);
    return image;
}

void BaseMap::paintTile(QPainter& painter, const TileId& id, const QTransform& toPixels, double lineScale)
{
    const Geometry& parts = geometry(id);
    fill(painter, parts.land, toPixels, kLand);
    fill(painter, parts.lakes, toPixels, kWater);
    stroke(painter, parts.borders, toPixels, QPen(QColor(kBorder), 1.2 * lineScale, Qt::DashLine));
    stroke(painter, parts.coasts, toPixels, QPen(QColor(kCoast), lineScale));
}

void BaseMap::paint(QPainter& painter, const Camera& camera, double lineScale)
{
    painter.save();
    painter.fillRect(QRectF(0, 0, camera.width(), camera.height()), QColor(kWater));
    const TileCover cover(camera, 1.0, kMostDetailed);
    for (const TilePlace& place : cover.view()) {
        WorldPoint northWest, southEast;
        TileCover::bounds(place, northWest, southEast);
        const WindowPoint from = camera.worldToWindow(northWest), to = camera.worldToWindow(southEast);
        const QRectF tile(QPointF(from.x, from.y), QPointF(to.x, to.y));
        painter.save();
        painter.setClipRect(tile, Qt::IntersectClip);
        // The world's edges in the window, from those of the one tile.
        const double edge = TileId::count(place.id.zoom);
        const QTransform toPixels(edge * tile.width(), 0, 0, edge * tile.height(), tile.left() - place.id.x * tile.width(),
                                  tile.top() - place.id.y * tile.height());
        paintTile(painter, place.id, toPixels, lineScale);
        painter.restore();
    }
    painter.restore();
}

} // namespace OpenStreet
