#include "FlightCard.h"
#include "ui/main/CardTree.h"

#include <QTest>

using namespace ZARN;
using Test::FlightCard;

namespace {

QStringList texts(const std::vector<CardNode>& nodes)
{
    QStringList list;
    for (const CardNode& node : nodes)
        list << node.text;
    return list;
}

} // namespace

class TestCardTree : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cyclesByDate();
    void filesByDate();
    void headerLines();
    void flights();
    void datesGroupRuns();
};

void TestCardTree::cyclesByDate()
{
    const FlightCard card;
    const std::vector<CardNode> dates = CardTree::cycles(card.container);
    QCOMPARE(texts(dates), (QStringList{"01.02.2024", "Unknown Date"}));
    QCOMPARE(texts(dates[0].children), (QStringList{"Cycle 1 1.2.2024 8:00:00 (00:06:39)", "Cycle 2 1.2.2024 9:05:00 (01:01:01)"}));
    QCOMPARE(texts(dates[1].children), QStringList{"Cycle 3  (00:00:02)"});
    QCOMPARE(dates[1].children[0].cycle, std::optional(3U));
    QCOMPARE(dates[1].children[0].flight, -1);
    QVERIFY(dates[1].children[0].isSelectable());
    QVERIFY(!dates[0].isSelectable());
    QVERIFY(dates[0].children[0].children.empty());
}

void TestCardTree::filesByDate()
{
    const FlightCard card;
    const std::vector<CardNode> dates = CardTree::rawData(card.container);
    QCOMPARE(texts(dates), (QStringList{"01.02.2024", "Unknown Date"}));
    QCOMPARE(texts(dates[0].children), (QStringList{"01.CAN   1.2.2024 8:00:00", "02.CAN   1.2.2024 8:00:30", "03.CAN   1.2.2024 9:05:00",
                                                    "04.CAN   1.2.2024 9:05:10"}));
    const CardNode& file = dates[0].children[3];
    QCOMPARE(file.toolTip, "Start Time: 00:00:10\nStop Time: 01:01:01");
    QCOMPARE(file.path, card.card.path() + "/04.CAN");
    QVERIFY(file.isSelectable());
}

void TestCardTree::headerLines()
{
    const FlightCard card;
    QCOMPARE(texts(CardTree::headerLines(card.container.recordFiles().at("05.CAN"))),
             (QStringList{"Date: Unknown Date", "Start Time: 00:00:02", "Stop Time: 00:00:02", "Bus Type: 1",
                          "ECU Serial Number: 4294967295", "Software Part Nr. A: SW<b>A", "Software Part Nr. B: ", "ECU Type: ECU\uFFFD1",
                          "EMU SW Version: 2.1", "Engine Serial Nr.: E%1", "Engine Type: T&T", "Samples Total: 1"}));
}

void TestCardTree::flights()
{
    FlightCard card;
    QVERIFY(card.container.loadCycle(1, -1));
    const RecordCycle& cycle = card.container.recordCycles().at(1);
    const std::vector<CardNode> flights = CardTree::flights(1, cycle);
    // Ground speed: above 50 from 100 s and 300 s on, below 40 from 200 s on; either is believed at the 12th sample. The second
    // flight does not land.
    QCOMPARE(texts(flights), QStringList{"Flight 1 00:01:21 (00:02:40)"});
    QCOMPARE(flights[0].cycle, std::optional(1U));
    QCOMPARE(flights[0].flight, 0);
    RecordCycle made;
    made.flights.resize(2);
    made.flights[1].startTime = 3600.75;
    made.flights[1].endTime = 90000.75;
    QCOMPARE(texts(CardTree::flights(7, made)), (QStringList{"Flight 1 00:00:00 (00:00:00)", "Flight 2 01:00:00 (00:00:00)"}));
    QCOMPARE(CardTree::flights(7, made)[1].flight, 1);
}

void TestCardTree::datesGroupRuns()
{
    Test::TestCycle data;
    Test::CardBuilder card;
    for (const auto& [name, day] : {std::pair("1.CAN", 1), {"2.CAN", 2}, {"3.CAN", 1}, {"4.CAN", 1}})
        card.file(name).dateTime({QDate(2024, 5, day), QTime(1, 2, 3), Qt::UTC}).addFloat(1, 1.0, 0.0F);
    data.container.readContainer(card.write());
    const std::vector<CardNode> dates = CardTree::rawData(data.container);
    QCOMPARE(texts(dates), (QStringList{"01.05.2024", "02.05.2024", "01.05.2024"}));
    QCOMPARE(texts(dates[2].children), (QStringList{"3.CAN   1.5.2024 1:02:03", "4.CAN   1.5.2024 1:02:03"}));
}

QTEST_GUILESS_MAIN(TestCardTree)
#include "TestCardTree.moc"
