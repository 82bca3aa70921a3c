#include "app/Property.h"
#include "app/SafeFile.h"
#include "export/ExportKml.h"
#include "support/FullDisk.h"
#include "support/CardBuilder.h"
#include "support/FileHelpers.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

const QDateTime kDate(QDate(2024, 3, 4), QTime(5, 6, 7), Qt::UTC);

/// An element in short: "name", "name=text" or "name(child child ...)".
QString inShort(const QDomElement& element)
{
    QStringList children;
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        children << inShort(child);
    if (!children.isEmpty())
        return element.tagName() + "(" + children.join(' ') + ")";
    return element.text().isEmpty() ? element.tagName() : element.tagName() + "=" + element.text();
}

/// A cycle whose path has a point at 0, 10 and 20 s, with longitudes 0, 10 and 20.
struct Export {
    Export()
    {
        builder.thresholds("Hot", {{100, "WARNING", "yellow"}}).device("GPS");
        for (const auto& [name, id] : {std::pair("Latitude", 1036), {"Longitude", 1037}, {"Altitude", 1038}})
            builder.parameter(name, id, "FLOAT");
        for (const double time : {0.0, 10.0, 20.0})
            file.addFloat(1036, time, 48).addFloat(1037, time, static_cast<float>(time)).addFloat(1038, time, 500);
    }
    /// Exports to path(). @return whether that worked.
    bool run()
    {
        if (!builder.load(cycle.profile))
            qFatal("the profile does not load");
        for (const char* name : {"B", "A", "Odd <b>&\"\r\n"})
            cycle.profile.setSelected(name, true);
        RecordData data;
        file.fill(data);
        options.directory = folder.path().toStdString();
        options.fileName = "out.kml";
        ExportKml exporter(cycle.console, cycle.profile, date);
        const bool done = exporter.exportData(data, options);
        error = exporter.error();
        return done;
    }
    /// The Document element of a new export.
    QDomElement document()
    {
        if (!run() || !parsed.setContent(QByteArray::fromStdString(fileContent(path()))))
            return {};
        return parsed.documentElement().firstChildElement("Document");
    }
    /// The placemarks in short, without the path; coordinates as the longitude's whole degrees.
    QString placemarks()
    {
        QStringList texts;
        const QDomElement whole = document();
        for (QDomElement e = whole.firstChildElement("Placemark"); !e.isNull(); e = e.nextSiblingElement("Placemark")) {
            const QString title = e.firstChildElement("name").text();
            if (title.isEmpty())
                continue;
            QStringList data;
            const QDomElement extended = e.firstChildElement("ExtendedData");
            for (QDomElement d = extended.firstChildElement("Data"); !d.isNull(); d = d.nextSiblingElement("Data"))
                data << d.firstChildElement("displayName").text() + "=" + d.firstChildElement("value").text();
            const QString place = e.firstChildElement("Point").firstChildElement("coordinates").text().section('.', 0, 0);
            texts << title + " at " + place + " " + e.firstChildElement("styleUrl").text().left(1) + " " + data.join(';');
        }
        return texts.join(", ");
    }
    [[nodiscard]] std::string path() const { return folder.filePath("out.kml").toStdString(); }

    TestCycle cycle;
    ProfileBuilder builder;
    RecordFileBuilder file;
    KmlExportOptions options;
    QDateTime date = kDate;
    QTemporaryDir folder;
    QDomDocument parsed;
    std::string error;
};

} // namespace

class TestKmlDocument : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wholeDocument();
    void layoutIsThatOfTheOtherFiles();
    void colours_data();
    void colours();
    void nameOfTheDocument();
    void parameterPlacemarks_data();
    void parameterPlacemarks();
    void eventPlacemarks_data();
    void eventPlacemarks();
    void pathWithoutPoints();
    void settings();
    void targetsThatCannotBeWritten();
    void isValidForAnotherReader();
};

void TestKmlDocument::wholeDocument()
{
    Export kml;
    kml.builder.parameter("A", 20, "USHORT", {{"unitMetric", "rpm"}});
    kml.file.addShort(20, 10, 7);
    QCOMPARE(inShort(kml.document()),
             "Document(name=ZARN Flightpath 4.3.2024 5:06:07"
             " Style(LabelStyle(color=ffffffff) IconStyle(color=ff00ccff))"
             " Style(LabelStyle(color=ffffffff) IconStyle(color=ff0000ff))"
             " Placemark(name=00:00:10 styleUrl=normalPlacemark ExtendedData(Data(displayName=<b>A</b> value=7 [rpm]))"
             " Point(altitudeMode=absolute coordinates=10.00000000,48.00000000,500.0))"
             " Placemark(Style(LineStyle(color=ff0000ff width=1) PolyStyle(color=64ff0000))"
             " LineString(extrude=1 altitudeMode=absolute coordinates="
             "0.00000000,48.00000000,500.0\n10.00000000,48.00000000,500.0\n20.00000000,48.00000000,500.0\n)))");
    QCOMPARE(kml.parsed.documentElement().tagName(), "kml");
    QCOMPARE(kml.parsed.documentElement().attribute("xmlns"), "http://www.opengis.net/kml/2.2");
    const QDomElement normal = kml.parsed.documentElement().firstChildElement("Document").firstChildElement("Style");
    QCOMPARE(normal.attribute("id"), "normalPlacemark");
    QCOMPARE(normal.nextSiblingElement("Style").attribute("id"), "errorPlacemark");
    QVERIFY(fileContent(kml.path()).starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"));
}

void TestKmlDocument::layoutIsThatOfTheOtherFiles()
{
    Export kml;
    kml.builder.parameter("A", 20, "FLOAT", {{"thresholdId", "Hot"}}).parameter("Odd <b>&\"\r\n", 21, "USHORT", {{"unitMetric", "]]> µ\t"}});
    kml.file.addFloat(20, 1, 50).addFloat(20, 2, 150).addShort(21, 3, 7);
    QVERIFY(!kml.document().isNull());
    QFile again(kml.folder.filePath("again.kml"));
    QVERIFY(XmlHandler(kml.cycle.console).xmlWriteFile(kml.parsed, again.fileName()));
    // The toolkit quotes the declaration otherwise, and escapes no ">" that it need not.
    const auto comparable = [](const std::string& path) {
        return QString::fromStdString(fileContent(path)).section('\n', 1).replace("&gt;", ">");
    };
    QCOMPARE(comparable(kml.path()), comparable(again.fileName().toStdString()));
}

void TestKmlDocument::colours_data()
{
    QTest::addColumn<QString>("set"); // "key=value" ...
    QTest::addColumn<QString>("expected"); // of placemarks, exceedances, line and polygon

    QTest::newRow("defaults") << "" << "ff00ccff ff0000ff ff0000ff 64ff0000";
    QTest::newRow("red, green, blue") << "KmlPlaceMarkColor=010203 KmlErrorMarkColor=AABBCC KmlLineColor=00ff7f KmlPolygonColor=f0E0d0"
                                      << "ff030201 ffccbbaa ff7fff00 64d0e0f0";
    QTest::newRow("opacity") << "KmlLineAlpha=0 KmlPolygonAlpha=15" << "ff00ccff ff0000ff 000000ff 0fff0000";
    QTest::newRow("opacity out of range") << "KmlLineAlpha=-1 KmlPolygonAlpha=300" << "ff00ccff ff0000ff ffffffff0000ff 12cff0000";
    QTest::newRow("no colour is black") << "KmlPlaceMarkColor=nonsense KmlErrorMarkColor= KmlLineColor=%n%s" << "ff000000 ff000000 ff000000 64ff0000";
}

void TestKmlDocument::colours()
{
    QFETCH(QString, set);
    Export kml;
    Property settings(kml.cycle.console);
    for (const QString& setting : set.split(' ', Qt::SkipEmptyParts))
        settings.setString(setting.section('=', 0, 0).toStdString(), setting.section('=', 1).toStdString());
    kml.options.read(settings);
    const QDomElement document = kml.document();
    QStringList found;
    for (QDomElement e = document.firstChildElement("Style"); !e.isNull(); e = e.nextSiblingElement("Style"))
        found << e.firstChildElement("IconStyle").firstChildElement("color").text();
    const QDomElement style = document.lastChildElement("Placemark").firstChildElement("Style");
    found << style.firstChildElement("LineStyle").firstChildElement("color").text();
    found << style.firstChildElement("PolyStyle").firstChildElement("color").text();
    QTEST(found.join(' '), "expected");
}

void TestKmlDocument::nameOfTheDocument()
{
    Export kml;
    kml.date = {};
    QCOMPARE(kml.document().firstChildElement("name").text(), "ZARN Flightpath ");
}

void TestKmlDocument::parameterPlacemarks_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("interval");
    QTest::addColumn<QString>("expected");

    // B has samples at 1, 9, 12 and 25 s with the values 1 to 4, A at 9.5 and 8 s with 5 and 6. The path stands at 0, 10 and 20 s.
    QTest::newRow("ten seconds") << 1 << 10 << "00:00:00 at 0 n <b>A</b>=6 [u];<b>B</b>=2, 00:00:10 at 10 n <b>B</b>=3, 00:00:20 at 20 n <b>B</b>=4";
    QTest::newRow("the step counts into the interval") << 5 << 2 << "00:00:00 at 0 n <b>A</b>=6 [u];<b>B</b>=2, 00:00:10 at 10 n <b>B</b>=3, "
                                                                    "00:00:20 at 20 n <b>B</b>=4";
    QTest::newRow("no point there: the one before") << 1 << 6 << "00:00:00 at 0 n <b>B</b>=1, 00:00:06 at 0 n <b>A</b>=6 [u];<b>B</b>=2, "
                                                                 "00:00:12 at 10 n <b>B</b>=3, 00:00:24 at 20 n <b>B</b>=4";
    QTest::newRow("no interval: one slot") << 1 << 0 << "00:00:00 at 0 n <b>A</b>=6 [u];<b>B</b>=4";
    QTest::newRow("backwards") << 1 << -20 << "00:00:20 at 20 n <b>B</b>=4, 00:00:00 at 0 n <b>A</b>=6 [u];<b>B</b>=3";
}

void TestKmlDocument::parameterPlacemarks()
{
    QFETCH(int, step);
    QFETCH(int, interval);
    Export kml;
    kml.builder.device("D").parameter("A", 20, "USHORT", {{"unitMetric", "u"}}).parameter("Not selected", 21, "USHORT");
    kml.builder.device("E").parameter("B", 21, "USHORT").parameter("B", 22, "USHORT"); // 22 is not recorded
    kml.file.addShort(21, 1, 1).addShort(21, 9, 2).addShort(21, 12, 3).addShort(21, 25, 4);
    kml.file.addShort(20, 9.5, 5).addShort(20, 8, 6);
    kml.options.timeStamp = step;
    kml.options.placeMarkInterval = interval;
    QTEST(kml.placemarks(), "expected");
    kml.options.placeMarkOn = false;
    QCOMPARE(kml.placemarks(), "");
}

void TestKmlDocument::eventPlacemarks_data()
{
    QTest::addColumn<QString>("off"); // keys of switches
    QTest::addColumn<QString>("expected");

    const QString limits = "00:00:11 at 10 e <b>Oil</b>=150 [C]";
    const QString warnings = "00:00:05 at 0 e <b>Lamp</b>=1, 00:00:22 at 20 e <b>Lamp</b>=2";
    QTest::newRow("all") << "" << limits + ", " + warnings;
    QTest::newRow("no limits") << "KmlShowLimit" << warnings;
    QTest::newRow("no lamps") << "KmlShowWarning" << limits;
    QTest::newRow("none") << "KmlErrorMarkOn" << "";
}

void TestKmlDocument::eventPlacemarks()
{
    QFETCH(QString, off);
    Export kml;
    kml.builder.device("D").parameter("Oil", 20, "USHORT", {{"thresholdId", "Hot"}, {"unitMetric", "C"}});
    kml.builder.device("WarningLamp").parameter("Lamp", 21, "UCHAR");
    kml.file.addShort(20, 1, 50).addShort(20, 11.9, 150);
    kml.file.add(21, 5, bytePayload(1)).add(21, 22, bytePayload(2));
    Property settings(kml.cycle.console);
    if (!off.isEmpty())
        settings.setSwitch(off.toStdString(), false);
    kml.options.read(settings);
    QTEST(kml.placemarks(), "expected");
}

void TestKmlDocument::pathWithoutPoints()
{
    Export kml;
    kml.file = RecordFileBuilder();
    kml.builder.device("WarningLamp").parameter("A", 21, "UCHAR");
    kml.file.add(21, 5, bytePayload(1));
    const QDomElement document = kml.document();
    QCOMPARE(document.elementsByTagName("Placemark").size(), 1); // the path's own
    QVERIFY(inShort(document.lastChildElement("Placemark")).endsWith("LineString(extrude=1 altitudeMode=absolute coordinates))"));
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
    QVERIFY(KmlExportOptions::isKey("KmlPlaceMarkIntervall"));
    QVERIFY(!KmlExportOptions::isKey("KmlPlaceMarkInterval"));
    QVERIFY(!KmlExportOptions::isKey(""));
}

void TestKmlDocument::targetsThatCannotBeWritten()
{
    Export kml;
    QVERIFY(kml.run());
    const std::string before = fileContent(kml.path());
    kml.options.lineWidth = 99;
    {
        const FullDisk full(200);
        QVERIFY(!kml.run());
    }
    QVERIFY2(kml.error.starts_with(kml.path() + ": "), kml.error.c_str());
    QVERIFY(QString::fromStdString(kml.cycle.lines).endsWith("could not open file for writing !<" + QString::fromStdString(kml.path()) + ">\n"));
    QVERIFY(fileContent(kml.path()) == before);
    QCOMPARE(entryCount(kml.folder.path().toStdString()), 1L);

    ExportKml exporter(kml.cycle.console, kml.cycle.profile, kDate);
    kml.options.directory += "/no such folder";
    QVERIFY(!exporter.exportData(RecordData(), kml.options));
    SafeFile device("/dev/full");
    QVERIFY(!exporter.exportData(RecordData(), kml.options, device));
    QVERIFY(exporter.error().starts_with("/dev/full: "));
}

void TestKmlDocument::isValidForAnotherReader()
{
    Export kml;
    kml.builder.device("WarningLamp").parameter("A", 20, "UCHAR").parameter("B", 21, "FLOAT", {{"thresholdId", "Hot"}});
    for (int second = 0; second < 40; ++second)
        kml.file.add(20, second, bytePayload(static_cast<uint8_t>(second / 10))).addFloat(21, second, static_cast<float>(second % 7 * 30));
    QVERIFY(kml.run());
    QProcess reader;
    reader.setProcessChannelMode(QProcess::MergedChannels);
    reader.start("ogrinfo", {"-ro", "-al", "-geom=SUMMARY", QString::fromStdString(kml.path())});
    QVERIFY2(reader.waitForFinished(60000), "ogrinfo (package gdal-bin) is needed");
    const QString said = reader.readAll();
    QCOMPARE(reader.exitCode(), 0);
    QVERIFY2(!said.contains("Warning") && !said.contains("ERROR"), qPrintable(said));
    QVERIFY2(said.contains("Feature Count: 14\n") && said.contains("LINESTRING : 3 points"), qPrintable(said));
}

QTEST_GUILESS_MAIN(TestKmlDocument)
#include "TestKmlDocument.moc"
