#include "GraphFixtures.h"
#include "ui/graph/model/AxisTicks.h"

#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace ZARN;
using Test::Drawing;
using Test::Three;
using Test::uprights;

namespace {

constexpr QSizeF kSize(1400, 700);

double seconds(const QString& text)
{
    const QStringList parts = QString(text).remove('-').split(':');
    const double value = parts[0].toDouble() * 3600 + parts[1].toDouble() * 60 + parts[2].toDouble();
    return text.startsWith('-') ? -value : value;
}

} // namespace

/// Axes and bands of a graph, against the times and values that they name.
class TestGraphAxes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ticksAreRound_data();
    void ticksAreRound();
    void timeAxis_data();
    void timeAxis();
    void valueAxes_data();
    void valueAxes();
    void namesOfAxes();
    void bands();
};

void TestGraphAxes::ticksAreRound_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("width");
    for (const double min : {0.0, -17.3, 1234.5}) {
        for (const double width : {0.004, 0.03, 0.7, 1.0, 5.0, 9.99, 10.01, 99.0, 150.0, 2000.0, 4e4, 7e6})
            QTest::addRow("%g from %g on", width, min) << min << width;
    }
}

/// Ticks stand at 1, 2 or 5 times a power of ten, none within the range is left out, and their labels tell them apart.
void TestGraphAxes::ticksAreRound()
{
    QFETCH(const double, min);
    QFETCH(const double, width);
    for (const double length : {120.0, 400.0, 1000.0}) {
        const AxisTicks ticks(min, min + width, length, 60);
        const double step = ticks.step(), digit = step / std::pow(10.0, std::floor(std::log10(step) + 1e-9));
        QVERIFY2(std::abs(digit - 1) < 1e-6 || std::abs(digit - 2) < 1e-6 || std::abs(digit - 5) < 1e-6, qPrintable(QString::number(step)));
        const double pixels = step / width * length;
        QVERIFY2(pixels > 59.99 && pixels <= 60 * 10.001, qPrintable(QString::number(pixels))); // no closer than wanted
        const double near = 1e-3 * step; // of numbers that are rounded
        QVERIFY(ticks.ticks().size() > 1 && ticks.ticks().front().value >= min - near && ticks.ticks().back().value <= min + width + near);
        const double part = ticks.ticks()[1].value - ticks.ticks()[0].value;
        QVERIFY(ticks.ticks().front().value - part < min + near && ticks.ticks().back().value + part > min + width - near);
        QVERIFY(part < step && std::abs(step / part - std::round(step / part)) < 1e-6);
        QSet<QString> labels;
        int majors = 0;
        for (const AxisTick& tick : ticks.ticks()) {
            const double count = tick.value / step;
            QCOMPARE(tick.isMajor, std::abs(count - std::round(count)) < 1e-6);
            if (!tick.isMajor)
                continue;
            ++majors;
            labels << ticks.valueLabel(tick.value);
            QVERIFY2(std::abs(ticks.valueLabel(tick.value).toDouble() - tick.value) < step / 1000, qPrintable(ticks.valueLabel(tick.value)));
        }
        QCOMPARE(labels.size(), majors);
        float told = 0;
        int parts = 0;
        getAutoPara(min, min + width, length, 60, told, parts);
        QVERIFY(std::abs(static_cast<double>(told) - step) < 1e-6 * step && std::abs(step / part - parts) < 1e-6);
    }
}

void TestGraphAxes::timeAxis_data()
{
    QTest::addColumn<double>("begin");
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("view");
    QTest::addColumn<double>("shift");
    QTest::newRow("a minute") << 20.0 << 60.0 << 1400.0 << 0.0;
    QTest::newRow("hours") << 3000.0 << 14000.0 << 1400.0 << 0.0;
    QTest::newRow("around zero") << -50.0 << 120.0 << 900.0 << 0.0;
    QTest::newRow("parts of a second") << 3599.5 << 0.8 << 1400.0 << 0.0;
    QTest::newRow("thousandths") << 3599.999 << 0.004 << 700.0 << 0.0;
    QTest::newRow("from an odd time") << 123.456 << 60.0 << 500.0 << 0.0;
    QTest::newRow("since take-off") << 100.0 << 600.0 << 1400.0 << -333.0;
}

void TestGraphAxes::timeAxis()
{
    QFETCH(const double, begin);
    QFETCH(const double, width);
    QFETCH(const double, view);
    QFETCH(const double, shift);
    Three graph;
    if (shift != 0)
        graph.model.settings().times = TimeReference(ETimeReference::eTakeOff, shift);
    graph.model.settings().cursorOn = false;
    graph.model.setWindow({begin, begin + width});
    const Drawing drawing(graph.model, QSizeF(view, 400));
    const GraphLayout& layout = drawing.layout();
    const QRectF& plot = layout.plot();
    const std::vector<double> lines = uprights(drawing, plot.top(), plot.bottom() - 1, false);
    static const QRegularExpression isTime("^-?\\d+:\\d\\d:\\d\\d(\\.\\d+)?$");
    std::vector<double> told;
    double right = shift != 0 ? drawing.boxOf("Take-off").right() : 0;
    for (const auto& [box, text] : drawing.texts) {
        if (!isTime.match(text).hasMatch() || box.top() < plot.bottom() || box.left() > plot.right() + 50)
            continue;
        const double time = seconds(text) - shift;
        QVERIFY(box.top() >= plot.bottom() && box.top() < plot.bottom() + 8 && box.left() >= right && box.right() <= view);
        // Its middle at its time, to a pixel that a line of the grid stands at.
        const double place = plot.left() + (time - begin) / width * plot.width();
        QVERIFY2(std::abs(box.center().x() - place) < 1.6, qPrintable(text));
        QVERIFY2(std::ranges::any_of(lines, [&](double x) { return x == std::floor(x) && std::abs(x - place) <= 1.01; }), qPrintable(text));
        told.push_back(time + shift);
        right = box.right();
    }
    QVERIFY2(told.size() >= 2 && static_cast<double>(told.size()) <= plot.width() / 95, qPrintable(QString::number(told.size())));
    for (std::size_t i = 1; i < told.size(); ++i) {
        const double step = told[1] - told[0];
        QVERIFY(std::abs(told[i] - told[i - 1] - step) < 1e-6 && std::abs(told[i] / step - std::round(told[i] / step)) < 1e-3); // round ones
        QVERIFY(step / width * plot.width() >= 99);
    }
    QVERIFY(lines.size() > told.size()); // finer ones between
    graph.model.settings().gridOn = false;
    QVERIFY(uprights(Drawing(graph.model, QSizeF(view, 400)), plot.top(), plot.bottom() - 1, false).size() <= 2); // of the edge
}

void TestGraphAxes::valueAxes_data()
{
    QTest::addColumn<bool>("split");
    QTest::addColumn<double>("height");
    QTest::newRow("single") << false << 700.0;
    QTest::newRow("low") << false << 260.0;
    QTest::newRow("strips") << true << 700.0;
    QTest::newRow("low strips") << true << 260.0;
}

void TestGraphAxes::valueAxes()
{
    QFETCH(const bool, split);
    QFETCH(const double, height);
    Three graph(split ? eSplit : eSingleGraph);
    graph.model.settings().cursorOn = false;
    const Drawing drawing(graph.model, QSizeF(1400, height));
    const GraphLayout& layout = drawing.layout();
    QCOMPARE(layout.axes().size(), std::size_t(3));
    const auto isLevel = [&](double y, double right) {
        return std::ranges::any_of(drawing.drawnLines, [&](const auto& line) {
            return std::abs(line.line.y1() - y) < 1.01 && line.line.y2() == line.line.y1() && std::abs(line.line.x2() - right) < 1.01;
        });
    };
    for (const ValueAxis& axis : layout.axes()) {
        const QRectF area = layout.area(axis.index);
        const ValueSpan span = graph.model.valueSpan(axis.index);
        std::vector<std::pair<double, double>> labels; // heights and values
        for (const auto& [box, text] : drawing.texts) {
            bool isNumber = false;
            const double value = text.toDouble(&isNumber);
            if (!isNumber || !axis.labels.contains(box.center()) || box.right() > axis.labels.right() - 4 || box.right() < axis.labels.right() - 6)
                continue;
            const double place = area.bottom() - (value - span[0]) / (span[1] - span[0]) * area.height();
            if (area.height() > 150) // lower ones move the outermost inwards
                QVERIFY2(std::abs(box.center().y() - place) < 2.1, qPrintable(text));
            QVERIFY2(split || isLevel(place, axis.labels.right() - 1), qPrintable(text)); // its mark
            if (split ? area.height() > 150 : &axis == &layout.axes().front()) // the grid stands at the values of the first, and of each strip
                QVERIFY2(isLevel(place, area.right() - 1), qPrintable(text));
            labels.emplace_back(box.center().y(), value);
        }
        QVERIFY2(labels.size() >= 2, qPrintable(QString::number(axis.index)));
        std::ranges::sort(labels);
        for (std::size_t i = 1; i < labels.size(); ++i)
            QVERIFY(labels[i].second < labels[i - 1].second && labels[i].first - labels[i - 1].first >= layout.line() - 1);
    }
    const bool hasEdges = isLevel(layout.area(0).bottom(), layout.plot().right() - 1) && isLevel(layout.area(1).bottom(), layout.plot().right() - 1);
    QVERIFY(!split || hasEdges);
}

/// Over its axis stands whose values it has.
void TestGraphAxes::namesOfAxes()
{
    Three graph;
    const Drawing drawing(graph.model, kSize);
    const GraphLayout& layout = drawing.layout();
    const ValueAxis& front = layout.axes().front();
    const QRectF name = drawing.boxOf(graph.model.traces().at(front.index)->label());
    QVERIFY(!name.isEmpty() && name.bottom() <= layout.plot().top() && name.left() >= front.labels.left() && name.top() >= 0);
    for (const ValueAxis& axis : layout.axes()) {
        if (&axis == &front || axis.index == 2)
            continue;
        QVERIFY(std::ranges::any_of(drawing.texts, [&](const auto& entry) {
            return entry.second == "kPa" && entry.first.bottom() <= layout.plot().top() && entry.first.left() >= axis.labels.left() &&
                   std::abs(entry.first.right() - axis.labels.right() + 5) < 1.5;
        }));
    }
    graph.model.settings().scale.isShared = true; // one for all of a unit: its name is that of the unit
    const Drawing shared(graph.model, kSize);
    QVERIFY(!shared.boxOf("[kPa]").isEmpty() && shared.boxOf("[kPa]").bottom() <= shared.layout().plot().top());
    Three alone;
    alone.model.traces().setActive(1, false);
    alone.model.traces().setActive(2, false);
    QVERIFY(Drawing(alone.model, QSizeF(200, 600)).boxOf("Trace 0 [kPa]").isEmpty()); // one trace needs no telling
}

void TestGraphAxes::bands()
{
    for (const bool split : {false, true}) {
        Three graph(split ? eSplit : eSingleGraph);
        for (const int index : {0, 1}) {
            graph.model.traces().edit(index, [index](GraphParameter& trace) {
                trace.bands = {{index ? 300.0 : 30.0, index ? 400.0 : INFINITY, QColor(index, 99, 0)}, {1e6, 2e6, QColor(index, 98, 0)}};
            });
        }
        const auto found = [](const Drawing& drawing, const QColor& colour) {
            const auto area = std::ranges::find_if(drawing.areas, [&](const auto& one) {
                return one.colour.red() == colour.red() && one.colour.green() == colour.green() && one.colour.blue() == 0 && one.colour.alpha() < 100;
            });
            return area == drawing.areas.end() ? QRectF() : area->rect;
        };
        QCOMPARE(found(Drawing(graph.model, kSize), QColor(0, 99, 0)).isEmpty(), !split); // in a single graph of the chosen one alone
        graph.model.traces().point(0);
        const Drawing drawing(graph.model, kSize);
        QCOMPARE(found(drawing, QColor(1, 99, 0)).isEmpty(), !split);
        QVERIFY(found(drawing, QColor(0, 98, 0)).isEmpty()); // far above what is shown
        const QRectF area = drawing.layout().area(0), band = found(drawing, QColor(0, 99, 0));
        QVERIFY(band.top() == area.top() && band.left() == area.left() && band.right() == area.right());
        QVERIFY(std::abs(valueAt(band.bottom(), area, graph.model.valueSpan(0)) - 30) < 1e-6);
        if (split) {
            const QRectF inner = found(drawing, QColor(1, 99, 0)), second = drawing.layout().area(1);
            QVERIFY(std::abs(valueAt(inner.top(), second, graph.model.valueSpan(1)) - 400) < 1e-6);
            QVERIFY(std::abs(valueAt(inner.bottom(), second, graph.model.valueSpan(1)) - 300) < 1e-6);
        }
        graph.model.traces().point(-1);
        graph.model.settings().scale.reference = {40, 60};
        const std::size_t before = Drawing(graph.model, kSize).areas.size();
        graph.model.settings().scale.isReferenceShown = true;
        QCOMPARE(Drawing(graph.model, kSize).areas.size(), before + 1);
    }
}

QTEST_MAIN(TestGraphAxes)
#include "TestGraphAxes.moc"
