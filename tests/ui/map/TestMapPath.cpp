#include "MapFixtures.h"
#include "ui/map/model/MapEvents.h"
#include "ui/map/model/MapNavigator.h"
#include "ui/map/model/PathGeometry.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace ZARN;
using namespace ZARN::Test;

/// The path, what is found on it, and the view that moves over it.
class TestMapPath : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void clippedPath();
    void keptWhileItMoves();
    void eventsUnderThePointer();
    void pathsAreCompared();
    void partsByTime();
    void passagesThroughAPlace();
    void fitsBesideWhatCovers();
    void zoomsTurnsAndMoves();
    void followsTheAircraft();
};

/// What lies far outside of the window is left out, and nothing of what can be seen.
void TestMapPath::clippedPath()
{
    // Away to the east, back far in the north, and through the window again.
    MapPath path;
    path.setPoints(std::vector{at(0, 48.2, 10.99), at(1, 48.2, 12.0), at(2, 49.0, 12.0), at(3, 49.0, 11.0), at(4, 47.9, 11.0)});
    const OpenStreet::Camera view = camera();
    PathGeometry geometry;
    geometry.update(path, view);
    QCOMPARE(geometry.strips().size(), std::size_t(2));
    const QRectF box(-800, -600, 2400, 1800);
    for (const auto& strip : geometry.strips()) {
        for (const QPointF& point : strip.points)
            QVERIFY(box.adjusted(-0.01, -0.01, 0.01, 0.01).contains(point + geometry.offset()));
    }
    const auto &out = geometry.strips()[0].points, &through = geometry.strips()[1].points;
    QVERIFY(isNear(out.front() + geometry.offset(), seen(view, 48.2, 10.99), 0.1) && std::abs(out.back().x() + geometry.offset().x() - 1600) < 0.1);
    QVERIFY(std::abs(through.front().y() + geometry.offset().y() + 600) < 0.1 && std::abs(through.back().y() + geometry.offset().y() - 1200) < 0.1);
    QVERIFY(std::abs(through.front().x() + geometry.offset().x() - seen(view, 48.2, 11.0).x()) < 0.1);
    QCOMPARE(geometry.vertexCount(), out.size() + through.size());
    geometry.update(path, view, {0, 1});
    QVERIFY(geometry.strips().empty());
    geometry.update(path, view, {3, 99});
    QCOMPARE(geometry.strips().size(), std::size_t(1));
}

void TestMapPath::keptWhileItMoves()
{
    MapPath path;
    path.setPoints(eastwards());
    OpenStreet::Camera view = camera();
    PathGeometry geometry;
    int builds = 0;
    const auto isMadeAnew = [&] {
        geometry.update(path, view);
        const bool isNew = geometry.builds() != builds;
        builds = geometry.builds();
        // Kept or made, it lies where it belongs.
        return isNear(geometry.strips()[0].points.front() + geometry.offset(), seen(view, 48.2, 10.9), 0.2) ? isNew : !isNew;
    };
    QVERIFY(isMadeAnew() && !isMadeAnew());
    const OpenStreet::WorldPoint middle = view.windowToWorld({400, 300});
    const auto look = [&](double right, double down, double factor = 1.0) {
        const double scale = camera().metresPerPixel();
        view.setWorld({middle.x + right * scale, middle.y - down * scale}, scale * factor);
    };
    look(0, 599);
    QVERIFY(!isMadeAnew());
    look(0, 601);
    QVERIFY(isMadeAnew());
    look(0, 0);
    QVERIFY(isMadeAnew());
    look(-300, 0, 1.01);
    QVERIFY(isMadeAnew());
    view.setAngles(10, 0);
    QVERIFY(isMadeAnew());
    view.setWindowSize(801, 600);
    QVERIFY(isMadeAnew());
    path.setGaps({});
    QVERIFY(isMadeAnew() && !isMadeAnew());
}

void TestMapPath::eventsUnderThePointer()
{
    EventList list;
    const uint32_t source = list.addSource({"E", "P", ""});
    for (int i = 0; i < 12; ++i)
        list.add({100.0 + i, {}, source, 1, {}, std::to_string(i)});
    list.sortByTime();
    std::vector<FlightPathPoint> points{at(0, 48.2, 10.9), at(99, 48.2, 11.0)};
    for (int i = 0; i < 20; ++i)
        points.push_back(at(100 + i, 48.2, 11.0)); // standing
    MapPath path;
    path.setPoints(points);
    MapEvents events;
    events.add(list);
    events.place(path);
    const OpenStreet::Camera view = camera();
    const QPointF place = seen(view, 48.2, 11.0);
    const auto near = [&](double right, double viewTime) { return events.near(path, view, {place.x() + right, place.y()}, viewTime); };
    QCOMPARE(near(0, 105).size(), MapEvents::kMostTips);
    QVERIFY(near(0, 105)[0]->time == 105.0 && near(0, 999)[0]->time == 111.0 && near(0, 0)[0]->time == 100.0);
    QVERIFY(!near(6.9, 0).empty() && near(7.1, 0).empty());
    QCOMPARE(MapEvents::text({near(0, 101)[0], near(0, 103)[0]}).count('\n'), 1);
}

void TestMapPath::pathsAreCompared()
{
    MapPath path;
    const std::vector<FlightPathPoint> points{at(1, 48.2, 10.9), at(2, 48.2, 10.91), at(3, 48.2, 10.92)};
    QVERIFY(path.setPoints(points) && !path.setPoints(points));
    const int generation = path.generation();
    std::vector<FlightPathPoint> other = points;
    other[1].groundSpeed = 999; // the places are the same, yet the values are the newer ones
    QVERIFY(!path.setPoints(other) && path.points()[1].groundSpeed == 999 && path.generation() == generation);
    for (double FlightPathPoint::*pMember : {&FlightPathPoint::time, &FlightPathPoint::latitude, &FlightPathPoint::longitude}) {
        path.setPoints(points);
        other = points;
        other[2].*pMember += 1e-4;
        QVERIFY(path.setPoints(other));
    }
    QVERIFY(path.setPoints(std::span(points).first(2)) && path.setPoints({}) && path.isEmpty() && !path.spans(1));
    path.setPoints(std::vector{at(1, 90, 360), at(2, -90, -360)});
    QCOMPARE(path.points().size(), std::size_t(2));
    path.setPoints(std::vector{at(1, 90.1, 0), at(2, 0, 360.1)});
    QVERIFY(path.isEmpty());
}

void TestMapPath::partsByTime()
{
    MapPath path;
    path.setPoints(std::vector{at(1, 48.2, 10.9), at(2, 48.2, 10.91), at(2, 48.2, 10.92), at(3, 48.2, 10.93)});
    using Part = std::pair<std::size_t, std::size_t>;
    for (const auto& [span, part] : {std::pair(TimeSpan{1, 3}, Part(0, 4)), {{2, 2}, Part(1, 3)}, {{1.1, 1.9}, Part(1, 1)}, {{0, 1}, Part(0, 1)},
                                     {{3, 9}, Part(3, 4)}, {{4, 9}, Part(4, 4)}, {{3, 1}, Part(3, 3)}})
        QCOMPARE(path.within(span), part);
    QVERIFY(path.spans(0.5) && !path.spans(0.49) && path.spans(3.5) && !path.spans(3.51) && path.spans(2));
    const FlightPathPoint middle = path.positionAt(2.5);
    QVERIFY(std::abs(middle.longitude - 10.925) < 1e-9 && std::abs(middle.altitude - 250) < 1e-9 && std::abs(middle.groundSpeed - 25) < 1e-9);
    QCOMPARE(path.positionAt(2).longitude, 10.92); // of two at a time the later
    QCOMPARE(path.positionAt(3).time, 3.0);
    for (const auto& [from, to, half] : {std::tuple(10.0, 190.0, 100.0), {0.0, 180.0, 90.0}, {350.0, 10.0, 360.0}, {10.0, 350.0, 0.0}, {200.0, 10.0, 285.0}}) {
        path.setPoints(std::vector<FlightPathPoint>{{0, 48, 11, 0, 0, from}, {1, 48, 11, 0, 0, from}, {2, 48.1, 11, 0, 0, to}, {3, 48.2, 11, 0, 0, to}});
        QVERIFY(std::abs(path.positionAt(1.5).track - half) < 1e-9);
    }
}

void TestMapPath::passagesThroughAPlace()
{
    MapPath path;
    std::vector<FlightPathPoint> points;
    for (int i = 0; i < 20; ++i) // there and back again, a kilometre from point to point
        points.push_back(at(i, 48.2, 10.9 + 0.0135 * (i < 10 ? i : 19 - i)));
    path.setPoints(points);
    const OpenStreet::Camera view = camera(40000.0);
    const auto area = [&](int from, int to) {
        return QRectF(seen(view, 48.201, 10.9 + 0.0135 * (from - 0.3)), seen(view, 48.199, 10.9 + 0.0135 * (to + 0.3)));
    };
    const auto times = [&](const QRectF& rect, double interruption) {
        QStringList list;
        for (const TimeSpan& span : path.timesIn(view, rect, interruption))
            list << QString("%1-%2").arg(span.start).arg(span.end);
        return list.join(' ');
    };
    QCOMPARE(times(area(2, 4), 5), QString("2-4 15-17"));
    QCOMPARE(times(area(2, 4), 11), QString("2-17")); // interrupted for no longer than that
    QCOMPARE(times(area(2, 4), 10.9), QString("2-4 15-17"));
    QCOMPARE(times(area(7, 12), 0.5), QString("7-7 8-8 9-9 10-10 11-11 12-12"));
    QCOMPARE(times(QRectF(0, 0, 5, 5), 5), QString());

    const QPointF place = seen(view, 48.2, 10.9 + 0.0135 * 3.25);
    for (const auto& [viewTime, time] : {std::pair(0.0, 3.25), {9.0, 3.25}, {10.5, 15.75}, {99.0, 15.75}}) {
        const auto found = path.timeNear(view, {place.x(), place.y()}, 8, viewTime);
        QVERIFY(found && std::abs(*found - time) < 0.01);
    }
    QVERIFY(path.timeNear(view, {place.x(), place.y() + 7.9}, 8, 0) && !path.timeNear(view, {place.x(), place.y() + 8.1}, 8, 0));
    const QPointF start = seen(view, 48.2, 10.9);
    QCOMPARE(path.timeNear(view, {start.x() - 5, start.y()}, 8, 0), std::optional(0.0));
    QCOMPARE(path.timeNear(view, {start.x() - 5, start.y()}, 8, 15), std::optional(19.0));
}

void TestMapPath::fitsBesideWhatCovers()
{
    MapPath path;
    path.setPoints(std::vector{at(0, 48.1, 10.9), at(1, 48.3, 11.1)});
    using Covers = std::vector<QRectF>;
    const Covers corners{{0, 0, 100, 300}, {600, 0, 200, 60}, {500, 560, 300, 40}}; // the path is higher than wide: the height counts
    for (const auto& [covers, free] : {std::pair(Covers{}, QRectF(0, 0, 800, 600)), {Covers{{0, 0, 200, 600}}, QRectF(200, 0, 600, 600)},
                                       {Covers{{0, 450, 800, 150}}, QRectF(0, 0, 800, 450)}, {Covers{{0, 0, 300, 420}, {300, 400, 500, 200}}, QRectF(300, 0, 500, 400)},
                                       {Covers{{0, 0, 640, 600}, {0, 120, 800, 480}}, QRectF(0, 0, 800, 600)},
                                       {Covers{{0, 0, 500, 600}, {0, 250, 800, 350}}, QRectF(500, 0, 300, 250)}, {corners, QRectF(100, 0, 400, 600)}}) {
        MapContext context;
        MapNavigator navigator(context);
        navigator.setWindowSize(800, 600);
        QVERIFY(navigator.setCovered(covers) != covers.empty() && !navigator.setCovered(covers));
        navigator.fit(path, true);
        QVERIFY(navigator.isFitted() && !navigator.tick(0.02));
        const QPointF a = seen(navigator.camera(), 48.1, 10.9), b = seen(navigator.camera(), 48.3, 11.1);
        QVERIFY(isNear((a + b) / 2, free.center(), 1.5) && free.contains(a) && free.contains(b)); // in its middle, with a margin, as large as it can be
        const double share = std::max((b.x() - a.x()) / free.width(), (a.y() - b.y()) / free.height());
        QVERIFY2(share > 0.8 && share < 0.86, qPrintable(QString::number(share)));
    }
    MapContext context;
    MapNavigator navigator(context);
    navigator.setWindowSize(800, 600);
    path.setPoints(std::vector{at(0, 48.1, 10.9), at(1, 48.1, 10.9)});
    navigator.fit(path, false);
    QVERIFY(context.rangeHorizontal == 300.0 && context.rangeVertical == 225.0 && navigator.isMoving()); // standing: no closer than that
    navigator.setWindowSize(400, 600);
    QVERIFY(context.rangeVertical == 450.0 && std::abs(navigator.camera().verticalRange() - navigator.camera().horizontalRange() * 1.5) < 1e-6);
    navigator.fit(MapPath(), true);
    QVERIFY(context.rangeHorizontal == 0.0 && navigator.camera().horizontalRange() > 1e7);
}

void TestMapPath::zoomsTurnsAndMoves()
{
    MapPath path;
    path.setPoints(std::vector{at(0, 48.15, 10.9), at(1, 48.25, 11.1)});
    MapContext context;
    MapNavigator navigator(context);
    navigator.setWindowSize(800, 600);
    navigator.fit(path, true);
    const auto arrive = [&navigator] {
        int steps = 0;
        while (navigator.tick(0.02) && steps < 1000)
            ++steps;
        return steps > 0 && steps < 1000 && !navigator.isMoving();
    };
    const double range = navigator.camera().horizontalRange();
    const OpenStreet::GeoPoint place = navigator.camera().windowToGeo({600, 150});
    navigator.setPointer({600, 150});
    navigator.doubleClick();
    QVERIFY(!navigator.isFitted() && arrive());
    QVERIFY(std::abs(navigator.camera().horizontalRange() - range / 4) < 1e-6 && isNear(seen(navigator.camera(), place.latitude, place.longitude), {600, 150}, 0.01));
    navigator.zoomCentered(1.0);
    QCOMPARE(navigator.camera().horizontalRange(), OpenStreet::Camera::kSmallestRange);
    navigator.zoomCentered(1e12);
    QCOMPARE(context.rangeHorizontal, MapNavigator::kFarthest);
    navigator.zoomCentered(60.0);
    navigator.doubleClick();
    QVERIFY(arrive() && navigator.camera().horizontalRange() == 25.0);
    for (const double factor : {0.0, -2.0, std::numeric_limits<double>::infinity()}) {
        navigator.zoomBy(factor);
        QVERIFY(!navigator.isMoving());
    }
    navigator.fit(path, true);
    const OpenStreet::GeoPoint middle = navigator.camera().windowToGeo({400, 300});
    navigator.setFollowing(false);
    navigator.zoomAboutMiddle(0.5);
    QVERIFY(arrive() && isNear(seen(navigator.camera(), middle.latitude, middle.longitude), {400, 300}, 0.01)); // whatever is pointed at
    navigator.fit(path, true);
    navigator.pan(100, -50);
    navigator.pan(100, -50); // before the first has arrived
    QVERIFY(arrive() && isNear(seen(navigator.camera(), middle.latitude, middle.longitude), {200, 400}, 0.05));

    navigator.turn(40, -30);
    navigator.turn(40, -70);
    QVERIFY(context.angleX == 60.0 && context.angleY == -60.0);
    OpenStreet::Camera straight = navigator.camera();
    straight.setAngles(0, 0);
    QVERIFY(!isNear(seen(straight, 48.15, 10.9), seen(navigator.camera(), 48.15, 10.9), 20));
    navigator.straighten();
    QVERIFY(context.angleX == 0 && context.angleY == 0 && isNear(seen(straight, 48.15, 10.9), seen(navigator.camera(), 48.15, 10.9), 1e-6));
}

void TestMapPath::followsTheAircraft()
{
    MapPath path;
    path.setPoints(std::vector{at(0, 48.15, 10.9), at(1, 48.25, 11.1)});
    MapContext context;
    MapNavigator navigator(context);
    navigator.setWindowSize(800, 600);
    navigator.fit(path, true);
    navigator.tick(0.02);
    navigator.setFollowing(true);
    QVERIFY(navigator.isFollowing() && context.centreAircraft == 1);
    const OpenStreet::GeoPoint near = navigator.camera().windowToGeo({459, 300}), far = navigator.camera().windowToGeo({800, 300});
    navigator.follow(near.latitude, near.longitude); // at once
    QVERIFY(isNear(seen(navigator.camera(), near.latitude, near.longitude), {400, 300}, 1e-6));
    navigator.tick(0.02);
    QVERIFY(!navigator.isMoving());
    navigator.follow(far.latitude, far.longitude); // smoothly
    QVERIFY(navigator.isMoving() && seen(navigator.camera(), far.latitude, far.longitude).x() > 700);
    for (int i = 0; i < 1000 && navigator.tick(0.02); ++i) {
    }
    QVERIFY(isNear(seen(navigator.camera(), far.latitude, far.longitude), {400, 300}, 0.01));
    navigator.zoomAboutMiddle(0.5);
    for (int i = 0; i < 1000 && navigator.tick(0.02); ++i) {
    }
    QVERIFY(isNear(seen(navigator.camera(), far.latitude, far.longitude), {400, 300}, 0.01));
    navigator.fit(path, true); // all of it, until the user moves the view
    QCOMPARE(context.centreAircraft, 2);
    const OpenStreet::GeoPoint middle = navigator.camera().windowToGeo({400, 300});
    navigator.follow(near.latitude, near.longitude);
    QVERIFY(!navigator.isMoving() || isNear(seen(navigator.camera(), middle.latitude, middle.longitude), {400, 300}, 1e-6));
    navigator.drag(5, 5);
    QCOMPARE(context.centreAircraft, 1);
    navigator.setFollowing(false);
    navigator.fit(path, true);
    QVERIFY(!navigator.isFollowing());
}

QTEST_MAIN(TestMapPath)
#include "TestMapPath.moc"
