#include "report/ReportFaults.h"
#include "support/CardBuilder.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"
#include "trace/TraceSet.h"

#include <QTest>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

constexpr int kMatrix = 700;
constexpr int kSpeed = 100;

QStringList described(const std::vector<ReportFault>& faults)
{
    QStringList rows;
    for (const ReportFault& fault : faults) {
        rows << QStringLiteral("%1 %2 %3 to %4, %5 times")
                    .arg(QString::fromStdString(fault.pBit->name), fault.counts ? "counts" : "does not")
                    .arg(fault.first)
                    .arg(fault.last)
                    .arg(fault.times);
    }
    return rows;
}

} // namespace

class TestReportFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void agreesWithIncidents();
};

/// The engine is watched from 110 to 198 s.
void TestReportFaults::agreesWithIncidents()
{
    TestCycle cycle;
    ProfileBuilder profile;
    profile.device("D").parameter("Speed", kSpeed, "FLOAT", {{"zarnDataType", "EngineSpeed"}}).errorMatrix(kMatrix, "M");
    QVERIFY(profile.faultBit("Info", kMatrix, 0, "Info").faultBit("Warning", kMatrix, 1, "Warning").faultBit("Fault", kMatrix, 2, "Fault").load(cycle.profile));
    RecordFileBuilder file;
    file.addFloat(kSpeed, 40, 0.0F).addFloat(kSpeed, 100, 3000.0F).addFloat(kSpeed, 200, 0.0F);
    file.addWord(kMatrix, 50, 4).addWord(kMatrix, 60, 0);
    file.addWord(kMatrix, 120, 7).addWord(kMatrix, 121, 0).addWord(kMatrix, 123, 7).addWord(kMatrix, 124, 0); // gone for less than 5 s
    file.addWord(kMatrix, 150, 7).addWord(kMatrix, 151, 0).addWord(kMatrix, 195, 0);
    file.addWord(kMatrix, 2'500'000, 4); // a damaged time
    const auto pRecord = std::make_shared<RecordData>();
    file.fill(*pRecord);
    LoadedCard loaded;
    loaded.context = cycle.profile.context();
    loaded.pRecord = pRecord;
    const auto pSpeed = TraceSet::one(*pRecord, loaded.context, cycle.profile.model().ofZarnType("EngineSpeed"), ENumber::eMetric);
    const EngineRunning engine(*pSpeed, 200);

    QCOMPARE(described(presentFaults(loaded, engine)),
             (QStringList{"Info does not 120 to 150, 2 times", "Warning counts 120 to 150, 2 times", "Fault counts 120 to 150, 2 times",
                          "Fault does not 50 to 50, 1 times"}));
    loaded.flightNumber = 1;
    loaded.flight.startTime = 140;
    loaded.flight.endTime = 160;
    QCOMPARE(described(presentFaults(loaded, engine)), (QStringList{"Info does not 150 to 150, 1 times", "Warning counts 150 to 150, 1 times",
                                                                    "Fault counts 150 to 150, 1 times"}));
}

QTEST_GUILESS_MAIN(TestReportFaults)
#include "TestReportFaults.moc"
