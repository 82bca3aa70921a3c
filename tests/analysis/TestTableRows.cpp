#include "analysis/TableRows.h"
#include "support/CardBuilder.h"
#include "trace/ChannelTrace.h"
#include "trace/ComputedChannel.h"

#include <QTest>

#include <limits>
#include <random>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

/// The table as it is described: a map from key to row, and cells that later samples overwrite.
struct NaiveTable {
    NaiveTable(const RecordData& data, const std::vector<uint32_t>& identifiers) : cells(identifiers.size())
    {
        for (std::size_t column = 0; column < identifiers.size(); ++column) {
            const RecordChannel* pChannel = data.channel(identifiers[column]);
            for (std::size_t i = 0; pChannel && i < pChannel->entries.size(); ++i) {
                const uint32_t key = pChannel->entries[i].timeTenths;
                rows[key] = 0;
                cells[column][key] = i;
            }
        }
        std::size_t row = 0;
        for (auto& [key, number] : rows)
            number = row++;
    }
    [[nodiscard]] std::size_t rowAt(double seconds) const
    {
        const auto above = rows.upper_bound(timeTenths(seconds));
        return above == rows.begin() ? 0 : std::prev(above)->second;
    }

    std::map<uint32_t, std::size_t> rows;
    std::vector<std::map<uint32_t, std::size_t>> cells;
};

TraceSet tracesOf(const RecordData& data, const std::vector<uint32_t>& identifiers)
{
    std::vector<std::unique_ptr<const Trace>> traces;
    for (const uint32_t identifier : identifiers)
        traces.push_back(
            std::make_unique<ChannelTrace>("", ProfileParameter(), DecodingContext(), recordedChannel(data, identifier), ENumber::eText, nullptr));
    return TraceSet(std::move(traces));
}

/// A recording of some channels at uneven rates; `damage` in 1000 records has any time.
void fillRandomly(RecordData& data, std::mt19937& random, unsigned int damage)
{
    RecordFileBuilder file;
    for (uint32_t identifier = 1; identifier <= 5; ++identifier) {
        double time = 100;
        for (auto n = random() % 3000; n > 0; --n) {
            time += static_cast<double>(random() % (identifier * 20)) * 0.01;
            const bool damaged = random() % 1000 < damage;
            file.addWord(identifier, damaged ? static_cast<double>(random() % 1000000) : time, 0);
        }
    }
    file.fill(data);
}

} // namespace

class TestTableRows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void equalsTheNaiveTable_data();
    void equalsTheNaiveTable();
    void laterSamplesOfATenthReplaceEarlierOnes();
    void cellsInAnyOrder();
    void rowsAtTheEdgesOfWords();
    void withoutSamples();
    void memory_data();
    void memory();
};

void TestTableRows::equalsTheNaiveTable_data()
{
    QTest::addColumn<unsigned int>("damage");
    QTest::addColumn<unsigned int>("seed");
    for (const unsigned int seed : {1U, 2U, 3U}) {
        QTest::addRow("ascending times, %u", seed) << 0U << seed;
        QTest::addRow("some times damaged, %u", seed) << 5U << seed;
        QTest::addRow("all times damaged, %u", seed) << 1000U << seed;
    }
}

void TestTableRows::equalsTheNaiveTable()
{
    QFETCH(unsigned int, damage);
    QFETCH(unsigned int, seed);
    std::mt19937 random(seed);
    RecordData data;
    fillRandomly(data, random, damage);
    const std::vector<uint32_t> identifiers{3, 1, 99, 3, 5, RecordData::kPseudoKind0}; // 99 is not recorded, nothing is of kind 0
    const NaiveTable expected(data, identifiers);
    const TraceSet traces = tracesOf(data, identifiers);
    const TableRows rows(traces);

    QCOMPARE(rows.rowCount(), expected.rows.size());
    QCOMPARE(rows.columnCount(), identifiers.size());
    for (const auto& [key, row] : expected.rows) {
        QCOMPARE(rows.key(row).tenths, key);
        for (std::size_t column = 0; column < identifiers.size(); ++column) {
            const auto cell = expected.cells[column].find(key);
            const auto sample = rows.sampleAt(column, row);
            QCOMPARE(sample.has_value(), cell != expected.cells[column].end());
            if (sample)
                QCOMPARE(*sample, cell->second);
        }
    }
    for (int i = 0; i < 2000; ++i) {
        const double seconds = static_cast<double>(random() % 40000) * 0.05 - 10;
        QCOMPARE(rows.rowAt(seconds), expected.rowAt(seconds));
    }
}

void TestTableRows::laterSamplesOfATenthReplaceEarlierOnes()
{
    RecordData data;
    RecordFileBuilder().addWord(1, 1.96, 0).addWord(1, 2.0, 0).addWord(1, 2.04, 0).addWord(1, 2.06, 0).addWord(2, 2.1, 0).fill(data);
    const std::vector<uint32_t> identifiers{1, 2};
    const TraceSet traces = tracesOf(data, identifiers);
    const TableRows rows(traces);
    QCOMPARE(rows.rowCount(), 2U);
    QCOMPARE(rows.key(0).milliseconds(), 2000);
    QCOMPARE(rows.sampleAt(0, 0), std::optional<std::size_t>(2));
    QCOMPARE(rows.sampleAt(0, 1), std::optional<std::size_t>(3));
    QVERIFY(!rows.sampleAt(1, 0));
    QCOMPARE(rows.rowAt(2.04), 0U);
    QCOMPARE(rows.rowAt(2.05), 1U);
}

/// A search goes on from where the last one ended, wherever that was.
void TestTableRows::cellsInAnyOrder()
{
    RecordData data;
    RecordFileBuilder file;
    for (int i = 0; i < 2000; ++i)
        file.addWord(1, i * 0.1, 0).addWord(2, i * 0.3, 0);
    file.fill(data);
    const TraceSet traces = tracesOf(data, {1, 2});
    const TableRows rows(traces);
    std::mt19937 random(5);
    for (int i = 0; i < 3000; ++i) {
        const std::size_t row = random() % rows.rowCount();
        const uint32_t tenths = rows.key(row).tenths;
        QCOMPARE(rows.sampleAt(0, row), tenths < 2000 ? std::optional<std::size_t>(tenths) : std::nullopt);
        QCOMPARE(rows.sampleAt(1, row), tenths % 3 == 0 ? std::optional<std::size_t>(tenths / 3) : std::nullopt);
    }
    for (const std::size_t row : {std::size_t(0), rows.rowCount() - 1, std::size_t(0)})
        QVERIFY(rows.sampleAt(0, row).has_value() == (row == 0) && rows.sampleAt(1, row));
}

void TestTableRows::rowsAtTheEdgesOfWords()
{
    for (const uint32_t first : {0U, 1U, 63U, 64U, 100U}) {
        for (const uint32_t width : {0U, 1U, 62U, 63U, 64U, 65U, 127U, 128U, 129U, 1000U}) {
            RecordData data;
            RecordFileBuilder file;
            for (uint32_t tenths = first; tenths <= first + width; ++tenths) // the second channel's rows are there by then, but for the last
                file.addWord(1, tenths * 0.1, 0).addWord(2, tenths * 0.1 + (tenths == first + width ? 0.1 : 0.0), 0);
            file.fill(data);
            const TraceSet traces = tracesOf(data, {1, 2});
            const TableRows rows(traces);
            QCOMPARE(rows.rowCount(), std::size_t(width) + 2);
            for (std::size_t row = 0; row < rows.rowCount(); ++row)
                QCOMPARE(rows.key(row).tenths, first + static_cast<uint32_t>(row));
            QVERIFY(!rows.sampleAt(0, rows.rowCount() - 1) && rows.sampleAt(1, rows.rowCount() - 1) == width);
        }
    }
}

void TestTableRows::withoutSamples()
{
    const RecordData data;
    const TraceSet traces = tracesOf(data, {1, 2}), none = tracesOf(data, {});
    const TableRows rows(traces);
    QVERIFY(rows.rowCount() == 0 && rows.columnCount() == 2 && rows.rowAt(5) == 0);
    QVERIFY(TableRows(none).columnCount() == 0 && TableRows().rowCount() == 0);
    QVERIFY(rows.bytes() > 0);
}

void TestTableRows::memory_data()
{
    QTest::addColumn<double>("lastTime");
    QTest::addColumn<std::size_t>("bytesPerSample"); // at most
    QTest::newRow("ascending times") << 60000.0 << std::size_t(4);
    QTest::newRow("a clock that goes back") << 0.0 << std::size_t(8); // 4 a sample and 4 a row
    QTest::newRow("a time of a damaged counter") << 5e11 << std::size_t(4);
}

void TestTableRows::memory()
{
    QFETCH(double, lastTime);
    QFETCH(std::size_t, bytesPerSample);
    constexpr std::size_t samples = 100000;
    RecordFileBuilder file;
    for (std::size_t i = 1; i < samples; ++i)
        file.addWord(1, static_cast<double>(i) * 0.5, 0);
    RecordData data;
    file.addWord(1, lastTime, 0).fill(data);
    const std::vector<uint32_t> identifiers{1, 1, 1};
    const TraceSet traces = tracesOf(data, identifiers);
    const TableRows rows(traces);
    QCOMPARE(rows.rowCount(), samples);
    QVERIFY2(rows.bytes() <= samples * bytesPerSample + 1024, std::to_string(rows.bytes()).c_str());
    QCOMPARE(rows.sampleAt(2, rows.rowAt(lastTime)), std::optional(samples - 1));
}

QTEST_GUILESS_MAIN(TestTableRows)
#include "TestTableRows.moc"
