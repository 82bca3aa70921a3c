#include "export/KmlPath.h"
#include "support/CardBuilder.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QTest>

#include <random>

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
    void pointOfASlot();
    void equalsAMapOfSlots();
    void altitudeIsInTheDisplayUnit();
    void positionsAreFilteredFromACleanStart();
    void identifierWithoutAParameter();
    void debugLines();
    void timesOfDay_data();
    void timesOfDay();
};

void TestKmlPath::points_data()
{
    QTest::addColumn<std::vector<Fix>>("fixes");
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("expected");

    const Fix lat{kLatitude, 10.2, 1}, lon{kLongitude, 10.3, 2}, alt{kAltitude, 10.4, 3};
    QTest::newRow("the later of a slot") << std::vector<Fix>{lat, lon, alt, {kLatitude, 10.9, 4}} << 1 << "10:4,2,3";
    QTest::newRow("the one stored later of a slot") << std::vector<Fix>{{kLatitude, 10.9, 4}, lat, lon, alt} << 1 << "10:1,2,3";
    QTest::newRow("missing altitude takes the one before") << std::vector<Fix>{lat, lon, alt, {kLatitude, 11, 5}, {kLongitude, 11, 6}} << 1
                                                           << "10:1,2,3 11:5,6,3";
    QTest::newRow("missing at the start takes the first known") << std::vector<Fix>{{kLatitude, 8, 7}, {kAltitude, 9, 8}, lat, lon} << 1
                                                                << "8:7,2,8 9:7,2,8 10:1,2,8";
    QTest::newRow("a channel that is missing") << std::vector<Fix>{lat, alt} << 1 << "10:1,-1000,3";
    QTest::newRow("a value below the marker counts as missing")
        << std::vector<Fix>{lat, lon, alt, {kAltitude, 11, -999.5F}, {kAltitude, 12, -999}} << 1 << "10:1,2,3 11:1,2,3 12:1,2,-999";
    QTest::newRow("two seconds a point") << std::vector<Fix>{lat, lon, alt, {kLatitude, 11.9, 4}, {kLatitude, 12, 5}} << 2 << "5:4,2,3 6:5,2,3";
    QTest::newRow("times that go backwards") << std::vector<Fix>{{kLatitude, 12, 5}, lat, lon, alt, {kLatitude, 11, 6}, {kLatitude, 12.5, 7}} << 1
                                             << "10:1,2,3 11:6,2,3 12:7,2,3";
    QTest::newRow("no step: all in one slot") << std::vector<Fix>{lat, lon, alt, {kLatitude, 99, 4}} << 0 << "2147483647:4,2,3";
    QTest::newRow("a step backwards") << std::vector<Fix>{lat, lon, alt, {kLatitude, 12, 4}} << -1 << "-12:4,2,3 -10:1,2,3";
    QTest::newRow("a damaged time is one slot more") << std::vector<Fix>{lat, lon, alt, {kLatitude, 5e11, 4}} << 1 << "10:1,2,3 2147483647:4,2,3";
    QTest::newRow("nothing recorded") << std::vector<Fix>{} << 1 << "";
}

void TestKmlPath::points()
{
    QFETCH(std::vector<Fix>, fixes);
    QFETCH(int, step);
    QTEST(described(Track(fixes, step).path), "expected");
}

void TestKmlPath::pointOfASlot()
{
    const Track track({{kLatitude, 5, 1}, {kLatitude, 8, 2}, {kLatitude, 9, 3}});
    const auto latitudeAt = [&](int slot) { return track.path.at(slot)->latitude; };
    QCOMPARE(latitudeAt(8), 2.0);
    QCOMPARE(latitudeAt(7), 1.0);          // the next lower one
    QCOMPARE(latitudeAt(2147483647), 3.0);
    QCOMPARE(latitudeAt(-3), 1.0);         // none is lower: the first
    QCOMPARE(Track({}).path.at(0), nullptr);
}

void TestKmlPath::equalsAMapOfSlots()
{
    std::mt19937 random(3);
    for (int round = 0; round < 50; ++round) {
        std::vector<Fix> fixes;
        std::map<int, std::map<uint32_t, float>> slots;
        double time = 50;
        for (int i = 0; i < 1500; ++i) {
            time += static_cast<double>(random() % 300) * 0.01;
            if (random() % 50 == 0)
                time = static_cast<double>(random() % 3000);
            fixes.push_back({kLatitude + static_cast<uint32_t>(random() % 3), time, static_cast<float>(random() % 1000)});
            slots[static_cast<int>(static_cast<double>(ticksOf(time)) / 64e6)][fixes.back().identifier] = fixes.back().value;
        }
        const Track track(fixes, 2);
        QCOMPARE(track.path.points().size(), slots.size());
        auto expected = slots.begin();
        for (const KmlPoint& point : track.path.points()) {
            QCOMPARE(point.slot, expected->first);
            for (const auto& [identifier, value] : expected->second) {
                const double found = identifier == kLatitude ? point.latitude : identifier == kLongitude ? point.longitude : point.altitude;
                QCOMPARE(found, static_cast<double>(value));
            }
            ++expected;
        }
    }
}

void TestKmlPath::altitudeIsInTheDisplayUnit()
{
    Track track({{kAltitude, 1, 300}});
    track.cycle.profile.setCurrentUnit(EUnit::eImperial);
    track.build(1);
    QCOMPARE(track.path.points().front().altitude, 600.0);
}

void TestKmlPath::positionsAreFilteredFromACleanStart()
{
    Track track({});
    QVERIFY(ProfileBuilder().device("GPS").position("Latitude", kLatitude).position("Longitude", kLongitude).load(track.cycle.profile));
    RecordFileBuilder file;
    for (int i = 0; i < 6; ++i)
        file.addFloat(kLatitude, i, 4830).addFloat(kLongitude, i, 1130);
    file.addFloat(kLatitude, 6, 1200).addFloat(kLongitude, 6, 13000).addWord(kAltitude, 6, 0).fill(track.data); // jumps
    for (int i = 0; i < 2; ++i) {
        track.build(1);
        QVERIFY(std::fabs(track.path.points().back().latitude - 48.5) < 1e-6);
        QVERIFY(std::fabs(track.path.points().back().longitude - 11.5) < 1e-6);
    }
}

void TestKmlPath::identifierWithoutAParameter()
{
    Track track({{kLatitude, 1, 5}, {kLongitude, 1, 6}});
    QVERIFY(ProfileBuilder().device("GPS").parameter("Latitude", kLatitude, "FLOAT").load(track.cycle.profile));
    track.build(1);
    QCOMPARE(described(track.path), "1:5,0,-1000");
}

void TestKmlPath::debugLines()
{
    Track track({{kLatitude, 1, 48.5F}, {kLatitude, 2, 48.75F}, {kLongitude, 2.5, 11}, {kAltitude, 3, 500}});
    QCOMPARE(QString::fromStdString(track.cycle.lines),
             "time 1.000000 lat 48.500000\n"
             "time 2.000000 lat 48.750000\n"
             "time 2.500000 long 11.000000\n"
             "new lons 11.000000\n");
    std::string lines;
    const auto sink = [&lines](std::string_view text) { lines += text; };
    track.path.build(track.data, track.cycle.profile, KmlGrid(1), Console(sink, sink, false), {nullProgress(), 0, 100});
    QCOMPARE(lines, std::string());
}

void TestKmlPath::timesOfDay_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("slot");
    QTest::addColumn<int>("interval");
    QTest::addColumn<QString>("expected");

    QTest::newRow("start") << 1 << 0 << 1 << "00:00:00";
    QTest::newRow("seconds, minutes, hours") << 1 << 45296 << 1 << "12:34:56";
    QTest::newRow("intervals and steps") << 2 << 3 << 10 << "00:01:00";
    QTest::newRow("wraps at midnight") << 1 << 86400 + 61 << 1 << "00:01:01";
    QTest::newRow("before midnight") << -1 << 1 << 1 << "23:59:59";
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
