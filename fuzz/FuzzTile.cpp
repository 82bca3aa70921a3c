#include "fuzz/Input.h"
#include "fuzz/Require.h"
#include "openstreet/core/BaseMapReader.h"
#include "openstreet/core/TileImage.h"

// Takes the input for the picture of a tile, or for the built-in map.

using namespace OpenStreet;

namespace {

std::size_t pointsOf(const std::vector<BaseMap::Line>& lines)
{
    std::size_t points = lines.size();
    for (const BaseMap::Line& line : lines)
        points += line.size();
    return points;
}

/// No count of the file is believed beyond its bytes.
void readMap(const QByteArray& bytes)
{
    BaseMap::Geometry world;
    BaseMapReader(bytes).read(world);
    std::size_t points = pointsOf(world.coasts) + pointsOf(world.borders);
    for (const auto* pAreas : {&world.land, &world.lakes}) {
        for (const BaseMap::Area& area : *pAreas)
            points += pointsOf(area);
    }
    REQUIRE(points <= static_cast<std::size_t>(bytes.size()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, std::size_t size)
{
    Input input(pData, size);
    const bool isMap = input.byte() % 2 == 1;
    const QByteArray bytes(reinterpret_cast<const char*>(input.rest()), static_cast<qsizetype>(input.left()));
    if (isMap) {
        readMap(bytes);
        return 0;
    }
    QString reason;
    const QImage image = TileImage::decode(bytes, &reason);
    REQUIRE(image.isNull() != reason.isEmpty());
    REQUIRE(image.width() <= TileImage::kKeptEdge && image.height() <= TileImage::kKeptEdge);
    return 0;
}
