#include "app/Console.h"
#include "app/Property.h"
#include "support/RecordingCanvas.h"
#include "ui/canvas/RasterCanvas.h"
#include "ui/map/model/MapNavigator.h"
#include "ui/map/model/Graticule.h"
#include "ui/map/model/MapScene.h"
#include "ui/map/model/PointerText.h"
#include "ui/map/model/TileConsent.h"

#include <QLineF>
#include <QPainter>
#include <QTest>

#include <cmath>
#include <limits>

using namespace ZARN;

namespace {

FlightPathPoint at(double time, double latitude, double longitude, double track = 0.0)
{
    return {time, latitude, longitude, 100.0 * time, 10.0 * time, track};
}

MapPath path(const std::vector<FlightPathPoint>& points)
{
    MapPath result;
    result.setPoints(points);
    return result;
}

/// A circling flight of so many points.
MapPath longPath(int points)
{
    std::vector<FlightPathPoint> list;
    for (int i = 0; i < points; ++i)
        list.push_back(at(i * 0.5, 48.0 + 0.05 * std::sin(i * 0.02) + i * 1e-7, 11.0 + 0.05 * std::cos(i * 0.02)));
    return path(list);
}

/// A navigator over a window of 800 x 600 that shows 20 km around a place in Bavaria.
struct View {
    View()
    {
        navigator.setWindowSize(800, 600);
        navigator.fit(path({at(0, 48.15, 10.9), at(1, 48.25, 11.1)}), true);
    }
    void arrive()
    {
        for (int i = 0; i < 500 && navigator.tick(0.02); ++i) {
        }
    }
    [[nodiscard]] double distance(const OpenStreet::GeoPoint& place, double x, double y) const
    {
        const OpenStreet::WindowPoint point = navigator.camera().geoToWindow(place);
        return std::hypot(point.x - x, point.y - y);
    }
    MapContext context;
    MapNavigator navigator{context};
};

} // namespace

class TestMapModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void positions_data();
    void positions();
    void fits_data();
    void fits();
    void damagedPath();
    void wrongFixes_data();
    void wrongFixes();
    void colouredPath();
    void timeOfAPlace();
    void longPathIsBounded();
    void simplifiedPath();
    void zoomsAboutThePointer();
    void dragsAndFollows();
    void eventsOnThePath();
    void scaleBar_data();
    void scaleBar();
    void note();
    void picture();
    void graticule();
};

void TestMapModel::positions_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("track");
    QTest::addColumn<double>("stamp");
    QTest::newRow("before the first") << -5.0 << 10.0 << 0.0 << 1.0;
    QTest::newRow("within the first stretch") << 1.4 << 10.0 << 0.0 << 1.0;
    QTest::newRow("a quarter of the way") << 1.625 << 25.0 << 355.0 << 1.625;
    QTest::newRow("back across north") << 2.25 << 41.0 << 0.0 << 2.25;
    QTest::newRow("where points are missing") << 4.5 << 44.0 << 350.0 << 4.5;
    QTest::newRow("after the last") << 1e9 << 46.0 << 350.0 << 7.0;
    QTest::newRow("no time at all") << std::numeric_limits<double>::quiet_NaN() << 10.0 << 0.0 << 1.0;
}

void TestMapModel::positions()
{
    const MapPath flight = path({at(1.0, 10.0, 5.0), at(1.5, 20.0, 5.0, 350.0), at(2.0, 40.0, 5.0, 10.0), at(2.5, 42.0, 5.0, 350.0),
                                 at(6.5, 46.0, 5.0, 350.0), at(7.0, 46.0, 5.0, 350.0)});
    QFETCH(double, time);
    const FlightPathPoint point = flight.positionAt(time);
    QTEST(point.latitude, "latitude");
    QTEST(point.track, "track");
    QTEST(point.time, "stamp");
    const FlightPathPoint nowhere = path({}).positionAt(time);
    QCOMPARE(nowhere.time + nowhere.latitude + nowhere.longitude + nowhere.altitude + nowhere.groundSpeed + nowhere.track, 0.0);
}

void TestMapModel::fits_data()
{
    QTest::addColumn<double>("latitudes");
    QTest::addColumn<double>("longitudes");
    QTest::addColumn<double>("range");
    QTest::newRow("wide") << 0.0 << 2.0 << 2.0 * 111120.0 * 0.5 * 1.2;
    QTest::newRow("tall") << 2.0 << 0.0 << 2.0 * 111120.0 * 1.2 * 2.0;
    QTest::newRow("a place") << 0.0 << 0.0 << 0.0;
}

void TestMapModel::fits()
{
    QFETCH(double, latitudes);
    QFETCH(double, longitudes);
    const MapFit fit = path({at(0, 60.0 - latitudes / 2, 179.5), at(1, 60.0 + latitudes / 2, 179.5 + longitudes)}).fit(1000, 500);
    QVERIFY(std::fabs(fit.latitude - 60.0) < 1e-9);
    QVERIFY(std::fabs(fit.longitude - (179.5 + longitudes / 2)) < 1e-9); // beyond the date line
    QTEST(std::round(fit.range * 1e6) / 1e6, "range");
    const MapFit nothing = path({}).fit(1000, 500);
    QCOMPARE(nothing.latitude + nothing.longitude + nothing.range, 0.0);
}

void TestMapModel::damagedPath()
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    MapScene scene;
    scene.path().setPoints(
        std::vector{at(0, 48, 11), at(1, nan, 11), at(2, 48.1, 1e300), at(3, -1e9, 11), at(4, 89.9999, -179), at(5, 48.1, 11, nan)});
    QCOMPARE(scene.path().points().size(), std::size_t(3));
    View view;
    view.navigator.fit(scene.path(), true);
    view.navigator.setPointer({10, 10});
    view.navigator.zoomCentered(25.0);
    scene.setAircraft(at(1e300, nan, nan, nan));
    QImage image(800, 600, QImage::Format_RGB32);
    QPainter painter(&image);
    RasterCanvas canvas(painter);
    scene.update(view.navigator.camera());
    scene.drawGround(canvas, view.navigator.camera());
    scene.drawAbove(canvas, view.navigator.camera());
    for (const auto& strip : scene.geometry().strips()) {
        for (const QPointF& point : strip.points)
            QVERIFY(std::fabs(point.x() + scene.geometry().offset().x()) < 2000 &&
                    std::fabs(point.y() + scene.geometry().offset().y()) < 2000);
    }
}

void TestMapModel::wrongFixes_data()
{
    QTest::addColumn<QList<double>>("latitudes"); // of points every half second
    QTest::addColumn<int>("wrong");
    QTest::addColumn<int>("left");
    QTest::newRow("a way") << QList<double>{48, 48.001, 48.002, 48.003} << 0 << 4;
    QTest::newRow("alone") << QList<double>{48, 48.001, 48.5, 48.001, 48.002} << 1 << 4;
    QTest::newRow("with points of the grid on the way") << QList<double>{48, 48.001, 48.06, 48.12, 48.06, 48.001, 48.002} << 1 << 4;
    QTest::newRow("not far enough") << QList<double>{48, 48.05, 48, 48.001} << 0 << 4;
    QTest::newRow("does not come back") << QList<double>{48, 48.5, 48.501, 48.502} << 0 << 4;
    QTest::newRow("the first one") << QList<double>{47, 48, 48.001} << 0 << 3;
    QTest::newRow("on the equator") << QList<double>{0.002, 89, 0.002} << 1 << 2;
}

void TestMapModel::wrongFixes()
{
    QFETCH(QList<double>, latitudes);
    std::vector<FlightPathPoint> points;
    for (const double latitude : latitudes)
        points.push_back(at(0.5 * static_cast<double>(points.size()), latitude, 11.0));
    const MapPath flight = path(points);
    QTEST(static_cast<int>(flight.wrongFixes().size()), "wrong");
    QTEST(static_cast<int>(flight.points().size()), "left");
}

void TestMapModel::colouredPath()
{
    std::vector<FlightPathPoint> points;
    for (int i = 0; i <= 1000; ++i) {
        points.push_back(at(i, 48.15 + i * 1e-4, 10.9 + i * 1e-4));
        points.back().altitude = i;
    }
    MapScene scene;
    scene.path().setPoints(points);
    const DecodingContext context;
    const PathTinter tinter(scene.path().points(), context, Palette::light().map);
    const PathTint altitude = tinter.tint(PathColouring::of("altitude"), nullptr, {});
    QVERIFY(altitude.isScale && altitude.low == 0.0 && altitude.high == 1000.0);
    QVERIFY(altitude.steps.front() == 0 && altitude.steps.back() == PathTint::kSteps - 1 && altitude.steps[500] == PathTint::kSteps / 2);
    const PathTint phases = tinter.tint({PathColouring::ePhase, {}}, nullptr,
                                        {{-1, 300, EFlightPhase::eGround}, {300, 700, EFlightPhase::eClimb}});
    QVERIFY(phases.entries.size() == 2 && phases.steps.back() == PathTint::kUnknown);
    scene.setCourse({}, {{100, 200}});
    scene.setTint(phases);
    scene.setShown(TimeSpan{50, 900});
    const View view;
    scene.update(view.navigator.camera());
    const auto& strips = scene.geometry().strips();
    QCOMPARE(strips.size(), std::size_t(5)); // ground, the gap, ground, climb, unknown
    QVERIFY(!strips[0].isDashed && strips[1].isDashed && !strips[2].isDashed && strips[3].colours.front() == strips[3].colours.back());
    QVERIFY(strips[2].points.back() == strips[3].points.front() && strips[2].colours.back() != strips[3].colours.front());
    for (const auto& arrow : scene.geometry().arrows())
        QVERIFY(arrow.way.x() > 0 && arrow.way.y() < 0); // to the north-east
    const std::size_t arrows = scene.geometry().arrows().size();
    scene.setTint(altitude);
    scene.update(view.navigator.camera());
    QVERIFY(scene.geometry().arrows().size() > 0 && scene.geometry().arrows().size() <= arrows);
    QVERIFY(scene.geometry().strips().size() == 3 && scene.geometry().vertexCount() > 20 && scene.geometry().vertexCount() < 200);
    QVERIFY(PathColouring::of("=EGT 1").parameter == "EGT 1" && PathColouring::of(PathColouring::of("=EGT 1").key()).by == PathColouring::eParameter);
    QCOMPARE(PointerText::at({48.5, 11.25}, &points.front()).section("   ", 0, 0), QString::fromUtf8("48\u00b030.00'N 11\u00b015.00'E"));
    QVERIFY(std::fabs(PointerText::bearing({0, 179}, {0, -179}) - 90.0) < 1e-9 && PointerText::bearing({10, 5}, {0, 5}) == 180.0);
}

void TestMapModel::timeOfAPlace()
{
    const MapPath flight = path({at(10, 48.2, 11.0), at(12, 48.2, 11.1), at(14, 48.25, 11.1)});
    const View view;
    const OpenStreet::WindowPoint middle = view.navigator.camera().geoToWindow({48.2, 11.05});
    QVERIFY(std::fabs(flight.timeNear(view.navigator.camera(), {middle.x, middle.y + 5.0}, 12.0, 0.0).value() - 11.0) < 1e-6);
    QVERIFY(!flight.timeNear(view.navigator.camera(), {middle.x, middle.y + 15.0}, 12.0, 0.0));
    QVERIFY(!path({}).timeNear(view.navigator.camera(), middle, 12.0, 0.0));
    // The same way there, back a pixel beside it, and there again.
    const MapPath circuit = path({at(10, 48.2, 11.0), at(20, 48.2, 11.1), at(40, 48.2001, 11.0), at(60, 48.2, 11.1)});
    for (const auto& [viewTime, expected] : {std::pair{0.0, 15.0}, {21.0, 15.0}, {24.0, 30.0}, {45.0, 50.0}, {1e9, 50.0}})
        QVERIFY(std::fabs(circuit.timeNear(view.navigator.camera(), middle, 12.0, viewTime).value() - expected) < 0.01);
}

void TestMapModel::longPathIsBounded()
{
    const MapPath flight = longPath(200000);
    View view;
    PathGeometry geometry;
    view.navigator.fit(flight, true);
    geometry.update(flight, view.navigator.camera());
    QVERIFY(geometry.vertexCount() > 100 && geometry.vertexCount() <= PathGeometry::kMaxVertices);
    const int builds = geometry.builds();
    for (int i = 0; i < 100; ++i) {
        view.navigator.drag(i % 2 == 0 ? 5.0 : -3.0, 2.0);
        geometry.update(flight, view.navigator.camera());
    }
    QCOMPARE(geometry.builds(), builds); // a pan is a translation
    view.navigator.drag(900.0, 0.0);
    geometry.update(flight, view.navigator.camera());
    QCOMPARE(geometry.builds(), builds + 1);
}

void TestMapModel::simplifiedPath()
{
    std::vector<FlightPathPoint> points;
    const auto add = [&](double latitude, double longitude) {
        points.push_back(at(static_cast<double>(points.size()), latitude, longitude));
    };
    for (int i = 0; i < 5000; ++i) // straight on, with a receiver's noise of a metre
        add(48.15 + i * 1e-5 + (i % 3) * 5e-6, 10.95 + i * 1e-5);
    for (int i = 0; i < 2000; ++i) // the same way back, and on beyond its beginning
        add(48.2 - i * 4e-5, 11.0 - i * 4e-5);
    for (int i = 0; i < 3000; ++i) // circles
        add(48.2 + 0.01 * std::sin(i * 0.01), 11.05 + 0.015 * std::cos(i * 0.01));
    for (int i = 0; i < 500; ++i) // standing
        add(48.21 + (i % 7) * 3e-6, 11.06 + (i % 5) * 3e-6);
    add(48.21, 11.1);
    const MapPath flight = path(points);
    View view;
    PathGeometry geometry;
    geometry.update(flight, view.navigator.camera());
    QCOMPARE(geometry.strips().size(), std::size_t(1));
    QVERIFY2(geometry.vertexCount() < 400, qPrintable(QString::number(geometry.vertexCount())));
    const std::vector<QPointF>& strip = geometry.strips().front().points;
    std::size_t stretch = 1; // points and stretches come in the same order
    for (const FlightPathPoint& point : points) {
        const OpenStreet::WindowPoint seen = view.navigator.camera().geoToWindow({point.latitude, point.longitude});
        const auto distance = [&] {
            const QLineF line(strip[stretch - 1] + geometry.offset(), strip[stretch] + geometry.offset());
            const QPointF step = line.p2() - line.p1(), away = QPointF(seen.x, seen.y) - line.p1();
            const double along = std::clamp(QPointF::dotProduct(away, step) / QPointF::dotProduct(step, step), 0.0, 1.0);
            return QLineF(line.pointAt(along), {seen.x, seen.y}).length();
        };
        while (distance() > 1.0 && stretch + 1 < strip.size())
            ++stretch;
        QVERIFY2(distance() <= 1.0, qPrintable(QString::number(point.time)));
    }
}

void TestMapModel::zoomsAboutThePointer()
{
    View view;
    QCOMPARE(view.context.rangeVertical, view.context.rangeHorizontal * 600 / 800);
    const OpenStreet::WindowPoint pointer{650.0, 90.0};
    view.navigator.setPointer(pointer);
    const OpenStreet::GeoPoint place = view.navigator.camera().windowToGeo(pointer);
    view.navigator.zoomCentered(3000.0);
    QCOMPARE(view.context.rangeHorizontal, 3000.0);
    QCOMPARE(view.context.rangeVertical, 3000.0 * 600 / 800);
    QVERIFY(view.distance(place, pointer.x, pointer.y) < 1e-3);
    view.navigator.zoomBy(2.0);
    view.navigator.zoomBy(2.0); // before the first has arrived
    QVERIFY(view.navigator.isMoving());
    view.arrive();
    QVERIFY(std::fabs(view.navigator.camera().horizontalRange() - 12000.0) < 1e-6);
    QVERIFY(view.distance(place, pointer.x, pointer.y) < 0.01);
    for (int i = 0; i < 100; ++i)
        view.navigator.zoomBy(0.5);
    view.navigator.zoomBy(std::numeric_limits<double>::quiet_NaN());
    QCOMPARE(view.context.rangeHorizontal, MapNavigator::kClosest);
}

void TestMapModel::dragsAndFollows()
{
    View view;
    QCOMPARE(view.context.centreAircraft, 2);
    const double latitude = view.context.centreLatitude;
    view.navigator.follow(48.16, 10.91); // the whole path is seen: the view stays
    QCOMPARE(view.context.centreLatitude, latitude);
    view.navigator.zoomAboutMiddle(0.5); // where the aircraft would be lost to sight
    view.arrive();
    QVERIFY(view.distance({48.16, 10.91}, 400, 300) < 0.01);
    view.navigator.follow(48.1601, 10.9101); // a step of the replay: no lagging behind
    QVERIFY(view.distance({48.1601, 10.9101}, 400, 300) < 1e-6);
    const OpenStreet::GeoPoint place = view.navigator.camera().windowToGeo({200, 200});
    view.navigator.setFollowing(false);
    view.navigator.drag(37.0, -12.0);
    QVERIFY(view.distance(place, 237.0, 188.0) < 1e-6);
    view.navigator.follow(50.0, 20.0);
    QVERIFY(view.distance(place, 237.0, 188.0) < 1e-6);
    view.navigator.pan(20.0, -30.0);
    view.arrive();
    QVERIFY(view.distance(place, 217.0, 218.0) < 0.01);
}

void TestMapModel::eventsOnThePath()
{
    EventList list;
    const uint32_t source = list.addSource({"Engine", "EGT <1>", "%d"});
    for (const double time : {1.0, 11.0, 12.9, 1e9})
        list.add({time, {}, source, 1, time < 12 ? QColor(Qt::yellow) : QColor(), "800"});
    list.sortByTime();
    const MapPath flight = path({at(10, 48.2, 11.0), at(11, 48.2, 11.02), at(12, 48.2, 11.1), at(13, 48.25, 11.1)});
    MapEvents events;
    events.add(list);
    events.place(flight);
    QCOMPARE(events.dots().size(), std::size_t(2)); // the others happened where there was no position
    QCOMPARE(events.dots()[0].colour, QColor(Qt::yellow));
    const View view;
    const OpenStreet::WindowPoint dot = view.navigator.camera().geoToWindow({48.2, 11.02});
    const auto found = events.near(flight, view.navigator.camera(), {dot.x + 3.0, dot.y}, 0.0);
    QCOMPARE(found.size(), std::size_t(1));
    QCOMPARE(MapEvents::text(found), "00:00:11.000  Engine EGT <1> 800 %d");
    QVERIFY(events.near(flight, view.navigator.camera(), {dot.x + 20.0, dot.y}, 0.0).empty());
}

void TestMapModel::scaleBar_data()
{
    QTest::addColumn<double>("range"); // across 1,000 pixels
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("pixels");
    QTest::newRow("turned") << 200000.0 << false << "50 km" << 125.0;
    QTest::newRow("km") << 100000.0 << false << "10 km" << 100.0;
    QTest::newRow("2") << 15000.0 << false << "2 km" << 2000.0 / 15.0;
    QTest::newRow("miles") << 92600.0 << true << "5 NM" << 100.0;
}

void TestMapModel::scaleBar()
{
    QFETCH(double, range);
    QFETCH(bool, imperial);
    OpenStreet::Camera camera;
    camera.setWindowSize(1000, 500);
    camera.setPosition({60.0, 0.0});
    camera.setVisibleRange(range, 0.0);
    if (QTest::currentDataTag() == QByteArray("turned"))
        camera.setAngles(0.0, 60.0);
    const MapScaleBar bar = MapScaleBar::at(camera, 140.0, imperial);
    QTEST(bar.text, "text");
    QFETCH(double, pixels);
    QVERIFY(std::fabs(bar.pixels - pixels) < 1e-6);
}

void TestMapModel::note()
{
    OpenStreet::Camera camera;
    camera.setWindowSize(200, 400);
    MapScene scene;
    scene.setNote("tiles.example.org: Verbindung verweigert, " + QString(60, 'x'));
    Test::RecordingCanvas canvas;
    scene.drawScaleBar(canvas, camera);
    QString words;
    for (const auto& [box, line] : canvas.texts) {
        QVERIFY(box.right() <= 200.0);
        words += line;
    }
    QVERIFY2(words.remove(' ').endsWith("tiles.example.org:Verbindungverweigert," + QString(60, 'x')), qPrintable(words));
}

void TestMapModel::picture()
{
    MapScene scene;
    scene.path().setPoints(std::vector{at(0, 48.15, 10.9), at(1, 48.25, 11.1)});
    scene.setAircraft(at(0.5, 48.2, 11.0, 90.0));
    const View view;
    QImage image(800, 600, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    RasterCanvas canvas(painter);
    scene.update(view.navigator.camera());
    scene.drawGround(canvas, view.navigator.camera());
    scene.drawAbove(canvas, view.navigator.camera());
    painter.end();
    const OpenStreet::WindowPoint quarter = view.navigator.camera().geoToWindow({48.175, 10.95});
    bool isRed = false; // Mercator bends the line by less than a pixel here
    for (int y = -2; y <= 2; ++y)
        isRed = isRed || image.pixel(static_cast<int>(quarter.x), static_cast<int>(quarter.y) + y) == Palette::light().map.path.rgb();
    QVERIFY(isRed);
    const OpenStreet::WindowPoint aircraft = view.navigator.camera().geoToWindow({48.2, 11.0});
    // It flies east: the nose lies to the right of the middle, the tail is thin.
    QVERIFY(qBlue(image.pixel(static_cast<int>(aircraft.x) + 10, static_cast<int>(aircraft.y))) > 100);
    QCOMPARE(image.pixel(static_cast<int>(aircraft.x) + 10, static_cast<int>(aircraft.y) - 12), qRgb(255, 255, 255));
}

void TestMapModel::graticule()
{
    for (const auto& [degrees, step, expected] : {std::tuple(48.0 + 5.0 / 60, 5.0, "48\u00b005'N"), std::tuple(-0.5, 30.0, "0\u00b030'S"),
                                                  std::tuple(11.00125, 0.005, "11\u00b000.075'N"), std::tuple(59.99999, 1.0, "60\u00b000'N")})
        QCOMPARE(Graticule::label(degrees, step, 'N', 'S'), QString::fromUtf8(expected));
    OpenStreet::Camera camera;
    camera.setWindowSize(800, 600);
    camera.setPosition({0.0, 11.0});
    for (const auto& [range, step] : {std::pair(25.0, 0.005), std::pair(50e3, 5.0), std::pair(60e3, 10.0), std::pair(7e7, 1800.0)}) {
        camera.setVisibleRange(range, 0.0);
        QVERIFY2(std::fabs(Graticule(camera, 130.0).step() - step) < 1e-9, qPrintable(QString::number(Graticule(camera, 130.0).step())));
    }
}

QTEST_MAIN(TestMapModel)
#include "TestMapModel.moc"
