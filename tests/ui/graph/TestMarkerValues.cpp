#include "ui/graph/model/GraphModel.h"
#include "ui/graph/model/MarkerValues.h"

#include <QTest>

#include <cmath>

using namespace ZARN;

class TestMarkerValues : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void markerValues();
    void markerText();
    void markerOfLittle();
};

void TestMarkerValues::markerValues()
{
    GraphModel model;
    model.traces().setActive(0, true);
    model.traces().setName(0, "Fuel Flow", "l/h");
    const auto marked = [&](double start, double end) { return ZARN::markerValues(model.traces(), {start, end}).front(); };
    // 10 l/h for an hour, then 20 l/h for half of one.
    const std::vector<double> times{0, 3600, 3600.001, 5400}, values{10, 10, 20, 20};
    model.putValues(0, times, values);
    const MarkerValues hour = marked(4500, 1800);
    QCOMPARE(*hour.atStart, 10.0);
    QCOMPARE(*hour.atEnd, 20.0);
    QCOMPARE(*hour.difference, 10.0);
    QCOMPARE(*hour.minimum, 10.0);
    QCOMPARE(*hour.maximum, 20.0);
    QVERIFY(std::abs(*hour.integral - 10.0) < 1e-4); // 5 litres in each half
    QVERIFY(std::abs(*hour.mean - 10.0 / 0.75) < 1e-4);

    QCOMPARE(marked(-20, -10).texts(), QStringList(7, "-")); // nothing is known before the first sample
    QCOMPARE(*marked(100, 101).maximum, 10.0);               // between two samples
    QCOMPARE(integralUnit("l/h"), "l");
    QCOMPARE(integralUnit("rpm"), QString::fromUtf8("rpm\u00b7h"));
}

void TestMarkerValues::markerText()
{
    GraphModel model;
    model.traces().setActive(0, true);
    model.traces().setName(0, "A\tB", "%1");
    model.putValues(0, std::vector<double>{0, 10}, std::vector<double>{1, 3});
    const QStringList lines = ZARN::markerText(model.traces(), {10, 0}).split('\n');
    QCOMPARE(lines[0], "Time\t00:00:00.000\t00:00:10.000");
    QCOMPARE(lines[1], "dt\t10.000 s");
    QCOMPARE(lines[3], QString::fromUtf8("A B\t%1\t1.00\t3.00\t2.00\t1.00\t3.00\t2.000\t0.006\t%1\u00b7h"));
}

void TestMarkerValues::markerOfLittle()
{
    GraphModel model;
    model.traces().setActive(0, true);
    model.putValues(0, std::vector<double>{10, 20}, std::vector<double>{1, 5});
    const auto marked = [&](double start, double end) { return ZARN::markerValues(model.traces(), {start, end}).front(); };
    const MarkerValues behind = marked(20, 30); // the last value stands, but nothing says what came between
    QVERIFY(behind.mean == 5.0 && !behind.integral && behind.minimum == 5.0 && behind.difference == 0.0);
    const MarkerValues before = marked(0, 10);
    QVERIFY(!before.atStart && before.atEnd == 1.0 && !before.difference && before.minimum == 1.0 && before.maximum == 1.0);
    const MarkerValues inside = marked(12, 12);
    QVERIFY(inside.atStart == 1.0 && inside.minimum == 1.0 && inside.mean == 1.0 && !inside.integral);
    QCOMPARE(integralUnit(""), QString("h"));
    model.traces().edit(0, [](GraphParameter& trace) { trace.pStates = std::make_shared<const StateNames>(std::map<int64_t, QString>{{1, "On"}}, true); });
    QCOMPARE(marked(10, 15).texts(), QStringList({"On", "On", "-", "On", "On", "-", "-"}));
    model.scenery().setGhost(std::make_shared<Ghost>(Ghost{"Other", model.traces()}));
    model.scenery().setGhostShift(10); // what is compared with is 10 s later
    const auto both = ZARN::markerValues(model.traces(), {20, 30}, &model.scenery());
    QVERIFY(both.size() == 2 && both[1].index == 0 && both[0].atStart == 5.0 && both[1].atStart == 1.0 && both[1].atEnd == 5.0);
    QVERIFY(both[1].label().startsWith("Other: ") && !both[0].label().contains("Other"));
}

QTEST_MAIN(TestMarkerValues)
#include "TestMarkerValues.moc"
