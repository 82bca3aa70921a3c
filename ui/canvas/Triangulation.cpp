#include "ui/canvas/Triangulation.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ZARN {

namespace {

double cross(const QPointF& a, const QPointF& b, const QPointF& c)
{
    return (b.x() - a.x()) * (c.y() - a.y()) - (b.y() - a.y()) * (c.x() - a.x());
}

double signedArea(const std::vector<QPointF>& ring)
{
    double area = 0;
    for (std::size_t i = 1; i + 1 < ring.size(); ++i)
        area += cross(ring[0], ring[i], ring[i + 1]);
    return area;
}

bool isInside(const QPointF& point, const QPointF& a, const QPointF& b, const QPointF& c)
{
    return cross(a, b, point) > 0 && cross(b, c, point) > 0 && cross(c, a, point) > 0;
}

/// Whether the corner at `i` can be cut off without touching the rest of the ring.
bool isEar(const std::vector<QPointF>& ring, std::size_t i)
{
    const std::size_t count = ring.size(), before = (i + count - 1) % count, after = (i + 1) % count;
    if (cross(ring[before], ring[i], ring[after]) <= 0)
        return false;
    for (std::size_t k = 0; k < count; ++k) {
        if (k != before && k != i && k != after && isInside(ring[k], ring[before], ring[i], ring[after]))
            return false;
    }
    return true;
}

/// The next corner to cut off: an ear, or any corner where there is none, so that every ring comes to its end.
std::size_t nextEar(const std::vector<QPointF>& ring, std::size_t from)
{
    for (std::size_t i = 0; i < ring.size(); ++i) {
        if (isEar(ring, (from + i) % ring.size()))
            return (from + i) % ring.size();
    }
    return from % ring.size();
}

} // namespace

std::vector<QPointF> triangulate(std::span<const QPointF> points)
{
    const auto isFinite = [](const QPointF& point) { return std::isfinite(point.x()) && std::isfinite(point.y()); };
    if (points.size() < 3 || !std::ranges::all_of(points, isFinite))
        return {};
    std::vector<QPointF> ring(points.begin(), points.end());
    if (signedArea(ring) < 0)
        std::ranges::reverse(ring);
    std::vector<QPointF> triangles;
    triangles.reserve((ring.size() - 2) * 3);
    for (std::size_t ear = 0; ring.size() > 2;) {
        ear = nextEar(ring, ear);
        const std::size_t count = ring.size();
        triangles.insert(triangles.end(), {ring[(ear + count - 1) % count], ring[ear], ring[(ear + 1) % count]});
        ring.erase(ring.begin() + static_cast<std::ptrdiff_t>(ear));
    }
    return triangles;
}

std::vector<QPointF> circle(double radius, int corners)
{
    std::vector<QPointF> points;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2.0 * std::numbers::pi * i / corners;
        points.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
    }
    return points;
}

} // namespace ZARN
