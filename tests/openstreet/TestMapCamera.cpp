#include "openstreet/core/Camera.h"
#include "openstreet/core/TileCover.h"
#include "openstreet/core/TileServer.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <set>

using namespace OpenStreet;

namespace {

Camera camera(double latitude, double longitude, double range, int width = 800, int height = 600)
{
    Camera result;
    result.setWindowSize(width, height);
    result.setPosition({latitude, longitude});
    result.setVisibleRange(range, range * height / width);
    return result;
}

double degreesApart(const GeoPoint& a, const GeoPoint& b)
{
    return std::max(std::fabs(a.latitude - b.latitude), std::fabs(std::remainder(a.longitude - b.longitude, 360.0)));
}

std::set<std::tuple<int, int, int>> names(const std::vector<TileId>& ids)
{
    std::set<std::tuple<int, int, int>> result;
    for (const TileId& id : ids)
        result.insert({id.zoom, id.x, id.y});
    return result;
}

} // namespace

class TestMapCamera : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void knownPlaces();
    void inverses();
    void pointUnderPointer_data();
    void pointUnderPointer();
    void motionKeepsItsPoint();
    void hostileValues();
    void tiles();
    void serverAddresses_data();
    void serverAddresses();
};

void TestMapCamera::knownPlaces()
{
    const Projection mercator(ProjectionType::eMercator);
    const WorldPoint corner = mercator.toWorld({85.051128779806592, 180.0});
    QVERIFY(std::fabs(corner.x - 20037508.342789244) < 1e-6 && std::fabs(corner.y - 20037508.342789244) < 1e-4);
    const WorldPoint munich = mercator.toWorld({48.137154, 11.576124}); // EPSG:3857
    QVERIFY(std::fabs(munich.x - 1288648.23) < 0.05 && std::fabs(munich.y - 6129702.79) < 0.05);
    QCOMPARE(Projection(ProjectionType::ePlateCarree).toWorld({90.0, 0.0}).y, Projection::kWorldWidth / 4);
    // 1,000 m at 60 degrees north are 100 pixels of a window of 1,000 pixels that shows 10 km.
    Camera north = camera(60.0, 10.0, 10000.0, 1000, 500);
    const double degrees = 1000.0 / (Projection::kWorldWidth / 360.0 * 0.5);
    QVERIFY(std::fabs(north.geoToWindow({60.0, 10.0 + degrees}).x - 600.0) < 1e-6);
    QCOMPARE(north.verticalRange(), 5000.0);
    north.setVisibleRange(1000.0, 5000.0); // square pixels: both extents are seen
    QVERIFY(std::fabs(north.windowToWorld({500, 0}).y - north.windowToWorld({500, 500}).y - 10000.0) < 1e-6);
}

void TestMapCamera::inverses()
{
    for (const ProjectionType type : {ProjectionType::ePlateCarree, ProjectionType::eMercator}) {
        for (double range = Camera::kSmallestRange; range < 4e7; range *= 20) {
            for (double latitude = -85.0; latitude <= 85.0; latitude += 8.5) {
                Camera view = camera(latitude, latitude * 2.1, range);
                view.setProjection(type);
                view.setAngles(35.0, -20.0);
                const GeoPoint place{latitude, latitude * 2.1 + 1e-5};
                QVERIFY(degreesApart(view.windowToGeo(view.geoToWindow(place)), place) < 1e-9);
                QVERIFY(degreesApart(view.projection().toGeo(view.projection().toWorld(place)), place) < 1e-9);
            }
        }
    }
}

void TestMapCamera::pointUnderPointer_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::newRow("in, Bavaria") << 48.2 << 20000.0 << 5000.0;
    QTest::newRow("out, far north") << 69.0 << 5000.0 << 400000.0;
    QTest::newRow("to the closest") << 0.0 << 1000.0 << 25.0;
}

void TestMapCamera::pointUnderPointer()
{
    QFETCH(double, latitude);
    QFETCH(double, from);
    QFETCH(double, to);
    Camera view = camera(latitude, 11.0, from);
    const WindowPoint pointer{130.0, 455.0};
    const GeoPoint place = view.windowToGeo(pointer);
    view.zoomAbout(pointer, to);
    QCOMPARE(view.horizontalRange(), to);
    const WindowPoint after = view.geoToWindow(place);
    QVERIFY(std::hypot(after.x - pointer.x, after.y - pointer.y) < 1e-3);
}

void TestMapCamera::motionKeepsItsPoint()
{
    Camera view = camera(48.0, 179.9, 40000.0);
    Camera target = view;
    const WindowPoint pointer{700.0, 100.0};
    const GeoPoint place = view.windowToGeo(pointer); // beyond the date line
    target.zoomAbout(pointer, 10000.0);
    double before = view.metresPerPixel();
    int steps = 0;
    while (approach(view, target, 0.02)) {
        const WindowPoint now = view.geoToWindow(place);
        QVERIFY(std::hypot(now.x - pointer.x, now.y - pointer.y) < 0.5);
        QVERIFY(view.metresPerPixel() < before);
        before = view.metresPerPixel();
        QVERIFY(++steps < 200);
    }
    QVERIFY(steps > 5);
    QCOMPARE(view.horizontalRange(), 10000.0);
    QCOMPARE(view.position().latitude, target.position().latitude);
}

void TestMapCamera::hostileValues()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    for (const double value : {nan, infinite, -infinite, 1e308, -1e308, 0.0, -5.0}) {
        Camera view = camera(value, value, value);
        view.setAngles(value, value);
        view.putUnder({10, 10}, {89.999, 500.0});
        for (const WindowPoint corner : {WindowPoint{0, 0}, WindowPoint{800, 600}})
            QVERIFY(std::isfinite(view.windowToGeo(corner).latitude) && std::isfinite(view.windowToGeo(corner).longitude));
        const TileCover cover(view, 1.0, 19);
        QVERIFY(cover.view().size() <= TileCover::kMaxTiles);
        for (const TileId& id : cover.ids())
            QVERIFY(id.isValid());
    }
    QCOMPARE(camera(0, 0, 0).horizontalRange(), Projection::kWorldWidth); // nothing to show: the whole world
}

void TestMapCamera::tiles()
{
    // 256 pixels a tile exactly at zoom 12: the window's 1,024 x 512 pixels begin at a tile's corner.
    const double edge = Projection::kWorldWidth / 4096;
    Camera view;
    view.setWindowSize(1024, 512);
    view.setWorld({edge * 102, edge * 51}, edge / 256.0);
    const WindowPoint inside{0.5, 0.5};
    QVERIFY(view.windowToWorld(inside).x > edge * 100 && view.windowToWorld({1023.5, 0.5}).x < edge * 104);
    view.setWorld({edge * 102.5, edge * 51.5}, edge / 256.0); // and now half a tile further
    const TileCover cover(view, 1.0, 19);
    QCOMPARE(cover.zoom(), 12);
    QCOMPARE(cover.ids().size(), std::size_t(5 * 3));
    const auto seen = names(cover.ids());
    QVERIFY(seen.contains({12, 2048 + 100, 2048 - 53}) && seen.contains({12, 2048 + 104, 2048 - 51}));
    QCOMPARE(cover.view().front().id.x, 2048 + 102); // the middle first
    view.setAngles(50.0, 50.0);                      // the tiles in the corners of the box around it are not seen
    std::set<std::tuple<int, int, int>> met;
    for (int pixel = 0; pixel < 1024 * 512; pixel += 3) {
        const WorldPoint at = view.windowToWorld({pixel % 1024 + 0.5, pixel / 1024 + 0.5});
        met.insert({12, 2048 + static_cast<int>(std::floor(at.x / edge)), 2047 - static_cast<int>(std::floor(at.y / edge))});
    }
    QVERIFY(names(TileCover(view, 1.0, 19).ids()) == met);
    view.setAngles(0.0, 0.0);
    QCOMPARE(TileCover(view, 2.0, 19).zoom(), 13); // dense pixels take smaller tiles
    QCOMPARE(TileCover(view, 1.0, 9).zoom(), 9);
}

void TestMapCamera::serverAddresses_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("url"); // of tile 3/4/5; empty: not valid
    QTest::addColumn<QString>("name");
    QTest::newRow("default") << "" << "https://tile.openstreetmap.org/3/4/5.png" << "tile.openstreetmap.org";
    QTest::newRow("template") << "https://a.example/t/{z}/{y}/{x}.jpg?k=1" << "https://a.example/t/3/5/4.jpg?k=1" << "a.example";
    QTest::newRow("sub-domains") << "https://{s}.tile.example/{z}/{x}/{y}.png" << "https://a.tile.example/3/4/5.png" << "tile.example";
    QTest::newRow("port") << "http://127.0.0.1:8080/x/" << "http://127.0.0.1:8080/x/3/4/5.png" << "127.0.0.1:8080";
    QTest::newRow("unencrypted") << "http://tile.openstreetmap.org/{z}/{x}/{y}.png" << "https://tile.openstreetmap.org/3/4/5.png"
                                 << "tile.openstreetmap.org";
    QTest::newRow("file") << "file:///etc/{z}/{x}/{y}" << "" << "";
    QTest::newRow("no host") << "https:///{z}/{x}/{y}" << "" << "";
}

void TestMapCamera::serverAddresses()
{
    QFETCH(QString, address);
    QFETCH(QString, url);
    const TileServer server(address);
    QCOMPARE(server.isValid(), !url.isEmpty());
    if (url.isEmpty())
        return;
    QCOMPARE(server.url({3, 4, 5}).toString(), url);
    QTEST(server.name(), "name");
}

QTEST_GUILESS_MAIN(TestMapCamera)
#include "TestMapCamera.moc"
