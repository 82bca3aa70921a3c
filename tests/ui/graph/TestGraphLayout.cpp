#include "GraphFixtures.h"
#include "ui/graph/model/GraphTexts.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <set>

using namespace ZARN;
using Test::Drawing;

namespace {

constexpr double kTextSize = 11;

/// Traces of the same length: the number `index` goes from 0 to 10 to the power of `index`, so that each has a scale of its own.
void fill(GraphModel& model, int traces, int nameLength = 12)
{
    model.settings().graphMode = eManual;
    model.settings().legendOn = true;
    model.traces().setCount(traces);
    for (int index = 0; index < traces; ++index) {
        model.traces().setActive(index, true);
        model.traces().setName(index, QString::number(index).rightJustified(nameLength, 'n'), "kPa");
        model.putValues(index, std::vector<double>{0, 50, 100}, std::vector<double>{0, std::pow(10.0, index % 5) / 2, std::pow(10.0, index % 5)});
    }
    model.setWindow({0, 100});
    model.setCursorPosition(50);
}

GraphLayout layoutOf(const GraphModel& model, double width, double height)
{
    return {model, QSizeF(width, height), kTextSize};
}

} // namespace

/// Where things lie in a graph: that nothing lies over something else, and that no room is given away.
class TestGraphLayout : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void partsLieBeside_data();
    void partsLieBeside();
    void legendTakesWhatThereIs();
    void legendBesideOrBelow();
    void legendOfStrips();
    void legendScrolls();
    void comparedLegend();
    void tableHasItsShare();
    void stripsShareThePlot();
    void axesShareAScale();
    void labelsFitTheirAxis();
    void placesAndTimes();
    void linesOverThePlot();
    void bandHasALine();
};

void TestGraphLayout::partsLieBeside_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("height");
    QTest::addColumn<int>("traces");
    QTest::addColumn<int>("kind"); // 1 split, 2 with a marker, 4 with another flight
    for (const double width : {1600.0, 1000.0, 620.0, 420.0}) {
        for (const double height : {1000.0, 520.0, 330.0}) {
            for (const int traces : {1, 4, 12, 30}) {
                for (int kind = 0; kind < 8; ++kind)
                    QTest::addRow("%g x %g, %d traces, %d", width, height, traces, kind) << width << height << traces << kind;
            }
        }
    }
}

void TestGraphLayout::partsLieBeside()
{
    QFETCH(const double, width);
    QFETCH(const double, height);
    QFETCH(const int, traces);
    QFETCH(const int, kind);
    GraphModel model;
    fill(model, traces);
    model.settings().displayMode = kind & 1 ? eSplit : eSingleGraph;
    if (kind & 2)
        model.setMarker({20, 60});
    if (kind & 4)
        model.scenery().setGhost(std::make_shared<Ghost>(Ghost{"Other", model.traces()}));
    const GraphLayout layout = layoutOf(model, width, height);
    const QRectF &plot = layout.plot(), &legend = layout.legend(), &table = layout.table(), view(0, 0, width, height);
    const bool isTight = plot.height() <= 60 || plot.width() <= 60; // no room for all: the plot keeps its least size
    QVERIFY(plot.width() >= 60 && plot.height() >= 60);
    QVERIFY(isTight || view.contains(plot));
    QVERIFY(isTight || plot.bottom() + layout.line() + 5 <= (legend.top() > plot.bottom() ? legend.top() : table.isEmpty() ? height : table.top())); // the times
    QVERIFY(legend.isEmpty() || (view.contains(legend) && !legend.intersects(plot) && !legend.intersects(table)));
    QVERIFY(table.isEmpty() == !(kind & 2));
    QVERIFY(table.isEmpty() || (view.contains(table) && !table.intersects(plot) && table.height() <= 0.38 * height + 3 * layout.line()));
    // What is not used by something is the plot's.
    if (legend.isEmpty() || legend.top() > plot.bottom())
        QVERIFY(width - plot.right() >= 12 && width - plot.right() < 14);
    else
        QVERIFY(isTight || (legend.left() - plot.right() >= 6 && legend.left() - plot.right() < 8 && legend.top() == plot.top() && legend.bottom() == plot.bottom()));
    for (const ValueAxis& axis : layout.axes()) {
        QVERIFY(axis.labels.left() >= 0 && axis.labels.right() == (kind & 1 || &axis == &layout.axes().front() ? plot.left() : (&axis - 1)->labels.left()));
        QVERIFY(axis.labels.top() == layout.area(axis.index).top() && axis.labels.bottom() == layout.area(axis.index).bottom());
    }

    int seen = 0;
    std::vector<QRectF> lines;
    for (std::size_t row = 0; row < static_cast<std::size_t>(traces); ++row) {
        const QRectF line = layout.legendLine(model, row);
        if (line.isEmpty())
            continue;
        ++seen;
        QVERIFY(line.height() == layout.line() && std::ranges::none_of(lines, [&](const QRectF& other) { return other.intersects(line); }));
        lines.push_back(line);
        if (!legend.isEmpty())
            QVERIFY(legend.adjusted(-1, -1, 1, 1).contains(line) || isTight);
    }
    if (!legend.isEmpty() && !layout.isLegendInStrips()) {
        QCOMPARE(seen, layout.legendRows().count);
        const double columns = std::max(1.0, std::round(legend.width() / (lines.empty() ? legend.width() : lines.front().width())));
        // All that fit are shown: with one line for the headings, and one for how many more there are.
        const int places = (std::max(2, static_cast<int>(legend.height() / layout.line())) - 1) * static_cast<int>(columns);
        QCOMPARE(seen, traces <= places ? traces : places - 1);
    }
    QVERIFY(!layout.legendLine(model, static_cast<std::size_t>(traces)).isValid());
}

/// The wider the view, the more the legend tells; and what it tells is never cut where it says that it is not.
void TestGraphLayout::legendTakesWhatThereIs()
{
    GraphModel model;
    fill(model, 4, 20);
    model.settings().displayMode = eSingleGraph;
    bool wasFull = false;
    std::set<GraphLayout::ELegend> kinds;
    for (double width = 500; width <= 1600; width += 5) {
        const GraphLayout layout = layoutOf(model, width, 600);
        kinds.insert(layout.legendKind());
        if (layout.legend().isEmpty() || layout.legend().top() > layout.plot().bottom())
            continue;
        const bool isFull = layout.legendKind() == GraphLayout::ELegend::eFull;
        QVERIFY(isFull || !wasFull);
        wasFull = isFull;
        QVERIFY(layout.legend().width() <= (isFull ? 0.4 : 0.34) * width + 2);
        QVERIFY(layout.nameLength() == 20 || (!isFull && layout.nameLength() >= 14));
        const Drawing canvas(model, QSizeF(width, 600));
        for (const auto& [box, text] : canvas.texts) {
            if (box.left() >= layout.legend().left())
                QVERIFY2(layout.legend().adjusted(0, -1, 1, 1).contains(box) && (isFull ? !text.contains(QChar(0x2026)) : true), qPrintable(text));
        }
    }
    QVERIFY(wasFull && kinds.contains(GraphLayout::ELegend::eCursor));
    model.settings().legendOn = false;
    const GraphLayout without = layoutOf(model, 1600, 600);
    QVERIFY(without.legend().isEmpty() && without.legendKind() == GraphLayout::ELegend::eNone && without.legendLine(model, 0).isEmpty());
}

void TestGraphLayout::legendBesideOrBelow()
{
    GraphModel model;
    fill(model, 3, 20);
    int below = 0;
    for (double width = 200; width <= 700; width += 10) {
        const GraphLayout layout = layoutOf(model, width, 700);
        const QRectF& legend = layout.legend();
        if (legend.isEmpty() || legend.top() < layout.plot().bottom())
            continue;
        ++below;
        QVERIFY(legend.left() == 6 && std::abs(legend.right() - (width - 6)) < 1e-9 && legend.height() <= 0.4 * 700);
        QVERIFY(layout.nameLength() >= 6 && layout.plot().height() > 60);
        QVERIFY(700 - legend.bottom() < 6 && legend.top() - layout.plot().bottom() < layout.line() + 18); // close to what is above and below
        // No narrower than what stands in a line: name, number, swatch and unit.
        const Drawing canvas(model, QSizeF(width, 700));
        for (const auto& [box, text] : canvas.texts) {
            if (box.top() >= legend.top())
                QVERIFY2(box.left() >= legend.left() && box.right() <= width, qPrintable(QString("%1: %2").arg(width).arg(text)));
        }
    }
    QVERIFY(below > 10);
    QVERIFY(layoutOf(model, 400, 140).legend().isEmpty()); // nothing of the plot could be read

    fill(model, 20, 10); // many: in columns
    const GraphLayout many = layoutOf(model, 520, 520);
    QVERIFY(many.legend().top() > many.plot().bottom());
    const QRectF first = many.legendLine(model, 0), second = many.legendLine(model, 1);
    QVERIFY(first.left() == second.left() && second.top() == first.bottom()); // down first
    std::set<double> columns;
    for (std::size_t row = 0; row < 20; ++row)
        columns.insert(many.legendLine(model, row).left());
    QVERIFY(columns.size() > 1 && *columns.rbegin() + first.width() <= many.legend().right() + 1e-9);
    QCOMPARE(many.legendRows().count, 20);
    fill(model, 20, 24); // names are cut before a column goes
    QVERIFY(layoutOf(model, 520, 520).legendLine(model, 0).width() < 300 && layoutOf(model, 520, 520).nameLength() >= 14);
}

/// Strips tell their values beside them as long as a line has room in each; else the legend is a list.
void TestGraphLayout::legendOfStrips()
{
    GraphModel model;
    fill(model, 6);
    model.settings().displayMode = eSplit;
    const GraphLayout roomy = layoutOf(model, 1400, 600);
    QVERIFY(roomy.isLegendInStrips());
    for (const std::size_t row : {0U, 3U, 5U})
        QCOMPARE(roomy.legendLine(model, row).top(), roomy.area(static_cast<int>(row)).top());
    fill(model, 30);
    bool wasBeside = false;
    for (double height = 300; height < 800; height += 7) {
        const GraphLayout layout = layoutOf(model, 1400, height);
        const bool isBeside = layout.isLegendInStrips();
        double least = height;
        for (int index = 0; index < 30; ++index)
            least = std::min(least, layout.area(index).height());
        QVERIFY(std::abs(least - layout.line()) <= 1 || isBeside == (least > layout.line()));
        QVERIFY(isBeside || !wasBeside);
        wasBeside = isBeside;
    }
    QVERIFY(wasBeside);
    // Below them only where that leaves each strip its lines, or where they have no room for one anyhow.
    for (const int traces : {2, 4, 8, 30}) {
        fill(model, traces, 20);
        for (double height = 250; height < 900; height += 50) {
            const GraphLayout layout = layoutOf(model, 450, height);
            const bool isBelow = !layout.legend().isEmpty() && layout.legend().top() > layout.plot().bottom();
            QVERIFY(!isBelow || layout.area(0).height() >= 2.4 * layout.line() || layout.plot().height() + layout.legend().height() < traces * (layout.line() + 1));
        }
    }
}

void TestGraphLayout::legendScrolls()
{
    GraphModel model;
    fill(model, 30);
    const GraphLayout top = layoutOf(model, 1400, 300);
    const VisibleRows rows = top.legendRows();
    QVERIFY(rows.isCut() && rows.first == 0 && rows.all == 30);
    QVERIFY(!top.legendLine(model, static_cast<std::size_t>(rows.count - 1)).isEmpty() && top.legendLine(model, static_cast<std::size_t>(rows.count)).isEmpty());
    const Drawing canvas(model, QSizeF(1400, 300));
    const QRectF more = canvas.boxOf(QString("%1 more").arg(30 - rows.count));
    QVERIFY(!more.isEmpty() && top.legend().contains(more) && !more.intersects(top.legendLine(model, static_cast<std::size_t>(rows.count - 1))));
    const auto bar = [&top](const Drawing& drawing) { // and the thumb in it, at the legend's right edge
        const auto isBar = [&](const auto& area) { return area.rect.right() == top.legend().right() && area.rect.width() < 8; };
        const auto found = std::ranges::find_if(drawing.areas, isBar);
        return std::pair(found->rect, std::next(found)->rect);
    };
    const auto [whole, thumb] = bar(canvas);
    QVERIFY(whole.contains(thumb) && whole.top() == thumb.top() && std::abs(thumb.height() / whole.height() - rows.count / 30.0) < 1e-9);

    for (const int wanted : {5, 29, 1000, -4}) {
        model.settings().firstLegendRow = wanted;
        const GraphLayout layout = layoutOf(model, 1400, 300);
        const int first = std::clamp(wanted, 0, 30 - rows.count);
        QCOMPARE(layout.legendRows().first, first);
        QCOMPARE(layout.legendLine(model, static_cast<std::size_t>(first)).top(), top.legendLine(model, 0).top());
        QVERIFY(first == 0 || layout.legendLine(model, static_cast<std::size_t>(first - 1)).isEmpty());
        if (wanted == 29)
            QVERIFY(std::abs(bar(Drawing(model, QSizeF(1400, 300))).second.bottom() - whole.bottom()) < 1e-9);
    }
}

/// Where two flights are compared the numbers of both are told, even where there is little room.
void TestGraphLayout::comparedLegend()
{
    GraphModel model;
    fill(model, 2, 20);
    for (double width = 380; width < 1300; width += 20) {
        model.scenery().setGhost(nullptr);
        const GraphLayout alone = layoutOf(model, width, 600);
        auto pGhost = std::make_shared<Ghost>(Ghost{"A flight of another day", model.traces()});
        model.scenery().setGhost(pGhost);
        model.scenery().setGhostShift(-50);
        const GraphLayout layout = layoutOf(model, width, 600);
        QVERIFY(layout.legendKind() == GraphLayout::ELegend::eFull || alone.legendKind() != GraphLayout::ELegend::eFull);
        QVERIFY(layout.numberLength() == alone.numberLength() + 1);
        if (layout.legendKind() != GraphLayout::ELegend::eFull)
            continue;
        const Drawing canvas(model, QSizeF(width, 600));
        // The trace's own value at 50 s, that of the other one at 100 s, and what lies between.
        const QRectF own = canvas.boxOf("5.00"), other = canvas.boxOf("10.00"), difference = canvas.boxOf("-5.00");
        QVERIFY(!own.isEmpty() && own.right() < other.left() && other.right() < difference.left() && own.top() == difference.top());
        QVERIFY(difference.right() <= width);
        const QRectF heading = canvas.boxOf("Diff.");
        QVERIFY(std::abs(heading.right() - difference.right()) < 1.5 && heading.bottom() <= own.top() + 3);
    }
    QVERIFY(layoutOf(model, 700, 600).legendKind() == GraphLayout::ELegend::eFull);
}

void TestGraphLayout::tableHasItsShare()
{
    GraphModel model;
    for (const int traces : {1, 3, 12, 30}) {
        fill(model, traces);
        model.setMarker({20, 60});
        for (double height = 300; height <= 1200; height += 150) {
            const GraphLayout layout = layoutOf(model, 1400, height);
            const VisibleRows& rows = layout.markerSheet().visible();
            QVERIFY(layout.table().left() == 6 && layout.table().width() == 1400 - 12 && std::abs(layout.table().bottom() - height) < 7);
            QCOMPARE(rows.all, traces);
            QVERIFY(rows.count >= std::min(traces, 1));
            // All lines, or as many as a share of the view has room for, with headings and a line that tells of the others.
            const double room = 0.38 * height / layout.line();
            QVERIFY2(rows.isCut() ? rows.count + 2 <= std::max(3.0, room) && rows.count + 4 > room : traces + 1 <= std::max(3.0, room) + 1,
                     qPrintable(QString("%1 %2").arg(rows.count).arg(room)));
            QVERIFY(std::abs(layout.table().height() - (rows.count + (rows.isCut() ? 2 : 1)) * layout.line()) < 1e-9);
        }
    }
    for (double width = 300; width <= 1000; width += 50) { // neither does a legend below take the plot's half, nor a column the marker's length
        const Drawing canvas(model, QSizeF(width, 480));
        const GraphLayout layout = layoutOf(model, width, 480);
        QVERIFY2(layout.plot().height() >= 0.4 * 480, qPrintable(QString("%1: %2").arg(width).arg(layout.plot().height())));
        QVERIFY2(std::ranges::any_of(canvas.texts, [](const auto& entry) { return entry.second == "dt = 40.000 s"; }), qPrintable(QString::number(width)));
    }
    model.setMarker({7, 7});
    QVERIFY(layoutOf(model, 1400, 900).table().isEmpty());
    model.setMarker({20, 60});
    for (int index = 0; index < 30; ++index)
        model.traces().setActive(index, false);
    QVERIFY(layoutOf(model, 1400, 900).table().isEmpty() && layoutOf(model, 1400, 900).legend().isEmpty());
}

void TestGraphLayout::stripsShareThePlot()
{
    GraphModel model;
    fill(model, 7);
    model.settings().displayMode = eSplit;
    model.traces().edit(2, [](GraphParameter& trace) { trace.height = 2.5; });
    model.traces().edit(4, [](GraphParameter& trace) { trace.height = 0.25; });
    for (const double height : {300.0, 471.0, 902.0}) {
        const GraphLayout layout = layoutOf(model, 1000, height);
        const double whole = layout.plot().height() / (5 + 2.5 + 0.25);
        double bottom = layout.plot().top();
        for (const int index : model.traces().shown()) {
            const QRectF area = layout.area(index);
            QVERIFY(area.top() == bottom && area.left() == layout.plot().left() && area.right() == layout.plot().right());
            QVERIFY(std::abs(area.height() - whole * (index == 2 ? 2.5 : index == 4 ? 0.25 : 1)) <= 1);
            QVERIFY(area.top() == std::floor(area.top()) && layout.stripAt(model, area.top()) == index && layout.stripAt(model, area.bottom() - 0.1) == index);
            QVERIFY(std::abs(layout.handle(index).y() - area.center().y()) < 1e-9 && layout.handle(index).x() < layout.plot().left());
            bottom = area.bottom();
        }
        QCOMPARE(bottom, layout.plot().bottom());
        QVERIFY(layout.stripAt(model, -50) == 0 && layout.stripAt(model, 5000) == 6);
        QVERIFY(layout.area(-1) == layout.plot() && layout.area(77) == layout.plot());
    }
    model.settings().displayMode = eSingleGraph;
    QVERIFY(layoutOf(model, 1000, 300).area(3) == layoutOf(model, 1000, 300).plot());
    GraphModel none;
    none.settings().displayMode = eSplit;
    QCOMPARE(layoutOf(none, 1000, 300).stripAt(none, 100), -1);
}

void TestGraphLayout::axesShareAScale()
{
    GraphModel model;
    fill(model, 7); // 0 and 5, 1 and 6 have the same values
    model.traces().togglePin(2);
    const int chosen = model.traces().axis();
    const GraphLayout layout = layoutOf(model, 2000, 600);
    std::vector<int> indexes;
    for (const ValueAxis& axis : layout.axes()) {
        indexes.push_back(axis.index);
        QCOMPARE(axis.isOwn, axis.index == 2 || axis.index == 3 || axis.index == 4);
        QCOMPARE(axisAt(layout, axis.labels.center()), axis.index);
    }
    QCOMPARE(indexes.front(), chosen);
    std::ranges::sort(indexes);
    QCOMPARE(indexes, (std::vector<int>{0, 1, 2, 3, 4}));
    QCOMPARE(axisAt(layout, layout.plot().center()), -1);
    std::size_t before = 0;
    for (double width = 300; width <= 2000; width += 50) { // one has room in every view, more as long as they leave the plot its part
        const GraphLayout view = layoutOf(model, width, 600);
        double all = 0;
        for (const ValueAxis& axis : view.axes())
            all += axis.labels.width();
        QVERIFY(view.axes().size() == 1 || all <= 0.22 * width);
        QVERIFY(view.axes().size() >= before && view.axes().size() <= 5);
        QVERIFY(view.plot().left() >= all + 6 && view.plot().left() < all + 8);
        before = view.axes().size();
    }
    QVERIFY(layoutOf(model, 500, 600).axes().size() < 5);
}

/// The labels of the values have room between the edge of their axis and the plot, however long they are.
void TestGraphLayout::labelsFitTheirAxis()
{
    for (const bool isSplit : {false, true}) {
        for (const double greatest : {1.0, 12345.678, -0.00012, 9.87e9}) {
            for (const double height : {130.0, 250.0, 700.0}) {
                GraphModel model;
                fill(model, 3);
                model.settings().legendOn = false;
                model.settings().displayMode = isSplit ? eSplit : eSingleGraph;
                model.traces().clearSamples();
                for (const int index : {0, 1, 2})
                    model.putValues(index, std::vector<double>{0, 100}, std::vector<double>{0, greatest * (index + 1)});
                model.setWindow({0, 100});
                const GraphLayout layout = layoutOf(model, 900, height);
                const Drawing canvas(model, QSizeF(900, height));
                int labels = 0;
                for (const auto& [box, text] : canvas.texts) {
                    if (box.right() > layout.plot().left() || box.bottom() < layout.plot().top() || box.top() > layout.plot().bottom())
                        continue;
                    ++labels;
                    const auto isAround = [&](const ValueAxis& axis) { return axis.labels.adjusted(0, -99, 0, 99).contains(box); };
                    QVERIFY2(text.size() > 13 || std::ranges::any_of(layout.axes(), isAround), qPrintable(text));
                }
                QVERIFY(labels >= 3);
            }
        }
    }
}

void TestGraphLayout::placesAndTimes()
{
    Test::OneTrace graph;
    graph.model.setWindow({-20, 60});
    const GraphLayout layout = layoutOf(graph.model, 700, 400);
    const QRectF& plot = layout.plot();
    for (const auto& [time, place] : {std::pair(-20.0, 0.0), {0.0, 0.25}, {60.0, 1.0}}) {
        QVERIFY(std::abs(layout.xOf(time) - plot.left() - place * plot.width()) < 1e-9);
        QVERIFY(std::abs(layout.timeAt(layout.xOf(time)) - time) < 1e-9);
    }
    for (const auto& [value, place] : {std::pair(10.0, 1.0), {15.0, 0.75}, {30.0, 0.0}}) {
        QVERIFY(std::abs(GraphLayout::yOf(value, plot, {10, 30}) - plot.top() - place * plot.height()) < 1e-9);
        QVERIFY(std::abs(valueAt(plot.top() + place * plot.height(), plot, {10, 30}) - value) < 1e-9);
    }
    QCOMPARE(GraphLayout::yOf(5, plot, {7, 7}), plot.center().y());
    QCOMPARE(GraphLayout::yOf(1e300, plot, {0, 1}), -1e6);
    QCOMPARE(GraphLayout::yOf(-1e300, plot, {0, 1}), 1e6);
    QCOMPARE(valueAt(5, QRectF(), {3, 4}), 3.0);
}

/// Without room for a legend a line over the plot names each trace and tells its value.
void TestGraphLayout::linesOverThePlot()
{
    GraphModel model;
    fill(model, 12);
    for (const bool hasCursor : {true, false}) {
        model.settings().cursorOn = hasCursor;
        const GraphLayout layout = layoutOf(model, 190, 140);
        QCOMPARE(layout.legendKind(), GraphLayout::ELegend::eNone);
        int seen = 0;
        for (std::size_t row = 0; row < 12; ++row) {
            const QRectF line = layout.legendLine(model, row);
            QVERIFY(line.isEmpty() || layout.plot().contains(line.topLeft()));
            QVERIFY(line.isEmpty() || line.bottom() <= layout.plot().bottom());
            seen += !line.isEmpty();
        }
        // As many as fit below the cursor's time.
        const int room = static_cast<int>((layout.plot().height() - 3) / layout.line());
        QCOMPARE(seen, std::min(12, room - hasCursor));
        QCOMPARE(layout.legendLine(model, 0).top() - layout.plot().top(), 3 + (hasCursor ? layout.line() : 0));
    }
    model.setMarker({20, 60});
    QCOMPARE(layoutOf(model, 300, 300).overlayText(model, 3), QString("500.00 [kPa]")); // the marker's table has the name
    model.setMarker({7, 7});
    for (double width = 130; width < 260; width += 9) {
        const GraphLayout layout = layoutOf(model, width, 140);
        const QString text = layout.overlayText(model, 3);
        QVERIFY2(text.endsWith(" 500.00"), qPrintable(text));
        QVERIFY(layout.legendLine(model, 3).right() <= std::max(layout.plot().right(), layout.plot().left() + 150));
    }
    model.settings().displayMode = eSplit;
    QVERIFY(!layoutOf(model, 190, 800).overlayText(model, 3).contains("500")); // there the cursor tells it
    QCOMPARE(layoutOf(model, 190, 800).overlayLine(model, 3).top(), layoutOf(model, 190, 800).area(3).top() + 2);
}

/// What a flight does has a line above the plot, in views that are high enough.
void TestGraphLayout::bandHasALine()
{
    GraphModel model;
    fill(model, 1);
    const double without = layoutOf(model, 900, 600).plot().top(), low = layoutOf(model, 900, 150).plot().top();
    model.scenery().setCourse(std::make_shared<CycleCourse>());
    QCOMPARE(layoutOf(model, 900, 600).plot().top(), without + layoutOf(model, 900, 600).line() + 1);
    QCOMPARE(layoutOf(model, 900, 150).plot().top(), low);
    QVERIFY(without >= layoutOf(model, 900, 600).line()); // for the name of the axis
}

QTEST_MAIN(TestGraphLayout)
#include "TestGraphLayout.moc"
