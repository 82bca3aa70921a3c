#include "app/SafeFile.h"
#include "report/FlightReport.h"
#include "sim/DemoCard.h"
#include "support/FileHelpers.h"
#include "support/Places.h"
#include "support/TestCycle.h"
#include "ui/graph/model/GhostCycle.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace ZARN;
using namespace ZARN::Test;

/// What a report has that the batch program does not ask for.
class TestFlightReport : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void compares();
    void shadesWhereEarlierFlightsLay();

private:
    QString write(ReportSubject subject);

    QTemporaryDir mFolder;
    TestCycle mCycle;
};

void TestFlightReport::initTestCase()
{
    std::string error;
    QVERIFY(DemoCard().write(mFolder.filePath("card").toStdString(), {}, error));
    QVERIFY(mCycle.profile.loadProfile(sourceDir() + "/resources/profiles/915/Profile.xml", {}));
    QVERIFY(mCycle.container.readContainer(mFolder.filePath("card")) && mCycle.container.loadCycle(2, 0));
}

QString TestFlightReport::write(ReportSubject subject)
{
    const std::string path = mFolder.filePath("report.html").toStdString();
    SafeFile file(path);
    FlightReport report(std::move(subject));
    return report.write(file, {false, EReportFormat::eHtml}) ? QString::fromStdString(fileContent(path))
                                                             : QString::fromStdString(report.error());
}

void TestFlightReport::compares()
{
    const LoadedCard loaded = mCycle.container.loaded();
    const auto pSame = std::make_shared<const GhostCycle>(loaded.withFlight(0), "<same>");
    const QString page = write({loaded, {}, ETimeReference::eTakeOff, {pSame, 0.0}});
    QVERIFY(page.contains("Compared with &lt;same&gt;") && page.contains("Times count from the take-off."));
    QVERIFY(page.contains("<dt>From</dt><dd>-00:00:30.")); // the flight's span begins before its take-off
    const QString table = page.mid(page.indexOf("<caption>Compared with"));
    static const QRegularExpression row("<tr><th scope=\"row\">([^<]+)</th>" + QString("<td class=\"number\">([^<]*)</td>").repeated(7) +
                                        "</tr>");
    int rows = 0;
    for (auto matches = row.globalMatch(table.left(table.indexOf("</table>"))); matches.hasNext(); ++rows) {
        const QStringList cells = matches.next().capturedTexts().mid(1);
        QVERIFY2(cells.mid(1, 3) == cells.mid(4, 3) && cells[1].toDouble() < cells[3].toDouble() && cells[7].toDouble() == 0,
                 qPrintable(cells.join(' ')));
    }
    QVERIFY(rows >= 6);
    QVERIFY(write({loaded, {}, {}, {pSame, 1e6}}).contains("no time in common"));
}

void TestFlightReport::shadesWhereEarlierFlightsLay()
{
    ReportSubject subject{mCycle.container.loaded()};
    const std::string name = subject.loaded.context.model().ofZarnType("EngineSpeedA").name;
    const QString plain = write(subject), shaded = "Shaded: where nine of ten samples";
    subject.normal = {{name, "another unit", "climb", 1, 0, 9000, 30}};
    QVERIFY(!plain.contains(shaded) && !write(subject).contains(shaded));
    subject.normal[0].unit = subject.loaded.context.model().find(name)->unitMetric;
    QVERIFY(write(subject).contains(shaded));
}

QTEST_MAIN(TestFlightReport)
#include "TestFlightReport.moc"
