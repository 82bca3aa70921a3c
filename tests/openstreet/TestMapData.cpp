#include "openstreet/TileHost.h"
#include "openstreet/core/BaseMap.h"
#include "openstreet/core/Clip.h"
#include "openstreet/core/HillShade.h"
#include "openstreet/core/PlaceIndex.h"
#include "openstreet/core/TileCover.h"
#include "openstreet/core/TileImage.h"
#include "support/Places.h"

#include <QFile>
#include <QLineF>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <algorithm>
#include <cmath>

using namespace OpenStreet;
using OpenStreet::Test::TileHost;

namespace {

/// An SRTM file whose heights rise to the east by 30 m a column, with a gap.
void putSlope(const QString& path)
{
    std::vector<qint16> heights;
    for (int row = 0; row < 1201; ++row) {
        for (int column = 0; column < 1201; ++column)
            heights.push_back(qToBigEndian<qint16>(static_cast<qint16>(row > 1000 && column > 1000 ? -32768 : column * 20)));
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(reinterpret_cast<const char*>(heights.data()), 2 * static_cast<qint64>(heights.size()));
}

TileId tileAt(double latitude, double longitude, int zoom)
{
    const WorldPoint point = Projection(ProjectionType::eMercator).toWorld({latitude, longitude});
    const double edge = Projection::kWorldWidth / TileId::count(zoom);
    return {zoom, static_cast<int>((point.x + Projection::kWorldWidth / 2) / edge), static_cast<int>((Projection::kWorldWidth / 2 - point.y) / edge)};
}

} // namespace

class TestMapData : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void heights();
    void shades();
    void world();
    void worldRefusesDamage();
    void details();
    void damagedDetails_data();
    void damagedDetails();
    void clipping();
    void pictures();
};

void TestMapData::heights()
{
    QTemporaryDir folder;
    Terrain none;
    none.setFolder(folder.filePath("missing"));
    QVERIFY(!none.isAvailable() && !none.height({48.5, 11.5}));
    putSlope(folder.filePath("N48E011.hgt"));
    QFile cut(folder.filePath("S01W001.hgt"));
    QVERIFY(cut.open(QIODevice::WriteOnly) && cut.write("short") == 5);
    cut.close();
    Terrain terrain;
    terrain.setFolder(folder.path());
    QVERIFY(terrain.isAvailable());
    QCOMPARE(terrain.height({48.9, 11.0}).value(), 0.0);
    QVERIFY(std::fabs(terrain.height({48.5, 11.5}).value() - 12000.0) < 1e-6);
    QVERIFY(std::fabs(terrain.height({48.5, 371.0 + 0.25 / 1200}).value() - 5.0) < 1e-6); // between two columns; round the world
    QVERIFY(!terrain.height({48.05, 11.95})); // the gap
    QVERIFY(!terrain.height({-0.5, -0.5}));   // a file that is too short
    QVERIFY(!terrain.height({49.5, 11.5}) && !terrain.height({1e9, std::nan("")}));
}

void TestMapData::shades()
{
    const ShadingStyle style; // light from the north-west
    QCOMPARE(HillShade::brightness(0.0, 0.0, style), 1.0);
    QVERIFY(HillShade::brightness(0.3, 0.0, style) > 1.0 && HillShade::brightness(-0.3, 0.0, style) < 1.0);
    QVERIFY(HillShade::brightness(0.0, -0.3, style) > 1.0 && HillShade::brightness(0.0, 0.3, style) < 1.0);
    QTemporaryDir folder;
    putSlope(folder.filePath("N48E011.hgt"));
    Terrain terrain;
    terrain.setFolder(folder.path());
    const TileId id = tileAt(48.5, 11.5, 12);
    const QImage lit = HillShade::tile(terrain, id, style);
    QCOMPARE(lit.size(), QSize(256, 256));
    QVERIFY(qRed(lit.pixel(128, 128)) > 0); // faces west: white laid over the map
    ShadingStyle evening = style;
    evening.east = 1.0;
    const QRgb shadow = HillShade::tile(terrain, id, evening).pixel(128, 128);
    QVERIFY(qAlpha(shadow) > 0 && qRed(shadow) == 0);
    evening.factor = 0.0;
    QCOMPARE(qAlpha(HillShade::tile(terrain, id, evening).pixel(128, 128)), 0);
    QVERIFY(HillShade::tile(terrain, tileAt(20.0, 20.0, 12), style).isNull());
    QVERIFY(HillShade::tile(terrain, tileAt(48.5, 11.5, 5), style).isNull());
    QCOMPARE(qAlpha(HillShade::tile(terrain, tileAt(48.05, 11.95, 13), style).pixel(128, 128)), 0); // the gap
}

void TestMapData::world()
{
    BaseMap map;
    QVERIFY(map.loadBuiltIn());
    const QRgb water = map.tile(tileAt(30.0, -40.0, 6)).pixel(100, 100);
    const auto isLand = [&](double latitude, double longitude, int zoom) {
        const TileId id = tileAt(latitude, longitude, zoom);
        WorldPoint northWest, southEast;
        TileCover::bounds({id, id.x}, northWest, southEast);
        const WorldPoint point = Projection(ProjectionType::eMercator).toWorld({latitude, longitude});
        const double scale = 256.0 / (southEast.x - northWest.x);
        const QImage tile = map.tile(id);
        return tile.pixel(static_cast<int>((point.x - northWest.x) * scale), static_cast<int>((northWest.y - point.y) * scale)) != water;
    };
    for (const int zoom : {3, 7, 11, 19}) {
        QVERIFY(isLand(48.2, 11.05, zoom));   // Bavaria
        QVERIFY(isLand(66.5, -172.0, zoom));  // Chukotka, beyond the date line
        QVERIFY(isLand(-84.0, 100.0, zoom));  // Antarctica
        QVERIFY(!isLand(42.0, 51.0, zoom));   // Caspian Sea
        QVERIFY(!isLand(47.5, -87.5, zoom));  // Lake Superior
        QVERIFY(!isLand(52.0, -30.0, zoom));
    }
}

void TestMapData::worldRefusesDamage()
{
    QFile file(ZARN::sourceDir() + "/resources/map/world.bin");
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray unpacked = qUncompress(file.readAll());
    BaseMap map;
    QVERIFY(!map.load({}));
    QVERIFY(!map.load(qCompress(unpacked.left(unpacked.size() / 2))));
    QByteArray swollen = unpacked;
    swollen.replace(5, 4, "\xff\xff\xff\x7f"); // a count of 268 million areas
    QVERIFY(!map.load(qCompress(swollen)));
    QVERIFY(map.isEmpty());
    QCOMPARE(map.tile({4, 3, 3}).size(), QSize(256, 256)); // water, no crash
}

void TestMapData::details()
{
    BaseMap map;
    QVERIFY(map.loadBuiltIn() && map.problem().isEmpty());
    const auto points = [&](const TileId& id) {
        std::size_t count = 0;
        for (const BaseMap::Line& line : map.geometry(id).rivers)
            count += line.size();
        return count;
    };
    QVERIFY(points(tileAt(48.7, 11.0, 7)) > 200 && points(tileAt(48.72, 11.0, 11)) > 5); // the Danube
    PlaceIndex places;
    places.open(DetailFile::builtInFolder());
    const QPointF augsburg = QPointF(tileAt(48.425, 10.93, 16).x, tileAt(48.425, 10.93, 16).y) / 65536.0;
    const auto found = places.in(QRectF(augsburg - QPointF(1e-3, 1e-3), QSizeF(2e-3, 2e-3)), 11, 1000);
    const auto field = std::ranges::find(found, QStringLiteral("EDMA"), &MapPlace::ident);
    QVERIFY(field != found.end() && (*field)->kind == MapPlace::eMediumAirfield && (*field)->elevation == 1516);
    QVERIFY(std::abs((*field)->runwayHeading - 71) <= 2 && QLineF((*field)->at, augsburg).length() < 1e-4);
    QVERIFY(std::ranges::find(found, QStringLiteral("Augsburg"), &MapPlace::name) != found.end() && places.problem().isEmpty());
}

void TestMapData::damagedDetails_data()
{
    QTest::addColumn<int>("place"); // of the byte that is another one; below 0: the file ends there
    QTest::addColumn<bool>("isOpened");
    QTest::newRow("no such file") << 0 << false;
    QTest::newRow("cut in the index") << -5000 << false;
    QTest::newRow("number of tiles") << 13 << false;
    QTest::newRow("place of a tile") << 28 << false;
    QTest::newRow("unpacked size of a tile") << 199701 << true;
}

/// Whatever is wrong with it, the plain map is drawn and the reason said.
void TestMapData::damagedDetails()
{
    QFETCH(int, place);
    QFETCH(bool, isOpened);
    QFile whole(DetailFile::builtInFolder() + "shores.bin");
    QVERIFY(whole.open(QIODevice::ReadOnly));
    QByteArray bytes = whole.readAll();
    const QTemporaryDir folder;
    QFile file(folder.filePath("shores.bin"));
    if (place < 0)
        bytes.truncate(-place);
    else
        bytes[place] = '\x7f';
    if (place != 0)
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush());
    BaseMap map;
    QVERIFY(map.loadBuiltIn());
    QCOMPARE(map.loadDetail(file.fileName()), isOpened);
    const QRgb land = map.tile(tileAt(48.2, 11.05, 6)).pixel(100, 100);
    if (isOpened) {
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x)
                (void)map.geometry({4, x, y});
        }
    }
    QVERIFY(!map.problem().isEmpty());
    QVERIFY(land == map.colours().land || isOpened);
}

void TestMapData::clipping()
{
    const QRectF box(0, 0, 10, 10);
    const std::vector<BaseMap::Area> around{{{{-5, -5}, {15, -5}, {15, 15}, {-5, 15}}}}; // larger than the box
    const std::vector<BaseMap::Area> cut = clipAreas(around, box);
    QCOMPARE(cut.size(), std::size_t(1));
    for (const QPointF& point : cut[0][0])
        QVERIFY(box.contains(point));
    QVERIFY(clipAreas({{{{20, 0}, {30, 0}, {30, 5}}}}, box).empty());
    // A line that leaves the box and comes back becomes two.
    const std::vector<BaseMap::Line> lines = clipLines({{{2, 2}, {20, 2}, {20, 8}, {2, 8}}}, box);
    QCOMPARE(lines.size(), std::size_t(2));
    QCOMPARE(lines[0].back(), QPointF(10, 2));
    QCOMPARE(lines[1].front(), QPointF(10, 8));
    QPointF from(-5, 5), to(15, 5);
    QVERIFY(clipStretch(from, to, box));
    QCOMPARE(from, QPointF(0, 5));
    QCOMPARE(to, QPointF(10, 5));
}

void TestMapData::pictures()
{
    QCOMPARE(TileImage::decode(TileHost::tile("a", "PNG")).size(), QSize(256, 256));
    QCOMPARE(TileImage::decode(TileHost::tile("a", "JPG", 512)).size(), QSize(512, 512));
    QCOMPARE(TileImage::decode(TileHost::tile("a", "PNG", 1024)).width(), TileImage::kKeptEdge);
    QVERIFY(TileImage::decode(TileHost::tile("a", "BMP")).isNull()); // no format of tiles
    QByteArray jpeg = TileHost::tile("a", "JPG");
    QVERIFY(TileImage::decode(jpeg.left(jpeg.size() / 2)).isNull());
    QByteArray swollen = TileHost::tile("a", "PNG");
    swollen.replace(16, 8, QByteArray("\x00\x01\x00\x00\x00\x01\x00\x00", 8)); // claims 65,536 x 65,536 pixels
    QVERIFY(TileImage::decode(swollen).isNull());
    QVERIFY(TileImage::decode("<svg xmlns='http://www.w3.org/2000/svg' width='256' height='256'/>").isNull());
}

QTEST_MAIN(TestMapData)
#include "TestMapData.moc"
