#include "app/SafeFile.h"
#include "export/ExportKml.h"
#include "export/KmlPath.h"
#include "support/CardBuilder.h"
#include "support/FileHelpers.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QDomDocument>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

constexpr uint32_t kLatitude = KmlPath::kLatitudeIdentifier;
constexpr uint32_t kLongitude = KmlPath::kLongitudeIdentifier;
constexpr uint32_t kAltitude = KmlPath::kAltitudeIdentifier;

struct Fix {
    uint32_t identifier;
    double time;
    float value;
};

/// "slot:latitude,longitude,altitude" of every point.
QString described(const KmlPath& path)
{
    QStringList points;
    for (const KmlPoint& point : path.points())
        points << QString("%1:%2,%3,%4").arg(point.slot).arg(point.latitude).arg(point.longitude).arg(point.altitude);
    return points.join(' ');
}

/// Plain numbers, no positions: DDDMM.mmmm is tested where it is decoded.
struct Track {
    explicit Track(const std::vector<Fix>& fixes, int step = 1)
    {
        const bool loaded = ProfileBuilder().unit("m", "ft", 2).device("GPS").parameter("Latitude", kLatitude, "FLOAT")
                                .parameter("Longitude", kLongitude, "FLOAT")
                                .parameter("Altitude", kAltitude, "FLOAT", {{"unitMetric", "m"}, {"unitImperial", "ft"}}).load(cycle.profile);
        if (!loaded)
            qFatal("the profile does not load");
        RecordFileBuilder file;
        for (const Fix& fix : fixes)
            file.addFloat(fix.identifier, fix.time, fix.value);
        file.fill(data);
        build(step);
    }
    void build(int step) { path.build(data, cycle.profile, KmlGrid(step), cycle.console, {nullProgress(), 0, 100}); }

    TestCycle cycle;
    RecordData data;
    KmlPath path;
};

} // namespace

Q_DECLARE_METATYPE(std::vector<Fix>)
Q_DECLARE_METATYPE(std::function<void(KmlExportOptions&)>)

class TestKmlPath : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void points_data();
    void points();
    void timesOfDay_data();
    void timesOfDay();
    void grid();
    void document_data();
    void document();
    void coloursAndShape();
    void cannotBeWritten();
};

void TestKmlPath::points_data()
{
    QTest::addColumn<std::vector<Fix>>("fixes");
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("expected");

    const Fix lat{kLatitude, 10.2, 1}, lon{kLongitude, 10.3, 2}, alt{kAltitude, 10.4, 3};
    QTest::newRow("missing at the start takes the first known") << std::vector<Fix>{{kLatitude, 8, 7}, {kAltitude, 9, 8}, lat, lon} << 1
                                                                << "8:7,2,8 9:7,2,8 10:1,2,8";
    QTest::newRow("a value below the marker counts as missing")
        << std::vector<Fix>{lat, lon, alt, {kAltitude, 11, -999.5F}, {kAltitude, 12, -999}} << 1 << "10:1,2,3 11:1,2,3 12:1,2,-999";
    QTest::newRow("times that go backwards") << std::vector<Fix>{{kLatitude, 12, 5}, lat, lon, alt, {kLatitude, 11, 6}, {kLatitude, 12.5, 7}} << 1
                                             << "10:1,2,3 11:6,2,3 12:7,2,3";
    QTest::newRow("a damaged time is one slot more") << std::vector<Fix>{lat, lon, alt, {kLatitude, 5e11, 4}} << 1 << "10:1,2,3 2147483647:4,2,3";
    QTest::newRow("no fix") << std::vector<Fix>{{kLatitude, 9, 0.0001F}, lat, lon, alt, {kLongitude, 11, -0.00005F}, {kLatitude, 12, 0.0002F}} << 1
                            << "9:1,2,3 10:1,2,3 11:1,2,3 12:0.0002,2,3";
    QTest::newRow("never a fix") << std::vector<Fix>{{kLatitude, 9, 0}, {kLongitude, 9, 0}, alt} << 1 << "9:-1000,-1000,3 10:-1000,-1000,3";
    QTest::newRow("nothing recorded") << std::vector<Fix>{} << 1 << "";
}

void TestKmlPath::points()
{
    QFETCH(std::vector<Fix>, fixes);
    QFETCH(int, step);
    QTEST(described(Track(fixes, step).path), "expected");
}

void TestKmlPath::timesOfDay_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("slot");
    QTest::addColumn<int>("interval");
    QTest::addColumn<QString>("expected");

    QTest::newRow("wraps at midnight") << 1 << 86400 + 61 << 1 << "00:01:01";
    QTest::newRow("beyond all integers") << 2147483647 << 2147483647 << 2147483647 << "07:12:55"; // that of the largest count of milliseconds
}

void TestKmlPath::timesOfDay()
{
    QFETCH(int, step);
    QFETCH(int, slot);
    QFETCH(int, interval);
    QTEST(QString::fromStdString(KmlGrid(step).timeOfDay(slot, interval)), "expected");
}

void TestKmlPath::grid()
{
    for (const auto& [step, time, slot] : {std::tuple(1, 9.999, 9), {1, 10.0, 10}, {5, 9.9, 1}, {5, 10.0, 2}, {3, 2.99, 0}})
        QCOMPARE(KmlGrid(step).slot(time), slot);
    QVERIFY(KmlGrid(5).seconds(3) == 15.0 && KmlGrid(5).seconds(3, 4) == 60.0);
    const Track track({{kLatitude, 10, 1}, {kLongitude, 10, 2}, {kAltitude, 10, 3}, {kLatitude, 19.9, 5}}, 5);
    QCOMPARE(described(track.path), QString("2:1,2,3 3:5,2,3"));
    QVERIFY(track.path.at(1)->slot == 2 && track.path.at(9)->slot == 3 && track.path.at(2)->latitude == 1.0 && track.path.at(3)->slot == 3);
}

/// A path from 10 s to 19 s to the north, and a temperature that is above its limit from 14 s to 15 s.
struct Flight {
    Flight()
    {
        ProfileBuilder().thresholds("T", {{50, "LIMIT", "#ff0000"}}).device("GPS").parameter("Latitude", kLatitude, "FLOAT")
            .parameter("Longitude", kLongitude, "FLOAT").parameter("Altitude", kAltitude, "FLOAT").device("E")
            .parameter("EGT", 5, "FLOAT", {{"unitMetric", "C"}, {"precision", "1"}, {"thresholdId", "T"}})
            .parameter("Count", 6, "ULONG").load(cycle.profile);
        cycle.profile.setSelected("EGT", true);
        cycle.profile.setSelected("Count", true);
        RecordFileBuilder file;
        for (int second = 10; second < 20; ++second) {
            file.addFloat(kLatitude, second, static_cast<float>(second)).addFloat(kLongitude, second, 11).addFloat(kAltitude, second, 100);
            file.addFloat(5, second, second == 14 || second == 15 ? 60.0F : 20.0F).addWord(6, second, static_cast<uint32_t>(second));
        }
        file.fill(data);
        options.placeMarkOn = options.errorMarkOn = options.showLimit = true;
        options.placeMarkInterval = 5;
        options.timeStamp = 1;
        options.directory = folder.path().toStdString();
        options.fileName = "out.kml";
    }
    bool write(ExportKml& exporter)
    {
        document = QDomDocument();
        return exporter.exportData(data, options) &&
               document.setContent(QByteArray::fromStdString(fileContent(folder.filePath("out.kml").toStdString())));
    }
    /// "name place: values" of the placemarks of a style.
    [[nodiscard]] QString placemarks(const QString& style) const
    {
        QStringList list;
        const QDomNodeList all = document.elementsByTagName("Placemark");
        for (int i = 0; i < all.size(); ++i) {
            const QDomElement one = all.at(i).toElement();
            if (one.firstChildElement("styleUrl").text() != style)
                continue;
            QString text = one.firstChildElement("name").text() + " " + one.firstChildElement("Point").firstChildElement("coordinates").text().section(',', 1, 1).section('.', 0, 0) + ":";
            for (QDomElement value = one.firstChildElement("ExtendedData").firstChildElement("Data"); !value.isNull(); value = value.nextSiblingElement("Data"))
                text += " " + value.firstChildElement("displayName").text() + "=" + value.firstChildElement("value").text();
            list << text;
        }
        return list.join("; ");
    }
    [[nodiscard]] QStringList path() const
    {
        return document.elementsByTagName("LineString").at(0).toElement().firstChildElement("coordinates").text().split('\n', Qt::SkipEmptyParts);
    }
    TestCycle cycle;
    RecordData data;
    KmlExportOptions options;
    QTemporaryDir folder;
    QDomDocument document;
};

void TestKmlPath::document_data()
{
    using Change = std::function<void(KmlExportOptions&)>;
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("values");
    QTest::addColumn<QString>("limits");
    QTest::addColumn<int>("points");
    // A placemark tells the last values until the next one.
    const QString first = "00:00:10 10: <b>EGT</b>=60.0 [C] <b>Count</b>=14", second = "00:00:15 15: <b>EGT</b>=20.0 [C] <b>Count</b>=19";
    const QString limit = "00:00:14 14: <b>EGT</b>=60.0 [C]";
    const auto row = [](const char* name, const Change& change, const QString& values, const QString& limits, int points) {
        QTest::newRow(name) << change << values << limits << points;
    };
    row("all", [](KmlExportOptions&) {}, first + "; " + second, limit, 10);
    row("no values", [](KmlExportOptions& options) { options.placeMarkOn = false; }, "", limit, 10);
    row("no limits", [](KmlExportOptions& options) { options.showLimit = false; }, first + "; " + second, "", 10);
    row("no events", [](KmlExportOptions& options) { options.errorMarkOn = false; }, first + "; " + second, "", 10);
    row("every ten", [](KmlExportOptions& options) { options.placeMarkInterval = 10; },
        "00:00:10 10: <b>EGT</b>=20.0 [C] <b>Count</b>=19", limit, 10);
    row("a part", [](KmlExportOptions& options) { options.span = TimeSpan{12, 17}; }, second, limit, 6);
    row("a part without the limit", [](KmlExportOptions& options) { options.span = TimeSpan{16, 99}; }, "", "", 4);
}

void TestKmlPath::document()
{
    QFETCH(const std::function<void(KmlExportOptions&)>, change);
    Flight flight;
    change(flight.options);
    ExportKml exporter(flight.cycle.console, flight.cycle.profile.context(), flight.cycle.profile.selection(), {});
    for (int round = 0; round < 2; ++round) { // nothing is left of the first
        QVERIFY(flight.write(exporter) && exporter.hasPosition() && !exporter.hasTracks() && exporter.error().empty());
        QTEST(static_cast<int>(flight.path().size()), "points");
        QTEST(flight.placemarks("normalPlacemark"), "values");
        QTEST(flight.placemarks("errorPlacemark"), "limits");
    }
    QCOMPARE(flight.document.elementsByTagName("name").at(0).toElement().text().trimmed(), QString("ZARN Flightpath"));
    if (flight.path().size() == 10)
        QCOMPARE(flight.path().back(), QString("11.00000000,19.00000000,100.0"));
}

void TestKmlPath::coloursAndShape()
{
    Flight flight;
    flight.options.lineColor = "102030";
    flight.options.lineAlpha = 7;
    flight.options.lineWidth = 4;
    flight.options.polygonColor = "a1b2c3";
    flight.options.polygonAlpha = 255;
    flight.options.placeMarkColor = "00ff01";
    flight.options.errorMarkColor = "fe0002";
    const QDateTime date(QDate(2024, 3, 1), QTime(9, 5, 7));
    for (const bool polygon : {false, true}) {
        flight.options.polygonOn = polygon;
        ExportKml exporter(flight.cycle.console, flight.cycle.profile.context(), flight.cycle.profile.selection(), date);
        QVERIFY(flight.write(exporter));
        const auto colour = [&](const char* element, int number) {
            return flight.document.elementsByTagName(element).at(number).toElement().firstChildElement("color").text();
        };
        QCOMPARE(colour("LineStyle", 0) + " " + colour("PolyStyle", 0), QString("07302010 ffc3b2a1")); // opacity, blue, green, red
        QCOMPARE(colour("IconStyle", 0) + " " + colour("IconStyle", 1), QString("ff01ff00 ff0200fe"));
        QCOMPARE(flight.document.elementsByTagName("width").at(0).toElement().text(), QString("4"));
        QCOMPARE(flight.document.elementsByTagName("extrude").at(0).toElement().text(), QString::number(polygon));
        QCOMPARE(flight.document.elementsByTagName("name").at(0).toElement().text(), QString("ZARN Flightpath 1.3.2024 9:05:07"));
    }
}

void TestKmlPath::cannotBeWritten()
{
    Flight flight;
    flight.options.directory += "/none";
    ExportKml exporter(flight.cycle.console, flight.cycle.profile.context(), {}, {});
    QVERIFY(!flight.write(exporter));
    QVERIFY(QString::fromStdString(exporter.error()).contains("out.kml: ") && QString::fromStdString(flight.cycle.lines).contains("/none/out.kml>"));
    flight.options.directory = flight.folder.path().toStdString();
    QVERIFY(flight.write(exporter) && exporter.error().empty()); // and again where it can
    RecordData nothing;
    QVERIFY(exporter.exportData(nothing, flight.options) && !exporter.hasPosition());
}

QTEST_GUILESS_MAIN(TestKmlPath)
#include "TestKmlPath.moc"
