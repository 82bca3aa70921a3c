#include "app/Property.h"
#include "export/ExportKml.h"
#include "support/CardBuilder.h"
#include "support/FileHelpers.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QTemporaryDir>
#include <QTest>

using namespace ZARN;
using namespace ZARN::Test;

class TestKmlDocument : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void layoutIsThatOfTheOtherFiles();
    void settings();
    void outOfRange_data();
    void outOfRange();
};

void TestKmlDocument::layoutIsThatOfTheOtherFiles()
{
    TestCycle cycle;
    ProfileBuilder builder;
    builder.thresholds("Hot", {{100, "WARNING", "yellow"}}).device("GPS").parameter("Latitude", 1036, "FLOAT").parameter("A", 20, "FLOAT", {{"thresholdId", "Hot"}});
    QVERIFY(builder.parameter("Odd <b>&\"\r\n", 21, "USHORT", {{"unitMetric", "]]> µ\t"}}).load(cycle.profile));
    cycle.profile.setSelected("A", true);
    cycle.profile.setSelected("Odd <b>&\"\r\n", true);
    RecordData data;
    RecordFileBuilder().addFloat(1036, 1, 48).addFloat(20, 1, 50).addFloat(20, 2, 150).addShort(21, 3, 7).fill(data);
    const QTemporaryDir folder;
    KmlExportOptions options;
    options.directory = folder.path().toStdString();
    options.fileName = "out.kml";
    QVERIFY(ExportKml(cycle.console, cycle.profile, cycle.profile.selection(), {}).exportData(data, options));
    const std::string written = fileContent(folder.filePath("out.kml").toStdString());
    QDomDocument parsed;
    QVERIFY(parsed.setContent(QByteArray::fromStdString(written)));
    QVERIFY(XmlHandler(cycle.console).xmlWriteFile(parsed, folder.filePath("again.kml")));
    // The toolkit quotes the declaration otherwise, and escapes no ">" that it need not.
    const auto comparable = [](const std::string& text) { return QString::fromStdString(text).section('\n', 1).replace("&gt;", ">"); };
    QVERIFY(written.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"));
    QCOMPARE(comparable(written), comparable(fileContent(folder.filePath("again.kml").toStdString())));
}

void TestKmlDocument::settings()
{
    TestCycle cycle;
    Property settings(cycle.console);
    KmlExportOptions options;
    options.read(settings); // an empty store
    QCOMPARE(options.timeStamp, 1);
    QCOMPARE(options.placeMarkInterval, 10);
    QVERIFY(options.polygonOn);

    settings.setString("KmlTimeStamp", " 3s");
    settings.setString("KmlLineWidth", "thick");
    settings.setString("KmlPolygonOn", "1");
    settings.setString("KmlShowLimit", "TRUE");
    settings.setString("KmlExportDir", "/tmp");
    options.read(settings);
    QCOMPARE(options.timeStamp, 3);
    QCOMPARE(options.lineWidth, 0);
    QVERIFY(!options.polygonOn);
    QVERIFY(options.showLimit);
    QCOMPARE(options.directory, std::string("/tmp"));

    options.placeMarkInterval = 7;
    options.errorMarkOn = false;
    options.write(settings);
    KmlExportOptions again;
    again.read(settings);
    QCOMPARE(again.placeMarkInterval, 7);
    QVERIFY(!again.errorMarkOn);
    QCOMPARE(settings.getString("KmlPlaceMarkIntervall", ""), std::string("7"));
}

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

QTEST_GUILESS_MAIN(TestKmlDocument)
#include "TestKmlDocument.moc"
