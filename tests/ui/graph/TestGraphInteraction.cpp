#include "GraphFixtures.h"
#include "ui/graph/model/CursorLabels.h"
#include "ui/graph/model/GhostLines.h"
#include "ui/graph/model/GraphInteraction.h"

#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace ZARN;
using Test::layoutOf;
using Test::OneTrace;

class TestGraphInteraction : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void zoomsAboutPointer();
    void marksAndPans();
    void keysMoveCursor();
    void dragsCursor();
    void courseAndGhost();
    void wordsAreNoTimes();
    void legendChooses_data();
    void legendChooses();
    void dragsStrips();
    void valueAxis_data();
    void valueAxis();
    void keys();
};

void TestGraphInteraction::zoomsAboutPointer()
{
    OneTrace graph;
    graph.model.setWindow({0, 100});
    graph.model.settings().graphMode = eAutomatic;
    GraphInteraction hand(graph.model);
    const GraphLayout layout = layoutOf(graph.model);
    hand.setLayout(layout);
    hand.moved(QPointF(layout.xOf(25), 100));
    for (const auto& [delta, modifiers, begin, end] : {std::tuple(120, Qt::NoModifier, 2.5, 92.5),
                                                       {-120, Qt::NoModifier, 0.0, 100.0},
                                                       {120, Qt::ShiftModifier, 0.0, 100.0},
                                                       {60, Qt::NoModifier, 25 - 25 * std::sqrt(0.9), 25 + 75 * std::sqrt(0.9)},
                                                       {-60, Qt::NoModifier, 0.0, 100.0}}) {
        hand.wheel(delta, modifiers);
        QVERIFY(std::abs(graph.model.window().begin() - begin) < 1e-9 && std::abs(graph.model.window().end() - end) < 1e-9);
        QVERIFY(graph.model.settings().graphMode == eManual);
    }
    const QPointF pressed(layout.xOf(75), 100); // by a touch, which does not move there first
    hand.pressed(Qt::LeftButton, pressed, {});
    hand.released(Qt::LeftButton, pressed);
    hand.wheel(120, {});
    QVERIFY(std::abs(graph.model.window().begin() - 7.5) < 1e-6 && std::abs(graph.model.window().end() - 97.5) < 1e-6);
}

void TestGraphInteraction::marksAndPans()
{
    OneTrace graph;
    graph.model.setWindow({0, 100});
    graph.model.settings().graphMode = eAutomatic;
    GraphInteraction hand(graph.model);
    const GraphLayout layout = layoutOf(graph.model);
    hand.setLayout(layout);
    QSignalSpy marker(&graph.model, &GraphModel::signalMarker), manual(&graph.model, &GraphModel::signalManMode);
    const auto at = [&](double time) { return QPointF(layout.xOf(time), 200); };

    hand.pressed(Qt::LeftButton, at(60), {});
    QCOMPARE(marker.takeLast().at(1).toFloat(), 60.0F);
    hand.moved(at(20));
    hand.released(Qt::LeftButton, at(20));
    QVERIFY(std::abs(graph.model.marker().start - 20) < 1e-6); // swapped
    QVERIFY(std::abs(graph.model.marker().end - 60) < 1e-6);
    hand.pressed(Qt::LeftButton, at(10), Qt::ControlModifier);
    hand.released(Qt::LeftButton, at(10));
    QVERIFY(std::abs(graph.model.marker().start - 10) < 1e-6);
    hand.pressed(Qt::LeftButton, at(30), Qt::ControlModifier);
    QVERIFY(std::abs(graph.model.marker().end - 30) < 1e-6);
    hand.released(Qt::LeftButton, at(30));
    hand.pressed(Qt::LeftButton, at(30) + QPointF(2, 0), {}); // its end, which is taken along
    hand.moved(at(40));
    hand.released(Qt::LeftButton, at(40));
    QVERIFY(std::abs(graph.model.marker().start - 10) < 1e-6 && std::abs(graph.model.marker().end - 40) < 1e-6);

    graph.model.settings().clickMovesCursor = true;
    hand.pressed(Qt::LeftButton, at(70), {});
    hand.moved(at(70) + QPointF(2, 0));
    hand.released(Qt::LeftButton, at(70));
    QVERIFY(std::abs(graph.model.cursor().time - 70) < 1e-6 && std::abs(graph.model.marker().end - 40) < 1e-6);
    hand.pressed(Qt::LeftButton, at(75), {});
    hand.moved(at(80));
    hand.released(Qt::LeftButton, at(80));
    QVERIFY(std::abs(graph.model.cursor().time - 70) < 1e-6 && std::abs(graph.model.marker().start - 75) < 1e-6);

    QVERIFY(manual.isEmpty());
    hand.pressed(Qt::RightButton, at(50), {});
    QVERIFY(hand.released(Qt::RightButton, at(50))); // a click wants the menu
    QCOMPARE(graph.model.window().begin(), 0.0);
    hand.pressed(Qt::RightButton, at(50), {});
    hand.moved(at(40));
    QVERIFY(!hand.released(Qt::RightButton, at(40)));
    QVERIFY(std::abs(graph.model.window().begin() - 10) < 1e-6);
    QCOMPARE(manual.count(), 1);
}

void TestGraphInteraction::keysMoveCursor()
{
    OneTrace graph;
    graph.model.setWindow({0, 100});
    graph.model.setCursorPosition(50);
    GraphInteraction hand(graph.model);
    const GraphLayout layout = layoutOf(graph.model);
    hand.setLayout(layout);
    QSignalSpy cursor(&graph.model, &GraphModel::signalCursor);
    const double pixel = 100 / layout.plot().width();
    hand.keyPressed(Qt::Key_Right);
    QVERIFY(std::abs(graph.model.cursor().time - 50 - pixel) < 1e-9);
    hand.keyPressed(Qt::Key_Left, Qt::ShiftModifier); // held since before the focus came
    QVERIFY(std::abs(graph.model.cursor().time - 50 + 9 * pixel) < 1e-9);
    const double before = graph.model.cursor().value;
    hand.keyPressed(Qt::Key_Up);
    QVERIFY(std::abs(graph.model.cursor().value - before - 120 / layout.plot().height()) < 1e-9); // of the range -10..110
    QCOMPARE(cursor.count(), 3);
    QVERIFY(graph.model.cursor().isMoving);
    hand.keyPressed(Qt::Key_Shift);
    for (int i = 0; i < 100; ++i)
        hand.keyPressed(Qt::Key_Right);
    QVERIFY(graph.model.cursor().time > 120); // the window comes along
    QVERIFY(std::abs(graph.model.window().end() - graph.model.cursor().time - 10) < 1e-3);
}

void TestGraphInteraction::dragsCursor()
{
    OneTrace graph;
    graph.model.settings().cursorMode = eCenter;
    graph.model.setWindow({0, 100});
    GraphInteraction hand(graph.model);
    const GraphLayout first = layoutOf(graph.model);
    hand.setLayout(first);
    hand.pressed(Qt::MiddleButton, QPointF(first.xOf(70), 200), {});
    for (int pixel = 1; pixel <= 20; ++pixel) {
        hand.setLayout(layoutOf(graph.model)); // each step has moved the window
        hand.moved(QPointF(first.xOf(70) + pixel, 200));
    }
    QVERIFY(std::abs(graph.model.cursor().time - 70 - 20 / first.pixelsPerSecond()) < 1e-6);
    hand.released(Qt::MiddleButton, {});

    graph.model.settings().cursorMode = eFloating;
    graph.model.setWindow({0, 100});
    hand.setLayout(layoutOf(graph.model));
    hand.pressed(Qt::LeftButton, QPointF(2, 200), Qt::ShiftModifier); // on the labels of the axis
    QCOMPARE(graph.model.cursor().time, 0.0);
    hand.moved(QPointF(5000, 200));
    QVERIFY(std::abs(graph.model.cursor().time - 100) < 1e-6);
}

void TestGraphInteraction::courseAndGhost()
{
    OneTrace graph;
    graph.model.setWindow({0, 100});
    auto pGhost = std::make_shared<Ghost>(Ghost{"Flight 1", graph.model.traces()});
    graph.model.scenery().setGhost(pGhost);
    graph.model.scenery().setGhostShift(10);
    QCOMPARE(ghostValue(*pGhost, 0, 40.5, 10).value(), 30.0);
    QVERIFY(!ghostValue(*pGhost, 0, 9, 10) && !ghostValue(*pGhost, 0, 111, 10) && !ghostValue(*pGhost, 1, 40, 10));
    GhostLines kept;
    for (const double begin : {36.0, 39.0, 90.0, 37.0, 0.0}) { // what is kept of its line is what is made anew
        graph.model.setWindow({begin, begin + 64});
        const GraphLayout layout = layoutOf(graph.model);
        GhostLines anew;
        std::vector<QPointF> points, others;
        for (auto& [lines, places] : {std::pair<GhostLines&, std::vector<QPointF>&>(kept, points), {anew, others}}) {
            lines.update(graph.model, layout, 1);
            lines.place(0, layout.area(0), places);
        }
        const auto isSame = [](const QPointF& a, const QPointF& b) { return a == b || (std::isnan(a.y()) && std::isnan(b.y())); };
        QVERIFY(points.size() > 10 && std::ranges::equal(points, others, isSame));
    }
    graph.model.setWindow({0, 100});
    auto pCourse = std::make_shared<CycleCourse>();
    pCourse->incidents = {{{30, 60}, 1, "A", {}}, {{50, 50.1}, 2, "B", {}}};
    graph.model.scenery().setCourse(pCourse);
    const GraphLayout layout = layoutOf(graph.model);
    GraphInteraction hand(graph.model);
    hand.setLayout(layout);
    QSignalSpy incidents(&graph.model, &GraphModel::signalIncident);
    const QPointF mark(0, layout.plot().bottom() + 3);
    for (const auto& [time, incident] : {std::pair(35.0, 0), {50.0, 1}, {90.0, -1}}) {
        hand.pressed(Qt::LeftButton, mark + QPointF(layout.xOf(time), 0), {});
        hand.released(Qt::LeftButton, mark + QPointF(layout.xOf(time), 0));
        QCOMPARE(incidents.empty() ? -1 : incidents.takeFirst().front().value<std::size_t>(), static_cast<std::size_t>(incident));
    }
    const GraphMarker before = graph.model.marker();
    const QPointF from = layout.plot().center();
    hand.pressed(Qt::LeftButton, from, Qt::AltModifier);
    hand.moved(from + QPointF(layout.pixelsPerSecond() * 7, 0));
    hand.released(Qt::LeftButton, from);
    hand.moved(from);
    QVERIFY(std::abs(graph.model.scenery().ghostShift() - 17) < 1e-6 && graph.model.marker().start == before.start);
}

void TestGraphInteraction::wordsAreNoTimes()
{
    OneTrace graph;
    graph.model.setWindow({0, 100});
    graph.model.setMarker({20, 30});
    GraphInteraction hand(graph.model);
    const GraphLayout layout = layoutOf(graph.model, QSizeF(1400, 500), true);
    hand.setLayout(layout);
    for (const QPointF& point : {layout.table().center(), layout.legend().center()}) {
        hand.pressed(Qt::LeftButton, point, {});
        hand.released(Qt::LeftButton, point);
        hand.pressed(Qt::LeftButton, point, Qt::ShiftModifier);
        hand.released(Qt::LeftButton, point);
        hand.pressed(Qt::MiddleButton, point, {});
        hand.released(Qt::MiddleButton, point);
    }
    QCOMPARE(graph.model.marker().start, 20.0);
    QCOMPARE(graph.model.marker().end, 30.0);
    QCOMPARE(graph.model.cursor().time, 0.0);
}

void TestGraphInteraction::legendChooses_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<bool>("split");
    QTest::newRow("beside") << QSizeF(1400, 600) << false;
    QTest::newRow("over") << QSizeF(250, 400) << false;
    QTest::newRow("over strips") << QSizeF(250, 400) << true;
}

void TestGraphInteraction::legendChooses()
{
    QFETCH(const QSizeF, size);
    QFETCH(const bool, split);
    GraphModel model;
    for (const int index : {0, 1, 2}) {
        model.traces().setActive(index, true);
        model.traces().setName(index, QString("Oil Pressure %1").arg(index), "bar");
    }
    model.settings().displayMode = split ? eSplit : eSingleGraph;
    layoutOf(model, size, true);
    const GraphLayout layout = layoutOf(model, size, true);
    GraphInteraction hand(model);
    hand.setLayout(layout);
    for (const std::size_t row : {0, 1, 2})
        QVERIFY(QRectF({}, size).contains(layout.legendLine(model, row)) && layout.legendLine(model, row).height() > 0);
    const QPointF line = layout.legendLine(model, 1).center(), other = layout.legendLine(model, 2).center();
    const QPointF outside(layout.plot().right() - 1, layout.plot().bottom() - 1);
    hand.moved(line);
    QCOMPARE(model.traces().highlighted(), 1);
    hand.pressed(Qt::LeftButton, line, {});
    hand.released(Qt::LeftButton, line);
    hand.moved(other);
    QCOMPARE(model.traces().highlighted(), 2);
    hand.moved(outside);
    QCOMPARE(model.traces().highlighted(), 1);

    model.traces().setName(1, "Torque", "Nm"); // another parameter takes the slot
    hand.moved(outside);
    QCOMPARE(model.traces().highlighted(), -1);
    hand.pressed(Qt::LeftButton, line, {});
    hand.released(Qt::LeftButton, line);
    model.traces().setActive(1, false);
    hand.left();
    model.traces().setActive(1, true);
    hand.left();
    QCOMPARE(model.traces().highlighted(), -1);
    QCOMPARE(model.traces().axis(), 0);
}

void TestGraphInteraction::dragsStrips()
{
    GraphModel model;
    for (const int index : {0, 2, 4})
        model.traces().setActive(index, true);
    model.settings().displayMode = eSplit;
    model.settings().graphMode = eManual;
    layoutOf(model);
    const GraphLayout layout = layoutOf(model);
    GraphInteraction hand(model);
    hand.setLayout(layout);
    QSignalSpy moved(&model, &GraphModel::signalMoveParameter);
    model.setMarker({20, 30});
    hand.pressed(Qt::LeftButton, layout.handle(0) + QPointF(5, 5), {});
    QCOMPARE(hand.dragged().index, 0);
    hand.moved(layout.handle(4));
    hand.released(Qt::LeftButton, layout.handle(4));
    QCOMPARE(moved.takeFirst(), (QList<QVariant>{0, 4}));
    QCOMPARE(model.traces().shown(), (std::vector<int>{2, 4, 0}));
    QCOMPARE(model.marker().end, 30.0);
    hand.pressed(Qt::LeftButton, layout.plot().center(), {});
    QCOMPARE(hand.dragged().index, -1);

    hand.setLayout(layoutOf(model));
    model.moveCursor(30, 0.5, 2);
    for (const auto& [key, strip] : {std::pair(Qt::Key_Down, 4), std::pair(Qt::Key_Up, 2)}) {
        for (int step = 0; step < 15; ++step)
            hand.keyPressed(key, Qt::ShiftModifier);
        QCOMPARE(model.cursor().strip, strip);
        const GraphLayout frame = layoutOf(model);
        const CursorLabels cursor(model, frame);
        QVERIFY(cursor.y() && frame.area(strip).contains(frame.plot().center().x(), *cursor.y()));
    }
}

void TestGraphInteraction::valueAxis_data()
{
    QTest::addColumn<bool>("split");
    QTest::addColumn<bool>("shared");
    QTest::newRow("single") << false << false;
    QTest::newRow("strips") << true << false;
    QTest::newRow("strips, one scale for the unit") << true << true;
}

void TestGraphInteraction::valueAxis()
{
    QFETCH(const bool, split);
    QFETCH(const bool, shared);
    OneTrace graph;
    GraphModel& model = graph.model;
    for (const int index : {1, 2}) {
        model.traces().setActive(index, true);
        model.putValues(index, std::vector<double>{0, 50, 100}, std::vector<double>{300.0 * index, 300.0 * index, 400});
    }
    for (const int index : {0, 1, 2})
        model.traces().setName(index, QString::number(index), index == 2 ? "K" : "bar");
    model.settings().displayMode = split ? eSplit : eSingleGraph;
    model.settings().scale.isShared = shared;
    model.setWindow({0, 50});
    GraphInteraction hand(model);
    const auto spans = [&model] { return std::array{model.valueSpan(0), model.valueSpan(1), model.valueSpan(2)}; };
    const auto before = spans();
    QCOMPARE(before[0] == before[1], shared);
    const GraphLayout layout = layoutOf(model, QSizeF(900, 700));
    hand.setLayout(layout);
    QCOMPARE(layout.axes().size(), 3U);
    const QRectF axis = layout.axes()[1].labels;
    const QPointF grip(axis.right() - 3, axis.top() + axis.height() / 4);
    QCOMPARE(axisAt(layout, grip), 1);
    hand.moved(grip);
    hand.wheel(120, {}); // about the value under the pointer, at three quarters
    const double width = before[1][1] - before[1][0];
    QVERIFY(std::abs(model.valueSpan(1)[0] - before[1][0] - 0.075 * width) < 1e-6);
    QVERIFY(std::abs(model.valueSpan(1)[1] - before[1][1] + 0.025 * width) < 1e-6);
    hand.pressed(Qt::LeftButton, grip, {});
    hand.moved(grip + QPointF(0, axis.height() / 2));
    hand.released(Qt::LeftButton, grip);
    QVERIFY(std::abs(model.valueSpan(1)[0] - before[1][0] - 0.525 * width) < 1e-6); // the values follow the pointer
    QVERIFY(model.valueSpan(2) == before[2] && (model.valueSpan(0) == before[0]) != shared);
    QVERIFY(model.window() == TimeWindow(0, 50) && !model.marker().isRange());
    QVERIFY(hand.doublePressed(grip, {}));
    QVERIFY(std::abs(model.valueSpan(1)[0] - (shared ? -30 : 299.9999)) < 1e-3); // of the 300 in sight, or with the other trace's 0 to 50
    hand.keyPressed(Qt::Key_0, Qt::ControlModifier);
    QVERIFY(!hand.doublePressed(layout.plot().center(), {}));
    hand.doublePressed(grip, {});
    QVERIFY(model.valueSpan(1) == before[1]); // back to the whole record
    for (const double factor : {1e-30, std::nan(""), -1.0, 0.0, 1e30})
        hand.zoom(factor);
    QVERIFY(model.valueSpan(1)[1] - model.valueSpan(1)[0] > 1e-7 && model.valueSpan(1)[1] < 1e13);
    model.reset();
    QVERIFY(model.settings().scale.zoomed.empty());
}

void TestGraphInteraction::keys()
{
    GraphModel model;
    model.traces().setCount(30);
    for (int index = 0; index < 30; ++index) {
        model.traces().setActive(index, true);
        model.putValues(index, std::vector<double>{0, 1000}, std::vector<double>{0, 1});
    }
    model.settings().displayMode = eSplit;
    model.settings().graphMode = eManual;
    model.setWindow({0, 100});
    model.setCursorPosition(50);
    const auto press = [&model](int key, Qt::KeyboardModifiers modifiers = {}, const QSizeF& size = QSizeF(800, 500)) {
        GraphInteraction hand(model);
        const GraphLayout layout = layoutOf(model, size, true);
        hand.setLayout(layout);
        return hand.keyPressed(key, modifiers) ? layout : GraphLayout();
    };
    const double pixel = 1 / press(Qt::Key_Right, Qt::ControlModifier).pixelsPerSecond();
    QVERIFY(std::abs(model.marker().start - 50) < 1e-9 && std::abs(model.marker().end - 50 - pixel) < 1e-9);
    press(Qt::Key_Left, Qt::AltModifier | Qt::ShiftModifier);
    QVERIFY(std::abs(model.marker().start - 50 + 10 * pixel) < 1e-9);
    for (int i = 0; i < 29; ++i) // every line of the table can be reached
        press(Qt::Key_PageDown, Qt::AltModifier);
    press(Qt::Key_PageDown, Qt::AltModifier);
    QCOMPARE(model.traces().highlighted(), 29);
    const VisibleRows rows = layoutOf(model).markerSheet().visible();
    QVERIFY(rows.isCut() && rows.first + rows.count == 30);
    press(Qt::Key_PageUp, Qt::ShiftModifier);
    QCOMPARE(layoutOf(model).markerSheet().visible().first, rows.first - rows.count + 1);
    model.scenery().setGhost(std::make_shared<Ghost>());
    press(Qt::Key_Comma);
    const double scale = press(Qt::Key_Period, Qt::ControlModifier).pixelsPerSecond();
    QVERIFY(std::abs(model.scenery().ghostShift() - 9 / scale) < 1e-9);
    model.scenery().setGhost(nullptr);
    press(Qt::Key_PageUp, Qt::ControlModifier);
    QCOMPARE(model.traces().shown()[28], 29);
    press(Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(model.traces().at(29)->height, 1.25);
    press(Qt::Key_Up, Qt::AltModifier);
    QVERIFY(std::abs(model.valueSpan(29)[0] - 0.02) < 1e-9);
    press(Qt::Key_End);
    QCOMPARE(model.window().end(), 1000.0);
    press(Qt::Key_PageUp, Qt::KeypadModifier);
    QCOMPARE(model.window().end(), 910.0);
    press(Qt::Key_Minus);
    QCOMPARE(model.window().width(), 125.0);
    press(Qt::Key_Escape);
    QVERIFY(!model.marker().isRange());
    QSignalSpy command(&model, &GraphModel::signalCommand);
    for (const int key : {Qt::Key_Z, Qt::Key_Y, Qt::Key_0, Qt::Key_1})
        press(key, Qt::ControlModifier);
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    press(Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(command.count(), 6);
    QCOMPARE(command[4][0], command[1][0]);

    model.traces().setCount(2); // an edge between two strips
    for (const int index : {0, 1})
        model.traces().setActive(index, true);
    const GraphLayout layout = layoutOf(model);
    GraphInteraction hand(model);
    hand.setLayout(layout);
    const QPointF edge(layout.plot().left() - 5, layout.area(0).bottom());
    QSignalSpy strips(&model, &GraphModel::signalStrips);
    hand.pressed(Qt::LeftButton, edge, {});
    hand.moved(edge - QPointF(0, layout.area(0).height() / 2));
    QCOMPARE(model.traces().at(0)->height, 0.5);
    QCOMPARE(model.traces().at(1)->height, 1.5);
    hand.moved(edge - QPointF(0, 5000)); // never away
    hand.released(Qt::LeftButton, edge);
    QVERIFY(model.traces().at(0)->height > 0.1);
    QCOMPARE(strips.count(), 1);
}

QTEST_MAIN(TestGraphInteraction)
#include "TestGraphInteraction.moc"
