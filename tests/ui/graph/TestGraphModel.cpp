#include "GraphFixtures.h"
#include "ui/canvas/ColourContrast.h"
#include "ui/graph/model/AxisTicks.h"
#include "ui/graph/model/GraphTexts.h"
#include "ui/graph/model/ThresholdBands.h"

#include <QSignalSpy>
#include <QTest>

#include <cmath>

using namespace ZARN;
using Test::layoutOf;
using Test::OneTrace;

class TestGraphModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void coloursCanBeRead();
    void windowRules();
    void timeIsClamped_data();
    void timeIsClamped();
    void frameTakesNeighbours();
    void countsDown();
    void autoscale();
    void extendsToPresent();
    void putsManyAsOneByOne();
    void tickSpacing_data();
    void tickSpacing();
    void labels();
    void markerValues();
    void markerText();
    void bands();
    void survivesAnything();
};

void TestGraphModel::coloursCanBeRead()
{
    GraphModel model;
    model.setMaxParameters(30);
    QCOMPARE(model.parameter(2)->colour, (GraphColour{0.0F, 0.0F, 0.7F}));
    for (const GraphColours& colours : {GraphColours{}, GraphColours{GraphColour{}}}) {
        model.setColours(colours);
        for (const GraphParameter& parameter : model.parameters())
            QVERIFY(contrastRatio(parameter.drawnColour, colours.background.colour()) >= 3);
    }
    model.setParameterColor(2, 0, 0, 0.1F); // the user's own choice
    QVERIFY(model.parameter(2)->drawnColour.lightnessF() < 0.1F);
}

void TestGraphModel::windowRules()
{
    GraphModel model;
    model.setXrange(10); // automatic: the end stays
    QCOMPARE(model.xmin(), 50.0);
    model.setGraphMode(eManual);
    model.setXrange(20); // manual: the start stays
    QCOMPARE(model.xmax(), 70.0);
    model.setWindow(1, 2);

    QSignalSpy manual(&model, &GraphModel::signalManMode);
    model.setGraphMode(eAutomatic);
    model.setMarker(7, 7);
    model.zoomToMarker(); // of no width
    QCOMPARE(model.xmax(), 2.0);
    model.setMarker(9, 7);
    model.zoomToMarker();
    QCOMPARE(model.xmin(), 7.0);
    QCOMPARE(model.xmax(), 9.0);
    QCOMPARE(model.graphMode(), eManual);
    QCOMPARE(manual.count(), 1);

    model.setWindow(20, 20); // a record of one moment
    model.zoomAbout(20, 1.2);
    QVERIFY(model.xmin() < 20 && model.xmax() > 20);
    model.setWindow(0, 10);
    model.setCursorMode(eCenter);
    model.setCursorPosition(100);
    QCOMPARE(model.xmin(), 95.0);
    QCOMPARE(model.xmax(), 105.0);
    model.setCursorMode(eFloating);
    model.setCursorPosition(50);
    QCOMPARE(model.xmin(), 95.0);
    QCOMPARE(model.cursorTime(), 50.0);
}

void TestGraphModel::timeIsClamped_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<double>("expected");
    QTest::newRow("negative") << -5.0 << 0.0;
    QTest::newRow("beyond a day") << 100000.0 << 86400.0;
    QTest::newRow("no number") << std::nan("") << 0.0;
    QTest::newRow("inside") << 12.5 << 12.5;
}

void TestGraphModel::timeIsClamped()
{
    QFETCH(const double, time);
    QFETCH(const double, expected);
    GraphModel model;
    model.setTime(time);
    QCOMPARE(model.time(), expected);
    QCOMPARE(model.xmax(), expected);
    QCOMPARE(model.width(), 60.0);
}

void TestGraphModel::frameTakesNeighbours()
{
    OneTrace graph;
    QCOMPARE(graph.frameTimes(10.5, 12.5), (std::vector<double>{10, 11, 12, 13}));
    QCOMPARE(graph.frameTimes(10, 12), (std::vector<double>{9, 10, 11, 12}));
    // The first sample inside is the second of all: the one before the window stays out.
    QCOMPARE(graph.frameTimes(0.5, 2), (std::vector<double>{1, 2}));
    QCOMPARE(graph.frameTimes(1.5, 2), (std::vector<double>{1, 2}));
    QCOMPARE(graph.frameTimes(-10, 1), (std::vector<double>{0, 1}));
    QCOMPARE(graph.frameTimes(99.5, 200), (std::vector<double>{99, 100}));
    QCOMPARE(graph.frameTimes(300, 400), (std::vector<double>{100}));
    QCOMPARE(OneTrace(0).frameTimes(5, 9), std::vector<double>());
}

void TestGraphModel::countsDown()
{
    OneTrace graph;
    QSignalSpy wanted(&graph.model, &GraphModel::signalRecalculate);
    graph.model.setXmin(5);
    QCOMPARE(wanted.count(), 1);
    int runs = 1;
    while (graph.model.recalculate())
        ++runs;
    QCOMPARE(runs, 4);
    // Nothing has changed since: a further run draws nothing.
    QSignalSpy repaint(&graph.model, &GraphModel::signalRepaint);
    graph.model.recalculate();
    QCOMPARE(repaint.count(), 0);
}

void TestGraphModel::autoscale()
{
    OneTrace graph;
    graph.model.setYmin(-7);
    graph.model.calcFrame();
    QCOMPARE(graph.model.ymin(), 0.0); // back to the reference
    QCOMPARE(graph.model.ymax(), 1.0);
    QCOMPARE(graph.model.valueRange(0), (std::array{-10.0, 110.0}));
    graph.model.setAutoScaleY(false);
    graph.model.setYmin(-3);
    graph.model.setYmax(4);
    graph.model.calcFrame();
    QCOMPARE(graph.model.valueRange(0), (std::array{-3.0, 4.0}));
    graph.model.setYmin(6); // the greater one typed first
    graph.model.calcFrame();
    QCOMPARE(graph.model.valueRange(0), (std::array{4.0, 6.0}));
    graph.model.setYmax(6);
    graph.model.calcFrame();
    QVERIFY(graph.model.valueRange(0)[0] < 6 && graph.model.valueRange(0)[1] > 6);

    GraphModel equal;
    equal.setActive(1, true);
    for (int i = 0; i < 3; ++i) {
        equal.setTime(i);
        equal.putValue(1, 42.0, false);
    }
    equal.calcFrame();
    QVERIFY(std::abs(equal.valueRange(1)[0] - 41.9999) < 1e-9);
    QVERIFY(std::abs(equal.valueRange(1)[1] - 42.0001) < 1e-9);
}

void TestGraphModel::extendsToPresent()
{
    OneTrace graph(10);
    graph.model.setTime(20);
    graph.model.calcFrame(); // manual mode
    QCOMPARE(graph.model.parameter(0)->samples.size(), 11U);
    graph.model.setGraphMode(eAutomatic);
    graph.model.calcFrame();
    graph.model.calcFrame();
    QCOMPARE(graph.model.parameter(0)->samples.size(), 12U); // once for a step of time
    QCOMPARE(graph.model.parameter(0)->samples.time(11), 20.0);
    QCOMPARE(graph.model.parameter(0)->samples.value(11), 10.0);
    graph.model.setOfflineMode(true);
    graph.model.setTime(30);
    graph.model.calcFrame();
    QCOMPARE(graph.model.parameter(0)->samples.size(), 12U);
}

void TestGraphModel::putsManyAsOneByOne()
{
    const std::vector<double> times{1.0, 2.5, 2.5, 2.0, 80000.0, 0.0}, values{1, 2, 1e300, 0.1, -5, 3};
    GraphModel single, many;
    for (GraphModel* pModel : {&single, &many})
        pModel->setActive(0, true);
    for (std::size_t i = 0; i < times.size(); ++i) {
        single.setTime(times[i]);
        single.putValue(0, values[i], false);
    }
    many.putValues(0, times, values);
    QCOMPARE(many.time(), single.time());
    QCOMPARE(many.xmin(), single.xmin());
    const SampleSeries &a = single.parameter(0)->samples, &b = many.parameter(0)->samples;
    QCOMPARE(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        QCOMPARE(a.time(i), b.time(i));
        QCOMPARE(a.value(i), b.value(i));
        QCOMPARE(a.value(i), values[i]); // to the last bit
    }
    many.putValues(1, std::vector{-4.0, 90000.0}, std::vector{1.0, 2.0}); // where they are
    QCOMPARE(many.parameter(1)->samples.time(0), -4.0);
    QCOMPARE(many.parameter(1)->samples.time(1), 90000.0);
}

void TestGraphModel::tickSpacing_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("length");
    QTest::addColumn<double>("spacing");
    QTest::addColumn<float>("step");
    QTest::addColumn<int>("parts");
    QTest::addColumn<QString>("format");
    QTest::newRow("raw 10") << 0.0 << 60.0 << 600.0 << 100.0 << 10.0F << 5 << "%.0f";
    QTest::newRow("raw 1") << 0.0 << 6.0 << 600.0 << 100.0 << 2.0F << 4 << "%.1f";
    QTest::newRow("raw 0.5") << 0.0 << 3.0 << 600.0 << 100.0 << 1.0F << 5 << "%.1f";
    QTest::newRow("raw 0.03") << 0.0 << 0.18 << 600.0 << 100.0 << 0.05F << 5 << "%.2f";
    QTest::newRow("raw 150") << 0.0 << 900.0 << 600.0 << 100.0 << 200.0F << 4 << "%.0f";
    QTest::newRow("raw 4000") << 0.0 << 24000.0 << 600.0 << 100.0 << 5000.0F << 5 << "%.0f";
    QTest::newRow("too short") << 0.0 << 1.0 << 50.0 << 100.0 << -1.0F << -1 << "";
}

void TestGraphModel::tickSpacing()
{
    QFETCH(const double, min);
    QFETCH(const double, max);
    QFETCH(const double, length);
    QFETCH(const double, spacing);
    float step = 0.0F;
    int parts = 0;
    getAutoPara(min, max, length, spacing, step, parts);
    QTEST(step, "step");
    if (step < 0)
        return;
    QTEST(parts, "parts");
    QString format;
    getAutoFormat(step, format);
    QTEST(format, "format");
}

void TestGraphModel::labels()
{
    QCOMPARE(graphTime(-32.9915), "-00:00:32.991");
    QCOMPARE(graphTime(90061.5), "25:01:01.500");
    QCOMPARE(graphNumber(-117.123456, 6), "-117.123456");
    QCOMPARE(graphNumber(-0.001, 2), "0.00");
    QCOMPARE(AxisTicks(0, 7200, 600, 100).timeLabel(3723), "1:02:03");
    QCOMPARE(AxisTicks(0, 0.3, 600, 100).timeLabel(0.29), "0:00:00.29");
    QCOMPARE(AxisTicks(0, 1.2, 600, 100).timeLabel(3723.4), "1:02:03.4"); // neighbours must differ
    QCOMPARE(AxisTicks(-100, 100, 600, 100).timeLabel(-61), "-0:01:01");
    const AxisTicks ticks(-0.25, 0.25, 500, 60);
    for (const AxisTick& tick : ticks.ticks())
        QVERIFY(!tick.isMajor || std::abs(ticks.valueLabel(tick.value).toDouble() - tick.value) < 1e-9);
    QCOMPARE(ticks.valueLabel(-0.0), "0.0");
    QVERIFY(AxisTicks(1e15, 1e15 + 1e-3, 600, 100).ticks().size() < 1001);
    QVERIFY(AxisTicks(0, INFINITY, 600, 100).ticks().empty());
}

void TestGraphModel::markerValues()
{
    GraphModel model;
    model.setActive(0, true);
    model.setParameterName(0, "Fuel Flow", "l/h");
    // 10 l/h for an hour, then 20 l/h for half of one.
    const std::vector<double> times{0, 3600, 3600.001, 5400}, values{10, 10, 20, 20};
    model.putValues(0, times, values);
    model.setMarker(1800, 4500);
    const MarkerValues marked = model.markerValues().front();
    QCOMPARE(*marked.atStart, 10.0);
    QCOMPARE(*marked.atEnd, 20.0);
    QCOMPARE(*marked.difference, 10.0);
    QCOMPARE(*marked.minimum, 10.0);
    QCOMPARE(*marked.maximum, 20.0);
    QVERIFY(std::abs(*marked.integral - 10.0) < 1e-4); // 5 litres in each half
    QVERIFY(std::abs(*marked.mean - 10.0 / 0.75) < 1e-4);

    model.setMarker(-20, -10); // nothing is known before the first sample
    QCOMPARE(model.markerValues().front().texts(), QStringList(7, "-"));
    model.setMarker(100, 101); // between two samples
    QCOMPARE(*model.markerValues().front().maximum, 10.0);
    QCOMPARE(integralUnit("l/h"), "l");
    QCOMPARE(integralUnit("rpm"), QString::fromUtf8("rpm\u00b7h"));
}

void TestGraphModel::markerText()
{
    GraphModel model;
    model.setActive(0, true);
    model.setParameterName(0, "A\tB", "%1");
    model.putValues(0, std::vector<double>{0, 10}, std::vector<double>{1, 3});
    model.setMarker(10, 0); // not ordered yet
    const QStringList lines = ZARN::markerText(model.markerValues(), 0, 10).split('\n');
    QCOMPARE(lines[0], "Time\t00:00:00.000\t00:00:10.000");
    QCOMPARE(lines[1], "dt\t10.000 s");
    QCOMPARE(lines[3], QString::fromUtf8("A B\t%1\t1.00\t3.00\t2.00\t1.00\t3.00\t2.000\t0.006\t%1\u00b7h"));
}

void TestGraphModel::bands()
{
    const ProfileParameter parameter;
    const ThresholdList list{{10, QColor(Qt::green), eThresholdOk},
                             {20, QColor(Qt::yellow), eThresholdWarning},
                             {15, QColor(Qt::red), eThresholdLimit},
                             {30, QColor(Qt::blue), eThresholdOk}};
    // The boundary at 15 is reached only by values that pass the one at 20, and is then the last one passed.
    const std::vector<GraphBand> metric = graphBands(ValueDecoder(parameter, &list, nullptr, std::nullopt));
    QCOMPARE(metric.size(), 1U);
    QCOMPARE(metric[0].lower, 20.0);
    QCOMPARE(metric[0].upper, 30.0);
    QCOMPARE(metric[0].colour, QColor(Qt::red));
    const ThresholdList open{{20, QColor(), eThresholdLimit}};
    const std::vector<GraphBand> turned = graphBands(ValueDecoder(parameter, &open, nullptr, UnitConversion{-2.0, 1.0}));
    QCOMPARE(turned.front().upper, -39.0);
    QVERIFY(std::isinf(turned.front().lower));
    QVERIFY(turned.front().colour.isValid());
}

void TestGraphModel::survivesAnything()
{
    GraphModel model;
    for (int index = 0; index < 6; ++index)
        model.setActive(index, true);
    const std::vector<double> odd{0, -1, 1e9, 1e300, std::nan(""), -INFINITY, INFINITY, 86400, 3, 3, 2};
    for (int index = 0; index < 6; ++index)
        model.putValues(index, odd, odd);
    for (const eDisplayMode mode : {eSingleGraph, eSplit}) {
        model.setDisplayMode(mode);
        for (const double width : {1e-6, 1e-300, 60.0, 1e7, 1e300}) {
            model.setWindow(3, 3 + width);
            model.setMarker(-1e300, 1e300);
            const GraphLayout layout = layoutOf(model);
            QVERIFY(std::isfinite(layout.pixelsPerSecond()));
            QVERIFY(model.parameter(0)->frame.size() < 20);
            QCOMPARE(model.markerValues().size(), 6U);
        }
    }
    model.setWindow(INFINITY, 5);
    QVERIFY(std::isfinite(model.xmin()));
    model.setMarker(std::nan(""), 5);
    QVERIFY(std::isfinite(model.markerStart()));
    model.setMaxParameters(-3);
    model.setActive(0, true);
    model.calcFrame();
    QCOMPARE(model.nrActive(), 0);
}

QTEST_MAIN(TestGraphModel)
#include "TestGraphModel.moc"
