#include "ui/map/model/MapPath.h"

#include "ui/map/model/WrongFixes.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace ZARN {

namespace {

constexpr double kMetresPerDegree = 60.0 * 1852.0;
constexpr double kMargin = 1.2;
constexpr double kMissing = 5.0;  // seconds between two points behind which points are missing
constexpr double kOneLine = 3.0; // pixels by which lines may lie apart that nobody can point at one by one

const OpenStreet::Projection& mercator()
{
    static constexpr OpenStreet::Projection projection(OpenStreet::ProjectionType::eMercator);
    return projection;
}

bool isPlace(const FlightPathPoint& point)
{
    return std::fabs(point.latitude) <= 90.0 && std::fabs(point.longitude) <= 360.0;
}

bool isSamePlace(const FlightPathPoint& a, const FlightPathPoint& b)
{
    return a.time == b.time && a.latitude == b.latitude && a.longitude == b.longitude;
}

double shortWay(double degrees)
{
    if (degrees < -180.0)
        return degrees + 360.0;
    return degrees > 180.0 ? degrees - 360.0 : degrees;
}

FlightPathPoint between(const FlightPathPoint& a, const FlightPathPoint& b, double time)
{
    const double f = (time - a.time) / (b.time - a.time);
    const auto mix = [f](double from, double to) { return from + (to - from) * f; };
    return {time, mix(a.latitude, b.latitude), mix(a.longitude, b.longitude), mix(a.altitude, b.altitude), mix(a.groundSpeed, b.groundSpeed),
            a.track + shortWay(b.track - a.track) * f};
}

/// How far along the stretch from a to b the point is nearest to it, 0..1, and the square of that distance.
std::pair<double, double> nearest(const QPointF& point, const QPointF& a, const QPointF& b)
{
    const QPointF way = b - a;
    const double length = QPointF::dotProduct(way, way);
    const double along = length > 0.0 ? std::clamp(QPointF::dotProduct(point - a, way) / length, 0.0, 1.0) : 0.0;
    const QPointF off = point - (a + way * along);
    return {along, QPointF::dotProduct(off, off)};
}

} // namespace

bool MapPath::setPoints(std::span<const FlightPathPoint> points)
{
    const std::vector<FlightPathPoint> before = std::exchange(mPoints, {});
    std::copy_if(points.begin(), points.end(), std::back_inserter(mPoints), isPlace);
    const std::vector<FlightPathPoint> wrong = WrongFixes::takeFrom(mPoints);
    if (std::equal(before.begin(), before.end(), mPoints.begin(), mPoints.end(), isSamePlace))
        return false;
    placePoints(wrong);
    setGaps({});
    return true;
}

void MapPath::setGaps(const std::vector<TimeSpan>& gaps)
{
    ++mGeneration;
    mGaps.assign(mPoints.size(), 0);
    auto gap = gaps.begin();
    for (std::size_t i = 1; i < mPoints.size(); ++i) {
        const double middle = 0.5 * (mPoints[i - 1].time + mPoints[i].time);
        while (gap != gaps.end() && gap->end < middle)
            ++gap;
        mGaps[i] = mPoints[i].time - mPoints[i - 1].time > kMissing || (gap != gaps.end() && gap->start < middle);
    }
}

std::pair<std::size_t, std::size_t> MapPath::within(const TimeSpan& span) const
{
    const auto first = std::ranges::lower_bound(mPoints, span.start, {}, &FlightPathPoint::time);
    const auto last = std::ranges::upper_bound(mPoints, span.end, {}, &FlightPathPoint::time);
    const auto place = [this](auto iterator) { return static_cast<std::size_t>(iterator - mPoints.begin()); };
    return {place(first), std::max(place(first), place(last))};
}

std::vector<TimeSpan> MapPath::timesIn(const OpenStreet::Camera& camera, const QRectF& area, double interruption) const
{
    const OpenStreet::WindowPoint start = windowOrigin(camera, mOrigin);
    std::vector<TimeSpan> result;
    for (std::size_t i = 0; i < mWorld.size(); ++i) {
        const OpenStreet::WindowPoint at = camera.worldToWindowVector(mWorld[i]);
        if (!area.contains(QPointF(start.x + at.x, start.y + at.y)))
            continue;
        if (result.empty() || mPoints[i].time - result.back().end > interruption)
            result.push_back({mPoints[i].time, mPoints[i].time});
        result.back().end = mPoints[i].time;
    }
    return result;
}

void MapPath::placePoints(const std::vector<FlightPathPoint>& wrong)
{
    mWorld.clear();
    mWrong.clear();
    if (mPoints.empty())
        return;
    mOrigin = mercator().toWorld({mPoints.front().latitude, mPoints.front().longitude});
    mWorld.reserve(mPoints.size());
    double before = 0.0;
    for (const FlightPathPoint& point : mPoints) {
        const OpenStreet::WorldPoint place = mercator().toWorld({point.latitude, point.longitude});
        const double x = before + std::remainder(place.x - mOrigin.x - before, OpenStreet::Projection::kWorldWidth);
        mWorld.push_back({x, place.y - mOrigin.y});
        before = x;
    }
    for (const FlightPathPoint& point : wrong) {
        const OpenStreet::WorldPoint place = mercator().toWorld({point.latitude, point.longitude});
        mWrong.push_back({std::remainder(place.x - mOrigin.x, OpenStreet::Projection::kWorldWidth), place.y - mOrigin.y});
    }
}

MapFit MapPath::fit(int width, int height) const
{
    if (mPoints.empty() || width <= 0 || height <= 0)
        return {};
    const auto [south, north] = std::minmax_element(mPoints.begin(), mPoints.end(), [](auto& a, auto& b) { return a.latitude < b.latitude; });
    const auto [west, east] = std::minmax_element(mWorld.begin(), mWorld.end(), [](auto& a, auto& b) { return a.x < b.x; });
    const double latitudes = north->latitude - south->latitude;
    const double longitudes = (east->x - west->x) / OpenStreet::Projection::kWorldWidth * 360.0;
    MapFit result;
    result.latitude = south->latitude + 0.5 * latitudes;
    result.longitude = mPoints.front().longitude + west->x / OpenStreet::Projection::kWorldWidth * 360.0 + 0.5 * longitudes;
    const double across = longitudes * kMetresPerDegree * std::cos(result.latitude * std::numbers::pi / 180.0);
    const double upright = latitudes * kMetresPerDegree * kMargin * width / height;
    result.range = std::max(kMargin * across, upright);
    return result;
}

FlightPathPoint MapPath::positionAt(double time) const
{
    if (mPoints.empty())
        return {};
    const auto after = std::upper_bound(mPoints.begin(), mPoints.end(), time, [](double t, const FlightPathPoint& point) { return t < point.time; });
    if (after == mPoints.begin() || std::isnan(time))
        return mPoints.front();
    const auto here = std::prev(after);
    if (here == mPoints.begin() || after == mPoints.end())
        return *here;
    return between(*here, *after, time);
}

bool MapPath::spans(double time) const
{
    return !mPoints.empty() && time >= mPoints.front().time - FlightPath::kStep && time <= mPoints.back().time + FlightPath::kStep;
}

std::vector<MapPath::Passage> MapPath::passages(const OpenStreet::Camera& camera, const OpenStreet::WindowPoint& point, double pixels) const
{
    const OpenStreet::WindowPoint start = windowOrigin(camera, mOrigin);
    const QPointF wanted(point.x - start.x, point.y - start.y);
    std::vector<Passage> result;
    bool isInside = false;
    QPointF before;
    for (std::size_t i = 0; i < mWorld.size(); ++i) {
        const OpenStreet::WindowPoint at = camera.worldToWindowVector(mWorld[i]);
        const QPointF here(at.x, at.y);
        const auto [along, square] = nearest(wanted, i > 0 ? before : here, here);
        const QPointF away = wanted - std::exchange(before, here);
        const bool goesOn = isInside && QPointF::dotProduct(away, away) <= pixels * pixels;
        isInside = square <= pixels * pixels;
        if (!isInside)
            continue;
        const double from = mPoints[i > 0 ? i - 1 : 0].time;
        const Passage passage{std::sqrt(square), from + (mPoints[i].time - from) * along};
        if (!goesOn)
            result.push_back(passage);
        else if (passage.distance <= result.back().distance)
            result.back() = passage;
    }
    return result;
}

std::optional<double> MapPath::timeNear(const OpenStreet::Camera& camera, const OpenStreet::WindowPoint& point, double pixels,
                                        double viewTime) const
{
    const std::vector<Passage> found = passages(camera, point, pixels);
    double best = pixels;
    for (const Passage& passage : found)
        best = std::min(best, passage.distance);
    std::optional<double> result;
    for (const Passage& passage : found) {
        const bool isNearer = !result || std::fabs(passage.time - viewTime) < std::fabs(*result - viewTime);
        if (passage.distance <= best + kOneLine && isNearer)
            result = passage.time;
    }
    return result;
}

OpenStreet::WindowPoint windowOrigin(const OpenStreet::Camera& camera, const OpenStreet::WorldPoint& origin)
{
    const OpenStreet::WorldPoint middle = camera.windowToWorld({0.5 * camera.width(), 0.5 * camera.height()});
    return camera.worldToWindow({middle.x + std::remainder(origin.x - middle.x, OpenStreet::Projection::kWorldWidth), origin.y});
}

} // namespace ZARN
