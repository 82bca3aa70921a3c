#include "card/record/MemoryLimit.h"
#include "card/record/RecordData.h"
#include "support/CardBuilder.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <random>

#include <malloc.h>
#include <sys/resource.h>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

StoredRecord numbered(uint32_t number, uint64_t ticks, uint16_t kind = 2)
{
    return {{static_cast<uint8_t>(number >> 24), static_cast<uint8_t>(number >> 16), static_cast<uint8_t>(number >> 8),
             static_cast<uint8_t>(number)},
            0, 0, kind, 0, 0, ticks};
}

uint32_t numberOf(const StoredRecord& record)
{
    return static_cast<uint32_t>(record.payload[0]) << 24 | static_cast<uint32_t>(record.payload[1]) << 16 |
           static_cast<uint32_t>(record.payload[2]) << 8 | record.payload[3];
}

/// Ticks of recordings of several kinds.
std::vector<uint64_t> drawTicks(const QString& kind, std::size_t count, std::mt19937& random)
{
    std::vector<uint64_t> ticks;
    uint64_t now = kind == "high words" ? 0xFFFF'F000ULL : 0;
    for (std::size_t i = 0; i < count; ++i) {
        if (kind == "ascending" || kind == "high words")
            now += random() % 5; // with ties
        else if (kind == "restarts")
            now = random() % 400 == 0 ? random() % 1000 : now + random() % 50;
        else if (kind == "one damaged")
            now = i == count / 3 ? UINT64_MAX : i == count / 3 + 1 ? 3000000 : now + 1000;
        else
            now = random() % 20000 * 16000;
        ticks.push_back(now);
    }
    return ticks;
}

uint64_t peakMemory()
{
    struct rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<uint64_t>(usage.ru_maxrss) * 1024;
}

} // namespace

class TestRecordData : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void entriesEqualVector();
    void lookUpsEqualScans_data();
    void lookUpsEqualScans();
    void pseudoChannelsEqualModel_data();
    void pseudoChannelsEqualModel();
    void liveRecordsAreFresh();
    void memoryLimitRefuses();
    void manyIdentifiersStayBounded();
    void clearedIdentifiersTakeNothing();
};

void TestRecordData::entriesEqualVector()
{
    for (const std::size_t size : {0U, 1U, 3U, 4U, 5U, 7U, 8U, 9U, 16U, 17U, 1023U, 1024U, 1025U, 2047U, 2048U, 2049U, 4095U, 4096U, 4097U,
                                   10000U}) {
        RecordData data;
        std::vector<uint32_t> model;
        data.append(8, numbered(77, 0)); // a neighbour that shares the pool
        for (uint32_t i = 0; i < size; ++i) {
            QVERIFY(data.append(9, numbered(i, i)));
            model.push_back(i);
        }
        const RecordChannel* pChannel = data.channel(9);
        QCOMPARE(pChannel != nullptr, size > 0);
        if (!pChannel)
            continue;
        const RecordEntries& entries = pChannel->entries;
        QCOMPARE(entries.size(), size);
        std::vector<uint32_t> byPosition;
        std::vector<uint32_t> byChunk;
        std::vector<uint32_t> byIterator;
        for (std::size_t i = 0; i < size; ++i)
            byPosition.push_back(numberOf(entries.stored(i)));
        for (std::size_t c = 0; c < entries.chunkCount(); ++c) {
            for (const StoredRecord& record : entries.chunk(c))
                byChunk.push_back(numberOf(record));
        }
        for (const RecordEntry& entry : entries) {
            QCOMPARE(entry.id, 9U);
            byIterator.push_back(numberOf(entry.stored()));
        }
        QVERIFY(byPosition == model && byChunk == model && byIterator == model);
        // Runs of any length wanted, put end to end, are the sequence.
        for (const std::size_t most : {std::size_t(1), std::size_t(32), std::size_t(5000)}) {
            std::vector<uint32_t> byRun;
            while (byRun.size() < size) {
                const auto run = entries.run(byRun.size(), most);
                QVERIFY(!run.empty() && run.size() <= most);
                for (const StoredRecord& record : run)
                    byRun.push_back(numberOf(record));
            }
            QVERIFY(byRun == model);
        }
    }
}

void TestRecordData::lookUpsEqualScans_data()
{
    QTest::addColumn<QString>("kind");
    for (const char* kind : {"ascending", "high words", "restarts", "one damaged", "unordered"})
        QTest::newRow(kind) << kind;
}

void TestRecordData::lookUpsEqualScans()
{
    QFETCH(QString, kind);
    std::mt19937 random(11);
    for (const std::size_t size : {1U, 2U, 5U, 300U, 5000U}) {
        RecordChannel channel(5);
        RecordPool pool;
        for (const uint64_t ticks : drawTicks(kind, size, random))
            channel.entries.append(numbered(static_cast<uint32_t>(channel.entries.size()), ticks), pool);
        channel.buildTimeIndex();
        std::vector<double> times;
        for (std::size_t i = 0; i < size; ++i)
            times.push_back(channel.entries.time(i));
        std::vector<double> probes{0.0, -1.0, kNan, kInfinity, -kInfinity, times.back(), times.front()};
        for (int i = 0; i < 60; ++i) {
            const double time = times[random() % size];
            probes.insert(probes.end(), {time, std::nextafter(time, kInfinity), std::nextafter(time, -kInfinity)});
        }
        for (const double time : probes) {
            const auto scanned = std::find_if(times.begin(), times.end(), [=](double t) { return t >= time; }) - times.begin();
            QCOMPARE(channel.firstAtOrAfter(time), static_cast<std::size_t>(scanned));
        }
        for (int i = 0; i < 60; ++i) {
            const double from = probes[random() % probes.size()];
            const double to = probes[random() % probes.size()];
            std::vector<uint32_t> found;
            std::vector<uint32_t> expected;
            for (const auto& [first, last] : channel.rangesIn(from, to)) {
                for (std::size_t position = first; position < last; ++position) {
                    if (from <= times[position] && times[position] <= to)
                        found.push_back(static_cast<uint32_t>(position));
                }
            }
            for (uint32_t n = 0; n < size; ++n) {
                if (from <= times[n] && times[n] <= to)
                    expected.push_back(n);
            }
            QVERIFY(found == expected);
        }
    }
}

void TestRecordData::pseudoChannelsEqualModel_data()
{
    QTest::addColumn<QString>("kind");
    for (const char* kind : {"ascending", "strictly ascending", "restarts", "unordered"})
        QTest::newRow(kind) << kind;
}

void TestRecordData::pseudoChannelsEqualModel()
{
    QFETCH(QString, kind);
    std::mt19937 random(5);
    for (const bool damagedIdentifiers : {false, true}) {
        RecordData data;
        std::map<uint32_t, std::vector<std::pair<uint32_t, uint32_t>>> model; // identifier and number of each record, by channel
        std::vector<uint64_t> ticks = drawTicks(kind, 6000, random);
        for (uint32_t i = 0; i < ticks.size(); ++i) {
            const uint32_t identifier = damagedIdentifiers && random() % 10 == 0 ? RecordData::kPseudoKind1 + random() % 2 : random() % 40;
            const auto recordKind = static_cast<uint16_t>(random() % 4);
            QVERIFY(data.append(identifier, numbered(i, kind == "strictly ascending" ? i : ticks[i], recordKind)));
            model[identifier].emplace_back(identifier, i);
            if (recordKind < 2)
                model[RecordData::kPseudoKind0 - recordKind].emplace_back(identifier, i);
        }
        data.buildTimeIndex();
        for (const auto& [identifier, expected] : model) {
            std::vector<std::pair<uint32_t, uint32_t>> found;
            for (const RecordEntry& entry : data.channel(identifier)->entries)
                found.emplace_back(entry.id, numberOf(entry.stored()));
            QVERIFY(found == expected);
        }
        const RecordChannel& pseudo = *data.channel(RecordData::kPseudoKind0); // its index is there too
        for (int i = 0; i < 50; ++i) {
            const double time = pseudo.entries.time(random() % pseudo.entries.size());
            std::size_t scanned = 0;
            while (pseudo.entries.time(scanned) < time)
                ++scanned;
            QCOMPARE(pseudo.firstAtOrAfter(time), scanned);
        }
    }
    RecordData none;
    none.append(1, numbered(0, 0, 2));
    QVERIFY(!none.channel(RecordData::kPseudoKind0) && !none.channel(RecordData::kPseudoKind1));
}

void TestRecordData::liveRecordsAreFresh()
{
    RecordData data;
    data.append(3, numbered(1, 100, 0));
    QVERIFY(!data.channel(3)->last().flag);
    QCOMPARE(data.channel(RecordData::kPseudoKind0)->entries.size(), std::size_t(1));
    RecordEntry entry(numbered(2, 90, 0), 3);
    QVERIFY(data.appendLive(entry));
    QVERIFY(data.channel(3)->last().flag);
    QCOMPARE(numberOf(data.channel(3)->last().stored()), 2U);
    QCOMPARE(data.channel(RecordData::kPseudoKind0)->entries.size(), std::size_t(2));
    data.channel(3)->setFresh(false);
    QVERIFY(!data.channel(3)->last().flag);
    QCOMPARE(RecordChannel(3).last().time, 0.0);
    // A record that goes back in time is found, before and after the index is built.
    QCOMPARE(data.channel(3)->firstAtOrAfter(recordTime(0, 90)), std::size_t(0));
    QCOMPARE(data.channel(3)->rangesIn(0, 1).back().last, std::size_t(2));
}

void TestRecordData::memoryLimitRefuses()
{
    const QTemporaryDir groups; // a control group and the one above it
    const std::string group = groups.path().toStdString() + "/inner";
    std::filesystem::create_directory(group);
    const std::size_t free = availableMemory(group);
    std::ofstream(group + "/memory.max") << "max\n";
    QCOMPARE(availableMemory(group), free);
    std::ofstream(groups.path().toStdString() + "/memory.max") << "12345678\n";
    QCOMPARE(availableMemory(group), std::size_t(12345678));
    std::ofstream(group + "/memory.max") << "2345678\n";
    QCOMPARE(availableMemory(group), std::size_t(2345678));

    constexpr std::size_t limit = 8 << 20;
    RecordData data(limit);
    uint32_t count = 0;
    while (data.append(count % 3, numbered(count, count, 0)) && count < 10'000'000)
        ++count;
    QVERIFY(count > limit / sizeof(StoredRecord) / 2 && count <= limit / sizeof(StoredRecord));
    QCOMPARE(data.count(), count);
    // What was taken is whole; the refused record left no trace, and a channel that never got one is none.
    std::size_t held = 0;
    for (const RecordChannel* pChannel : data.channels())
        held += pChannel->entries.size();
    QCOMPARE(held, std::size_t(count));
    uint32_t identifier = 99; // small channels still fit into what is left of the last slab
    while (identifier < 100'000 && data.append(identifier, numbered(0, 0)))
        ++identifier;
    QVERIFY(!data.append(identifier, numbered(0, 0)));
    QVERIFY(!data.channel(identifier));
    QCOMPARE(data.channel(identifier - 1)->entries.size(), std::size_t(1)); // its neighbours are found as before
    data.clear();
    QVERIFY(data.append(99, numbered(0, 0)));
}

void TestRecordData::manyIdentifiersStayBounded()
{
    constexpr uint32_t count = 1'000'000;
    const uint64_t before = peakMemory();
    QElapsedTimer timer;
    timer.start();
    {
        RecordData data;
        for (uint32_t i = 0; i < count; ++i)
            data.append(i * 4096U + i / 1048576U, numbered(i, i)); // a stride that a weak hash would pile up
        data.buildTimeIndex();
        QCOMPARE(data.channels().size(), std::size_t(count));
        QCOMPARE(numberOf(data.channel(4096U * 777)->last().stored()), 777U);
    }
#ifdef __SANITIZE_ADDRESS__
    constexpr uint64_t most = 2500ULL << 20; // the sanitizer's own part
#else
    constexpr uint64_t most = 150ULL << 20;
#endif
    QVERIFY2(peakMemory() - before < most, qPrintable(QString::number(peakMemory() - before)));
    QVERIFY2(timer.elapsed() < 30000, qPrintable(QString::number(timer.elapsed())));
    // Channels take memory of their own: the limit counts it, so that no damaged file passes it this way.
    RecordData limited(64 << 20);
    uint32_t taken = 0;
    while (taken < count && limited.append(taken, numbered(taken, taken)))
        ++taken;
    QVERIFY2(taken > 300'000 && taken < 600'000, qPrintable(QString::number(taken)));
}

void TestRecordData::clearedIdentifiersTakeNothing()
{
#ifndef __SANITIZE_ADDRESS__ // whose memory is another's
    const auto inUse = [] {
        const struct mallinfo2 info = mallinfo2();
        return info.uordblks + info.hblkhd;
    };
    const std::size_t before = inUse();
    RecordData data;
    for (uint32_t i = 0; i < 200'000; ++i)
        data.append(i, numbered(i, i));
    QCOMPARE(data.channels().size(), std::size_t(200'000));
    QVERIFY(inUse() > before + (4 << 20));
    data.clear();
    QVERIFY2(inUse() < before + (1 << 20), qPrintable(QString::number(inUse() - before)));
#endif
}

QTEST_APPLESS_MAIN(TestRecordData)
#include "TestRecordData.moc"
