#include "openstreet/core/BaseMap.h"

#include "openstreet/core/BaseMapReader.h"
#include "openstreet/core/Clip.h"
#include "openstreet/core/ShoreTile.h"
#include "openstreet/core/TileCover.h"

#include <QCoreApplication>
#include <QFile>
#include <QPainter>
#include <QPainterPath>
#include <QTransform>

#include <memory>

static void initialiseWorldResource()
{
    Q_INIT_RESOURCE(world); // of a static library, which nothing else would pull in
}

namespace OpenStreet {

namespace {

constexpr double kMargin = 4.0 / BaseMap::kEdge; // of a tile's edge, for what is drawn across its edges
constexpr int kMostDetailed = 10; // zoom: finer tiles tell nothing more
constexpr int kWideRivers = 9;    // zoom from which there is room for them

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
    if (!file.open(QIODevice::ReadOnly) || !load(file.readAll()))
        return false;
    loadDetail(DetailFile::builtInFolder() + QLatin1String("shores.bin"));
    return true;
}

bool BaseMap::loadDetail(const QString& path)
{
    mKept.clear();
    const bool isGood = mDetail.open(path, DetailFile::eShores);
    mProblem = mDetail.problem();
    return isGood;
}

/// @return false where the tile is to be cut out of the one above: there is none of its own, or it is damaged.
bool BaseMap::readDetail(const TileId& id, Geometry& geometry)
{
    const DetailFile::Layer* pLayer = mDetail.layer(id.zoom);
    const std::optional<QByteArray> bytes = pLayer ? mDetail.tile(*pLayer, id) : std::nullopt;
    if (!bytes)
        return false;
    if (ShoreTile(*bytes, *pLayer, id).read(geometry))
        return true;
    geometry = {};
    if (mProblem.isEmpty())
        mProblem = QCoreApplication::translate("OpenStreet::BaseMap", "The map of coasts and rivers is damaged: a plainer one is shown");
    return false;
}

bool BaseMap::load(const QByteArray& packed)
{
    mKept.clear();
    mWorld = {};
    Geometry world;
    if (!BaseMapReader(unpacked(packed)).read(world))
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
    auto pTile = std::make_unique<Geometry>();
    if (!readDetail(id, *pTile)) {
        const Geometry& parent = geometry(id.parent());
        const QRectF area = box(id);
        *pTile = {clipAreas(parent.land, area), clipAreas(parent.lakes, area), clipLines(parent.coasts, area), clipLines(parent.rivers, area),
                  clipLines(parent.borders, area)};
    }
    const Geometry& result = *pTile;
    mKept.insert(id, pTile.release()); // which owns it from here on
    return result;
}

QImage BaseMap::tile(const TileId& id)
{
    QImage image(kEdge, kEdge, QImage::Format_RGBX8888);
    image.fill(QColor(mColours.water));
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
    fill(painter, parts.land, toPixels, mColours.land);
    fill(painter, parts.lakes, toPixels, mColours.water);
    if (id.zoom > 0) { // the whole world stands in where finer tiles are still to be made: a line of it would fill the window
        stroke(painter, parts.rivers, toPixels, QPen(QColor(mColours.river), (id.zoom < kWideRivers ? 0.8 : 1.4) * lineScale));
        stroke(painter, parts.borders, toPixels, QPen(QColor(mColours.border), 1.2 * lineScale, Qt::DashLine));
    }
    stroke(painter, parts.coasts, toPixels, QPen(QColor(mColours.coast), lineScale));
}

void BaseMap::paint(QPainter& painter, const Camera& camera, double lineScale)
{
    painter.save();
    painter.fillRect(QRectF(0, 0, camera.width(), camera.height()), QColor(mColours.water));
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
