#include "ui/map/model/MapScene.h"

#include "app/Numeric.h"

#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numbers>
#include <unordered_set>
#include <utility>

namespace ZARN {

namespace {

constexpr double kPathWidth = 3.0;
constexpr double kMargin = 8.0; // pixels between the window's edges and what stands in its corners
constexpr double kMessageSize = 16.0;
constexpr double kBarPixels = 140.0;
constexpr double kMetresPerMile = 1852.0;
constexpr double kMetresPerFoot = 0.3048;
constexpr std::size_t kMostDots = 4000;
constexpr int kDotCell = 2; // pixels: dots that lie closer together are one
const QColor kPathColour(255, 0, 0);
const QColor kTextColour = QColor::fromRgbF(0.4F, 0.4F, 0.4F);
const QColor kTextGround(255, 255, 255, 225);
const QColor kAircraftColour(25, 60, 140);
const QColor kGraticuleLine(90, 110, 130, 60);
const QColor kGraticuleText(90, 110, 130);

using Circle = std::array<QPointF, 12>;

Circle circle(double radius)
{
    Circle points;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double angle = 2.0 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(points.size());
        points[i] = {radius * std::cos(angle), radius * std::sin(angle)};
    }
    return points;
}

void addDisc(std::vector<QPointF>& triangles, const Circle& shape, const QPointF& middle)
{
    for (std::size_t i = 0; i < shape.size(); ++i)
        triangles.insert(triangles.end(), {middle, middle + shape[i], middle + shape[(i + 1) % shape.size()]});
}

QString length(double amount, const char* unit)
{
    return QString(QLatin1String("%1 %2")).arg(amount, 0, 'g', 6).arg(QLatin1String(unit));
}

/// Degrees between two lines that lie at least 130 pixels apart.
double graticuleStep(const OpenStreet::Camera& camera)
{
    const double least = 130.0 * camera.metresPerPixel() / OpenStreet::Projection::kWorldWidth * 360.0;
    for (double power = 0.0001; power < 100.0; power *= 10.0) {
        for (const double digit : {1.0, 2.0, 5.0}) {
            if (digit * power >= least)
                return digit * power;
        }
    }
    return 90.0;
}

QString degrees(double value, double step, char positive, char negative)
{
    const int digits = std::max(0, -static_cast<int>(std::floor(std::log10(step) + 1e-9)));
    const QString number = QString::number(std::fabs(value), 'f', digits);
    return number + QChar(0x00B0) + QLatin1Char(value < 0.0 ? negative : positive);
}

/// The text, or as much of it as is not wider than that; characters are all of one width.
QString elided(const Canvas& canvas, const QString& text, double width)
{
    const double character = canvas.textSize(QStringLiteral("x"), {MapScene::kTextSize, kTextColour}).width();
    const auto most = std::max<qsizetype>(saturatingCast<int>(width / character), 1);
    return text.size() <= most ? text : text.left(most - 1) + QChar(0x2026);
}

} // namespace

MapScaleBar MapScaleBar::at(const OpenStreet::Camera& camera, double pixels, bool imperial)
{
    const double middle = 0.5 * camera.height(), width = camera.width();
    const OpenStreet::WorldPoint left = camera.windowToWorld({0.0, middle}), right = camera.windowToWorld({width, middle});
    const double across = std::hypot(right.x - left.x, right.y - left.y); // a turned map is seen from the side
    const double perPixel = across / width / camera.projection().scaleAt(camera.position().latitude);
    const double most = perPixel * pixels;
    double unit = 1.0;
    const char* pUnit = "m";
    if (imperial) {
        const bool isShort = most < kMetresPerMile;
        unit = isShort ? kMetresPerFoot : kMetresPerMile;
        pUnit = isShort ? "ft" : "NM";
    } else if (most >= 1000.0) {
        unit = 1000.0;
        pUnit = "km";
    }
    const double power = std::pow(10.0, std::floor(std::log10(most / unit)));
    const double digit = most / unit / power;
    const double amount = power * (digit >= 5.0 ? 5.0 : digit >= 2.0 ? 2.0 : 1.0);
    return {amount * unit, amount * unit / perPixel, length(amount, pUnit)};
}

std::span<const QPointF> MapScene::aircraftOutline()
{
    static constexpr std::array<QPointF, 22> right{QPointF{0, -15}, {1.6, -13.5}, {2.2, -10},    {2.2, -5},   {17, -2.5},  {17, 1},
                                                   {2.2, 1.5},      {1.4, 10},    {6.5, 12},     {6.5, 14.5}, {0.8, 13.8}, {-0.8, 13.8},
                                                   {-6.5, 14.5},    {-6.5, 12},   {-1.4, 10},    {-2.2, 1.5}, {-17, 1},    {-17, -2.5},
                                                   {-2.2, -5},      {-2.2, -10},  {-1.6, -13.5}, {0, -15}};
    return std::span(right).first(right.size() - 1);
}

bool MapScene::setNote(const QString& note)
{
    return std::exchange(mNote, note) != note;
}

void MapScene::drawGround(Canvas& canvas, const OpenStreet::Camera& camera)
{
    if (mHasGraticule)
        drawGraticule(canvas, camera);
    drawPath(canvas, camera);
    drawEvents(canvas, camera);
}

void MapScene::drawAbove(Canvas& canvas, const OpenStreet::Camera& camera) const
{
    drawAircraft(canvas, camera);
    drawScaleBar(canvas, camera);
    if (!mMessage.isEmpty())
        drawLabel(canvas, {0.5 * camera.width(), 0.5 * camera.height()}, mMessage, Qt::AlignCenter, kMessageSize);
}

void MapScene::drawGraticule(Canvas& canvas, const OpenStreet::Camera& camera) const
{
    const auto corner = [&](double x, double y) { return camera.projection().toGeo(camera.windowToWorld({x, y})); };
    OpenStreet::GeoPoint upper = corner(0.0, 0.0), lower = upper;
    for (const OpenStreet::GeoPoint& other :
         {corner(camera.width(), 0.0), corner(0.0, camera.height()), corner(camera.width(), camera.height())}) {
        upper = {std::max(upper.latitude, other.latitude), std::min(upper.longitude, other.longitude)};
        lower = {std::min(lower.latitude, other.latitude), std::max(lower.longitude, other.longitude)};
    }
    const double step = graticuleStep(camera);
    const auto point = [&](double latitude, double longitude) {
        const OpenStreet::WindowPoint at = camera.worldToWindow(camera.projection().toWorld({latitude, longitude}));
        return QPointF(at.x, at.y);
    };
    const CanvasText style{kTextSize, kGraticuleText, false, Qt::AlignLeft | Qt::AlignBottom};
    std::vector<QPointF> lines;
    for (double longitude = std::ceil(upper.longitude / step) * step; longitude <= lower.longitude; longitude += step) {
        const QPointF top = point(upper.latitude, longitude);
        lines.insert(lines.end(), {top, point(lower.latitude, longitude)});
        canvas.text({top.x() + 3.0, camera.height() - 30.0}, degrees(OpenStreet::foldLongitude(longitude), step, 'E', 'W'), style);
    }
    for (double latitude = std::ceil(lower.latitude / step) * step; latitude <= upper.latitude; latitude += step) {
        const QPointF left = point(latitude, upper.longitude);
        lines.insert(lines.end(), {left, point(latitude, lower.longitude)});
        canvas.text({3.0, left.y() - 1.0}, degrees(latitude, step, 'N', 'S'), style);
    }
    canvas.lines(lines, {kGraticuleLine, 1.0});
}

void MapScene::drawPath(Canvas& canvas, const OpenStreet::Camera& camera)
{
    mGeometry.update(mPath, camera);
    canvas.push();
    canvas.translate(mGeometry.offset().x(), mGeometry.offset().y());
    for (const PathGeometry::Strip& strip : mGeometry.strips())
        canvas.lineStrip(strip, {kPathColour, kPathWidth, true});
    canvas.pop();
}

void MapScene::drawEvents(Canvas& canvas, const OpenStreet::Camera& camera) const
{
    const OpenStreet::WindowPoint start = windowOrigin(camera, mPath.origin());
    const Circle inner = circle(MapEvents::kRadius), outer = circle(MapEvents::kRadius + 1.2);
    std::map<QRgb, std::vector<QPointF>> discs; // one drawing a colour
    std::vector<QPointF> rims;
    std::unordered_set<qint64> taken;
    for (const MapEvent& event : mEvents.dots()) {
        const OpenStreet::WindowPoint at = camera.worldToWindowVector(event.place);
        const QPointF middle(start.x + at.x, start.y + at.y);
        if (!QRectF(-kMargin, -kMargin, camera.width() + 2 * kMargin, camera.height() + 2 * kMargin).contains(middle))
            continue;
        const auto cell = static_cast<qint64>(middle.x()) / kDotCell * 100000 + static_cast<qint64>(middle.y()) / kDotCell;
        if (taken.size() >= kMostDots || !taken.insert(cell * 0x1000000 + static_cast<qint64>(event.colour.rgb() & 0xffffffU)).second)
            continue;
        addDisc(rims, outer, middle);
        addDisc(discs[event.colour.rgb()], inner, middle);
    }
    canvas.triangles(rims, Qt::black);
    for (const auto& [colour, triangles] : discs)
        canvas.triangles(triangles, QColor(colour));
}

void MapScene::drawAircraft(Canvas& canvas, const OpenStreet::Camera& camera) const
{
    if (mPath.isEmpty())
        return;
    const OpenStreet::WindowPoint at = camera.geoToWindow({mAircraft.latitude, mAircraft.longitude});
    const double track = std::isfinite(mAircraft.track) ? mAircraft.track : 0.0;
    const QTransform turn = QTransform().rotate(track);
    const double scale = camera.metresPerPixel();
    std::vector<QPointF> outline;
    for (const QPointF& point : aircraftOutline()) {
        const QPointF seen = turn.map(point); // lies flat on the map, and is turned with it
        const OpenStreet::WindowPoint step = camera.worldToWindowVector({seen.x() * scale, -seen.y() * scale});
        outline.emplace_back(at.x + step.x, at.y + step.y);
    }
    canvas.polygon(outline, kAircraftColour);
    outline.push_back(outline.front());
    canvas.lineStrip(outline, {Qt::white, 1.5, true});
}

void MapScene::drawScaleBar(Canvas& canvas, const OpenStreet::Camera& camera) const
{
    const MapScaleBar bar = MapScaleBar::at(camera, std::min(kBarPixels, 0.4 * camera.width()), mIsImperial);
    const bool isNarrow = bar.pixels + mCorner.width() + 3.0 * kMargin > camera.width(); // no room beside what stands in the corner
    const double bottom = camera.height() - kMargin - (isNarrow ? mCorner.height() + 4.0 : 0.0);
    const double right = kMargin + bar.pixels;
    drawLabel(canvas, {kMargin, bottom - 7.0}, bar.text, Qt::AlignLeft | Qt::AlignBottom);
    canvas.fillRect({kMargin, bottom - 5.0, bar.pixels, 5.0}, kTextGround);
    canvas.fillRect({kMargin, bottom - 2.0, bar.pixels, 2.0}, kTextColour);
    canvas.fillRect({kMargin, bottom - 5.0, 2.0, 5.0}, kTextColour);
    canvas.fillRect({right - 2.0, bottom - 5.0, 2.0, 5.0}, kTextColour);
    if (!mNote.isEmpty())
        drawLabel(canvas, {kMargin, std::min(bottom - 28.0, camera.height() - mCorner.height() - 2.0 * kMargin)},
                  elided(canvas, mNote, camera.width() - 2.0 * kMargin), Qt::AlignLeft | Qt::AlignBottom);
}

void MapScene::drawLabel(Canvas& canvas, const QPointF& position, const QString& text, Qt::Alignment align, double textSize) const
{
    const CanvasText style{textSize, kTextColour, false, align};
    const QSizeF size = canvas.textSize(text, style);
    const double left = align & Qt::AlignHCenter ? position.x() - 0.5 * size.width() : position.x();
    const double top = position.y() - (align & Qt::AlignVCenter ? 0.5 : 1.0) * size.height();
    canvas.fillRect({left - 3.0, top, size.width() + 6.0, size.height()}, kTextGround);
    canvas.text(position, text, style);
}

} // namespace ZARN
