#include "openstreet/core/BaseMapReader.h"

#include "openstreet/core/Projection.h"

#include <algorithm>

namespace OpenStreet {

namespace {

constexpr double kUnit = 0.001; // degrees
constexpr const char* kStart = "ZMAP\x01";
constexpr int kStartSize = 5;

int unfold(quint32 zigzag)
{
    return static_cast<int>(zigzag >> 1) ^ -static_cast<int>(zigzag & 1);
}

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
    if (!mBytes.startsWith(kStart))
        return false;
    mPosition = kStartSize;
    world.land = areas();
    world.lakes = areas();
    world.coasts = list();
    world.borders = list();
    return mGood && mPosition == mBytes.size() && !world.land.empty();
}

quint32 BaseMapReader::number()
{
    quint32 result = 0;
    for (int shift = 0; shift < 32; shift += 7) {
        if (mPosition >= mBytes.size())
            break;
        const auto byte = static_cast<quint8>(mBytes[mPosition++]);
        result |= static_cast<quint32>(byte & 127U) << shift;
        if (byte < 128)
            return result;
    }
    mGood = false;
    return 0;
}

/// A count of things that take a byte each at least.
quint32 BaseMapReader::count()
{
    const quint32 result = number();
    if (static_cast<qint64>(result) <= mBytes.size() - mPosition)
        return result;
    mGood = false;
    return 0;
}

BaseMap::Line BaseMapReader::part()
{
    BaseMap::Line line;
    const quint32 points = count();
    line.reserve(points);
    qint64 longitude = 0, latitude = 0;
    for (quint32 i = 0; i < points && mGood; ++i) {
        longitude += unfold(number());
        latitude += unfold(number());
        mGood = mGood && std::abs(longitude) <= 720000 && std::abs(latitude) <= 180000;
        line.push_back(place(static_cast<int>(longitude), static_cast<int>(latitude)));
    }
    return line;
}

std::vector<BaseMap::Line> BaseMapReader::list()
{
    std::vector<BaseMap::Line> result;
    const quint32 parts = count();
    for (quint32 i = 0; i < parts && mGood; ++i)
        result.push_back(part());
    return result;
}

std::vector<BaseMap::Area> BaseMapReader::areas()
{
    std::vector<BaseMap::Area> result;
    const quint32 parts = count();
    for (quint32 i = 0; i < parts && mGood; ++i)
        result.push_back(list());
    return result;
}

} // namespace OpenStreet
