#include "export/ExportCandump.h"
#include "support/CardBuilder.h"
#include "support/FileHelpers.h"
#include "support/TestCycle.h"

#include <QTest>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

const QDateTime kNoon(QDate(2024, 5, 1), QTime(12, 0), Qt::UTC);

/// What a cycle holds: its date, then "identifier:payload@seconds" in the order of the identifiers.
QString described(CardContainer& container, unsigned int cycle)
{
    if (!container.loadCycle(cycle, -1))
        return "no cycle";
    QString text = container.dateTime().toString("yyyy-MM-dd hh:mm:ss.zzz");
    for (const RecordChannel* pChannel : container.recordData().channels()) {
        for (const RecordEntry& entry : pChannel->entries) {
            const QByteArray payload(reinterpret_cast<const char*>(entry.payload.data()), 8);
            text += QString(" %1:%2@%3").arg(pChannel->identifier(), 0, 16).arg(QString(payload.toHex())).arg(entry.time, 0, 'g', 12);
        }
    }
    return text;
}

QString problems(const CardContainer& container)
{
    QStringList list;
    for (const CardProblem& problem : container.problems())
        list.append(problem.reason);
    return list.join(" | ");
}

} // namespace

/// Logs of a CAN bus as cards.
class TestCandump : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lines_data();
    void lines();
    void logAndRecordFileAreTwins();
    void eachLogIsACycle();
};

void TestCandump::lines_data()
{
    QTest::addColumn<QByteArray>("log");
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* name, const QByteArray& log, const QString& content, const QString& problem = {}) {
        QTest::newRow(name) << log << content << problem;
    };
    const QString none = "no cycle";
    const QString one = " 123:0102030405060708@2.5";
    row("can-utils", "(1714564800.123456) can0 123#1122334455667788\n(1714564801.123457) can0 1ABCDEF0#00020000AABB\n",
        "2024-05-01 12:00:00.123 123:1122334455667788@0 5abcdef0:00020000aabb0000@1.000001",
        "frames that no parameter reads: 1 with too few data, 0 of 29 bits with a standard identifier");
    row("other writers", "(2.5) slcan-0 00000123#01.02.03.04.05.06.07.08 R\r\n\n \t\n  (2.500000000)\tCAN_1:x 00000123#0000000000000000  Tx\n",
        one + " 123:0000000000000000@2.5", "the frames of several interfaces are read as one bus");
    row("lower case, length code", "(0.000001) c 1abcdef0#aabbccddeeff0011_F\n", " 1abcdef0:aabbccddeeff0011@1e-06");
    const QString unread = "frames that no parameter reads: %1 with too few data, %2 of 29 bits with a standard identifier";
    row("too few data", "(1.0) c 1#000600001234\n(2.0) c 2#0009000012\n(3.0) c 3#0006000012\n(4.0) c 4#0102\n(5.0) c 5#00000000\n",
        " 1:0006000012340000@1 2:0009000012000000@2 5:0000000000000000@5 40000003:0006000012000000@3 40000004:0102000000000000@4",
        unread.arg(2).arg(0));
    row("29 bits", "(1.0) c 123#0102030405060708\n(2.0) c 00000123#1112131415161718\n(3.0) c 00000800#2122232425262728\n",
        " 123:0102030405060708@1 800:2122232425262728@3 80000123:1112131415161718@2", unread.arg(0).arg(1));
    row("other frames", "(1.0) c 1#R\n(2.0) c 1#R8\n(2.5) c 123#0102030405060708\n(3.0) c 20000080#0000000000000000\n(4.0) c 123##1\n"
        "(5.0) c 123##0" + QByteArray(128, '0') + "\n", one, "frames that cannot be used: 2 remote, 1 error, 2 FD");
    const char* const damaged[] = {"(2.5 c 123#00", "2.5 c 123#00", "(2) c 123#00", "(-2.5) c 123#00", "(2.5) 123#00", "(2.5) c 123", "(2.5) c 800#00",
                                   "(2.5) c 40000000#00", "(2.5) c 123456789#00", "(2.5) c #00", "(2.5) c 123#0", "(2.5) c 123#0G", "(2.5) c 123#00 X",
                                   "(2.5) c 123#010203040506070809", "(2.5) c 123#01_9", "(2.5) c 123##", "(2.5) c 123##1123", "(2.5) c 7FFFFFFF#00",
                                   "(99999999999.0) c 123#00", "(2.0000000001) c 123#00", "(2.5) c 123#00(2.5) c 123#00", "(2.5) c -1#00", "(0x2.5) c 1#00"};
    for (const char* pLine : damaged) {
        row(pLine, QByteArray(pLine) + "\n", none, "no CAN frame in it");
        row(QByteArray(pLine) + ", skipped", "(2.5) c 123#0102030405060708\n" + QByteArray(pLine) + "\n", one, "lines that are no frame: 1");
    }
    const QByteArray longLine(1'000'000, '1');
    row("endless lines", "(2.5) c 123#0102030405060708\n(3.0) c 123#" + longLine + "\n" + longLine, one, "lines that are no frame: 2");
    row("empty", "", none, "no CAN frame in it");
    row("bytes of any kind", QByteArray("\0\xff()#\n(#", 7), none, "no CAN frame in it");
    row("whole without a line break", "(2.5) c 123#0102030405060708", one);
    row("cut off", "(2.5) c 123#0102030405060708\n(2.6) c 123#01020304", one, "the last line is cut off");
    row("clock set back", "(1714564801.0) c 1#0000000000000000\n(1714564800.0) c 1#0000000000000000\n",
        "2024-05-01 12:00:00.000 1:0000000000000000@1 1:0000000000000000@0");
    row("clock set in between", "(1.0) c 1#0000000000000000\n(1714564800.0) c 1#0000000000000000\n", " 1:0000000000000000@1 1:0000000000000000@1714564800",
        "damaged: its records end at 1.71456e+09 s");
}

void TestCandump::lines()
{
    QFETCH(QByteArray, log);
    CardBuilder card;
    card.rawFile("a.log", log);
    TestCycle cycle;
    QVERIFY(cycle.container.readContainer(card.path() + "/a.log"));
    QTEST(described(cycle.container, 1), "content");
    QTEST(problems(cycle.container), "problem");
    QVERIFY(cycle.container.loadProblems().empty());
    QCOMPARE(cycle.container.name(), QString("a.log"));
}

void TestCandump::logAndRecordFileAreTwins()
{
    CardBuilder card;
    RecordFileBuilder& file = card.file("1.CAN");
    for (int i = 0; i < 10'000; ++i) // more than one piece
        file.addFloat(300 + i % 3, i * 0.001, static_cast<float>(i)).addShort(0x1ABCDEF, i * 0.001, static_cast<uint16_t>(i));
    file.add(0x20000000, 1, {}); // no frame can be that one
    TestCycle cycle;
    QVERIFY(cycle.container.readContainer(card.write()) && cycle.container.loadCycle(1, -1));
    const auto exported = [&card](const TestCycle& from, const std::string& name, std::optional<TimeSpan> span = {}) {
        SafeFile target(card.path().toStdString() + name);
        ExportCandump exporter;
        return exporter.exportData(from.container, span, target) ? exporter.leftOut() : 99;
    };
    QCOMPARE(exported(cycle, "/twin.log"), uint64_t(1));
    TestCycle twin;
    QVERIFY(twin.container.readContainer(card.path() + "/twin.log"));
    QCOMPARE(described(twin.container, 1) + " 20000000:0000000000000000@1", described(cycle.container, 1));
    QCOMPARE(problems(twin.container), QString());

    // With a clock: the same again, to the microsecond.
    const std::string log = "(1714564800.123456) zarn0 7FF#1122334455667788\n(1714564801.123457) zarn0 1ABCDEF0#AABB000000000000\n"
                            "(1714564802.000000) zarn0 000007FF#0102030405060708\n(1714564803.000000) zarn0 7FF#000600\n";
    putFile(card.path().toStdString() + "/clock.log", log);
    QVERIFY(twin.container.readContainer(card.path() + "/clock.log") && twin.container.loadCycle(1, -1));
    QCOMPARE(exported(twin, "/again.log"), uint64_t(0));
    QCOMPARE(fileContent(card.path().toStdString() + "/again.log"), log);
    QCOMPARE(exported(twin, "/again.log", TimeSpan{0.5, 4}), uint64_t(0));
    QCOMPARE(fileContent(card.path().toStdString() + "/again.log"), log.substr(log.find('\n') + 1));
}

void TestCandump::eachLogIsACycle()
{
    CardBuilder card;
    card.rawFile("b.log", "(1714564800.5) c 1#0000000000000000\n");
    card.rawFile("c.log", "(7.0) c 1#0000000000000000\n");
    TestCycle cycle;
    QVERIFY(cycle.container.readContainer(card.write()));
    QCOMPARE(described(cycle.container, 1), QString("2024-05-01 12:00:00.500 1:0000000000000000@0"));
    QCOMPARE(described(cycle.container, 2), QString(" 1:0000000000000000@7"));
    // Beside the unit's own files they are somebody's notes, whatever they hold.
    card.file("a.CAN").addWord(1, 1, 0);
    card.file("d.CAN").dateTime(kNoon).addWord(1, 20, 0);
    QVERIFY(cycle.container.readContainer(card.write()) && cycle.container.problems().empty());
    QCOMPARE(cycle.container.recordCycles().size(), std::size_t(1));
    QCOMPARE(described(cycle.container, 1), QString("2024-05-01 11:59:59.000 1:0004000000000000@1 1:0004000000000000@20"));
}

QTEST_APPLESS_MAIN(TestCandump)
#include "TestCandump.moc"
