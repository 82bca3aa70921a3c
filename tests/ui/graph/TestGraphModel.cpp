#include "GraphFixtures.h"
#include "ui/canvas/ColourContrast.h"
#include "ui/graph/model/AxisLabels.h"
#include "ui/graph/model/AxisTicks.h"
#include "ui/graph/model/GraphTexts.h"
#include "ui/graph/model/MarkerValues.h"
#include "ui/graph/model/ThresholdBands.h"
#include "ui/graph/model/TraceColours.h"
#include "ui/graph/model/ValueZoom.h"

#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace ZARN;
using Test::OneTrace;

class TestGraphModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void windows_data();
    void windows();
    void heldZoom_data();
    void heldZoom();
    void scales_data();
    void scales();
    void coloursCanBeRead();
    void windowFollows();
    void verticesOfWindow_data();
    void verticesOfWindow();
    void columnsHaveTheirExtremes_data();
    void columnsHaveTheirExtremes();
    void interruptedAndStepped();
    void coloursStay();
    void extendsToPresent();
    void putsManyAsOneByOne();
    void tickSpacing_data();
    void tickSpacing();
    void timeTicks_data();
    void timeTicks();
    void labels();
    void tellsOfChanges();
    void bands();
    void survivesAnything();
};

void TestGraphModel::windows_data()
{
    QTest::addColumn<TimeWindow>("window");
    QTest::addColumn<double>("begin");
    QTest::addColumn<double>("end");
    const TimeWindow minute(0, 60), later(100, 200), moment(20, 20), least(0, 1e-6), most(0, 1e7);
    QTest::newRow("width, automatic: the end stays") << minute.ofWidth(10, eAutomatic) << 50.0 << 60.0;
    QTest::newRow("width, manual: the start stays") << minute.ofWidth(10, eManual) << 0.0 << 10.0;
    QTest::newRow("starts") << later.startingAt(7) << 7.0 << 107.0;
    QTest::newRow("ends") << later.endingAt(7) << -93.0 << 7.0;
    QTest::newRow("centred") << later.centredOn(7) << -43.0 << 57.0;
    QTest::newRow("about a time") << TimeWindow(0, 100).zoomedAbout(25, 0.9) << 2.5 << 92.5;
    QTest::newRow("wider") << TimeWindow(0, 90).zoomedAbout(90, 10.0 / 9) << -10.0 << 90.0;
    QTest::newRow("of a moment") << moment.zoomedAbout(20, 1.2) << 19.5 << 20.5;
    QTest::newRow("narrowest") << least.zoomedAbout(0, 0.9) << 0.0 << 1e-6;
    QTest::newRow("widest") << most.zoomedAbout(0, 1.1) << 0.0 << 1e7;
    QTest::newRow("about no number") << minute.zoomedAbout(std::nan(""), 0.9) << 0.0 << 60.0;
    QTest::newRow("keeps what is inside") << later.keeping(150) << 100.0 << 200.0;
    QTest::newRow("keeps what is near the end") << later.keeping(195) << 105.0 << 205.0;
    QTest::newRow("keeps what is before") << later.keeping(50) << 40.0 << 140.0;
    QTest::newRow("record") << TimeWindow::ofRecord(0, 1000) << -100.0 << 1100.0;
    QTest::newRow("record of a moment") << TimeWindow::ofRecord(5, 5) << 4.5 << 5.5;
}

void TestGraphModel::windows()
{
    QFETCH(const TimeWindow, window);
    QFETCH(const double, begin);
    QFETCH(const double, end);
    QVERIFY2(std::abs(window.begin() - begin) < 1e-5, qPrintable(QString::number(window.begin())));
    QVERIFY2(std::abs(window.end() - end) < 1e-5, qPrintable(QString::number(window.end())));
}

void TestGraphModel::heldZoom_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<bool>("isIn");
    QTest::addColumn<float>("wanted");
    QTest::newRow("in") << 100.0 << true << 100.0F * 0.97F;
    QTest::newRow("in, below a second") << 0.5 << true << 0.5F * 0.97F;
    QTest::newRow("in, from too wide") << 10000.0 << true << 5000.0F;
    QTest::newRow("out, above 5000 s") << 6000.0 << false << 6000.0F / 0.97F;
    QTest::newRow("out, from too narrow") << 0.25 << false << 1.0F;
}

void TestGraphModel::heldZoom()
{
    QFETCH(const double, width);
    QFETCH(const bool, isIn);
    QTEST(TimeWindow(0, width).widthZoomed(isIn), "wanted");
}

void TestGraphModel::scales_data()
{
    QTest::addColumn<ValueScale>("scale");
    QTest::addColumn<QList<double>>("values");
    QTest::addColumn<double>("lower");
    QTest::addColumn<double>("upper");
    const auto fixed = [](double lower, double upper) { return ValueScale{.isAutomatic = false, .lower = lower, .upper = upper}; };
    QTest::newRow("extremes") << ValueScale{} << QList<double>{0, 100, 50} << -10.0 << 110.0;
    QTest::newRow("spread") << ValueScale{.spread = 5} << QList<double>{0, 100} << -15.0 << 115.0;
    QTest::newRow("one value") << ValueScale{} << QList<double>{42, 42} << 41.9999 << 42.0001;
    QTest::newRow("no value") << ValueScale{.reference = {3, 4}} << QList<double>{} << 3.0 << 4.0;
    QTest::newRow("margin is lost") << ValueScale{} << QList<double>{1e300} << 0.9e300 << 1.1e300;
    QTest::newRow("fixed") << fixed(-3, 4) << QList<double>{50} << -3.0 << 4.0;
    QTest::newRow("typed in the other order") << fixed(6, 4) << QList<double>{} << 4.0 << 6.0;
    QTest::newRow("typed twice") << fixed(6, 6) << QList<double>{} << 5.9999 << 6.0001;
}

void TestGraphModel::scales()
{
    QFETCH(const ValueScale, scale);
    QFETCH(const QList<double>, values);
    QFETCH(const double, lower);
    QFETCH(const double, upper);
    ValueRange<double> range;
    for (const double value : values)
        range.add(value);
    const ValueSpan span = scale.spanOf(range);
    const double near = 1e-9 * std::max(1.0, std::abs(upper));
    QVERIFY2(std::abs(span[0] - lower) < near && std::abs(span[1] - upper) < near, qPrintable(QString("%1 %2").arg(span[0]).arg(span[1])));
}

void TestGraphModel::coloursCanBeRead()
{
    ShownTraces traces;
    traces.setCount(30);
    QCOMPARE(traces.at(2)->colour, QColor(0, 0, 0xb3));
    for (const QColor ground : {Qt::white, Qt::black}) {
        traces.setGround(ground);
        for (const GraphParameter& trace : traces.all())
            QVERIFY(contrastRatio(trace.drawnColour, ground) >= 3);
    }
    for (const EGraphPalette palette : {EGraphPalette::eDark, EGraphPalette::eLight, EGraphPalette::ePrint}) {
        const Palette::Graph& colours = Palette::graphColours(palette);
        for (const QColor& colour : colours.traces)
            QVERIFY2(contrastRatio(colour, colours.ground) >= 3 && std::ranges::count(colours.traces, colour) == 1, qPrintable(colour.name()));
    }
    traces.setColour(2, QColor(0, 0, 20)); // the user's own choice
    QVERIFY(traces.at(2)->drawnColour.lightnessF() < 0.1F);
}

void TestGraphModel::windowFollows()
{
    GraphModel model;
    for (const auto& [time, end] : {std::pair(-5.0, 0.0), {100000.0, 86400.0}, {std::nan(""), 0.0}, {12.5, 12.5}}) {
        model.setTime(time);
        QCOMPARE(model.window().end(), end);
        QCOMPARE(model.window().width(), 60.0);
    }
    QSignalSpy manual(&model, &GraphModel::signalManMode);
    const TimeWindow before = model.window();
    model.setMarker({7, 7});
    model.zoomToMarker(); // of no width
    QVERIFY(model.window() == before && manual.isEmpty());
    model.setMarker({9, 7});
    model.zoomToMarker();
    QVERIFY(model.window() == TimeWindow(7, 9));
    QCOMPARE(model.settings().graphMode, eManual);
    QCOMPARE(manual.count(), 1);
    model.setTime(1000);
    model.setCursorPosition(50);
    QVERIFY(model.window() == TimeWindow(7, 9));
    model.settings().cursorMode = eCenter;
    model.setCursorPosition(100);
    QVERIFY(model.window() == TimeWindow(99, 101));
}

void TestGraphModel::verticesOfWindow_data()
{
    QTest::addColumn<int>("last");
    QTest::addColumn<TimeWindow>("window");
    QTest::addColumn<QList<double>>("times");
    QTest::newRow("between samples") << 100 << TimeWindow(10.5, 12.5) << QList<double>{10, 11, 12, 13};
    QTest::newRow("at samples") << 100 << TimeWindow(10, 12) << QList<double>{9, 10, 11, 12};
    // The first sample inside is the second of all: the one before the window stays out.
    QTest::newRow("from the second") << 100 << TimeWindow(0.5, 2) << QList<double>{1, 2};
    QTest::newRow("after the second") << 100 << TimeWindow(1.5, 2) << QList<double>{1, 2};
    QTest::newRow("before the first") << 100 << TimeWindow(-10, 1) << QList<double>{0, 1};
    QTest::newRow("to the last") << 100 << TimeWindow(99.5, 200) << QList<double>{99, 100};
    QTest::newRow("behind the last") << 100 << TimeWindow(300, 400) << QList<double>{100};
    QTest::newRow("behind the only one") << 0 << TimeWindow(5, 9) << QList<double>{};
}

void TestGraphModel::verticesOfWindow()
{
    QFETCH(const int, last);
    QFETCH(const TimeWindow, window);
    OneTrace graph(last);
    FrameCache cache;
    cache.update(graph.model.traces(), window);
    QList<double> times;
    for (const QPointF& vertex : cache.vertices(0))
        times << window.begin() + vertex.x();
    QTEST(times, "times");
    QVERIFY(cache.isCurrent(graph.model.traces(), window) && !cache.isCurrent(graph.model.traces(), window.movedBy(1)));
    graph.model.putValue(0, 1, false);
    QVERIFY(!cache.isCurrent(graph.model.traces(), window));
}

void TestGraphModel::columnsHaveTheirExtremes_data()
{
    QTest::addColumn<bool>("backwards");
    QTest::addColumn<int>("columns");
    for (const int columns : {1, 7, 100, 333}) {
        QTest::addRow("ascending, %d", columns) << false << columns;
        QTest::addRow("backwards, %d", columns) << true << columns;
    }
}

/// What is drawn of a column: the first, the least, the greatest and the last value of its samples, or each of a few.
void TestGraphModel::columnsHaveTheirExtremes()
{
    QFETCH(const bool, backwards);
    QFETCH(const int, columns);
    constexpr double kBegin = 100, kEnd = 400;
    std::vector<double> times, values;
    for (int i = 0; i < 5000; ++i) {
        times.push_back(50 + i * 0.1 - (backwards && i % 500 > 450 ? 7 : 0) + (i > 3000 ? 20 : 0)); // and nothing for a while
        values.push_back(i * 7919 % 1009);
    }
    SampleSeries samples;
    samples.append(times, values);
    std::vector<QPointF> vertices;
    TraceBuilder().build(samples, kBegin, kEnd, columns, vertices);
    const double width = (kEnd - kBegin) / columns;
    std::vector<std::vector<double>> expected(static_cast<std::size_t>(columns)), found(expected);
    for (std::size_t i = 0; i < times.size(); ++i) {
        if (times[i] >= kBegin && times[i] < kEnd)
            expected[static_cast<std::size_t>((times[i] - kBegin) / width)].push_back(values[i]);
    }
    double before = -1e9;
    for (const QPointF& vertex : vertices) {
        QVERIFY(vertex.x() >= before || backwards);
        before = vertex.x();
        if (vertex.x() >= 0 && vertex.x() < kEnd - kBegin)
            found[static_cast<std::size_t>(vertex.x() / width)].push_back(vertex.y());
    }
    int reduced = 0;
    for (std::size_t column = 0; column < expected.size(); ++column) {
        const std::vector<double>&all = expected[column], &drawn = found[column];
        QCOMPARE(drawn.empty(), all.empty());
        if (all.empty())
            continue;
        QVERIFY(drawn.front() == all.front() && drawn.back() == all.back());
        QCOMPARE(*std::ranges::min_element(drawn), *std::ranges::min_element(all));
        QCOMPARE(*std::ranges::max_element(drawn), *std::ranges::max_element(all));
        QVERIFY(drawn.size() <= 4 || drawn == all);
        reduced += all.size() > 4;
    }
    QVERIFY(reduced > 0 && vertices.size() <= static_cast<std::size_t>(4 * columns + 8));
}

void TestGraphModel::interruptedAndStepped()
{
    ShownTraces traces;
    traces.setCount(1);
    traces.setActive(0, true);
    std::vector<double> times, values;
    for (int i = 0; i < 2000; ++i) { // nothing for a minute, and no number once
        times.push_back(90000 + i * 0.5 + (i >= 1000 ? 60 : 0));
        values.push_back(i / 100 % 2);
    }
    traces.append(0, times, values);
    traces.edit(0, [](GraphParameter& trace) { trace.breaks = {500}; });
    for (const auto& [columns, window, gaps] : {std::tuple(1000, TimeWindow(90000, 91100), 2), {20, TimeWindow(90000, 91100), 1},
                                                {1000, TimeWindow(90300, 90499), 0}, {1000, TimeWindow(90520, 90530), 1}}) {
        FrameCache cache;
        cache.update(traces, window, columns);
        QVERIFY(std::ranges::none_of(cache.vertices(0), [](const QPointF& vertex) { return std::isnan(vertex.y()); }));
        traces.setGapsOn(true);
        cache.update(traces, window, columns);
        traces.setGapsOn(false);
        QCOMPARE(std::ranges::count_if(cache.vertices(0), [](const QPointF& vertex) { return std::isnan(vertex.y()); }), gaps);
    }
    QCOMPARE(traces.valueAt(0, 90530).value(), 1.0); // held through the hole, but where gaps are shown
    traces.setGapsOn(true);
    FrameCache growing;
    for (const auto& [time, gaps] : {std::pair(92000.0, 3), {92000.5, 3}, {92100.0, 4}}) {
        traces.append(0, std::vector{time}, std::vector{1.0});
        growing.update(traces, {90000, 93000}, 1000);
        QCOMPARE(std::ranges::count_if(growing.vertices(0), [](const QPointF& vertex) { return std::isnan(vertex.y()); }), gaps);
    }
    QVERIFY(!traces.valueAt(0, 90530) && traces.valueAt(0, 92101) && !traces.valueAt(0, 92103));
    traces.setGapsOn(false);
    traces.edit(0, [](GraphParameter& trace) { trace.pStates = std::make_shared<const StateNames>(std::map<int64_t, QString>{{1, "On"}}, true); });
    FrameCache cache;
    cache.update(traces, {90000, 90400}, 1000);
    const std::vector<QPointF>& steps = cache.vertices(0);
    QCOMPARE(steps.size(), 17U);
    for (std::size_t i = 1; i < steps.size(); ++i)
        QVERIFY(steps[i].x() == steps[i - 1].x() || steps[i].y() == steps[i - 1].y());
    QCOMPARE(traces.at(0)->text(1) + traces.at(0)->text(0), "On0");
}

void TestGraphModel::coloursStay()
{
    ColourNumbers numbers;
    using Names = std::vector<QString>;
    for (const auto& [names, expected] : {std::pair(Names{"a", "b", "b"}, std::vector{0, 1, 2}), {{"x", "a", "b", "b"}, {3, 0, 1, 2}},
                                          {{"x", "b", "y"}, {3, 1, 2}}, {{"a", "b", "y", "z"}, {0, 1, 2, 3}}})
        QVERIFY(numbers.assign(names) == expected);
}

void TestGraphModel::extendsToPresent()
{
    OneTrace graph(10);
    const SampleSeries& samples = graph.model.traces().at(0)->samples;
    graph.model.setTime(20);
    graph.model.extendToPresent(); // manual mode
    QCOMPARE(samples.size(), 11U);
    graph.model.settings().graphMode = eAutomatic;
    graph.model.extendToPresent();
    graph.model.extendToPresent();
    QCOMPARE(samples.size(), 12U); // once for a step of time
    QCOMPARE(samples.time(11), 20.0);
    QCOMPARE(samples.value(11), 10.0);
    graph.model.setOfflineMode(true);
    graph.model.setTime(30);
    graph.model.extendToPresent();
    QCOMPARE(samples.size(), 12U);
}

void TestGraphModel::putsManyAsOneByOne()
{
    const std::vector<double> times{1.0, 2.5, 2.5, 2.0, 80000.0, 0.0}, values{1, 2, 1e300, 0.1, -5, 3};
    GraphModel single, many;
    for (std::size_t i = 0; i < times.size(); ++i) {
        single.setTime(times[i]);
        single.putValue(0, values[i], false);
    }
    many.putValues(0, times, values);
    QVERIFY(many.window() == single.window());
    const SampleSeries &a = single.traces().at(0)->samples, &b = many.traces().at(0)->samples;
    QCOMPARE(a.size(), b.size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        QCOMPARE(a.time(i), b.time(i));
        QCOMPARE(a.value(i), b.value(i));
        QCOMPARE(a.value(i), values[i]); // to the last bit
    }
    many.putValues(1, std::vector{-4.0, 90000.0}, std::vector{1.0, 2.0}); // where they are
    QCOMPARE(many.traces().at(1)->samples.time(0), -4.0);
    QCOMPARE(many.traces().at(1)->samples.time(1), 90000.0);
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

constexpr double kSteps[] = {1, 2, 5, 10, 15, 30, 60, 120, 300, 600, 900, 1800, 3600, 7200, 10800, 21600, 43200, 86400};

void TestGraphModel::timeTicks_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("step");
    for (const double step : kSteps) {
        QTest::addRow("%g s: no wider", step) << step * 6 << step;
        QTest::addRow("%g s: no narrower", step) << step * 4.02 << step;
    }
    QTest::newRow("a fifth of a second") << 0.9 << 0.2;
    QTest::newRow("more than a week") << 9.0 * 86400 << 2.0 * 86400;
    QTest::newRow("four months") << 1e7 << 20.0 * 86400;
}

void TestGraphModel::timeTicks()
{
    QFETCH(const double, width);
    QFETCH(const double, step);
    const AxisTicks ticks = AxisTicks::ofTime(-7200, -7200 + width, 600, 100);
    QVERIFY2(std::abs(ticks.step() - step) < 1e-9, qPrintable(QString::number(ticks.step())));
    const auto isMajor = [](const AxisTick& tick) { return tick.isMajor; };
    QVERIFY(std::ranges::count_if(ticks.ticks(), isMajor) >= static_cast<int>(width / step));
    const double part = ticks.ticks()[1].value - ticks.ticks()[0].value; // from minutes on it is one that could be a step, too
    QVERIFY2(step < 60 || step > 86400 || std::ranges::find(kSteps, std::round(part)) != std::end(kSteps), qPrintable(QString::number(part)));
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
    GraphModel model; // a low strip tells both ends of its scale, a lower one in one line
    model.traces().setActive(0, true);
    model.putValues(0, std::vector<double>{0, 10}, std::vector<double>{0, 5873});
    for (const auto& [height, wanted] : {std::pair(40.0, "6000 0"), std::pair(20.0, "-587\u20266460"), std::pair(10.0, "")}) {
        const ValueSpan span = model.valueSpan(0);
        QStringList texts;
        for (const AxisLabel& label : axisLabels(model, 0, AxisTicks(span[0], span[1], height, 60), height, 16))
            texts << label.text;
        QCOMPARE(texts.join(' '), QString(wanted));
    }
}

void TestGraphModel::tellsOfChanges()
{
    GraphModel model;
    QSignalSpy repaint(&model, &GraphModel::signalRepaint), window(&model, &GraphModel::signalWindow), cursor(&model, &GraphModel::signalCursor),
        manual(&model, &GraphModel::signalManMode);
    const auto told = [&repaint](const auto& change) {
        repaint.clear();
        change();
        return !repaint.isEmpty();
    };
    QVERIFY(told([&] { model.setWindow({1, 2}); }) && window.count() == 1);
    QVERIFY(!told([&] { model.setWindow({1, 2}); }) && window.count() == 1);
    QVERIFY(told([&] { model.setCursorPosition(5); }) && !told([&] { model.setCursorPosition(INFINITY); }) && model.cursor().time == 5);
    QVERIFY(cursor.isEmpty() && told([&] { model.moveCursor(6, 7, 2); }) && cursor.takeFirst() == (QList<QVariant>{6.0F, 7.0}) && model.cursor().strip == 2);
    QVERIFY(told([&] { model.setCursorMoving(true); }) && !told([&] { model.setCursorMoving(true); }));
    QVERIFY(told([&] { model.setMarker({1, 2}); }) && !told([&] { model.setMarker({1, NAN}); }) && model.marker().end == 2);
    QVERIFY(told([&] { model.addTopMarker({1, 2}); }) && told([&] { model.setOfflineMode(false); }) && told([&] { model.setTime(3); }));
    QVERIFY(!told([&] { GraphModel().putValue(0, 1, true); }));
    model.settings().graphMode = eAutomatic;
    model.takeOverTime();
    model.takeOverTime();
    QVERIFY(manual.count() == 1 && model.settings().graphMode == eManual);
    model.putValue(0, 1, false);
    model.putValues(1, std::vector<double>{1, INFINITY, 3}, std::vector<double>{1, 2}); // as many as there are of both
    QVERIFY(model.traces().at(1)->samples.size() == 2 && model.traces().at(1)->samples.time(1) == 0.0);
    model.putValues(-1, std::vector<double>{1}, std::vector<double>{1});
    model.clear();
    QVERIFY(model.topMarkers().empty() && model.traces().at(0)->samples.empty() && model.marker().end == 2);
    model.reset();
    QVERIFY(model.marker().end == 0 && model.cursor().time == 0 && model.cursor().value == 0 && model.window() == TimeWindow());
    model.putValue(0, 1, false); // at no time
    QVERIFY(model.traces().at(0)->samples.empty());
    model.setMarker({5, 5.0000001});
    model.zoomToMarker();
    QVERIFY(model.window().width() >= TimeWindow::kSmallest);
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
    const std::vector<double> odd{0, -1, 1e9, 1e300, std::nan(""), -INFINITY, INFINITY, 86400, 3, 3, 2};
    const std::vector<double> one{7}, endless{INFINITY, -INFINITY, std::nan("")}, none;
    for (int index = 0; index < 6; ++index) {
        const std::vector<double>& values = index == 0 ? odd : index == 1 ? one : index == 2 ? endless : index == 3 ? none : odd;
        model.traces().setActive(index, true);
        model.putValues(index, odd, values);
    }
    for (const eDisplayMode mode : {eSingleGraph, eSplit}) {
        model.settings().displayMode = mode;
        for (const double width : {1e-6, 1e-300, 60.0, 1e7, 1e300}) {
            model.setWindow({3, 3 + width});
            model.setMarker({-1e300, 1e300});
            ValueZoom(model).toggleFit();
            for (const int index : model.traces().shown()) {
                const ValueSpan span = model.valueSpan(index);
                QVERIFY2(std::isfinite(span[0]) && span[1] > span[0], qPrintable(QString::number(index)));
            }
            GraphFrame frame;
            frame.update(model, QSizeF(800, 500), 11, 1);
            QVERIFY(std::isfinite(frame.layout().pixelsPerSecond()));
            QVERIFY(frame.traces().vertices(0).size() < 20);
            QCOMPARE(ZARN::markerValues(model.traces(), model.marker()).size(), 6U);
        }
    }
    model.setWindow({INFINITY, 5});
    QVERIFY(model.window().isFinite());
    model.setMarker({std::nan(""), 5});
    QVERIFY(model.marker().isFinite());
    model.traces().setCount(-3);
    model.traces().setActive(0, true);
    QCOMPARE(model.traces().count(), 0);
}

QTEST_MAIN(TestGraphModel)
#include "TestGraphModel.moc"
