#include "GraphFixtures.h"
#include "ui/graph/model/CursorLabels.h"
#include "ui/graph/model/GraphTexts.h"
#include "ui/graph/model/MarkerValues.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace ZARN;
using Test::Drawing;
using Test::isUpright;
using Test::Three;
using Test::uprights;

namespace {

constexpr QSizeF kSize(1400, 700);

const Test::RecordingCanvas::Strip& stripOf(const Drawing& drawing, const QColor& colour)
{
    return *std::ranges::find(drawing.strips, colour, [](const auto& strip) { return strip.pen.colour; });
}

/// The lines of traces, which stay within their areas.
std::vector<Test::RecordingCanvas::Strip> traceStrips(const Drawing& drawing)
{
    std::vector<Test::RecordingCanvas::Strip> result;
    std::ranges::copy_if(drawing.strips, std::back_inserter(result), [](const auto& strip) { return strip.clip.width() < 1e6; });
    return result;
}

} // namespace

/// What a graph paints, against the values that it is painted of.
class TestGraphPicture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tracesLieAtTheirValues_data();
    void tracesLieAtTheirValues();
    void samplesAreMarked();
    void cursorAtItsTime();
    void cursorLabelsGiveWay();
    void marker();
    void numberedMarks();
    void handles();
    void legendTells_data();
    void legendTells();
    void markerTable();
    void message();
    void otherFlight();
};

void TestGraphPicture::tracesLieAtTheirValues_data()
{
    QTest::addColumn<bool>("split");
    QTest::addColumn<int>("chosen");
    QTest::newRow("single") << false << -1;
    QTest::newRow("chosen") << false << 0;
    QTest::newRow("strips") << true << -1;
    QTest::newRow("chosen strip") << true << 1;
}

void TestGraphPicture::tracesLieAtTheirValues()
{
    QFETCH(const bool, split);
    QFETCH(const int, chosen);
    Three graph(split ? eSplit : eSingleGraph);
    graph.model.traces().point(chosen);
    const Drawing drawing(graph.model, kSize);
    const QRectF& plot = drawing.layout().plot();
    QCOMPARE(traceStrips(drawing).size(), std::size_t(3));
    QVERIFY(chosen < 0 || traceStrips(drawing).back().pen.colour == graph.colour(chosen)); // above the others, and wider
    for (const int index : {0, 1, 2}) {
        const auto& strip = stripOf(drawing, graph.colour(index));
        const QRectF area = drawing.layout().area(index);
        const ValueSpan span = graph.model.valueSpan(index);
        QCOMPARE(strip.clip, area);
        QCOMPARE(strip.pen.width, graph.model.traces().at(index)->stroke.width + (index == chosen ? 1.0 : 0.0));
        int inside = 0;
        for (const QPointF& point : strip.points) {
            const double time = 20 + (point.x() + 0.5 - plot.left()) / plot.width() * 60; // a pixel's middle is half a pixel behind its edge
            const double value = span[0] + (area.bottom() - point.y() - 0.5) / area.height() * (span[1] - span[0]);
            QVERIFY(std::abs(time - std::round(time)) < 1e-6 && time > 18.5 && time < 81.5);
            const double expected = index == 0 ? time : index == 1 ? 1000 - 10 * time : 7;
            QVERIFY2(std::abs(value - expected) < 1e-6 * (span[1] - span[0]), qPrintable(QString("%1 %2").arg(time).arg(value)));
            inside += time > 19.9 && time < 80.1;
        }
        QCOMPARE(inside, 61);
    }
    QVERIFY(drawing.areas[0].rect == QRectF(QPointF(), kSize) && drawing.areas[1].rect == plot);
    QVERIFY(drawing.areas[1].colour == graph.model.colours().background);
}

/// Samples have marks of their own where they lie far enough apart to be told from each other.
void TestGraphPicture::samplesAreMarked()
{
    Three graph;
    graph.model.traces().edit(0, [](GraphParameter& trace) { trace.samplesVisible = true; });
    const auto marks = [&](double begin, double end) {
        graph.model.setWindow({begin, end});
        const Drawing drawing(graph.model, kSize);
        std::vector<QPointF> middles;
        for (const auto& area : drawing.areas) {
            if (area.rect.size() == QSizeF(3, 3) && area.colour == graph.colour(0) && area.clip == drawing.layout().plot())
                middles.push_back(area.rect.center());
        }
        for (std::size_t i = 0; i < middles.size(); ++i) {
            const QPointF& point = stripOf(drawing, graph.colour(0)).points[i];
            if (std::abs(middles[i].x() - point.x()) > 1.01 || std::abs(middles[i].y() - point.y()) > 1.01)
                return std::size_t(999);
        }
        return middles.size();
    };
    const double width = Drawing(graph.model, kSize).layout().plot().width();
    QCOMPARE(marks(20, 30), std::size_t(12)); // and the ones beside the window, to which lines go on
    QVERIFY(marks(20, 20 + width / 5.4) > 60);
    graph.model.putValues(2, std::vector<double>(), std::vector<double>());
    QCOMPARE(marks(-500, 1000), std::size_t(0));
    graph.model.traces().edit(0, [](GraphParameter& trace) { trace.samplesVisible = false; });
    QCOMPARE(marks(20, 30), std::size_t(0));
    graph.model.traces().clearSamples();
    graph.model.putValues(0, std::vector<double>{25}, std::vector<double>{3});
    QCOMPARE(marks(20, 30), std::size_t(1)); // a single one would not be seen otherwise
}

void TestGraphPicture::cursorAtItsTime()
{
    Three graph;
    for (const auto& [time, isSeen] : {std::pair(50.0, true), {20.0, true}, {80.0, true}, {19.5, false}, {80.5, false}, {std::nan(""), true}}) {
        if (!std::isnan(time))
            graph.model.setCursorPosition(time);
        else
            graph.model.setCursorPosition(79.999);
        graph.model.settings().gridOn = false;
        const Drawing drawing(graph.model, kSize);
        const QRectF& plot = drawing.layout().plot();
        const std::vector<double> lines = uprights(drawing, plot.top(), plot.bottom() - 1, true);
        QCOMPARE(lines.size(), std::size_t(isSeen));
        const QRectF label = drawing.boxOf(graphTime(graph.model.cursor().time));
        QCOMPARE(!label.isEmpty(), isSeen);
        if (!isSeen)
            continue;
        QCOMPARE(lines.front(), std::floor(drawing.layout().xOf(graph.model.cursor().time)));
        const bool isLeft = graph.model.cursor().time > 79; // where right of it there is no room
        QVERIFY(std::abs((isLeft ? lines.front() - label.right() : label.left() - lines.front()) - 5) < 1.1);
        QVERIFY(label.top() >= plot.top() && label.top() < plot.top() + 5);
    }
    graph.model.setCursorPosition(50);
    graph.model.settings().cursorOn = false;
    QVERIFY(Drawing(graph.model, kSize).boxOf(graphTime(50)).isEmpty());
    graph.model.settings().cursorOn = true;
    graph.model.settings().times = TimeReference(ETimeReference::eTakeOff, -40);
    QVERIFY(!Drawing(graph.model, kSize).boxOf(graphTime(10)).isEmpty()); // as times are told

    for (const bool split : {false, true}) { // moved by the user: its height, too
        Three moved(split ? eSplit : eSingleGraph);
        moved.model.settings().gridOn = false;
        moved.model.setCursorMoving(true);
        const int strip = split ? 1 : moved.model.traces().axis();
        for (const double value : {0.4, 0.99, 0.01, 1.2, -0.2}) {
            const ValueSpan span = moved.model.valueSpan(strip);
            const double told = span[0] + value * (span[1] - span[0]);
            moved.model.moveCursor(50, told, 1);
            const Drawing drawing(moved.model, kSize);
            const QRectF area = drawing.layout().area(strip);
            const double y = std::floor(area.bottom() - value * area.height());
            const auto isLevel = [&](const auto& line) { return line.line.y1() == y && line.line.y2() == y && line.pen.dash > 0; };
            QCOMPARE(std::ranges::count_if(drawing.drawnLines, isLevel), value > 0 && value < 1);
            const QRectF box = drawing.boxOf(graphNumber(told, 2));
            QVERIFY(box.isEmpty() != (value > 0 && value < 1) && (box.isEmpty() || area.adjusted(0, 0, 0, 2).contains(box)));
        }
    }
}

void TestGraphPicture::cursorLabelsGiveWay()
{
    Three graph(eSplit);
    const auto labels = [&](double height) {
        const GraphLayout layout = Test::layoutOf(graph.model, QSizeF(900, height), true);
        const CursorLabels cursor(graph.model, layout);
        const QRectF area = layout.area(0);
        const double x = layout.xOf(50);
        for (const int index : {0, 1, 2}) // a value right of the cursor, at the top of each strip
            if (!cursor.covers(QRectF(x + 1, layout.area(index).top() + 4, 5, 5)))
                return false;
        return !cursor.covers(QRectF(x - 40, area.top(), 30, area.height())) && !cursor.covers(QRectF(x + 1, area.top() + layout.line() + 6, 90, 2));
    };
    QVERIFY(labels(600) && labels(400));
    QVERIFY(!labels(100)); // strips too low for a line
    const Drawing drawing(graph.model, kSize);
    QVERIFY(!drawing.boxOf("Trace 0/50.00").isEmpty() && !drawing.boxOf("Trace 1/500.00").isEmpty());
    QVERIFY(drawing.boxOf(graphTime(50)).bottom() <= drawing.layout().plot().top() + 1);
}

void TestGraphPicture::marker()
{
    Three graph;
    graph.model.settings().gridOn = false;
    graph.model.settings().cursorOn = false;
    for (const auto& [start, end, lines] : {std::tuple(30.0, 60.0, 2), {60.0, 30.0, 2}, {10.0, 40.0, 1}, {70.0, 90.0, 1}, {10.0, 90.0, 0}, {1.0, 5.0, 0},
                                            {90.0, 95.0, 0}, {0.0, 0.0, 0}, {44.0, 44.0, 2}}) {
        graph.model.setMarker({start, end});
        const Drawing drawing(graph.model, kSize);
        const GraphLayout& layout = drawing.layout();
        const QRectF& plot = layout.plot();
        std::vector<double> found;
        for (const auto& line : drawing.drawnLines) {
            if (isUpright(line) && line.pen.dash > 0 && line.line.x1() >= plot.left() && line.line.x1() <= plot.right())
                found.push_back(line.line.x1());
        }
        QCOMPARE(static_cast<int>(found.size()), lines);
        if (lines == 2)
            QVERIFY(found[0] == std::floor(layout.xOf(std::min(start, end))) && found[1] == std::floor(layout.xOf(std::max(start, end))));
        const auto isGround = [&](const auto& area) {
            return area.clip == plot && area.rect.top() == plot.top() && area.rect.bottom() == plot.bottom() && area.colour.alpha() < 100;
        };
        const auto ground = std::ranges::find_if(drawing.areas, isGround);
        const bool isSeen = start != 0 && std::max(start, end) > 20 && std::min(start, end) < 80;
        QCOMPARE(ground != drawing.areas.end(), isSeen);
        if (isSeen && start != end) { // from end to end, as far as it can be seen
            const QRectF seen = ground->rect.intersected(plot);
            QVERIFY(std::abs(seen.left() - std::max(plot.left(), layout.xOf(std::min(start, end)))) < 1e-6);
            QVERIFY(std::abs(seen.right() - std::min(plot.right(), layout.xOf(std::max(start, end)))) < 1e-6);
        }
    }
}

void TestGraphPicture::numberedMarks()
{
    Three graph;
    graph.model.settings().gridOn = false;
    graph.model.settings().cursorOn = false;
    for (const auto& [number, time] : {std::pair(1, 19.9), {2, 20.0}, {3, 40.0}, {44, 40.3}, {5, 60.0}, {6, 80.0}, {7, 80.1}})
        graph.model.addTopMarker({number, time});
    graph.model.addTopMarker({8, std::nan("")});
    const Drawing drawing(graph.model, kSize);
    const GraphLayout& layout = drawing.layout();
    const std::vector<double> lines = uprights(drawing, layout.plot().top(), layout.plot().top() + 8, true);
    std::vector<double> expected;
    for (const double time : {20.0, 40.0, 40.3, 60.0, 80.0})
        expected.push_back(std::floor(layout.xOf(time)));
    QCOMPARE(lines, expected);
    const auto isNumber = [&](const QString& number, double time) {
        return std::ranges::any_of(drawing.texts, [&](const auto& entry) {
            return entry.second == number && std::abs(entry.first.center().x() - layout.xOf(time)) < 1.6 && entry.first.top() >= layout.plot().top() + 8;
        });
    };
    QVERIFY(isNumber("2", 20) && isNumber("3", 40) && !isNumber("44", 40.3) && isNumber("5", 60) && isNumber("6", 80));
    graph.model.settings().cursorOn = true; // its time goes before a number
    graph.model.setCursorPosition(59.9);
    const Drawing covered(graph.model, kSize);
    QVERIFY(std::ranges::none_of(covered.texts, [&](const auto& entry) {
        return entry.second == "5" && std::abs(entry.first.center().x() - layout.xOf(60)) < 1.6 && entry.first.top() < layout.plot().top() + 20;
    }));
    QCOMPARE(uprights(covered, layout.plot().top(), layout.plot().top() + 8, true).size(), expected.size());
}

void TestGraphPicture::handles()
{
    Three graph(eSplit);
    for (const double height : {700.0, 150.0}) {
        const Drawing drawing(graph.model, QSizeF(1400, height));
        QCOMPARE(drawing.shapes.size(), std::size_t(6));
        for (std::size_t i = 0; i < 6; ++i) {
            const int index = static_cast<int>(i / 2);
            const QPointF middle = drawing.layout().handle(index);
            const QRectF box = drawing.shapes[i].box();
            QCOMPARE(drawing.shapes[i].colour, graph.colour(index));
            QVERIFY(box.center().x() == middle.x() && box.left() >= 0 && box.right() < 22); // left of the labels
            const double side = i % 2 ? box.top() - middle.y() : middle.y() - box.bottom(); // one points up, the other down
            QVERIFY(side > 0 && side < 3 && box.height() <= 9.1 && box.height() > 0.5);
            QVERIFY(drawing.layout().area(index).top() <= box.top() + 0.1 && box.bottom() <= drawing.layout().area(index).bottom() + 0.1);
        }
    }
    GraphFrame frame;
    frame.update(graph.model, kSize, 11, 1);
    const QRectF plot = frame.layout().plot();
    for (const auto& [y, expected] : {std::pair(200.0, 200.0), {-50.0, plot.top()}, {5000.0, plot.bottom()}}) {
        Test::RecordingCanvas canvas;
        GraphScene(graph.model, frame, {1, y}).draw(canvas); // one that is dragged
        const auto isDrag = [&](const auto& line) { return line.pen.dash > 0 && line.pen.colour == graph.colour(1) && line.line.y1() == expected; };
        QVERIFY(std::ranges::count_if(canvas.drawnLines, isDrag) == 1);
        QVERIFY(std::abs((canvas.shapes[2].box().bottom() + canvas.shapes[3].box().top()) / 2 - expected) < 1e-6);
    }
    graph.model.settings().displayMode = eSingleGraph;
    QVERIFY(Drawing(graph.model, kSize).shapes.empty());
}

void TestGraphPicture::legendTells_data()
{
    QTest::addColumn<bool>("split");
    QTest::addColumn<double>("width");
    QTest::newRow("full") << false << 1400.0;
    QTest::newRow("full, strips") << true << 1400.0;
    QTest::newRow("value at the cursor") << false << 560.0;
}

void TestGraphPicture::legendTells()
{
    QFETCH(const bool, split);
    QFETCH(const double, width);
    Three graph(split ? eSplit : eSingleGraph);
    graph.model.traces().point(1);
    const Drawing drawing(graph.model, QSizeF(width, 700));
    const GraphLayout& layout = drawing.layout();
    const bool isFull = width > 1000;
    QCOMPARE(layout.legendKind(), isFull ? GraphLayout::ELegend::eFull : GraphLayout::ELegend::eCursor);
    const QRectF cursor = drawing.boxOf("Cursor");
    QVERIFY(!cursor.isEmpty() && cursor.bottom() <= layout.legendLine(graph.model, 0).top() + 3);
    QCOMPARE(drawing.boxOf("Min").isEmpty(), !isFull);
    for (const int index : {0, 1, 2}) {
        const QRectF line = layout.legendLine(graph.model, static_cast<std::size_t>(index));
        std::vector<std::pair<double, QString>> words;
        std::vector<double> rights;
        for (const auto& [box, text] : drawing.texts) {
            if (box.left() >= line.left() && std::abs(box.top() - line.top()) < 2)
                words.emplace_back(box.left(), text), rights.push_back(box.right());
        }
        std::ranges::sort(words);
        QStringList texts;
        for (const auto& [left, text] : words)
            texts << text.trimmed();
        const QStringList numbers = index == 0 ? QStringList{"50.00", "20.00", "80.00"} : index == 1 ? QStringList{"500.00", "200.00", "800.00"}
                                                                                                     : QStringList{"7.00", "7.00", "7.00"};
        QStringList expected{QString("Trace %1").arg(index)};
        expected += isFull ? numbers : numbers.mid(0, 1); // at the cursor, least and greatest of what is shown
        if (index < 2)
            expected << "[kPa]";
        QCOMPARE(texts, expected);
        QVERIFY(std::ranges::count_if(rights, [&](double right) { return std::abs(right - cursor.right()) < 1.01; }) == 1); // below their heading
        const auto ground = std::ranges::count_if(drawing.areas, [&](const auto& area) { return area.rect == line; });
        QCOMPARE(ground, index == 1); // the one that is pointed at
        QVERIFY(std::ranges::any_of(drawing.areas, [&](const auto& area) { return line.contains(area.rect) && area.colour == graph.colour(index); }));
    }
    graph.model.setWindow({200, 300}); // nothing lies there
    graph.model.setCursorPosition(-10);
    const Drawing empty(graph.model, QSizeF(width, 700));
    QCOMPARE(std::ranges::count(empty.texts, QString("-"), [](const auto& entry) { return entry.second; }), isFull ? 9 : 3);
}

void TestGraphPicture::markerTable()
{
    Three graph;
    graph.model.setMarker({30, 60});
    const Drawing drawing(graph.model, kSize);
    const GraphLayout& layout = drawing.layout();
    const auto values = markerValues(graph.model.traces(), graph.model.marker());
    std::vector<QRectF> headings;
    for (const QString& heading : MarkerValues::headers()) {
        headings.push_back(drawing.boxOf(heading));
        QVERIFY2(layout.table().contains(headings.back()), qPrintable(heading));
    }
    QVERIFY(!drawing.boxOf("dt = 30.000 s").isEmpty());
    for (std::size_t row = 0; row < 3; ++row) {
        const double top = layout.table().top() + static_cast<double>(row + 1) * layout.line();
        const QStringList cells = values[row].texts();
        for (qsizetype cell = 0; cell < cells.size(); ++cell) {
            const QRectF& heading = headings[static_cast<std::size_t>(cell)];
            const auto isCell = [&](const auto& entry) {
                return entry.second == cells[cell] && std::abs(entry.first.top() - top) < 1.01 && std::abs(entry.first.right() - heading.right()) < 1.01;
            };
            QVERIFY2(std::ranges::count_if(drawing.texts, isCell) == 1, qPrintable(cells[cell]));
        }
        const auto isSwatch = [&](const auto& area) {
            return area.colour == graph.colour(static_cast<int>(row)) && area.rect.left() >= layout.table().left() && area.rect.top() >= top && area.rect.bottom() <= top + layout.line();
        };
        QVERIFY(std::ranges::any_of(drawing.areas, isSwatch));
    }
    QVERIFY(values[0].texts() == QStringList({"30.00", "60.00", "30.00", "30.00", "60.00", "45.000", "0.375"}));
    graph.model.traces().point(1);
    const Drawing pointed(graph.model, kSize);
    const QRectF line(layout.table().left(), layout.table().top() + 2 * layout.line(), layout.table().width(), layout.line());
    QVERIFY(std::ranges::count(pointed.areas, line, [](const auto& area) { return area.rect; }) == 1 &&
            std::ranges::count(drawing.areas, line, [](const auto& area) { return area.rect; }) == 0);
}

void TestGraphPicture::message()
{
    Three graph;
    QVERIFY(Drawing(graph.model, QSizeF(600, 400)).boxOf("one").isEmpty());
    graph.model.scenery().setMessage("one\ntwo three");
    const Drawing drawing(graph.model, QSizeF(600, 400));
    const QRectF one = drawing.boxOf("one"), two = drawing.boxOf("two three"), plot = drawing.layout().plot();
    QVERIFY(!one.isEmpty() && one.bottom() <= two.top() + 1 && two.top() - one.bottom() < 12);
    QVERIFY(std::abs(one.center().x() - plot.center().x()) < 1.5 && std::abs((one.top() + two.bottom()) / 2 - plot.center().y()) < 2);
    const QRectF ground = drawing.areas.back().rect.isEmpty() ? QRectF() : drawing.areas.back().rect;
    QVERIFY(ground.contains(one) && ground.contains(two) && plot.contains(ground)); // above whatever stands there
    QVERIFY(one.top() - ground.top() < 20 && ground.bottom() - two.bottom() < 20 && two.left() - ground.left() < 24); // and no more than that
}

/// Another flight is drawn behind, moved by its shift; in a single graph that of the axis alone.
void TestGraphPicture::otherFlight()
{
    for (const bool split : {false, true}) {
        Three graph(split ? eSplit : eSingleGraph);
        graph.model.scenery().setGhost(std::make_shared<Ghost>(Ghost{"Other", graph.model.traces()}));
        graph.model.scenery().setGhostShift(10);
        const Drawing drawing(graph.model, kSize);
        const auto strips = traceStrips(drawing);
        QCOMPARE(strips.size(), std::size_t(split ? 6 : 4));
        for (std::size_t i = 0; i + 3 < strips.size(); ++i) { // before the own ones
            const int index = split ? static_cast<int>(i) : graph.model.traces().axis();
            const QRectF area = drawing.layout().area(index);
            const ValueSpan span = graph.model.valueSpan(index);
            QVERIFY(strips[i].pen.colour != graph.colour(index) && strips[i].clip == area);
            for (const QPointF& point : strips[i].points) {
                const double time = drawing.layout().timeAt(point.x() + 0.5) - 10;
                const double expected = index == 0 ? time : index == 1 ? 1000 - 10 * time : 7;
                if (!std::isnan(point.y())) // between dashes
                    QVERIFY(std::abs(valueAt(point.y() + 0.5, area, span) - expected) < 0.01 * (span[1] - span[0]));
            }
        }
    }
}

QTEST_MAIN(TestGraphPicture)
#include "TestGraphPicture.moc"
