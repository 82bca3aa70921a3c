#include "report/ReportMap.h"

#include "analysis/EventList.h"
#include "openstreet/core/TileCover.h"
#include "report/ReportMarks.h"
#include "ui/canvas/Canvas.h"
#include "ui/map/model/PathGeometry.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace ZARN {

namespace {

constexpr int kMostDetailed = 10; // zoom of the tiles: finer ones tell nothing more
constexpr double kSmallestRange = 500.0; // metres
constexpr double kGridSpacing = 90.0; // points between two lines at least
constexpr double kGridSteps[] = {1.0 / 60, 2.0 / 60, 5.0 / 60, 10.0 / 60, 0.5, 1, 2, 5, 10, 30}; // degrees
constexpr double kTextSize = 7.0;
constexpr double kScaleBar = 120.0; // points at most
constexpr std::size_t kMostMarks = 2000;
const QColor kWater(180, 211, 230);
const QColor kLand(243, 240, 232);
const QColor kCoast(127, 163, 186);
const QColor kBorder(154, 134, 164);
const QColor kGrid(150, 155, 160);
const QColor kPath(200, 0, 0);
const QColor kBegin(0, 150, 90);
const QColor kExceeded(230, 159, 0);

void fill(QPainter& painter, const std::vector<OpenStreet::BaseMap::Area>& areas, const QTransform& toWindow, const QColor& colour)
{
    for (const OpenStreet::BaseMap::Area& area : areas) {
        QPainterPath path;
        path.setFillRule(Qt::OddEvenFill);
        for (const OpenStreet::BaseMap::Line& ring : area)
            path.addPolygon(toWindow.map(QPolygonF(QList<QPointF>(ring.begin(), ring.end()))));
        painter.fillPath(path, colour);
    }
}

void stroke(QPainter& painter, const std::vector<OpenStreet::BaseMap::Line>& lines, const QTransform& toWindow, const QColor& colour)
{
    painter.setPen(QPen(colour, 0.7));
    for (const OpenStreet::BaseMap::Line& line : lines)
        painter.drawPolyline(toWindow.map(QPolygonF(QList<QPointF>(line.begin(), line.end()))));
}

/// "48°05' N": whole minutes, as the grid has no others.
QString degrees(double angle, const char* positive, const char* negative)
{
    const long minutes = std::lround(std::fabs(angle) * 60);
    return QString("%1°%2' %3").arg(minutes / 60).arg(minutes % 60, 2, 10, QChar('0')).arg(QLatin1String(angle < 0 ? negative : positive));
}

double gridStep(double degreesAPoint)
{
    for (const double step : kGridSteps) {
        if (step >= degreesAPoint * kGridSpacing)
            return step;
    }
    return 30.0;
}

} // namespace

ReportMap::ReportMap(const LoadedCard& loaded) : mLoaded(loaded)
{
    mBaseMap.loadBuiltIn();
    mPath.setPoints(*loaded.pPath);
}

QPointF ReportMap::windowPoint(const FlightPathPoint& point) const
{
    const OpenStreet::WindowPoint at = mCamera.geoToWindow({point.latitude, point.longitude});
    return {at.x, at.y};
}

void ReportMap::draw(QPainter& painter, Canvas& canvas, const QRectF& place, const EventList& limits)
{
    const int width = static_cast<int>(place.width());
    const int height = static_cast<int>(place.height());
    const MapFit fit = mPath.fit(width, height);
    mCamera.setProjection(OpenStreet::ProjectionType::eMercator);
    mCamera.setWindowSize(width, height);
    mCamera.setPosition({fit.latitude, fit.longitude});
    mCamera.setVisibleRange(std::max(fit.range, kSmallestRange), 0);
    canvas.push();
    canvas.translate(place.left(), place.top());
    canvas.clip(QRectF(0, 0, width, height));
    drawGround(painter);
    drawGrid(canvas);
    drawPath(canvas);
    drawMarks(canvas, limits);
    drawScale(canvas);
    canvas.outline(QRectF(0, 0, width, height), {kGrid, 0.7});
    canvas.pop();
}

void ReportMap::drawGround(QPainter& painter)
{
    painter.save();
    painter.fillRect(QRectF(0, 0, mCamera.width(), mCamera.height()), kWater);
    const OpenStreet::TileCover cover(mCamera, 1.0, kMostDetailed);
    for (const OpenStreet::TilePlace& place : cover.view()) {
        OpenStreet::WorldPoint northWest;
        OpenStreet::WorldPoint southEast;
        OpenStreet::TileCover::bounds(place, northWest, southEast);
        const OpenStreet::WindowPoint from = mCamera.worldToWindow(northWest);
        const OpenStreet::WindowPoint to = mCamera.worldToWindow(southEast);
        painter.save();
        const QRectF tile(QPointF(from.x, from.y), QPointF(to.x, to.y));
        painter.setClipRect(tile, Qt::IntersectClip);
        const double edge = OpenStreet::TileId::count(place.id.zoom);
        // The world's edges in the window, from those of the one tile.
        drawTile(painter, mBaseMap.geometry(place.id),
                 QRectF(tile.left() - place.id.x * tile.width(), tile.top() - place.id.y * tile.height(), edge * tile.width(), edge * tile.height()));
        painter.restore();
    }
    painter.restore();
}

void ReportMap::drawTile(QPainter& painter, const OpenStreet::BaseMap::Geometry& parts, const QRectF& world) const
{
    const QTransform toWindow(world.width(), 0, 0, world.height(), world.left(), world.top());
    fill(painter, parts.land, toWindow, kLand);
    fill(painter, parts.lakes, toWindow, kWater);
    stroke(painter, parts.borders, toWindow, kBorder);
    stroke(painter, parts.coasts, toWindow, kCoast);
}

void ReportMap::drawGrid(Canvas& canvas) const
{
    const double width = mCamera.width();
    const double height = mCamera.height();
    const OpenStreet::GeoPoint northWest = mCamera.windowToGeo({0, 0});
    const OpenStreet::GeoPoint southEast = mCamera.windowToGeo({width, height});
    const double middle = mCamera.position().longitude;
    const double step = gridStep((southEast.longitude - northWest.longitude) / width);
    std::vector<QPointF> lines;
    const CanvasText low{kTextSize, kGrid.darker(), false, Qt::AlignLeft | Qt::AlignBottom, false};
    for (double at = std::ceil(northWest.longitude / step) * step; at < southEast.longitude; at += step) {
        const double x = width / 2 + (at - middle) / (southEast.longitude - northWest.longitude) * width;
        lines.insert(lines.end(), {{x, 0}, {x, height}});
        const QString label = degrees(OpenStreet::foldLongitude(at), "E", "W");
        if (x + 2 + canvas.textSize(label, low).width() < width - scaleBar().pixels - 16) // where the scale bar begins
            canvas.text({x + 2, height - 2}, label, low);
    }
    for (double at = std::ceil(southEast.latitude / step) * step; at < northWest.latitude; at += step) {
        const double y = mCamera.geoToWindow({at, middle}).y;
        lines.insert(lines.end(), {{0, y}, {width, y}});
        canvas.text({2, y - 1}, degrees(at, "N", "S"), low);
    }
    canvas.lines(lines, {kGrid, 0.4});
}

void ReportMap::drawPath(Canvas& canvas) const
{
    PathGeometry geometry;
    geometry.update(mPath, mCamera);
    canvas.push();
    canvas.translate(geometry.offset().x(), geometry.offset().y());
    for (const PathGeometry::Strip& strip : geometry.strips())
        canvas.lineStrip(strip, {kPath, 1.4, true});
    canvas.pop();
}

void ReportMap::drawMarks(Canvas& canvas, const EventList& limits) const
{
    ReportMarks marks(QSizeF(mCamera.width(), mCamera.height()));
    marks.add(windowPoint(mPath.points().front()), kBegin);
    marks.add(windowPoint(mPath.points().back()), Qt::black);
    std::size_t count = 0;
    for (const Event& event : limits.events()) {
        if (event.time >= mLoaded.startTime && event.time <= mLoaded.endTime && mPath.spans(event.time) && ++count <= kMostMarks)
            marks.addToGroup(windowPoint(mPath.positionAt(event.time)), kExceeded);
    }
    marks.draw(canvas);
}

MapScaleBar ReportMap::scaleBar() const
{
    return MapScaleBar::at(mCamera, kScaleBar, mLoaded.context.unit() == EUnit::eImperial);
}

void ReportMap::drawScale(Canvas& canvas) const
{
    const MapScaleBar bar = scaleBar();
    const double right = mCamera.width() - 8.0;
    const double y = mCamera.height() - 8.0;
    canvas.fillRect(QRectF(right - bar.pixels - 4, y - 14, bar.pixels + 8, 18), QColor(255, 255, 255, 200));
    canvas.lines(std::vector<QPointF>{{right - bar.pixels, y}, {right, y}, {right - bar.pixels, y}, {right - bar.pixels, y - 4}, {right, y}, {right, y - 4}},
                 {Qt::black, 1.0});
    canvas.text({right - bar.pixels / 2, y - 3}, bar.text, {kTextSize, Qt::black, false, Qt::AlignHCenter | Qt::AlignBottom, false});
}

} // namespace ZARN
