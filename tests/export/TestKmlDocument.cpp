#include "app/Property.h"
#include "app/SafeFile.h"
#include "export/ExportGpx.h"
#include "export/ExportKml.h"
#include "sim/DemoCard.h"
#include "support/FileHelpers.h"
#include "support/Places.h"
#include "support/TestCycle.h"

#include <QDomDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace ZARN;
using namespace ZARN::Test;

class TestKmlDocument : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void outOfRange_data();
    void outOfRange();
    void tracks_data();
    void tracks();
};

void TestKmlDocument::outOfRange_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("taken"); // of a settings file that has it all the same

    QTest::newRow("opacity below") << "KmlLineAlpha" << "-1" << "an opacity from 0 to 255" << "0";
    QTest::newRow("opacity above") << "KmlPolygonAlpha" << "256" << "an opacity from 0 to 255" << "255";
    QTest::newRow("width") << "KmlLineWidth" << "-3" << "a width from 0 on" << "0";
    QTest::newRow("step") << "KmlTimeStamp" << "0" << "a number of seconds from 1 on" << "1";
    QTest::newRow("interval") << "KmlPlaceMarkIntervall" << "-2" << "a number of path points from 1 on" << "1";
    QTest::newRow("no colour") << "KmlLineColor" << "12345g" << "a colour of six hexadecimal digits" << "ff0000";
    QTest::newRow("no switch") << "KmlTrack" << "yes" << "1 or 0" << "false";
    QTest::newRow("no colour at all") << "KmlErrorMarkColor" << "" << "a colour of six hexadecimal digits" << "ff0000";
}

void TestKmlDocument::outOfRange()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QString, wanted);
    QCOMPARE(QString::fromStdString(KmlExportOptions::problem(key.toStdString(), value.toStdString())), key + ": must be " + wanted);
    const TestCycle cycle;
    Property settings(cycle.console);
    settings.setString(key.toStdString(), value.toStdString());
    KmlExportOptions options;
    options.read(settings);
    options.write(settings);
    QTEST(QString::fromStdString(settings.getString(key.toStdString(), "")), "taken");
}

void TestKmlDocument::tracks_data()
{
    QTest::addColumn<int>("flight"); // of which everything is exported; 0: everything that is loaded
    QTest::addColumn<QStringList>("folders");
    QTest::newRow("whole cycle") << 0 << QStringList{"Flight 1", "Flight 2"};
    QTest::newRow("a flight") << 2 << QStringList{"Flight 2"};
}

void TestKmlDocument::tracks()
{
    QFETCH(int, flight);
    TestCycle cycle;
    cycle.profile.setCurrentUnit(EUnit::eImperial); // which no track is in
    QTemporaryDir folder;
    std::string error;
    QVERIFY(DemoCard().write(folder.filePath("card").toStdString(), DemoCardOptions{}, error));
    QVERIFY(cycle.profile.loadProfile(sourceDir() + "/resources/profiles/915/Profile.xml"));
    QVERIFY(cycle.container.readContainer(folder.filePath("card")) && cycle.container.loadCycle(2, flight - 1));
    const LoadedCard loaded = cycle.container.loaded();
    KmlExportOptions options;
    options.track = true;
    if (flight > 0)
        options.span = TimeSpan{loaded.flight.startTime, loaded.flight.endTime};
    ExportKml exporter(cycle.console, loaded.context, {}, loaded.powerUp);
    exporter.setTracksOf(loaded);
    SafeFile file(folder.filePath("out.kml").toStdString());
    QVERIFY(exporter.exportData(*loaded.pRecord, options, file));
    const QString schema = sourceDir() + "/tests/export/data/kml.xsd";
    QCOMPARE(QProcess::execute("xmllint", {"--noout", "--nonet", "--schema", schema, folder.filePath("out.kml")}), 0);

    QDomDocument document;
    document.setContent(QByteArray::fromStdString(fileContent(folder.filePath("out.kml").toStdString())));
    FlightPath path;
    path.build(*loaded.pRecord, loaded.context.in(EUnit::eMetric));
    QStringList folders;
    const QDomNodeList tracks = document.elementsByTagName("gx:Track");
    for (int t = 0; t < tracks.size(); ++t) {
        folders << tracks.at(t).parentNode().parentNode().firstChildElement("name").text();
        const QDomNodeList times = tracks.at(t).toElement().elementsByTagName("when");
        const QDomNodeList places = tracks.at(t).toElement().elementsByTagName("gx:coord");
        QVERIFY(times.size() > 600 && times.size() == places.size());
        for (int i = 0; i < times.size(); ++i) {
            const QDateTime when = QDateTime::fromString(times.at(i).toElement().text(), Qt::ISODateWithMs);
            const double time = static_cast<double>(loaded.powerUp.msecsTo(when)) / 1000;
            const auto point = std::ranges::find(path.points(), time, &FlightPathPoint::time);
            QVERIFY2(point != path.points().end(), qPrintable(times.at(i).toElement().text()));
            QCOMPARE(places.at(i).toElement().text(),
                     QString::asprintf("%.8f %.8f %.1f", point->longitude, point->latitude, point->altitude));
        }
    }
    QTEST(folders, "folders");
    SafeFile gpx(folder.filePath("out.gpx").toStdString());
    QVERIFY(ExportGpx().exportData(loaded, gpx, ExportGpx::eTrackPerFlight));
    QDomDocument other;
    other.setContent(QByteArray::fromStdString(fileContent(folder.filePath("out.gpx").toStdString())));
    QCOMPARE(other.elementsByTagName("trk").size(), folders.size());
    for (int t = 0; t < tracks.size(); ++t) {
        QCOMPARE(other.elementsByTagName("trk").at(t).toElement().elementsByTagName("time").at(0).toElement().text(),
                 tracks.at(t).firstChildElement("when").text());
    }
    const QDomElement stamp = document.elementsByTagName("TimeStamp").at(0).toElement();
    QCOMPARE(stamp.nextSiblingElement().tagName(), QString("styleUrl")); // the order that the format wants
    const QString title = stamp.previousSiblingElement("name").text();
    const QDateTime when = QDateTime::fromString(stamp.text(), Qt::ISODateWithMs);
    QCOMPARE(QTime(0, 0).addMSecs(static_cast<int>(loaded.powerUp.msecsTo(when))).toString("hh:mm:ss"), title);
}

QTEST_GUILESS_MAIN(TestKmlDocument)
#include "TestKmlDocument.moc"
