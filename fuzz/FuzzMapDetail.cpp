#include "fuzz/Input.h"
#include "fuzz/Require.h"
#include "openstreet/core/BaseMap.h"
#include "openstreet/core/PlaceIndex.h"

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>

// A file of the map's details: either the input is the file, or what is packed within its only tile. Read as the map does it.

using namespace OpenStreet;

namespace {

constexpr int kHead = 6 + 1 + 7, kEntry = 12;
constexpr std::size_t kMostOfTile = 100;
constexpr const char* kNames[] = {"shores.bin", "places.bin", "airfields.bin"};

const QTemporaryDir& folder()
{
    static const QTemporaryDir folder("/dev/shm/FuzzMapDetail-XXXXXX");
    return folder;
}

template <typename T> void put(QByteArray& bytes, T number)
{
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

/// A file with one tile at the world's corner, whole in all but what the tile says.
QByteArray around(const QByteArray& tile, DetailFile::EKind kind, quint8 zoom, quint8 bits)
{
    const QByteArray packed = qCompress(tile);
    QByteArray bytes("ZMAPD\x01\x01");
    put(bytes, static_cast<quint8>(kind));
    put(bytes, zoom);
    put(bytes, bits);
    put<quint32>(bytes, 1);
    put<quint32>(bytes, 0);
    put<quint32>(bytes, kHead + kEntry);
    put(bytes, static_cast<quint32>(packed.size()));
    return bytes + packed;
}

/// No count of a tile is believed beyond its bytes.
void readShores(const QString& path, const DetailFile::Layer& layer, const TileId& id, std::size_t most)
{
    BaseMap map;
    REQUIRE(map.loadDetail(path));
    const BaseMap::Geometry& geometry = map.geometry(id);
    std::size_t points = 0;
    for (const auto* pLines : {&geometry.rivers, &geometry.borders}) {
        for (const BaseMap::Line& line : *pLines)
            points += line.size();
    }
    for (const BaseMap::Area& area : geometry.land) {
        for (const BaseMap::Line& ring : area)
            points += ring.size();
    }
    REQUIRE(points <= most);
    const double edge = 1.0 / TileId::count(layer.zoom);
    for (const BaseMap::Line& line : geometry.coasts) {
        for (const QPointF& point : line)
            REQUIRE(std::abs(point.x() - id.x * edge) <= 3 * edge && std::abs(point.y() - id.y * edge) <= 3 * edge);
    }
    (void)map.tile({id.zoom + 1, 2 * id.x, 2 * id.y}); // cut out of it, and drawn
}

void readPlaces(const DetailFile::Layer& layer, const TileId& id)
{
    PlaceIndex places;
    places.open(folder().path() + "/");
    const double edge = 1.0 / TileId::count(layer.zoom);
    const QRectF part(id.x * edge, id.y * edge, edge, edge);
    for (const QRectF& asked : {part, part.translated(1.0, 0.0)}) {
        for (const MapPlace* pPlace : places.in(asked, layer.zoom + 1, kMostOfTile))
            REQUIRE(part.adjusted(-edge, -edge, edge, edge).contains(pPlace->at) && pPlace->runwayHeading < 180);
    }
}

void readAll(const QString& path, DetailFile::EKind kind)
{
    DetailFile file;
    const bool isOpen = file.open(path, kind);
    REQUIRE(isOpen == file.problem().isEmpty() && isOpen != file.layers().empty());
    for (const DetailFile::Layer& layer : file.layers()) {
        const int last = TileId::count(layer.zoom) - 1;
        for (const TileId& id : {TileId{layer.zoom, 0, 0}, TileId{layer.zoom, last / 2, last / 3}, TileId{layer.zoom, last, last}}) {
            const std::optional<QByteArray> bytes = file.tile(layer, id);
            if (bytes && kind == DetailFile::eShores && file.layer(layer.zoom) == &layer)
                readShores(path, layer, id, static_cast<std::size_t>(bytes->size()));
            else if (bytes)
                readPlaces(layer, id);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, std::size_t size)
{
    Input input(pData, size);
    const uint8_t form = input.byte();
    const auto kind = static_cast<DetailFile::EKind>(DetailFile::eShores + form % 3);
    const bool isTile = form & 0x80;
    const auto zoom = static_cast<uint8_t>(isTile ? input.byte() % 13 : 0), bits = static_cast<uint8_t>(isTile ? input.byte() % 21 : 0);
    QByteArray bytes(reinterpret_cast<const char*>(input.rest()), static_cast<qsizetype>(input.left()));
    const QByteArray tile = bytes;
    if (isTile)
        bytes = around(tile, kind, zoom, bits);
    QFile file(folder().filePath(kNames[kind - DetailFile::eShores]));
    REQUIRE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    if (isTile) {
        DetailFile whole;
        REQUIRE(whole.open(file.fileName(), kind));
        REQUIRE(whole.tile(whole.layers().front(), {zoom, 0, 0}) == tile);
    }
    readAll(file.fileName(), kind);
    return 0;
}
