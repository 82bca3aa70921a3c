#include "openstreet/core/BaseMapReader.h"

#include "openstreet/core/Projection.h"

#include <algorithm>

namespace OpenStreet {

namespace {

constexpr double kUnit = 0.001; // degrees

QPointF place(int longitude, int latitude)
{
    const Projection mercator(ProjectionType::eMercator);
    const double limit = mercator.maxLatitude();
    const WorldPoint point = mercator.toWorld({std::clamp(latitude * kUnit, -limit, limit), longitude * kUnit});
    return {point.x / Projection::kWorldWidth + 0.5, 0.5 - point.y / Projection::kWorldWidth};
}

} // namespace

bool BaseMapReader::read(BaseMap::Geometry& world)
{
    if (!mIsMap)
        return false;
    world.land = areas();
    world.lakes = areas();
    world.coasts = list();
    world.borders = list();
    return mBytes.isGood() && mBytes.isAtEnd() && !world.land.empty();
}

BaseMap::Line BaseMapReader::part()
{
    BaseMap::Line line;
    const quint32 points = mBytes.count();
    line.reserve(points);
    qint64 longitude = 0, latitude = 0;
    for (quint32 i = 0; i < points && mBytes.isGood(); ++i) {
        longitude += mBytes.signedNumber();
        latitude += mBytes.signedNumber();
        if (std::abs(longitude) > 720000 || std::abs(latitude) > 180000)
            mBytes.refuse();
        else
            line.push_back(place(static_cast<int>(longitude), static_cast<int>(latitude)));
    }
    return line;
}

std::vector<BaseMap::Line> BaseMapReader::list()
{
    std::vector<BaseMap::Line> result;
    const quint32 parts = mBytes.count();
    for (quint32 i = 0; i < parts && mBytes.isGood(); ++i)
        result.push_back(part());
    return result;
}

std::vector<BaseMap::Area> BaseMapReader::areas()
{
    std::vector<BaseMap::Area> result;
    const quint32 parts = mBytes.count();
    for (quint32 i = 0; i < parts && mBytes.isGood(); ++i)
        result.push_back(list());
    return result;
}

} // namespace OpenStreet
