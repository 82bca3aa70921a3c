#include "ui/map/model/PlaceLabels.h"

#include "ui/canvas/CanvasFont.h"
#include "ui/canvas/Triangulation.h"
#include "ui/map/model/LabelRoom.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace ZARN {

using OpenStreet::MapPlace;
using OpenStreet::WorldPoint;

namespace {

constexpr double kAround = 0.5; // of the window's size, that labels are chosen for beyond its edges
constexpr double kGap = 14.0;   // pixels between two names, so that the map stays a map
constexpr double kDot = 2.0;    // radius of a town
constexpr double kField = 4.5;  // of an airfield
constexpr double kRunway = 8.0; // half the length of a runway's sign
constexpr std::size_t kMostOfTile = 400;
constexpr int kNamesOfFields = 11;     // zoom from which airfields have their name beside their identifier
constexpr double kSmallestMark = 14.0; // weight of a place that is marked although there is no room for its name

/// How far apart places have to be to be told of at a zoom, as the least weight of those that are.
double leastWeight(int zoom)
{
    return 25.5 - 1.35 * zoom;
}

int zoomOf(const OpenStreet::Camera& camera)
{
    return static_cast<int>(std::round(std::log2(OpenStreet::Projection::kWorldWidth / (256.0 * camera.metresPerPixel()))));
}

WorldPoint worldOf(const QPointF& at)
{
    return {(at.x() - 0.5) * OpenStreet::Projection::kWorldWidth, (0.5 - at.y()) * OpenStreet::Projection::kWorldWidth};
}

/// In the window, in the world nearest to its middle.
QPointF seenAt(const OpenStreet::Camera& camera, WorldPoint point)
{
    const WorldPoint middle = camera.windowToWorld({0.5 * camera.width(), 0.5 * camera.height()});
    point.x = middle.x + std::remainder(point.x - middle.x, OpenStreet::Projection::kWorldWidth);
    const OpenStreet::WindowPoint at = camera.worldToWindow(point);
    return {at.x, at.y};
}

/// The part of the world around the window, from 0 to 1.
QRectF partOfWorld(const OpenStreet::Camera& camera)
{
    const double width = camera.width(), height = camera.height();
    QPolygonF corners;
    for (const auto& [x, y] :
         {std::pair(-kAround, -kAround), {1 + kAround, -kAround}, {1 + kAround, 1 + kAround}, {-kAround, 1 + kAround}}) {
        const WorldPoint at = camera.windowToWorld({x * width, y * height});
        corners << QPointF(at.x / OpenStreet::Projection::kWorldWidth + 0.5, 0.5 - at.y / OpenStreet::Projection::kWorldWidth);
    }
    return corners.boundingRect();
}

} // namespace

void PlaceLabels::open(const QString& folder)
{
    mPlaces.open(folder);
    mTextSize = 0.0;
}

/// As if airfields were towns: the larger, the farther out they are told of.
double PlaceLabels::weight(const MapPlace& place)
{
    switch (place.kind) {
    case MapPlace::eLargeAirfield: return 17.5;
    case MapPlace::eMediumAirfield: return 15.8;
    case MapPlace::eSmallAirfield: return place.ident.isEmpty() ? 12.2 : 14.2;
    case MapPlace::eSeaplaneBase: return 11.5;
    case MapPlace::eTown: break;
    }
    return place.inhabitants > 1.0 ? std::log2(place.inhabitants) : 0.0;
}

QString PlaceLabels::textOf(const MapPlace& place, int zoom)
{
    if (place.ident.isEmpty())
        return place.name;
    return zoom < kNamesOfFields ? place.ident : place.ident + QLatin1Char(' ') + place.name;
}

void PlaceLabels::update(const OpenStreet::Camera& camera, const MapStyle& style)
{
    const QPointF middle = seenAt(camera, mCamera.windowToWorld({0.5 * mCamera.width(), 0.5 * mCamera.height()}));
    const bool isNear = std::fabs(middle.x() - 0.5 * camera.width()) < kAround * camera.width() &&
                        std::fabs(middle.y() - 0.5 * camera.height()) < kAround * camera.height();
    const OpenStreet::WindowPoint before = mCamera.worldToWindowVector({1e5, 2e5}), now = camera.worldToWindowVector({1e5, 2e5});
    const bool isSameView = std::fabs(now.x / before.x - 1.0) < 1e-6 && std::fabs(now.y / before.y - 1.0) < 1e-6;
    const bool isSameSize = camera.width() == mCamera.width() && camera.height() == mCamera.height() && mTextSize == style.textSize;
    if (isNear && isSameView && isSameSize)
        return;
    choose(camera, style);
}

void PlaceLabels::choose(const OpenStreet::Camera& camera, const MapStyle& style)
{
    mCamera = camera;
    mTextSize = style.textSize;
    ++mChoices;
    mLabels.clear();
    const int zoom = zoomOf(camera);
    std::vector<const MapPlace*> places = mPlaces.in(partOfWorld(camera), zoom, kMostOfTile);
    std::erase_if(places, [least = leastWeight(zoom)](const MapPlace* pPlace) { return weight(*pPlace) < least; });
    std::ranges::stable_sort(places, std::ranges::greater(), [](const MapPlace* pPlace) { return weight(*pPlace); });
    const double width = camera.width(), height = camera.height();
    LabelRoom room(QRectF(-kAround * width, -kAround * height, (1 + 2 * kAround) * width, (1 + 2 * kAround) * height), kGap);
    for (const MapPlace* pPlace : places) {
        if (mLabels.size() >= kMost)
            break;
        const WorldPoint at = worldOf(pPlace->at);
        const QPointF middle = seenAt(camera, at);
        if (!room.area().contains(middle))
            continue;
        const QString text = textOf(*pPlace, zoom);
        const double distance = (pPlace->kind == MapPlace::eTown ? kDot : kRunway) + 2.0;
        const std::optional<QRectF> box = room.take(middle, distance, canvasTextSize(text, style.textSize, false));
        if (box)
            mLabels.push_back({*pPlace, at, box->topLeft() - middle, box->size(), text});
        else if (pPlace->kind != MapPlace::eTown && weight(*pPlace) >= kSmallestMark)
            mLabels.push_back({*pPlace, at, {}, {}, {}});
    }
}

void PlaceLabels::drawAirfield(Canvas& canvas, const QPointF& at, const MapPlace& place, const MapStyle& style) const
{
    std::vector<QPointF> ring = circle(kField, 16);
    for (QPointF& point : ring)
        point += at;
    ring.push_back(ring.front());
    canvas.lineStrip(ring, {style.colours.airfield, 1.6, true});
    if (place.runwayHeading < 0)
        return;
    const double angle = place.runwayHeading * std::numbers::pi / 180.0;
    const QPointF way = QPointF(std::sin(angle), -std::cos(angle)) * kRunway;
    canvas.lineStrip(std::array{at - way, at + way}, {style.colours.airfield, 1.6, true});
}

void PlaceLabels::draw(Canvas& canvas, const OpenStreet::Camera& camera, const MapStyle& style) const
{
    const QRectF window(-100, -50, camera.width() + 200, camera.height() + 100);
    std::vector<QPointF> dots;
    const std::vector<QPointF> dot = circle(kDot, 8);
    for (const Label& label : mLabels) {
        const QPointF at = seenAt(camera, label.at);
        if (!window.contains(at))
            continue;
        const bool isTown = label.place.kind == MapPlace::eTown;
        if (isTown) {
            for (std::size_t i = 0; i < dot.size(); ++i)
                dots.insert(dots.end(), {at, at + dot[i], at + dot[(i + 1) % dot.size()]});
        } else {
            drawAirfield(canvas, at, label.place, style);
        }
        if (!label.text.isEmpty())
            canvas.text(at + label.step, label.text, {style.textSize, isTown ? style.colours.town : style.colours.airfield});
    }
    canvas.triangles(dots, style.colours.town);
}

bool PlaceLabels::areIn(const QRectF& part, const OpenStreet::Camera& camera) const
{
    return std::ranges::any_of(mLabels, [&](const Label& label) {
        return !label.text.isEmpty() && part.intersects(QRectF(seenAt(camera, label.at) + label.step, label.size));
    });
}

} // namespace ZARN
