#include "export/KmlPath.h"
#include "support/CardBuilder.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QTest>

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

class TestKmlPath : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void points_data();
    void points();
    void timesOfDay_data();
    void timesOfDay();
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

QTEST_GUILESS_MAIN(TestKmlPath)
#include "TestKmlPath.moc"
