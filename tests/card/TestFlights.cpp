#include "card/FlightDetector.h"
#include "card/FlightFigures.h"
#include "support/CardBuilder.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QTest>

#include <limits>
#include <random>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

const QDateTime kNoon(QDate(2024, 5, 1), QTime(12, 0), Qt::UTC);
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
enum EIdentifier : uint32_t { eGroundSpeed = 1, eThrottle, eFuelA, eFuelB, eAltitude, eLatitude, eLongitude, eTrack };

/// Speeds from "60x12 nan 40x3": each a sample, a number behind the x repeats it.
std::vector<double> speedsOf(const QString& text)
{
    std::vector<double> speeds;
    for (const QString& run : text.split(' ', Qt::SkipEmptyParts))
        speeds.insert(speeds.end(), run.contains('x') ? run.section('x', 1).toUInt() : 1U, run.section('x', 0, 0).toDouble());
    return speeds;
}

/// One card with one cycle, whose file is filled by the test and then loaded.
struct Recording {
    Recording()
    {
        ProfileBuilder builder;
        builder.device("D");
        for (const char* key : {"GroundSpeed", "ThrottleA", "FuelA", "FuelB", "Altitude"})
            builder.parameter(key, ++lastIdentifier, "FLOAT", {{"zarnDataType", key}});
        builder.position("Latitude", eLatitude).position("Longitude", eLongitude);
        builder.parameter("Course", eTrack, "FLOAT", {{"zarnDataType", "Track"}});
        if (!builder.load(cycle.profile))
            qFatal("the profile does not load");
    }
    RecordFileBuilder& file() { return mpFile ? *mpFile : *(mpFile = &card.file("A.CAN").dateTime(kNoon)); }
    CardContainer& load(int flight = -1)
    {
        if (cycle.container.recordCycles().empty())
            cycle.container.readContainer(card.write());
        if (!cycle.container.loadCycle(0, flight))
            qFatal("the flight is not there");
        return cycle.container;
    }
    [[nodiscard]] const std::vector<RecordFlight>& flights() const { return cycle.container.loadedCycle()->flights; }
    /// Ground speed from 50 to 80, then 100 until landing is confirmed: take-off at `start` + 11, landing 36 s after that.
    void fly(double start)
    {
        for (const double speed : speedsOf("60x11 100x25 20x12"))
            file().addFloat(eGroundSpeed, start++, static_cast<float>(speed));
    }

    int lastIdentifier = 0;
    CardBuilder card;
    TestCycle cycle;

private:
    RecordFileBuilder* mpFile = nullptr;
};

/// A statistic over samples that the test adds: the span is 100..200, take-off at 130, landing at 170.
struct Statistic : Recording {
    RecordFlight compute()
    {
        flight.startTime = 100;
        flight.endTime = 200;
        flight.takeOffTime = 130;
        flight.landingTime = 170;
        file().addWord(99, 500, 0); // the index reaches further than the span
        load().calcFlightStatistic(flight);
        return flight;
    }
    Statistic& add(uint32_t identifier, const std::vector<std::pair<double, double>>& samples)
    {
        for (const auto& [time, value] : samples)
            file().addFloat(identifier, time, static_cast<float>(value));
        return *this;
    }
    RecordFlight flight;
};

} // namespace

class TestFlights : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void detection_data();
    void detection();
    void selectedFlight();
    void distances();
    void liftOff_data();
    void liftOff();
    void fuelAndClimb();
    void withoutData();
    void pathLeavesDamageOut();
    void pathOfAFlight();
};

void TestFlights::detection_data()
{
    QTest::addColumn<QString>("speeds"); // one sample a second, from 0
    QTest::addColumn<QString>("flights"); // take-off-landing of each
    const QString landing = " 20x12";
    QTest::newRow("11 samples after the crossing") << "51 50x11" + landing << "11-23";
    QTest::newRow("exactly 50 keeps a roll, below starts anew") << "51 50x5 49.9 51 50x11" + landing << "18-30";
    QTest::newRow("airborne at the end") << "51x40" << "";
    QTest::newRow("landing not yet confirmed") << "51x12 39 40x10" << "";
    QTest::newRow("exactly 40 keeps a landing") << "51x12 39 40x11" << "11-23";
    QTest::newRow("and it starts anew") << "51x12 39 40x9 40.1 39x12" << "11-34";
    QTest::newRow("rolls on at once after landing") << "51x12 20x12 60x12 0x12" << "11-23 35-47";
    QTest::newRow("nan is not below 50, nor above 40") << "51 nanx11 20 nanx11" << "11-23";
}

void TestFlights::detection()
{
    QFETCH(QString, speeds);
    Recording recording;
    double time = 0;
    for (const double speed : speedsOf(speeds))
        recording.file().addFloat(eGroundSpeed, time++, static_cast<float>(speed));
    recording.file().addWord(99, 1000, 0);
    recording.load();
    QStringList found;
    for (const RecordFlight& flight : recording.flights()) {
        found << QString("%1-%2").arg(flight.takeOffTime).arg(flight.landingTime);
        QVERIFY(flight.valid);
    }
    QTEST(found.join(' '), "flights");
}

void TestFlights::selectedFlight()
{
    Recording recording;
    recording.fly(50);
    recording.fly(200);
    recording.file().addWord(99, 400, 0);
    CardContainer& container = recording.load(1); // a cycle that is not loaded yet is, then the flight is selected
    QCOMPARE(container.startTime(), 181.0);
    QCOMPARE(container.endTime(), 277.0);
    QCOMPARE(container.dateTime(), kNoon.addSecs(211));
    QCOMPARE(container.selectedFlight().takeOffTime, 211.0);
    const auto loads = [&] { return QString::fromStdString(recording.cycle.lines).count("load Files <"); };
    QCOMPARE(loads(), 1);
    QCOMPARE(recording.load(0).startTime(), 31.0); // reads no file again
    QCOMPARE(loads(), 1);
    QCOMPARE(container.getValue(recording.cycle.profile.model().parameter(eGroundSpeed), 230.5),
             100.0); // all of the cycle has values still
    QVERIFY(!container.loadCycle(0, 2));
    QCOMPARE(recording.load(-1).endTime(), 400.0);
    QCOMPARE(container.dateTime(), kNoon);
    QCOMPARE(loads(), 2);
}

void TestFlights::distances()
{
    // The aircraft moves one minute of latitude (1852 m) every 10 s from 48 degrees on; a sample at 100, 110, ...
    Statistic statistic;
    for (int i = 0; i <= 10; ++i) {
        statistic.file().addFloat(eLatitude, 100 + 10 * i, static_cast<float>(4800 + i));
        statistic.file().addFloat(eLongitude, 100 + 10 * i, 1100);
    }
    statistic.add(eThrottle, {{99, 100}, {105, 90}, {115, 91}, {175, 100}});    // the roll starts at 115: position of 110
    statistic.add(eGroundSpeed, {{101, 80}, {125, 81}, {135, 120}, {205, 500}}); // the reference is taken at 125
    statistic.add(eAltitude, {{102, 300}, {122, 400}, {125, 900}, {126, 401}, {136, 401.1}, {146, 415}, {156, 415.1}, {166, 500}});
    const RecordFlight flight = statistic.compute();
    QCOMPARE(flight.maxGroundSpeed, 120.0);
    QCOMPARE(flight.maxAltitude, 900.0);
    QVERIFY(flight.hasRollStart && flight.hasLiftOff && flight.hasObstacle && flight.hasAltitude && flight.hasSummit);
    // Lift-off at 136 (position of 130), 15 m at 156 (position of 150); the altitude 900 at 125 is not after the reference instant.
    QVERIFY2(std::fabs(flight.takeOffDistance - 2 * 1852) < 5, qPrintable(QString::number(flight.takeOffDistance)));
    QVERIFY2(std::fabs(flight.takeOffDistance15m - 4 * 1852) < 5, qPrintable(QString::number(flight.takeOffDistance15m)));

    Statistic noThrottle; // the distance is then measured from the default position
    noThrottle.add(eThrottle, {{120, 90}}).add(eLatitude, {{110, 100}}).add(eLongitude, {{110, 0}});
    noThrottle.add(eAltitude, {{115, 20}, {130, 0}}).add(eLatitude, {{140, 100}});
    QVERIFY(std::fabs(noThrottle.compute().takeOffDistance - 60 * 1852) < 0.1);
    QVERIFY(!noThrottle.flight.hasRollStart && !noThrottle.flight.hasLiftOff && !noThrottle.flight.hasFuelA && noThrottle.flight.hasAltitude);
}

void TestFlights::liftOff_data()
{
    using Samples = QList<QPair<double, double>>;
    QTest::addColumn<Samples>("throttle");
    QTest::addColumn<Samples>("speed");
    QTest::addColumn<Samples>("altitude");
    QTest::addColumn<int>("liftOff"); // minutes of latitude from where it rolls; -1: not known
    QTest::addColumn<int>("obstacle");
    const Samples full{{110, 91}}, fast{{120, 81}}, climb{{100, 400}, {130, 401.5}, {150, 416}};
    QTest::newRow("both") << full << fast << climb << 2 << 4;
    QTest::newRow("later throttle changes nothing") << Samples{{110, 91}, {115, 50}, {120, 95}} << fast << climb << 2 << 4;
    QTest::newRow("not quite full throttle") << Samples{{110, 90}} << fast << climb << -1 << -1;
    QTest::newRow("before the flight") << Samples{{99, 100}} << fast << climb << -1 << -1;
    QTest::newRow("not fast enough") << full << Samples{{120, 80}} << climb << -1 << -1;
    QTest::newRow("the first time that it is fast") << full << Samples{{120, 81}, {140, 82}} << climb << 2 << 4;
    QTest::newRow("exactly a metre, exactly fifteen") << full << fast << Samples{{100, 400}, {130, 401}, {140, 401.5}, {150, 415}, {160, 415.5}} << 3 << 5;
    QTest::newRow("no fix when it was fast") << full << fast << Samples{{100, 0.05}, {130, 401.5}, {150, 416}} << -1 << -1;
    QTest::newRow("a fix of little height") << full << fast << Samples{{100, 0.2}, {130, 1.5}, {150, 16}} << 2 << 4;
    QTest::newRow("without a fix for a while") << full << fast << Samples{{100, -2}, {110, 400}, {130, -900}, {140, 402}, {150, 416}} << 3 << 4;
    QTest::newRow("never above") << full << fast << Samples{{100, 400}, {130, 410}} << 2 << -1;
    QTest::newRow("from a low place to a high one at once") << full << fast << Samples{{100, 400}, {140, 500}} << 3 << 3;
}

void TestFlights::liftOff()
{
    using Samples = QList<QPair<double, double>>;
    Statistic statistic;
    for (int i = 0; i <= 10; ++i) // a minute of latitude every 10 s
        statistic.add(eLatitude, {{100 + 10 * i, 4800 + i}}).add(eLongitude, {{100 + 10 * i, 1100}});
    for (const auto& [column, identifier] : {std::pair("throttle", eThrottle), {"speed", eGroundSpeed}, {"altitude", eAltitude}}) {
        const Samples samples = *static_cast<Samples*>(QTest::qData(column, qMetaTypeId<Samples>()));
        for (const auto& [time, value] : samples)
            statistic.add(identifier, {{time, value}});
    }
    const RecordFlight flight = statistic.compute();
    QFETCH(int, liftOff);
    QFETCH(int, obstacle);
    QCOMPARE(flight.hasRollStart && flight.hasLiftOff, liftOff >= 0);
    QCOMPARE(flight.hasRollStart && flight.hasObstacle, obstacle >= 0);
    QVERIFY(liftOff < 0 || std::abs(flight.takeOffDistance - liftOff * 1852) < 5);
    QVERIFY(obstacle < 0 || std::abs(flight.takeOffDistance15m - obstacle * 1852) < 5);
}

void TestFlights::fuelAndClimb()
{
    Statistic statistic; // litres an hour; what is outside the flight's span counts nothing
    statistic.add(eFuelA, {{90, 9999}, {100, 7200}, {110, 36}, {120, 72}, {200, 0}, {201, 9999}}).add(eFuelB, {{150, 30}});
    statistic.add(eAltitude, {{99, 5000}, {100, 500}, {120, 0.05}, {140, 450}, {150, 700}, {160, 690}, {201, 9000}});
    statistic.add(eGroundSpeed, {{99, 300}, {100, 20}, {150, 90}, {200, 110}, {201, 400}});
    const RecordFlight flight = statistic.compute();
    QVERIFY(flight.hasFuelA && !flight.hasFuelB && std::abs(flight.fuelA - 0.3) < 1e-9 && flight.fuelB == 0.0 && flight.totalFuel == flight.fuelA);
    QVERIFY(flight.minAltitude == 450.0 && flight.maxAltitude == 700.0 && flight.totalClimb == 250.0 && flight.hasSummit);
    QCOMPARE(flight.maxGroundSpeed, 110.0);
    QCOMPARE(flight.averageClimbRate, 250.0 / 20); // from take-off at 130 to the summit at 150
    QCOMPARE(flight.averageDescendRate, 250.0 / 20);
    QCOMPARE(flight.timePer100m, 16.0);
    QCOMPARE(flight.fuelPer100m, flight.totalFuel / 2.5);
    Statistic falling;
    falling.add(eAltitude, {{100, 700}, {150, 700}, {160, 600}}).add(eFuelA, {{100, 36}, {110, 36}}).add(eFuelB, {{100, 36}, {120, 36}});
    const RecordFlight glide = falling.compute();
    QVERIFY(glide.hasAltitude && !glide.hasSummit && glide.maxAltitude == 700.0 && glide.totalClimb == 100.0);
    QVERIFY(std::abs(glide.totalFuel - 0.3) < 1e-9);
}

void TestFlights::withoutData()
{
    Statistic statistic;
    const RecordFlight flight = statistic.compute();
    QVERIFY(flight.valid);
    QCOMPARE(flight.minAltitude, 0.0);
    QCOMPARE(flight.maxGroundSpeed, 0.0);
    QVERIFY(std::isinf(flight.timePer100m));
    QVERIFY(std::isnan(flight.fuelPer100m));
    QCOMPARE(flight.takeOffDistance, 0.0);
    for (int figure = 0; figure < eFigureCount; ++figure) {
        if (figure != eFigureFlightTime && figure != eFigureGroundSpeed)
            QCOMPARE(flightFigureText(flight, static_cast<EFlightFigure>(figure)), QString("-"));
    }

    TestCycle bare; // a profile that names none of the parameters
    CardBuilder card;
    card.file("A.CAN").dateTime(kNoon).addFloat(0, 1, 60);
    QVERIFY(bare.container.readContainer(card.write()) && bare.container.loadCycle(0, -1));
    QVERIFY(bare.container.loadedCycle()->flights.empty());
    QVERIFY(bare.container.flightPath().empty());
}

void TestFlights::pathLeavesDamageOut()
{
    Recording recording;
    for (int i = 0; i <= 10; ++i) {
        recording.file().addFloat(eLatitude, i, 4800).addFloat(eLongitude, i, 1100).addFloat(eAltitude, i, 500);
        if (i == 6) { // were it only dropped after decoding, the filter would follow it
            for (const double time : {2000000.5, 1e9}) {
                for (int n = 0; n < 8; ++n)
                    recording.file().addFloat(eLatitude, time, 7000);
            }
        }
    }
    const std::vector<FlightPathPoint>& points = recording.load().flightPath();
    QCOMPARE(points.size(), std::size_t(21));
    for (const FlightPathPoint& point : points)
        QCOMPARE(point.latitude, 48.0);
    Recording edge; // the last time that counts
    edge.file().addFloat(eLatitude, 0, 4800).addFloat(eLatitude, 2000000, 4800).addFloat(eLongitude, 0, 1100).addFloat(eLongitude, 1, 1100);
    QCOMPARE(edge.load().flightPath().size(), std::size_t(4000001));
}

void TestFlights::pathOfAFlight()
{
    Recording recording;
    recording.fly(50);
    recording.file().addFloat(eLatitude, 0, 4800).addFloat(eLatitude, 300, 4800).addFloat(eLongitude, 0, 1100).addFloat(eLongitude, 300, 1100);
    CardContainer& container = recording.load(0);
    QCOMPARE(container.flightPath().front().time, 31.0); // both ends belong to it
    QCOMPARE(container.flightPath().back().time, 127.0);
    recording.cycle.profile.setCurrentUnit(EUnit::eImperial);
    container.recalculate(0); // rebuilt, it is that of the flight still; flights do not move with the displayed unit
    QCOMPARE(recording.flights().size(), std::size_t(1));
    QCOMPARE(recording.flights().front().maxGroundSpeed, 100.0);
    QCOMPARE(container.flightPath().size(), std::size_t(0));
    recording.cycle.profile.setCurrentUnit(EUnit::eMetric);
    container.calcFlightPath();
    QCOMPARE(container.flightPath().front().time, 31.0);
    QCOMPARE(recording.load(-1).flightPath().size(), std::size_t(601));
}

QTEST_APPLESS_MAIN(TestFlights)
#include "TestFlights.moc"
