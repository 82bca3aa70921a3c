#include "MapFixtures.h"
#include "support/RecordingCanvas.h"
#include "ui/map/model/MapScene.h"

#include <QTest>

#include <cmath>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

struct Scene : MapScene {
    explicit Scene(const std::vector<FlightPathPoint>& points = {}) { path().setPoints(points); }
    /// Paints on an empty canvas.
    void paint(RecordingCanvas& canvas, const OpenStreet::Camera& view)
    {
        update(view);
        drawGround(canvas, view);
        drawAbove(canvas, view);
    }
    [[nodiscard]] const Palette::Map& colours() { return style().colours; }
};

std::vector<RecordingCanvas::Strip> stripsOf(const RecordingCanvas& canvas, const QColor& colour)
{
    std::vector<RecordingCanvas::Strip> result;
    std::ranges::copy_if(canvas.strips, std::back_inserter(result), [&](const auto& strip) { return strip.pen.colour == colour; });
    return result;
}

/// The triangles of a colour by threes; discs have twelve of them.
std::vector<QRectF> boxesOf(const RecordingCanvas& canvas, const QColor& colour, std::size_t corners)
{
    std::vector<QRectF> result;
    for (const auto& shape : canvas.shapes) {
        for (std::size_t i = 0; shape.colour == colour && i + corners <= shape.corners.size(); i += corners)
            result.push_back(RecordingCanvas::Shape{{shape.corners.begin() + static_cast<std::ptrdiff_t>(i), shape.corners.begin() + static_cast<std::ptrdiff_t>(i + corners)}, {}}.box());
    }
    return result;
}

} // namespace

/// What the map paints above its ground, against the places that it is painted of.
class TestMapScene : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pathLiesAtItsPlaces();
    void partIsBright();
    void gapsAreDashed_data();
    void gapsAreDashed();
    void arrowsPointAlong();
    void coloursBlendOrChange();
    void eventDots();
    void wrongFixesAndAircraft();
    void scaleBars_data();
    void scaleBars();
    void cornersAreShared_data();
    void cornersAreShared();
    void cornersKeepApart();
    void messageAndSelection();
    void tellsWhetherItChanged();
    void acrossTheDateLine();
};

void TestMapScene::pathLiesAtItsPlaces()
{
    std::vector<FlightPathPoint> corners{at(0, 48.15, 10.92), at(1, 48.25, 10.95), at(2, 48.16, 11.02), at(3, 48.24, 11.08)};
    Scene scene(corners);
    scene.setAircraft(corners[0]);
    for (const double angle : {0.0, 35.0}) {
        OpenStreet::Camera view = camera();
        view.setAngles(angle, angle / 2);
        RecordingCanvas canvas;
        scene.paint(canvas, view);
        const auto strips = stripsOf(canvas, scene.colours().path);
        QCOMPARE(strips.size(), std::size_t(1));
        QCOMPARE(strips[0].points.size(), corners.size());
        QVERIFY(strips[0].pen.width == 3.0 && strips[0].pen.dash == 0.0);
        for (std::size_t i = 0; i < corners.size(); ++i)
            QVERIFY(isNear(strips[0].points[i], seen(view, corners[i].latitude, corners[i].longitude), 0.1));
    }
    QVERIFY(stripsOf(RecordingCanvas(), scene.colours().path).empty());
}

/// What is looked at is bright, and the rest dim, thin and below it.
void TestMapScene::partIsBright()
{
    Scene scene(eastwards());
    QVERIFY(scene.setShown(TimeSpan{100, 200}) && !scene.setShown(TimeSpan{100, 200}));
    const OpenStreet::Camera view = camera();
    RecordingCanvas canvas;
    scene.paint(canvas, view);
    const auto bright = stripsOf(canvas, scene.colours().path), dim = stripsOf(canvas, scene.colours().pathDim);
    QVERIFY(bright.size() == 1 && dim.size() == 1 && canvas.strips.front().pen.colour == scene.colours().pathDim);
    QVERIFY(dim[0].pen.width < 0.6 * bright[0].pen.width);
    QVERIFY(isNear(bright[0].points.front(), seen(view, 48.2, 10.95), 0.1) && isNear(bright[0].points.back(), seen(view, 48.2, 11.0), 0.1));
    QVERIFY(isNear(dim[0].points.front(), seen(view, 48.2, 10.9), 0.1) && isNear(dim[0].points.back(), seen(view, 48.2, 11.1), 0.1));
    for (const auto& [span, isPart] : {std::pair(TimeSpan{0, 400}, false), {{0, 399}, true}, {{1, 400}, true}, {{-9, 999}, false}}) {
        scene.setShown(span);
        RecordingCanvas other;
        scene.paint(other, view);
        QCOMPARE(stripsOf(other, scene.colours().pathDim).empty(), !isPart);
    }
    scene.setShown({});
    scene.setWholePath(std::vector{at(0, 48.18, 10.9), at(1, 48.2, 10.9), at(2, 48.2, 11.1)}); // a flight of a longer cycle
    RecordingCanvas whole;
    scene.paint(whole, view);
    const auto rest = stripsOf(whole, scene.colours().pathDim);
    QVERIFY(rest.size() == 1 && isNear(rest[0].points.front(), seen(view, 48.18, 10.9), 0.1));
    QVERIFY(stripsOf(whole, scene.colours().path).size() == 1);
}

void TestMapScene::gapsAreDashed_data()
{
    QTest::addColumn<QList<double>>("times");
    QTest::addColumn<QList<double>>("gap"); // told from outside
    QTest::addColumn<QList<bool>>("gaps");
    using Times = QList<double>;
    using Gaps = QList<bool>;
    QTest::newRow("none") << Times{0, 1, 2} << Times{} << Gaps{false, false, false};
    QTest::newRow("as long as a receiver may take") << Times{0, 5, 6} << Times{} << Gaps{false, false, false};
    QTest::newRow("longer") << Times{0, 5.5, 6} << Times{} << Gaps{false, true, false};
    QTest::newRow("told") << Times{0, 1, 2, 3} << Times{1.2, 1.8} << Gaps{false, false, true, false};
    QTest::newRow("told of two ways") << Times{0, 1, 2, 3, 4} << Times{1.4, 3.0} << Gaps{false, false, true, true, false};
    QTest::newRow("told of less than half a way") << Times{0, 1, 2} << Times{1.0, 1.4} << Gaps{false, false, false};
    QTest::newRow("told twice") << Times{0, 1, 2, 3, 4} << Times{0.2, 0.8, 3.1, 3.9} << Gaps{false, true, false, false, true};
    QTest::newRow("told of before") << Times{10, 11, 12} << Times{1, 2} << Gaps{false, false, false};
}

void TestMapScene::gapsAreDashed()
{
    QFETCH(const QList<double>, times);
    QFETCH(const QList<double>, gap);
    QFETCH(const QList<bool>, gaps);
    std::vector<FlightPathPoint> points;
    for (const double time : times)
        points.push_back(at(time, 48.2, 10.9 + 0.01 * static_cast<double>(points.size())));
    Scene scene(points);
    std::vector<TimeSpan> told;
    for (qsizetype i = 0; i < gap.size(); i += 2)
        told.push_back({gap[i], gap[i + 1]});
    const int before = scene.path().generation();
    scene.setCourse({}, told);
    QVERIFY(scene.path().generation() != before);
    QList<bool> found;
    for (std::size_t i = 0; i < points.size(); ++i)
        found << scene.path().isGap(i);
    QCOMPARE(found, gaps);
    const OpenStreet::Camera view = camera();
    RecordingCanvas canvas;
    scene.paint(canvas, view);
    const auto isDashed = [&](const QPointF& middle) { // the strip that passes there
        for (const auto& strip : stripsOf(canvas, scene.colours().path)) {
            if (strip.points.front().x() < middle.x() && middle.x() < strip.points.back().x())
                return strip.pen.dash > 0;
        }
        return !gaps.contains(true);
    };
    for (std::size_t i = 1; i < points.size(); ++i)
        QCOMPARE(isDashed(seen(view, 48.2, (points[i - 1].longitude + points[i].longitude) / 2)), gaps[static_cast<qsizetype>(i)]);
}

void TestMapScene::arrowsPointAlong()
{
    Scene scene({at(0, 48.2, 10.9), at(1, 48.2, 11.1), at(2, 48.15, 11.1)});
    const OpenStreet::Camera view = camera();
    RecordingCanvas canvas;
    scene.paint(canvas, view);
    const auto& arrows = scene.geometry().arrows();
    const QPointF start = seen(view, 48.2, 10.9), corner = seen(view, 48.2, 11.1), end = seen(view, 48.15, 11.1);
    const double length = QLineF(start, corner).length() + QLineF(corner, end).length();
    QVERIFY(std::abs(static_cast<double>(arrows.size()) - length / 110.0) <= 1.0);
    double before = 0;
    for (const auto& arrow : arrows) { // on the way, in its direction, at equal distances
        const QPointF place = arrow.place + scene.geometry().offset();
        const bool isFirst = place.x() < corner.x() - 0.1;
        QVERIFY(isFirst ? std::abs(place.y() - start.y()) < 0.1 : std::abs(place.x() - corner.x()) < 0.1);
        QVERIFY(isNear(arrow.way, isFirst ? QPointF(1, 0) : QPointF(0, 1), 1e-3));
        const double along = isFirst ? QLineF(start, place).length() : QLineF(start, corner).length() + QLineF(corner, place).length();
        QVERIFY(before == 0 ? along > 20 && along < 110 : std::abs(along - before - 110) < 0.5);
        before = along;
    }
    const auto rims = boxesOf(canvas, scene.colours().markRim, 3), marks = boxesOf(canvas, scene.colours().path, 3);
    QVERIFY(rims.size() == arrows.size() && marks.size() == arrows.size());
    for (std::size_t i = 0; i < marks.size(); ++i) {
        const QPointF place = arrows[i].place + scene.geometry().offset();
        const bool isFirst = arrows[i].way.x() > 0.5;
        QVERIFY(rims[i].contains(marks[i]) && rims[i].width() - marks[i].width() < 5);
        // The point is ahead as far as the base is behind.
        QVERIFY(isNear(marks[i].center(), place, 0.1) && (isFirst ? marks[i].width() > marks[i].height() : marks[i].height() > marks[i].width()));
    }
    Scene gap({at(0, 48.2, 10.9), at(100, 48.2, 11.1)}); // nobody knows which way it went
    gap.update(view);
    QVERIFY(gap.geometry().arrows().empty());
    Scene still({at(0, 48.2, 11.0), at(1, 48.2, 11.0001)});
    still.update(view);
    QVERIFY(still.geometry().arrows().empty());
}

void TestMapScene::coloursBlendOrChange()
{
    const std::vector<FlightPathPoint> points = eastwards();
    Scene scene(points);
    PathTint tint;
    tint.colours = {Qt::red, Qt::green, Qt::blue};
    for (std::size_t i = 0; i < points.size(); ++i)
        tint.steps.push_back(i < 100 ? 0 : i < 250 ? 1 : 2);
    const OpenStreet::Camera view = camera();
    for (const bool isScale : {false, true}) {
        tint.isScale = isScale;
        QVERIFY(scene.setTint(tint));
        scene.update(view);
        const auto& strips = scene.geometry().strips();
        QCOMPARE(strips.size(), std::size_t(isScale ? 1 : 3));
        double last = -1e9;
        for (const auto& strip : strips) {
            QCOMPARE(strip.colours.size(), strip.points.size());
            for (std::size_t i = 0; i < strip.points.size(); ++i) {
                const double longitude = view.windowToGeo({strip.points[i].x() + scene.geometry().offset().x(), 300}).longitude;
                QVERIFY(strip.points[i].x() >= last);
                last = strip.points[i].x();
                const double place = (longitude - 10.9) / 0.0005; // number of a point
                const bool isBorder = std::abs(place - 100) < 12 || std::abs(place - 250) < 12;
                QVERIFY(isBorder || strip.colours[i] == tint.colours[place < 100 ? 0 : place < 250 ? 1 : 2]);
                QVERIFY(isScale || strip.colours[i] == strip.colours[0]); // phases do not blend
            }
        }
    }
    tint.steps.pop_back(); // of another path: its own colour
    scene.setTint(tint);
    scene.update(view);
    QVERIFY(scene.geometry().strips().size() == 1 && scene.geometry().strips()[0].colours.empty());
}

void TestMapScene::eventDots()
{
    EventList list;
    const uint32_t source = list.addSource({"Engine", "EGT", ""});
    // Two at one place, one of another colour there, one where the window ends, one far outside.
    for (const auto& [time, colour] : {std::pair(100.0, Qt::yellow), {100.0, Qt::yellow}, {100.0, Qt::red}, {200.0, Qt::yellow}, {2000.0, Qt::red}})
        list.add({time, {}, source, 1, QColor(colour), "x"});
    list.sortByTime();
    std::vector<FlightPathPoint> points = eastwards();
    points.push_back(at(2000, 48.2, 13.0));
    Scene scene(points);
    scene.events().add(list);
    QVERIFY(scene.events().place(scene.path()) && !scene.events().place(scene.path()));
    QCOMPARE(scene.events().dots().size(), std::size_t(5));
    const OpenStreet::Camera view = camera();
    RecordingCanvas canvas;
    scene.paint(canvas, view);
    const auto yellow = boxesOf(canvas, Qt::yellow, 36), red = boxesOf(canvas, Qt::red, 36), rims = boxesOf(canvas, scene.colours().eventRim, 36);
    QVERIFY(yellow.size() == 2 && red.size() == 1 && rims.size() == 3);
    QVERIFY(isNear(yellow[0].center(), seen(view, 48.2, 10.95), 0.6) && isNear(red[0].center(), seen(view, 48.2, 10.95), 0.6));
    QVERIFY(isNear(yellow[1].center(), seen(view, 48.2, 11.0), 0.6));
    QVERIFY(std::abs(yellow[0].width() - 2 * MapEvents::kRadius) < 0.4 && rims[0].width() > yellow[0].width() + 1);

    CycleNote note;
    note.time = 150;
    note.text = "note";
    scene.events().setNotes({note});
    QVERIFY(scene.events().place(scene.path()));
    QVERIFY(scene.events().dots().back().text == "note" && scene.events().dots().size() == 6);
    scene.events().clear();
    QCOMPARE(scene.events().dots().size(), std::size_t(6)); // until the others are placed
    QVERIFY(scene.events().place(scene.path()));
    QCOMPARE(scene.events().dots().size(), std::size_t(1)); // the notes stay
    EventList late;
    late.add({2000.5, {}, late.addSource({"E", "P", ""}), 1, {}, ""});
    late.add({2000.6, {}, 0, 1, {}, ""});
    scene.events().add(late);
    scene.events().place(scene.path());
    QCOMPARE(scene.events().dots().size(), std::size_t(2)); // half a second after the last place, and no later
}

void TestMapScene::wrongFixesAndAircraft()
{
    std::vector<FlightPathPoint> points = eastwards();
    points[200].latitude += 0.2; // alone, far away
    Scene scene(points);
    const OpenStreet::Camera view = camera(80000.0);
    scene.setAircraft({0, 48.21, 11.02, 0, 0, 90.0});
    RecordingCanvas canvas;
    scene.paint(canvas, view);
    const auto fixes = boxesOf(canvas, scene.colours().wrongFix, 36);
    QVERIFY(fixes.size() == 1 && isNear(fixes[0].center(), seen(view, 48.4, 11.0), 0.5) && fixes[0].width() < 5.2 && fixes[0].width() > 4.5);
    const auto strips = stripsOf(canvas, scene.colours().path);
    for (const QPointF& point : strips[0].points)
        QVERIFY(std::abs(point.y() - seen(view, 48.2, 11.0).y()) < 0.5);

    const QPointF place = seen(view, 48.21, 11.02);
    for (const auto& [track, nose] : {std::pair(0.0, QPointF(0, -15)), {90.0, QPointF(15, 0)}, {180.0, QPointF(0, 15)}, {-45.0, QPointF(-10.6, -10.6)},
                                      {std::nan(""), QPointF(0, -15)}}) {
        scene.setAircraft({0, 48.21, 11.02, 0, 0, track});
        RecordingCanvas turned;
        scene.drawAbove(turned, view);
        const auto rim = stripsOf(turned, scene.colours().aircraftRim);
        QCOMPARE(rim.size(), std::size_t(1));
        QVERIFY(rim[0].points.front() == rim[0].points.back() && isNear(rim[0].points.front(), place + nose, 0.1));
        const QRectF box = RecordingCanvas::Shape{rim[0].points, {}}.box();
        QVERIFY(box.contains(place) && box.width() < 36 && box.height() < 36);
        for (std::size_t i = 0; i < rim[0].points.size(); ++i) // left and right wing alike
            QVERIFY(std::abs(QLineF(place, rim[0].points[i]).length() - QLineF(place, rim[0].points[rim[0].points.size() - 1 - i]).length()) < 0.01);
        QVERIFY(!boxesOf(turned, scene.colours().aircraft, 3).empty());
    }
    Scene none;
    RecordingCanvas empty;
    none.paint(empty, view);
    QVERIFY(empty.strips.empty() && boxesOf(empty, scene.colours().aircraft, 3).empty() && !empty.texts.empty());
}

void TestMapScene::scaleBars_data()
{
    QTest::addColumn<double>("most"); // metres that the longest bar may stand for
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("metres");
    QTest::newRow("just a kilometre") << 1000.001 << false << "1 km" << 1000.0;
    QTest::newRow("just less") << 999.9 << false << "500 m" << 500.0;
    QTest::newRow("just five") << 50.001 << false << "50 m" << 50.0;
    QTest::newRow("just two") << 2000.001 << false << "2 km" << 2000.0;
    QTest::newRow("less than two") << 1999.9 << false << "1 km" << 1000.0;
    QTest::newRow("less than five") << 49900.0 << false << "20 km" << 20000.0;
    QTest::newRow("less than ten") << 9999.0 << false << "5 km" << 5000.0;
    QTest::newRow("a mile") << 1852.001 << true << "1 NM" << 1852.0;
    QTest::newRow("less than a mile") << 1851.9 << true << "5000 ft" << 1524.0;
    QTest::newRow("feet") << 70.0 << true << "200 ft" << 60.96;
    QTest::newRow("miles") << 18600.0 << true << "10 NM" << 18520.0;
}

void TestMapScene::scaleBars()
{
    QFETCH(const double, most);
    QFETCH(const bool, imperial);
    OpenStreet::Camera view;
    view.setWindowSize(700, 300);
    view.setPosition({0, 20});
    view.setVisibleRange(most * 5, 0.0); // five bars of 140 pixels
    const MapScaleBar bar = MapScaleBar::at(view, 140.0, imperial);
    QTEST(bar.text, "text");
    QFETCH(const double, metres);
    QVERIFY(std::abs(bar.metres - metres) < 1e-6 && std::abs(bar.pixels - 140.0 * metres / most) < 0.01);
}

void TestMapScene::cornersAreShared_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QSizeF>("corner");
    QTest::addColumn<bool>("isRaised"); // above what stands in the corner
    QTest::newRow("nothing else") << 800 << QSizeF() << false;
    QTest::newRow("beside") << 800 << QSizeF(300, 50) << false;
    QTest::newRow("no room") << 300 << QSizeF(260, 50) << true;
}

void TestMapScene::cornersAreShared()
{
    QFETCH(const int, width);
    QFETCH(const QSizeF, corner);
    QFETCH(const bool, isRaised);
    Scene scene({at(0, 48.2, 10.95), at(1, 48.2, 11.05)});
    scene.setAircraft(at(0, 48.2, 11.0));
    scene.style().sources = corner;
    scene.setNote("The server does not answer");
    scene.setPointer(QPointF(100, 100));
    CycleCourse course;
    course.heldPositions = "Held fixes for a while";
    scene.setCourse(course, {});
    for (const bool imperial : {false, true}) {
        scene.setImperial(imperial);
        const OpenStreet::Camera view = camera(20000.0, width, 400);
        const MapScaleBar bar = MapScaleBar::at(view, std::min(140.0, 0.4 * width), imperial);
        RecordingCanvas canvas;
        scene.drawScaleBar(canvas, view);
        const double bottom = 400 - 8 - (isRaised ? corner.height() + 4 : 0);
        QRectF drawn;
        for (const auto& area : canvas.areas) {
            if (area.colour == scene.colours().text)
                drawn |= area.rect;
        }
        QVERIFY(std::abs(drawn.left() - 8) < 1e-9 && std::abs(drawn.width() - bar.pixels) < 1e-9 && std::abs(drawn.bottom() - bottom) < 1e-9);
        QCOMPARE(canvas.texts.front().second, bar.text);
        QVERIFY(canvas.texts.front().first.bottom() <= drawn.top() && canvas.texts.front().first.left() == 8);
        // Above it, from below: the place that is pointed at, what is to be told, and where the position is not that of the aircraft.
        double above = std::min(canvas.texts.front().first.top(), 400 - corner.height());
        std::vector<double> tops;
        for (const char* text : {"N ", "The server", "Held"}) {
            const auto found = std::ranges::find_if(canvas.texts, [&](const auto& entry) { return entry.second.contains(text); });
            QVERIFY2(found != canvas.texts.end(), text);
            QVERIFY2(found->first.bottom() <= above + 1 && found->first.left() == 8, text);
            above = found->first.top();
        }
        for (std::size_t i = 0; i < canvas.texts.size(); ++i) {
            QVERIFY(canvas.texts[i].first.right() <= width && canvas.texts[i].first.top() > 0);
            for (std::size_t k = 0; k < i; ++k)
                QVERIFY(canvas.texts[i].first.intersected(canvas.texts[k].first).height() < 2);
            const auto isGround = [&](const auto& area) { return area.colour == scene.colours().textGround && area.rect.adjusted(-1, -1, 1, 1).contains(canvas.texts[i].first); };
            QVERIFY(std::ranges::any_of(canvas.areas, isGround)); // readable on any map
        }
    }
}

/// Tools, legend, sources, scale and what is told of the pointer: each can be read whole, in a window of whatever size.
void TestMapScene::cornersKeepApart()
{
    PathTint scale, words;
    scale.isScale = true;
    scale.title = "Altitude [m]";
    scale.unit = "m";
    scale.low = 539;
    scale.high = 1349;
    scale.colours.assign(PathTint::kSteps + 1, Qt::red);
    words.title = "Phase of flight";
    for (const char* text : {"Engine off", "Ground", "Take-off", "Climb", "Level flight", "Descent"})
        words.entries.push_back({Qt::red, text});
    Scene scene({at(0, 48.2, 10.95), at(1, 48.2, 11.05)});
    scene.setAircraft(at(0, 48.2, 11.0));
    scene.setPointer(QPointF(40, 40));
    int counts[3] = {}; // of windows with the whole legend, with one line of it, without
    for (const PathTint& tint : {scale, words}) {
        scene.setTint(tint);
        for (const double textSize : {8.0, 11.0, 17.0}) {
            scene.style().textSize = textSize;
            for (const QSize& size : {QSize(1300, 500), QSize(720, 150), QSize(657, 111), QSize(451, 346), QSize(451, 154), QSize(274, 364), QSize(274, 241), QSize(200, 160)}) {
                scene.style().tools = size.width() > 450 ? QSizeF(56, std::min(272, size.height() - 60)) : QSizeF(48, size.height() / 2);
                const double lines = size.width() < 30 * textSize ? 2 : 1;
                scene.style().sources = {std::min(30 * textSize, size.width() - 16.0), lines * 1.4 * textSize};
                const OpenStreet::Camera view = camera(20000.0, size.width(), size.height());
                const MapCorners corners = scene.corners(QSizeF(size));
                const auto& legend = corners.legend;
                ++counts[!legend ? 2 : legend->form == PathLegend::eLine ? 1 : 0];
                RecordingCanvas canvas;
                scene.drawAbove(canvas, view);
                QVERIFY2(!legend || QRectF(QPointF(), size).contains(legend->box), qPrintable(QString::number(size.width())));
                std::size_t inLegend = 0;
                for (const auto& [box, text] : canvas.texts) {
                    QVERIFY(!box.intersects(corners.sources));
                    inLegend += legend && legend->box.contains(box);
                    QVERIFY2(!legend || legend->box.contains(box) || !legend->box.intersects(box), qPrintable(text));
                    for (const auto& [other, otherText] : canvas.texts)
                        QVERIFY2(text == otherText || box.intersected(other).width() < 1 || box.intersected(other).height() < 2, qPrintable(text + " / " + otherText));
                }
                const bool isLine = legend && legend->form == PathLegend::eLine;
                const std::size_t wanted = !legend ? 0 : tint.isScale ? (isLine ? 2 : 4) : tint.entries.size() + (isLine ? 0 : 1);
                QCOMPARE(inLegend, wanted);
                QVERIFY(!legend || !(legend->box.intersects(corners.tools) || legend->box.intersects(corners.sources)));
            }
        }
    }
    QVERIFY2(counts[0] > 20 && counts[1] > 2 && counts[2] < 20, qPrintable(QString("%1 %2 %3").arg(counts[0]).arg(counts[1]).arg(counts[2])));
}

void TestMapScene::messageAndSelection()
{
    Scene scene;
    const OpenStreet::Camera view = camera();
    scene.setMessage("There is no position");
    scene.setSelection(QRectF(100, 50, 200, 80));
    RecordingCanvas canvas;
    scene.drawAbove(canvas, view);
    const QRectF box = canvas.boxOf("There is no position");
    QVERIFY(isNear(box.center(), {400, 300}, 1.1) && box.height() > 14);
    const auto isSelection = [](const auto& area) { return area.rect == QRectF(100, 50, 200, 80) && area.colour.alpha() < 100; };
    QVERIFY(std::ranges::count_if(canvas.areas, isSelection) == 1);
    scene.setMessage(QString(120, 'w'));
    scene.setSelection({});
    RecordingCanvas narrow;
    scene.drawAbove(narrow, view);
    const QRectF shrunk = narrow.boxOf(QString(120, 'w'));
    QVERIFY(shrunk.width() <= 785 && shrunk.width() > 700); // shrinks to the window
    QVERIFY(std::ranges::none_of(narrow.areas, isSelection));
}

void TestMapScene::tellsWhetherItChanged()
{
    Scene scene;
    QVERIFY(!scene.setPointer({}) && scene.setPointer(QPointF(1, 2)) && !scene.setPointer(QPointF(1, 2)) && scene.setPointer(QPointF(1, 3)) &&
            scene.setPointer({}) && !scene.setPointer({}));
    QVERIFY(!scene.setNote("") && scene.setNote("a") && !scene.setNote("a") && scene.setNote(""));
    QVERIFY(!scene.setTint({}));
    PathTint tint;
    tint.colours = {Qt::red};
    tint.steps = {0};
    QVERIFY(scene.setTint(tint) && scene.setTint({}) && !scene.setTint({}));
}

void TestMapScene::acrossTheDateLine()
{
    std::vector<FlightPathPoint> points;
    for (int i = 0; i < 40; ++i) {
        const double longitude = 179.9 + i * 0.005;
        points.push_back(at(i, 0.0, longitude > 180 ? longitude - 360 : longitude));
    }
    Scene scene(points);
    OpenStreet::Camera view = camera(40000.0);
    for (const double longitude : {179.99, -179.99}) { // one line, whichever side the middle is on
        view.setPosition({0.0, longitude});
        RecordingCanvas canvas;
        scene.setAircraft(points[30]);
        scene.paint(canvas, view);
        const auto strips = stripsOf(canvas, scene.colours().path);
        QCOMPARE(strips.size(), std::size_t(1));
        QVERIFY(isNear(strips[0].points.front(), seen(view, 0, 179.9), 0.1) && isNear(strips[0].points.back(), seen(view, 0, 180.095), 0.1));
        QVERIFY(strips[0].points.back().x() > strips[0].points.front().x() + 300);
    }
    const MapFit fit = scene.path().fit(800, 600);
    QVERIFY(std::abs(fit.longitude - 179.9975) < 1e-6 && fit.range < 30000);
}

QTEST_MAIN(TestMapScene)
#include "TestMapScene.moc"
