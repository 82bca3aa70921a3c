#include "app/Console.h"
#include "app/Progress.h"
#include "app/Property.h"
#include "bench/BenchApplication.h"
#include "card/CardContainer.h"
#include "profile/Profile.h"
#include "project/Project.h"
#include "ui/data/DialogDataTable.h"
#include "ui/data/RowTable.h"
#include "ui/data/model/DataTableModel.h"

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableWidget>

#include <bit>
#include <cstring>
#include <malloc.h>
#include <memory>

namespace ZARN {

namespace {

constexpr QSize kWindow(1200, 700);
constexpr int kItemRows = 100000;
constexpr int kItemColumns = 40;
constexpr int kColumnWidth = 100; // the toolkit's default
constexpr uint64_t kTicksPerTenth = 3200000;

/// Whether a channel has a sample at a row: about every second one.
bool hasSample(uint32_t row, uint32_t channel)
{
    return ((row * 2654435761U + channel * 40503U) >> 13 & 1) != 0;
}

StoredRecord recordAt(uint32_t row, uint32_t channel)
{
    StoredRecord record{};
    const float value = 20.0F + static_cast<float>(channel) + static_cast<float>(row % 1000) * 0.01F;
    const uint32_t word = __builtin_bswap32(std::bit_cast<uint32_t>(value));
    std::memcpy(record.payload.data() + 4, &word, 4);
    record.ticks = row * kTicksPerTenth;
    return record;
}

/// A session whose record has samples of some channels at every second of its tenths, and a profile with the columns over them.
struct TableSession {
    TableSession(uint32_t rows, uint32_t columns, uint32_t channels)
        : profile(console), container(console, profile, nullProgress()), property(console), project(console, profile)
    {
        QByteArray xml = "<CanAerospaceProfile><ThresholdList name=\"t\"><Threshold value=\"29\" state=\"WARNING\" color=\"#ffff00\"/>"
                         "</ThresholdList><Device name=\"d\">";
        for (uint32_t i = 0; i < columns; ++i) {
            xml += QString("<Parameter name=\"p%1\" id=\"%2\" startByte=\"4\" precision=\"2\" dataType=\"FLOAT\" thresholdId=\"t\"/>")
                       .arg(i)
                       .arg(i % channels + 1)
                       .toUtf8();
        }
        QDomDocument document;
        document.setContent(xml + "</Device></CanAerospaceProfile>");
        profile.loadDocument(document.documentElement(), "");
        for (uint32_t i = 0; i < columns; ++i)
            profile.setSelected("p" + std::to_string(i), true);
        RecordData& data = container.recordData();
        for (uint32_t row = 0; row < rows; ++row) {
            for (uint32_t channel = 0; channel < channels; ++channel) {
                if (channels == 1 || hasSample(row, channel))
                    data.append(channel + 1, recordAt(row, channel));
            }
        }
        data.buildTimeIndex();
    }
    [[nodiscard]] Session session() { return {console, property, profile, container, project}; }

    Console console{[](std::string_view) {}, [](std::string_view) {}};
    Profile profile;
    CardContainer container;
    Property property;
    Project project;
};

std::size_t heap()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// @return milliseconds from the wish to see it to its being painted
double showFirst(QWidget& window, QAbstractItemView& view)
{
    QElapsedTimer clock;
    clock.start();
    window.resize(kWindow);
    window.show();
    QApplication::processEvents();
    view.viewport()->repaint();
    return static_cast<double>(clock.nsecsElapsed()) * 1e-6;
}

void scroll(QAbstractItemView& view, int& step)
{
    step = (step + 1) % 50;
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum() / 50 * step);
    view.viewport()->repaint();
    QApplication::processEvents();
}

/// The floor: what a table with an item a cell takes.
std::unique_ptr<QTableWidget> createItems()
{
    auto pTable = std::make_unique<QTableWidget>();
    pTable->verticalHeader()->setVisible(false);
    pTable->verticalHeader()->setDefaultSectionSize(15);
    pTable->setColumnCount(kItemColumns);
    pTable->setRowCount(kItemRows);
    for (int column = 0; column < kItemColumns; ++column) {
        for (int row = 0; row < kItemRows; ++row) {
            if (column != 0 && !hasSample(static_cast<uint32_t>(row), static_cast<uint32_t>(column)))
                continue;
            auto* pItem = new QTableWidgetItem(QString::asprintf("%.2f", 20 + column + row % 1000 * 0.01));
            pItem->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
            if (column == 0)
                pItem->setBackground(QColor(230, 230, 230));
            pTable->setItem(row, column, pItem);
        }
    }
    return pTable;
}

void openItems(benchmark::State& state)
{
    startApplication();
    for (auto _ : state) {
        const std::size_t before = heap();
        const auto pTable = createItems();
        showFirst(*pTable, *pTable);
        state.counters["heapMiB"] = static_cast<double>(heap() - before) / 1048576.0;
    }
}

void scrollItems(benchmark::State& state)
{
    startApplication();
    const auto pTable = createItems();
    showFirst(*pTable, *pTable);
    int step = 0;
    for (auto _ : state)
        scroll(*pTable, step);
}

/// From the loaded record to the painted table.
void openTable(benchmark::State& state)
{
    startApplication();
    TableSession table(static_cast<uint32_t>(state.range(0)), static_cast<uint32_t>(state.range(1)), static_cast<uint32_t>(state.range(2)));
    for (auto _ : state) {
        const std::size_t before = heap();
        DialogDataTable view(table.session());
        view.updateRecord(&table.container.recordData());
        state.counters["firstPaintMs"] = showFirst(view, *view.findChild<RowTable*>());
        const double samples = static_cast<double>(table.container.recordData().count()) * static_cast<double>(state.range(1)) /
                               static_cast<double>(state.range(2));
        state.counters["heapMiB"] = static_cast<double>(heap() - before) / 1048576.0;
        state.counters["heapBytesASample"] = static_cast<double>(heap() - before) / samples;
        state.counters["indexBytesASample"] = static_cast<double>(view.model().bytes()) / samples;
    }
}

void scrollTable(benchmark::State& state)
{
    startApplication();
    TableSession table(static_cast<uint32_t>(state.range(0)), static_cast<uint32_t>(state.range(1)), static_cast<uint32_t>(state.range(2)));
    DialogDataTable view(table.session());
    view.updateRecord(&table.container.recordData());
    auto* pView = view.findChild<RowTable*>();
    for (int column = 0; column < view.model().columnCount(); ++column)
        pView->setColumnWidth(column, kColumnWidth); // as many cells a page as the other table shows
    showFirst(view, *pView);
    int step = 0;
    for (auto _ : state)
        scroll(*pView, step);
}

/// A view time that moves on, as in a replay.
void followTime(benchmark::State& state)
{
    startApplication();
    TableSession table(3000000, 120, 4);
    DialogDataTable view(table.session());
    view.updateRecord(&table.container.recordData());
    showFirst(view, *view.findChild<RowTable*>());
    double time = 0.0;
    for (auto _ : state) {
        view.setTime(time += 2.0);
        QApplication::processEvents();
    }
}

BENCHMARK(openItems)->Name("table/items")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(openTable)
    ->Name("table/open")
    ->Args({kItemRows, kItemColumns, kItemColumns})
    ->Args({3000000, 120, 4})
    ->Args({1000000, 1, 1})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(scrollItems)->Name("table/scrollItems")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(scrollTable)
    ->Name("table/scroll")
    ->Args({kItemRows, kItemColumns, kItemColumns})
    ->Args({3000000, 120, 4})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(followTime)->Name("table/follow")->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

} // namespace ZARN
