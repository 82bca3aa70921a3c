#include "openstreet/core/Clip.h"

#include <algorithm>
#include <array>

namespace OpenStreet {

namespace {

/// One side of the rectangle: how far inside a point is; negative outside.
struct Side {
    bool isX;
    double sign;
    double edge;
    [[nodiscard]] double inside(const QPointF& point) const { return sign * ((isX ? point.x() : point.y()) - edge); }
};

std::array<Side, 4> sides(const QRectF& box)
{
    return {Side{true, 1.0, box.left()}, {true, -1.0, box.right()}, {false, 1.0, box.top()}, {false, -1.0, box.bottom()}};
}

BaseMap::Line clipRing(const BaseMap::Line& ring, const Side& side)
{
    BaseMap::Line result;
    if (ring.empty())
        return result;
    QPointF before = ring.back();
    double insideBefore = side.inside(before);
    for (const QPointF& point : ring) {
        const double inside = side.inside(point);
        if ((inside >= 0) != (insideBefore >= 0))
            result.push_back(before + (point - before) * (insideBefore / (insideBefore - inside)));
        if (inside >= 0)
            result.push_back(point);
        before = point;
        insideBefore = inside;
    }
    return result;
}

/// Whether the ring lies wholly on the outer side of one of the edges.
bool isBeside(const BaseMap::Line& ring, const std::array<Side, 4>& edges)
{
    for (const Side& side : edges) {
        bool allOutside = true;
        for (const QPointF& point : ring)
            allOutside = allOutside && side.inside(point) < 0;
        if (allOutside)
            return true;
    }
    return false;
}

} // namespace

std::vector<BaseMap::Area> clipAreas(const std::vector<BaseMap::Area>& areas, const QRectF& box)
{
    const std::array<Side, 4> edges = sides(box);
    std::vector<BaseMap::Area> result;
    for (const BaseMap::Area& area : areas) {
        BaseMap::Area cut;
        for (const BaseMap::Line& ring : area) {
            if (isBeside(ring, edges))
                continue;
            BaseMap::Line inner = ring;
            for (const Side& side : edges)
                inner = clipRing(inner, side);
            if (inner.size() > 2)
                cut.push_back(std::move(inner));
        }
        if (!cut.empty())
            result.push_back(std::move(cut));
    }
    return result;
}

bool clipStretch(QPointF& from, QPointF& to, const QRectF& box)
{
    double first = 0.0, last = 1.0;
    for (const Side& side : sides(box)) {
        const double a = side.inside(from), b = side.inside(to);
        if (!(a >= 0 || b >= 0))
            return false;
        if (a < 0)
            first = std::max(first, a / (a - b));
        else if (b < 0)
            last = std::min(last, a / (a - b));
    }
    if (first > last)
        return false;
    const QPointF way = to - from;
    const QPointF start = from;
    if (last < 1.0)
        to = start + way * last;
    if (first > 0.0)
        from = start + way * first;
    return true;
}

std::vector<BaseMap::Line> clipLines(const std::vector<BaseMap::Line>& lines, const QRectF& box)
{
    std::vector<BaseMap::Line> result;
    for (const BaseMap::Line& line : lines) {
        bool isOpen = false; // whether the last line of the result goes on
        for (std::size_t i = 1; i < line.size(); ++i) {
            QPointF from = line[i - 1], to = line[i];
            if (!clipStretch(from, to, box)) {
                isOpen = false;
                continue;
            }
            if (!isOpen)
                result.push_back({from});
            result.back().push_back(to);
            isOpen = to == line[i];
        }
    }
    return result;
}

} // namespace OpenStreet
