#include "app/SafeFile.h"
#include "export/ExportGpx.h"
#include "support/CardBuilder.h"
#include "support/FileHelpers.h"
#include "support/Places.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QDomDocument>
#include <QProcess>
#include <QTest>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

/// A card whose unit flies north from 48 degrees, one minute of arc in ten seconds, and climbs a metre a second from 500 m.
struct Track : TestCycle {
    explicit Track(bool hasClock = true)
    {
        builder.unit("m", "ft", 2).unit("", "", 1).device("GPS").position("Latitude", 1036).position("Longitude", 1037);
        builder.parameter("Height", 1038, "FLOAT", {{"zarnDataType", "Altitude"}, {"unitMetric", "m"}, {"unitImperial", "ft"}});
        if (hasClock)
            file.dateTime(QDateTime(QDate(2024, 12, 31), QTime(23, 59, 50), Qt::UTC));
    }
    Track& fix(double time, float latitude, float longitude)
    {
        file.addFloat(1036, time, latitude).addFloat(1037, time, longitude).addFloat(1038, time, static_cast<float>(500 + time));
        return *this;
    }
    /// Straight ahead from one second to another.
    Track& fly(int from, int to)
    {
        for (int second = from; second <= to; ++second)
            fix(second, 4800.0F + static_cast<float>(second) / 10, 1100.0F);
        return *this;
    }
    QByteArray write(EUnit unit = EUnit::eMetric)
    {
        profile.setCurrentUnit(unit);
        if (!builder.load(profile) || !container.readContainer(card.write()) || !container.loadCycle(container.recordCycles().begin()->first, -1))
            qFatal("the card cannot be loaded");
        const std::string path = (card.path() + "/out.gpx").toStdString();
        SafeFile target(path);
        if (!ExportGpx().exportData(container.loaded(), target))
            qFatal("nothing was written");
        return QByteArray::fromStdString(fileContent(path));
    }
    ProfileBuilder builder;
    CardBuilder card;
    RecordFileBuilder& file = card.file("A & <B>.CAN");
};

QString validationErrors(const QByteArray& document)
{
    QProcess process;
    process.start("xmllint", {"--noout", "--nonet", "--schema", sourceDir() + "/tests/export/data/gpx-track.xsd", "-"});
    process.write(document);
    process.closeWriteChannel();
    process.waitForFinished();
    return process.exitCode() == 0 ? QString() : "not valid: " + process.readAllStandardError();
}

/// The points of all segments as "latitude longitude altitude time", segments divided by "|".
QStringList points(const QByteArray& document)
{
    QDomDocument parsed;
    parsed.setContent(document);
    QStringList texts;
    const QDomNodeList segments = parsed.elementsByTagName("trkseg");
    for (int s = 0; s < segments.size(); ++s) {
        if (s > 0)
            texts << "|";
        for (QDomElement e = segments.at(s).firstChildElement("trkpt"); !e.isNull(); e = e.nextSiblingElement("trkpt")) {
            texts << QString("%1 %2 %3 %4").arg(e.attribute("lat").toDouble(), 0, 'f', 3).arg(e.attribute("lon").toDouble(), 0, 'f', 1)
                         .arg(e.firstChildElement("ele").text(), e.firstChildElement("time").text());
        }
    }
    return texts;
}

} // namespace

/// The flight path as a GPX track.
class TestExportGpx : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void track();
    void unitWithoutClock();
    void pointsOffTheEarthDivideTheTrack();
};

void TestExportGpx::track()
{
    Track track;
    const QByteArray document = track.fly(4, 24).write();
    QCOMPARE(validationErrors(document), QString());
    const QStringList all = points(document);
    QVERIFY(all.size() >= 40);
    // A minute of arc is a sixtieth of a degree. The file begins no cycle: its clock is that of its first record, of second 4.
    QVERIFY2(all.contains("48.017 11.0 510.0 2024-12-31T23:59:56.000Z"), qPrintable(all.join('\n')));
    QVERIFY(all.contains("48.033 11.0 520.0 2025-01-01T00:00:06.000Z"));
    QVERIFY(!all.contains("|"));
}

void TestExportGpx::unitWithoutClock()
{
    Track track(false);
    const QByteArray document = track.fly(4, 24).write();
    QCOMPARE(validationErrors(document), QString());
    QVERIFY(!document.contains("<time>"));
    QVERIFY(points(document).contains("48.017 11.0 510.0 "));
}

void TestExportGpx::pointsOffTheEarthDivideTheTrack()
{
    Track track;
    // Before its fifth fix a receiver may say anything.
    const QByteArray document = track.fly(2, 3).fix(4, 4800.0F, 20000.0F).fly(5, 20).write();
    QCOMPARE(validationErrors(document), QString());
    QCOMPARE(points(document).count("|"), 1);
}

QTEST_APPLESS_MAIN(TestExportGpx)
#include "TestExportGpx.moc"
