#include "openstreet/core/ShoreTile.h"

namespace OpenStreet {

namespace {

constexpr int kMarginShare = 64; // a tile's edge, divided by this, is the margin around it

} // namespace

ShoreTile::ShoreTile(const QByteArray& bytes, const DetailFile::Layer& layer, const TileId& id)
    : mBytes(bytes), mCorner(QPointF(id.x, id.y) / TileId::count(layer.zoom)), mUnit(1.0 / TileId::count(layer.zoom) / (1 << layer.bits)),
      mLow(-(1 << layer.bits) / kMarginShare), mHigh((1 << layer.bits) - mLow)
{
}

bool ShoreTile::read(BaseMap::Geometry& geometry)
{
    BaseMap::Area land;
    const quint32 rings = mBytes.count();
    for (quint32 i = 0; i < rings && mBytes.isGood(); ++i) {
        const std::vector<Point> ring = part();
        land.push_back(line(ring));
        addCoasts(ring, geometry.coasts);
    }
    if (!land.empty())
        geometry.land.push_back(std::move(land));
    for (std::vector<BaseMap::Line>* pLines : {&geometry.rivers, &geometry.borders}) {
        const quint32 lines = mBytes.count();
        for (quint32 i = 0; i < lines && mBytes.isGood(); ++i)
            pLines->push_back(line(part()));
    }
    return mBytes.isGood() && mBytes.isAtEnd();
}

std::vector<ShoreTile::Point> ShoreTile::part()
{
    std::vector<Point> points;
    const quint32 count = mBytes.count();
    Point at{0, 0};
    for (quint32 i = 0; i < count && mBytes.isGood(); ++i) {
        const qint64 x = qint64(at.x) + mBytes.signedNumber(), y = qint64(at.y) + mBytes.signedNumber();
        if (std::min(x, y) < 2 * mLow || std::max(x, y) > 2 * mHigh)
            mBytes.refuse();
        at = {static_cast<int>(x), static_cast<int>(y)};
        points.push_back(at);
    }
    return points;
}

QPointF ShoreTile::place(const Point& point) const
{
    return mCorner + QPointF(point.x, point.y) * mUnit;
}

BaseMap::Line ShoreTile::line(const std::vector<Point>& points) const
{
    BaseMap::Line result;
    result.reserve(points.size());
    for (const Point& point : points)
        result.push_back(place(point));
    return result;
}

/// Where a ring was cut it runs along the edge; there is no coast.
bool ShoreTile::isAlongEdge(const Point& a, const Point& b) const
{
    return (a.x == b.x && (a.x == mLow || a.x == mHigh)) || (a.y == b.y && (a.y == mLow || a.y == mHigh));
}

void ShoreTile::addCoasts(const std::vector<Point>& ring, std::vector<BaseMap::Line>& coasts) const
{
    bool isOpen = false;
    for (std::size_t i = 1; i < ring.size(); ++i) {
        const bool isCoast = !isAlongEdge(ring[i - 1], ring[i]);
        if (isCoast && !isOpen)
            coasts.push_back({place(ring[i - 1])});
        if (isCoast)
            coasts.back().push_back(place(ring[i]));
        isOpen = isCoast;
    }
}

} // namespace OpenStreet
