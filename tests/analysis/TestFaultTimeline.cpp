#include "analysis/FaultTimeline.h"
#include "analysis/FaultWords.h"
#include "support/CardBuilder.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QTest>

#include <limits>
#include <random>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

constexpr int kMatrix = 700;

/// "time+" or "time-" of every change point.
QString described(const FaultTimeline& timeline, EErrorType kind)
{
    QStringList points;
    for (const FaultChange& change : timeline.changes(kind))
        points << QString::number(change.time) + (change.on ? "+" : "-");
    return points.join(' ');
}

QString described(const FaultTimeline& timeline)
{
    return described(timeline, eErrorInfo) + " | " + described(timeline, eErrorWarning) + " | " + described(timeline, eErrorFault);
}

/// Bit 0 Info, 1 Warning, 2 Fault, 3 Fault, 4 of no kind, 31 Info; 32 and -1 are no bits of a word.
/// To be used within one expression.
ProfileBuilder& faultProfile(int matrices, ProfileBuilder&& builder = ProfileBuilder())
{
    builder.device("D");
    for (int i = 0; i < matrices; ++i)
        builder.errorMatrix(kMatrix, QString("M%1").arg(i));
    int bit = 0;
    for (const char* kind : {"Info", "Warning", "Fault", "Fault", "Oddity"})
        builder.faultBit(QString("F%1").arg(bit), kMatrix, bit, kind), ++bit;
    return builder.faultBit("Top", kMatrix, 31, "Info").faultBit("Beyond", kMatrix, 32, "Fault").faultBit("Below", kMatrix, -1, "Warning");
}

FaultTimeline timelineOf(const TestCycle& cycle, const RecordData& data)
{
    const FaultMatrix& matrix = cycle.profile.model().errorMatrices.front();
    return {matrix, *faultWords(data, cycle.profile.context(), matrix)};
}

std::optional<uint32_t> wordByScan(const RecordChannel& channel, double seconds)
{
    for (std::size_t i = 0; i < channel.entries.size(); ++i) {
        if (channel.entries.time(i) > seconds + 0.01)
            return i == 0 ? std::nullopt : std::optional(faultWord(channel.entries[i - 1].payload));
    }
    return faultWord(channel.last().payload);
}

} // namespace

class TestFaultTimeline : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void changes_data();
    void changes();
    void timesGoBackwards();
    void wordAt_data();
    void wordAt();
    void wordEqualsTheScan();
};

void TestFaultTimeline::changes_data()
{
    QTest::addColumn<QList<uint32_t>>("words"); // one a second from 1 s on
    QTest::addColumn<QString>("expected");

    QTest::newRow("nothing ever set") << QList<uint32_t>{0, 0, 0} << "1- 3- | 1- 3- | 1- 3-";
    QTest::newRow("one sample") << QList<uint32_t>{2} << "1- 1- | 1+ 1+ | 1- 1-";
    QTest::newRow("each kind by itself") << QList<uint32_t>{1, 2, 4, 0} << "1+ 2- 4- | 1- 2+ 3- 4- | 1- 3+ 4- 4-";
    QTest::newRow("from bit to bit of one kind is no change") << QList<uint32_t>{0, 4, 8, 12, 8} << "1- 5- | 1- 5- | 1- 2+ 5+";
    QTest::newRow("most significant bit") << QList<uint32_t>{0, 0x80000000} << "1- 2+ 2+ | 1- 2- | 1- 2-";
    QTest::newRow("undefined bits and bits of no kind") << QList<uint32_t>{0, 0x7FFFFFF0} << "1- 2- | 1- 2- | 1- 2-";
}

void TestFaultTimeline::changes()
{
    QFETCH(QList<uint32_t>, words);
    TestCycle cycle;
    QVERIFY(faultProfile(1).load(cycle.profile));
    RecordFileBuilder file;
    double time = 0;
    for (const uint32_t word : words)
        file.addWord(kMatrix, ++time, word, 5);
    RecordData data;
    file.fill(data);
    QTEST(described(timelineOf(cycle, data)), "expected");
}

void TestFaultTimeline::timesGoBackwards()
{
    TestCycle cycle;
    QVERIFY(faultProfile(1).load(cycle.profile));
    RecordData data;
    RecordFileBuilder().addWord(kMatrix, 9, 0).addWord(kMatrix, 3, 1).addWord(kMatrix, 5, 0).addWord(kMatrix, 4, 0).fill(data);
    QCOMPARE(described(timelineOf(cycle, data), eErrorInfo), "9- 3+ 5- 4-");
}

void TestFaultTimeline::wordAt_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<int>("expected"); // -1: no word

    // Samples at 1, 2, 3 and 4 s with the words 1, 2, 3 and 4.
    QTest::newRow("before the first") << 0.5 << -1;
    QTest::newRow("0.01 s before a sample it counts as before") << 0.99 << 1;
    QTest::newRow("at a sample") << 2.0 << 2;
    QTest::newRow("just before the last") << 3.98 << 3;
    QTest::newRow("0.01 s before the last") << 3.99 << 4;
    QTest::newRow("after the last") << 4.5 << 4;
    QTest::newRow("at the end of all times") << std::numeric_limits<double>::infinity() << 4;
    QTest::newRow("no time") << std::numeric_limits<double>::quiet_NaN() << -1;
}

void TestFaultTimeline::wordAt()
{
    QFETCH(double, seconds);
    QFETCH(int, expected);
    RecordData data;
    RecordFileBuilder().addWord(7, 1, 1).addWord(7, 2, 2).addWord(7, 3, 3).addWord(7, 4, 4).fill(data);
    const auto word = faultWordAt(data.channel(7), seconds);
    QCOMPARE(word ? static_cast<int>(*word) : -1, expected);
}

void TestFaultTimeline::wordEqualsTheScan()
{
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        RecordFileBuilder file;
        double time = 10;
        for (auto n = random() % 60 + 1; n > 0; --n) {
            time += static_cast<double>(random() % 100) * 0.01;
            if (random() % 10 == 0) // a damaged tick counter
                time = static_cast<double>(random() % 4) * 1e5;
            file.addWord(7, time, static_cast<uint32_t>(random()));
        }
        RecordData data;
        file.fill(data);
        const RecordChannel& channel = *data.channel(7);
        for (std::size_t i = 0; i < channel.entries.size(); ++i) {
            for (const double offset : {-0.02, -0.01, -0.005, 0.0, 0.01}) {
                const double at = channel.entries.time(i) + offset;
                QCOMPARE(faultWordAt(&channel, at), wordByScan(channel, at));
            }
        }
    }
}

QTEST_GUILESS_MAIN(TestFaultTimeline)
#include "TestFaultTimeline.moc"
