#include "GraphFixtures.h"
#include "ui/graph/model/GraphInteraction.h"

#include <QSignalSpy>
#include <QTest>

#include <cmath>

using namespace ZARN;
using Test::layoutOf;
using Test::OneTrace;

/// What pointer, wheel and held keys do in a graph.
class TestGraphHand : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void shapeTellsWhatIsThere();
    void heldKeys();
    void wheelScrollsLists();
    void tremblingHands();
    void reachOfHandles();
};

void TestGraphHand::shapeTellsWhatIsThere()
{
    GraphModel model;
    for (const int index : {0, 1, 2})
        model.traces().setActive(index, true);
    model.settings().displayMode = eSplit;
    model.settings().graphMode = eManual;
    model.setWindow({0, 100});
    model.setMarker({30, 60});
    const GraphLayout layout = layoutOf(model, QSizeF(1400, 600), true);
    GraphInteraction hand(model);
    hand.setLayout(layout);
    const double axis = layout.plot().left() - 5;
    for (const auto& [point, shape] : {std::pair(layout.plot().center(), Qt::ArrowCursor), {layout.legendLine(model, 1).center(), Qt::PointingHandCursor},
                                       {layout.handle(1), Qt::PointingHandCursor}, {QPointF(axis, layout.area(0).bottom()), Qt::SplitVCursor},
                                       {QPointF(axis, layout.area(1).center().y()), Qt::SizeVerCursor},
                                       {QPointF(layout.xOf(60), layout.plot().center().y()), Qt::SplitHCursor}}) {
        hand.moved(point);
        QVERIFY2(hand.shape() == shape, qPrintable(QString("%1 %2: %3").arg(point.x()).arg(point.y()).arg(hand.shape())));
    }
    hand.pressed(Qt::RightButton, layout.plot().center(), {});
    QCOMPARE(hand.shape(), Qt::ClosedHandCursor);
    hand.released(Qt::RightButton, layout.plot().center());
    hand.pressed(Qt::LeftButton, QPointF(axis, layout.area(0).bottom()), {});
    hand.moved(layout.plot().center());
    QCOMPARE(hand.shape(), Qt::SplitVCursor);
    hand.released(Qt::LeftButton, layout.plot().center());
    hand.pressed(Qt::LeftButton, QPointF(axis, layout.area(1).center().y()), {});
    hand.moved(layout.plot().center());
    QCOMPARE(hand.shape(), Qt::SizeVerCursor);
    hand.released(Qt::LeftButton, layout.plot().center());
    QCOMPARE(hand.shape(), Qt::ArrowCursor);
}

/// Shift, Control and Alt count whether they come with the event or were pressed before.
void TestGraphHand::heldKeys()
{
    OneTrace graph;
    graph.model.setWindow({0, 100});
    GraphInteraction hand(graph.model);
    const GraphLayout layout = layoutOf(graph.model);
    hand.setLayout(layout);
    const auto at = [&](double time) { return QPointF(layout.xOf(time), 200); };
    const auto click = [&](double time) {
        hand.pressed(Qt::LeftButton, at(time), {});
        hand.released(Qt::LeftButton, at(time));
    };
    QVERIFY(!hand.keyPressed(Qt::Key_F35) && !hand.keyReleased(Qt::Key_F35));
    click(40);
    QVERIFY(hand.keyPressed(Qt::Key_Control));
    click(60);
    QVERIFY(std::abs(graph.model.marker().start - 40) < 1e-6 && std::abs(graph.model.marker().end - 60) < 1e-6);
    QVERIFY(hand.keyReleased(Qt::Key_Control));
    click(70);
    QVERIFY(std::abs(graph.model.marker().start - 70) < 1e-6 && !graph.model.marker().isRange());
    QVERIFY(hand.keyPressed(Qt::Key_Shift));
    click(20);
    QVERIFY(std::abs(graph.model.cursor().time - 20) < 1e-6 && std::abs(graph.model.marker().start - 70) < 1e-6);
    const TimeWindow before = graph.model.window();
    hand.wheel(120, {});
    QVERIFY(graph.model.window() == before && hand.keyReleased(Qt::Key_Shift));
    hand.wheel(120, {});
    QVERIFY(!(graph.model.window() == before));
    graph.model.setWindow(before);
    graph.model.scenery().setGhost(std::make_shared<Ghost>(Ghost{"", graph.model.traces()}));
    QVERIFY(hand.keyPressed(Qt::Key_Alt));
    hand.pressed(Qt::LeftButton, at(50), {});
    hand.moved(at(58));
    hand.released(Qt::LeftButton, at(58));
    QVERIFY(hand.keyReleased(Qt::Key_Alt) && std::abs(graph.model.scenery().ghostShift() - 8) < 1e-6);
    hand.moved(at(90));
    QVERIFY(std::abs(graph.model.scenery().ghostShift() - 8) < 1e-6);
    const QPointF axis = layout.axes()[0].labels.center();
    for (const int key : {Qt::Key_Shift, Qt::Key_Control}) {
        hand.keyPressed(key);
        QVERIFY(!hand.doublePressed(axis, {}));
        hand.keyReleased(key);
        QVERIFY(!hand.doublePressed(axis, Qt::ShiftModifier));
    }
    QVERIFY(hand.doublePressed(axis, {}));
    hand.swiped(layout.pixelsPerSecond() * 10);
    QVERIFY(std::abs(graph.model.window().begin() + 10) < 1e-6 && std::abs(graph.model.window().end() - 90) < 1e-6);
}

void TestGraphHand::wheelScrollsLists()
{
    GraphModel model;
    model.traces().setCount(30);
    for (int index = 0; index < 30; ++index) {
        model.traces().setActive(index, true);
        model.putValues(index, std::vector<double>{0, 100}, std::vector<double>{0, 1});
    }
    model.settings().graphMode = eManual;
    model.setWindow({0, 100});
    model.setMarker({20, 60});
    GraphInteraction hand(model);
    QSignalSpy repaint(&model, &GraphModel::signalRepaint);
    const auto wheel = [&](bool isTable, int delta) {
        const GraphLayout layout = layoutOf(model, QSizeF(1400, 500), true);
        hand.setLayout(layout);
        hand.moved(isTable ? layout.table().center() : layout.legend().center());
        repaint.clear();
        hand.wheel(delta, {});
        const GraphLayout after = layoutOf(model, QSizeF(1400, 500), true);
        return isTable ? after.markerSheet().visible().first : after.legendRows().first;
    };
    for (const bool isTable : {false, true}) {
        QCOMPARE(wheel(isTable, -120), 3); // three lines a notch
        QVERIFY(!repaint.isEmpty());
        QCOMPARE(wheel(isTable, -40), 4);
        QCOMPARE(wheel(isTable, -20), 4); // parts of a line are gathered
        QCOMPARE(wheel(isTable, -20), 5);
        QCOMPARE(wheel(isTable, 120), 2);
        QCOMPARE(wheel(isTable, 1200), 0);
        const int last = wheel(isTable, -12000);
        QCOMPARE(wheel(isTable, -120), last);
        QCOMPARE(wheel(isTable, 120), last - 3);
    }
    QVERIFY(model.window() == TimeWindow(0, 100));
}

void TestGraphHand::tremblingHands()
{
    OneTrace graph;
    graph.model.setWindow({0, 100});
    GraphInteraction hand(graph.model);
    const GraphLayout layout = layoutOf(graph.model);
    hand.setLayout(layout);
    const QPointF from = layout.plot().center();
    for (const auto& [step, isMoved] : {std::pair(QPointF(2.7, 2.7), false), {QPointF(0, 3.9), false}, {QPointF(-4.1, 0), true}, {QPointF(2.9, 2.9), true}}) {
        graph.model.setWindow({0, 100});
        hand.pressed(Qt::RightButton, from, {});
        hand.moved(from + step);
        QCOMPARE(graph.model.window() == TimeWindow(0, 100) || step.x() == 0, !isMoved);
        hand.moved(from); // back again: it was no click all the same
        QCOMPARE(hand.released(Qt::RightButton, from), !isMoved);
    }
    graph.model.setWindow({0, 100});
    hand.moved(from + QPointF(50, 0));
    QVERIFY(graph.model.window() == TimeWindow(0, 100)); // released
    QSignalSpy finished(&graph.model, &GraphModel::signalMoveCursorFinished);
    hand.pressed(Qt::MiddleButton, from, {});
    QVERIFY(graph.model.cursor().isMoving && std::abs(graph.model.cursor().time - 50) < 0.1);
    hand.moved(from + QPointF(30, 0));
    QVERIFY(!hand.released(Qt::MiddleButton, from) && !graph.model.cursor().isMoving && finished.count() == 1);
    const double time = graph.model.cursor().time;
    hand.moved(from + QPointF(90, 0));
    QVERIFY(graph.model.cursor().time == time && std::abs(time - layout.timeAt(from.x() + 30)) < 1e-6);
}

/// The nearest strip's handle is taken, within its reach; in a single graph there is none.
void TestGraphHand::reachOfHandles()
{
    GraphModel model;
    for (const int index : {0, 1})
        model.traces().setActive(index, true);
    model.settings().displayMode = eSplit;
    const GraphLayout layout = layoutOf(model);
    GraphInteraction hand(model);
    hand.setLayout(layout);
    for (const auto& [point, strip] : {std::pair(layout.handle(0) + QPointF(0, 38), 0), {layout.handle(0) + QPointF(0, 39.5), -1}, {layout.handle(1) - QPointF(0, 38), 1},
                                       {layout.handle(1) + QPointF(30, 20), 1}, {layout.handle(1) + QPointF(30, 30), -1}}) {
        hand.pressed(Qt::LeftButton, point, {});
        QCOMPARE(hand.dragged().index, strip);
        hand.released(Qt::LeftButton, point);
        QCOMPARE(hand.dragged().index, -1);
    }
    const GraphLayout low = layoutOf(model, QSizeF(800, 120));
    hand.setLayout(low);
    hand.pressed(Qt::LeftButton, (low.handle(0) + low.handle(1)) / 2 + QPointF(0, 2), {});
    QCOMPARE(hand.dragged().index, 1);
    hand.released(Qt::LeftButton, low.handle(1));
    model.settings().displayMode = eSingleGraph;
    hand.pressed(Qt::LeftButton, layout.handle(0), {});
    QCOMPARE(hand.dragged().index, -1);
}

QTEST_MAIN(TestGraphHand)
#include "TestGraphHand.moc"
