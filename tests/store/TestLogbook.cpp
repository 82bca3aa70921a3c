#include "app/SafeFile.h"
#include "card/CycleNote.h"
#include "store/LogbookEditor.h"
#include "store/LogbookReader.h"
#include "store/NormalBands.h"
#include "store/Service.h"
#include "store/Store.h"
#include "store/StoreSchema.h"
#include "ui/logbook/model/LogbookCsv.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace ZARN;

namespace {

/// Least, 5 %, median, 95 % and greatest of each.
using Flights = std::vector<std::array<double, 5>>;

const std::string kManyFlights = R"sql(
WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000)
INSERT INTO cycle (cycle_id, engine_id, card_id, number, date_time, engine_running)
    SELECT 'n' || i, 'E1', 1, i + 2, date('2025-06-01', i || ' minutes'), 60 FROM n;
INSERT INTO flight (flight_id, cycle_id, number, date_time) SELECT number + 100, cycle_id, 1, date_time FROM cycle WHERE cycle_id LIKE 'n%';
)sql";

} // namespace

/// What people see of a store, and what they write into it.
class TestLogbook : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void finds_data();
    void finds();
    void sums();
    void countsRecordingsOnce_data();
    void countsRecordingsOnce();
    void keepsWhatWasTyped();
    void mergesEngines();
    void services_data();
    void services();
    void hoursNotCounted();
    void percentiles_data();
    void percentiles();
    void bandsOfEarlierFlights();
    void formulasAreText();
    void rescues_data();
    void rescues();
    void badStores_data();
    void badStores();

private:
    void fill(const std::string& sql);
    QTemporaryDir mFolder;
    std::string mPath;
    int mNumber = 0;
};

void TestLogbook::init()
{
    mPath = mFolder.filePath(QString::number(++mNumber) + ".sqlite").toStdString();
    fill(R"sql(
INSERT INTO engine (engine_id, engine_serial) VALUES ('E1', 'E1'), ('card:x', NULL);
INSERT INTO aircraft VALUES ('E1', 'D-KÜST');
INSERT INTO card VALUES (1, '/a', 'first', '2025-01-01T00:00:00'), (2, '/b', 'second', '2025-09-01T00:00:00');
INSERT INTO cycle (cycle_id, engine_id, card_id, number, date_time, engine_running, fuel, verdict) VALUES
    ('a', 'E1', 1, 1, '2025-05-01T10:00:00', 7200, 30, 'ok'), ('b', 'E1', 1, 2, NULL, NULL, NULL, 'limit'),
    ('c', 'card:x', 2, 1, '2025-05-02T10:00:00', 3600, 10, 'warning');
INSERT INTO flight (flight_id, cycle_id, number, date_time, start_time, end_time, take_off_time, landing_time, total_fuel, min_altitude,
    max_altitude, total_climb) VALUES (11, 'a', 1, '2025-05-01T10:00:00', 0, 900, 100, 700, 8, 1, 9, 500),
    (12, 'a', 2, '2025-05-01T11:00:00', 1000, 2000, 1100, 1900, 9, 1, 9, 300), (13, 'b', 1, NULL, 0, 500, 100, 400, 0, 0, 0, 0),
    (14, 'c', 1, '2025-05-02T10:00:00', 0, 500, 100, 200, 5, 1, 9, 700);
INSERT INTO incident (cycle_id, flight_id, title, state, start_time, end_time) VALUES ('c', 14, 'Oil Temperature A', 1, 9, 9), ('b', NULL, 'Lamp', 2, -9, 1),
    ('a', NULL, 'Lamp', 2, 901, 999);
INSERT INTO note (cycle_id, time, text) VALUES ('a', 1500, 'Größere Böen');
)sql");
}

void TestLogbook::fill(const std::string& sql)
{
    Database database(mPath, Database::eReadWrite);
    QVERIFY2(StoreSchema::prepare(database) && database.run(sql), database.error().c_str());
}

void TestLogbook::finds_data()
{
    QTest::addColumn<QString>("engine");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("until");
    QTest::addColumn<QString>("verdict");
    QTest::addColumn<QString>("text");
    QTest::addColumn<std::vector<int64_t>>("flights"); // the latest first
    using Flights = std::vector<int64_t>;
    QTest::newRow("all: without a clock after its neighbour") << "" << "" << "" << "" << "" << Flights{14, 13, 12, 11};
    QTest::newRow("engine") << "card:x" << "" << "" << "" << "" << Flights{14};
    QTest::newRow("unknown engine") << "E9" << "" << "" << "" << "" << Flights{};
    QTest::newRow("days are included") << "" << "2025-05-01" << "2025-05-01" << "" << "" << Flights{12, 11};
    QTest::newRow("verdict") << "" << "" << "" << "limit" << "" << Flights{13};
    QTest::newRow("aircraft, any case") << "" << "" << "" << "" << "küst" << Flights{13, 12, 11};
    QTest::newRow("of the flight, not its cycle") << "" << "" << "" << "warning" << "" << Flights{14};
    QTest::newRow("note of a flight, folded") << "" << "" << "" << "" << "größere BÖEN" << Flights{12};
    QTest::newRow("note between flights") << "" << "" << "" << "" << "Rough" << Flights{12, 11};
    QTest::newRow("incident") << "" << "" << "" << "" << "oil temp" << Flights{14};
    QTest::newRow("card and verdict") << "" << "" << "" << "ok" << "first" << Flights{12, 11};
}

void TestLogbook::finds()
{
    QFETCH(QString, engine);
    QFETCH(QString, from);
    QFETCH(QString, until);
    QFETCH(QString, verdict);
    QFETCH(QString, text);
    fill("INSERT INTO note (cycle_id, time, text) VALUES ('a', 950, 'Rough')");
    LogbookReader reader(mPath);
    const LogbookFilter filter{engine.toStdString(), QDate::fromString(from, Qt::ISODate), QDate::fromString(until, Qt::ISODate),
                               verdict.toStdString(), text};
    QTEST(reader.index().select(filter, ELogbookOrder::eDate, true).flights, "flights");
    QCOMPARE(reader.error(), std::string());
}

void TestLogbook::sums()
{
    LogbookReader reader(mPath);
    const LogbookSelection all = reader.index().select({}, ELogbookOrder::eClimb, false);
    QCOMPARE(all.flights, (std::vector<int64_t>{13, 12, 11, 14}));
    QCOMPARE(all.totals.flightTime, 1800.0);
    QCOMPARE(all.totals.running, std::optional(10800.0)); // each cycle once
    QCOMPARE(all.totals.cyclesWithoutEngine, 1u);
    QCOMPARE(all.totals.flightsWithoutFuel, 1u);
    QCOMPARE(all.totals.fuel, std::optional(22.0)); // none of the cycle that does not tell
    const std::vector<LogbookEntry> entries = reader.entries(std::vector<int64_t>{12, 99, 13});
    QCOMPARE(entries[0].notes, QString("Größere Böen")); // of this flight's time alone
    QCOMPARE(entries[1].flight, 0);
    QVERIFY(entries[2].dateTime.empty() && !entries[2].fuel && !entries[2].climb && entries[2].verdict == EVerdict::eLimit);
    QVERIFY(reader.entries(std::vector<int64_t>{11})[0].notes.isEmpty());
    fill("UPDATE cycle SET number = 0, start_time = 1800.5 WHERE cycle_id = 'a'"); // times count from 1800.5 s before its date
    QCOMPARE(reader.entries(std::vector<int64_t>{12})[0].dateTime, std::string("2025-05-01T10:29:59"));
    QCOMPARE(reader.notes("a")[0].dateTime, std::string("2025-05-01T09:29:59"));
    const int64_t version = reader.version();
    fill("DELETE FROM flight WHERE flight_id = 13");
    QVERIFY(reader.version() != version);
    QCOMPARE(reader.index(true).select({}, ELogbookOrder::eDate, false).totals.flights, 3u);
}

void TestLogbook::countsRecordingsOnce_data()
{
    QTest::addColumn<QString>("other"); // of the cycle "p": number, date, start, end, seconds that its engine ran
    QTest::addColumn<QString>("more");
    QTest::addColumn<std::vector<int64_t>>("flights");
    QTest::addColumn<double>("running");
    QTest::addColumn<std::size_t>("several");
    QTest::addColumn<std::size_t>("overlapping");
    QTest::addColumn<std::size_t>("clockBacks");
    using Flights = std::vector<int64_t>;
    const char* const pRest = "0, '2025-05-01T10:10:01', 600.7, 7200, 6500";
    QTest::newRow("its first file is gone") << pRest << "" << Flights{11, 12} << 7200.0 << std::size_t{1} << std::size_t{0} << std::size_t{0};
    QTest::newRow("more of it is there now") << "1, '2025-05-01T10:00:00', 0, 9000, 8900" << "" << Flights{21, 22} << 8900.0 << std::size_t{1} << std::size_t{0} << std::size_t{0};
    QTest::newRow("each has what the other lacks") << "0, '2025-05-01T10:20:00', 1200, 9200, 7200" << "" << Flights{11, 21, 22} << 8300.0 << std::size_t{1} << std::size_t{0} << std::size_t{0};
    QTest::newRow("the others hold all of a third") << "0, '2025-05-01T10:20:00', 1200, 9200, 7200"
        << "INSERT INTO cycle (cycle_id, engine_id, number, date_time, start_time, end_time, engine_running) VALUES ('q', 'E1', 1, '2025-05-01T10:00:00', 1000, 8200, 7200)"
        << Flights{11, 21, 22} << 8300.0 << std::size_t{1} << std::size_t{0} << std::size_t{0};
    QTest::newRow("another unit") << pRest << "INSERT INTO cycle_unit VALUES ('a', 1), ('p', 2)" << Flights{11, 12, 21} << 13700.0 << std::size_t{0} << std::size_t{1} << std::size_t{0};
    QTest::newRow("on one card: a clock that begins anew") << "2, '2025-05-01T10:00:00', 0, 600, 500" << "INSERT INTO file VALUES (1, 'x', 1, 1, 'a'), (1, 'y', 1, 1, 'p'); UPDATE cycle SET card_id = 1"
        << Flights{11, 12} << 7700.0 << std::size_t{0} << std::size_t{1} << std::size_t{1};
    QTest::newRow("on one card: a clock that went back") << "2, '2025-05-01T08:00:00', 0, 600, 500" << "UPDATE cycle SET card_id = 1"
        << Flights{11, 12} << 7700.0 << std::size_t{0} << std::size_t{0} << std::size_t{1};
    QTest::newRow("on one card, later") << "2, '2025-05-01T12:00:50', 0, 600, 500" << "UPDATE cycle SET card_id = 1"
        << Flights{11, 12} << 7700.0 << std::size_t{0} << std::size_t{0} << std::size_t{0};
    QTest::newRow("a clock that was never set") << "1, '2000-01-01T00:00:00', 0, 600, 500" << "UPDATE cycle SET date_time = '2000-01-01T00:00:00' WHERE cycle_id = 'a'"
        << Flights{11, 12} << 7700.0 << std::size_t{0} << std::size_t{0} << std::size_t{0};
}

void TestLogbook::countsRecordingsOnce()
{
    QFETCH(QString, other);
    QFETCH(QString, more);
    fill("DELETE FROM cycle WHERE cycle_id = 'b'; UPDATE cycle SET start_time = 0, end_time = 7300 WHERE cycle_id = 'a'; "
         "INSERT INTO cycle (cycle_id, engine_id, card_id, number, date_time, start_time, end_time, engine_running) VALUES ('p', 'E1', 2, " + other.toStdString() +
         "); INSERT INTO flight (flight_id, cycle_id, number, date_time, start_time, end_time, take_off_time, landing_time) VALUES "
         "(21, 'p', 1, '2025-05-01T10:20:00', 1001, 2000, 1100, 1900), (22, 'p', 2, '2025-05-01T11:20:00', 7400, 7500, 7410, 7490); "
         "DELETE FROM flight WHERE cycle_id = 'p' AND end_time > (SELECT end_time FROM cycle WHERE cycle_id = 'p'); " + more.toStdString());
    LogbookReader reader(mPath);
    std::vector<int64_t> flights = reader.index().select({"E1", {}, {}, {}, {}}, ELogbookOrder::eDate, false).flights;
    std::ranges::sort(flights);
    QTEST(flights, "flights");
    const LogbookEngine engine = reader.engines()[0];
    QTEST(engine.running, "running");
    QTEST(engine.recordings.several, "several");
    QTEST(engine.recordings.overlapping, "overlapping");
    QTEST(engine.recordings.clockBacks, "clockBacks");
    QCOMPARE(engine.flights, flights.size());
    fill("INSERT INTO note (cycle_id, time, text) VALUES ('p', 100, 'Of the other copy')");
    QCOMPARE(reader.notes("a").size(), std::size_t(engine.recordings.several > 0 ? 2 : 1)); // those of each copy, whichever is looked at
    QCOMPARE(reader.notes("p").size(), std::size_t(engine.recordings.several > 0 ? 2 : 1));
    const bool isFirst = reader.sameFlights({"a", 2}).size() > 1; // flight 12, which is 21 of "p"
    QVERIFY(isFirst == (engine.recordings.several > 0) && (!isFirst || reader.sameFlights({"a", 2})[1].flight == 1));
}

void TestLogbook::keepsWhatWasTyped()
{
    LogbookEditor editor(mPath);
    QVERIFY(editor.setHoursBefore("E1", 100.0) && editor.setHoursBefore("E1", 812.5) && editor.nameAircraft("card:x", " D-1234 "));
    fill("INSERT INTO reading VALUES ('E1', '2025-04-01T00:00:00', 811, 'unit'), ('E1', '2025-05-01T00:00:00', 814.25, 'unit'), "
         "('E1', '2030-01-01T00:00:00', 813, 'unit')");
    QVERIFY(editor.saveNote("a", {0, 2.5, "first", QDateTime::currentDateTime()}));
    Service service{0, "E1", "Oil", 50.0, 12, 800.0, QDate(2025, 1, 31), {}};
    QVERIFY(editor.saveService(service));
    LogbookReader reader(mPath);
    const LogbookEngine engine = reader.engines()[1];
    QCOMPARE(engine.aircraft, std::string("D-KÜST"));
    QCOMPARE(engine.hours(), 814.5);
    QCOMPARE(engine.counter, std::optional(814.25)); // though the clock jumped back
    QCOMPARE(engine.unknownCycles, 1u);
    service = reader.services("E1").at(0);
    QVERIFY(service.everyHours == 50.0 && service.everyMonths == 12 && service.doneHours == 800.0 && service.doneDate == QDate(2025, 1, 31));
    service.name = "Oil and filter";
    QVERIFY(editor.saveService(service) && reader.services("E1").size() == 1);
    CycleNote note = reader.notes("a").at(0).note;
    note.text = "second";
    QVERIFY(editor.saveNote("a", note) && reader.notes("a").size() == 2 && reader.notes("a")[0].note.text == "second");
    note.text = " ";
    QVERIFY(editor.saveNote("a", note) && reader.notes("a").size() == 1);
    const Service former = service;
    QVERIFY(editor.removeService(service.id) && editor.saveService({0, "card:x", "Gearbox", 50.0, {}, {}, {}, {}})); // by another window
    QVERIFY(editor.saveService(former) && reader.services("card:x").size() == 1 && reader.services("E1").size() == 1); // nothing is overwritten
    QVERIFY(editor.saveNote("of no cycle here", {0, 1.0, "kept", {}}) && reader.notes().size() == 2);
}

void TestLogbook::mergesEngines()
{
    LogbookEditor editor(mPath);
    QVERIFY(editor.setHoursBefore("card:x", 50.0) && editor.saveService({0, "card:x", "Plugs", 10.0, {}, 50.2, {}, {}}) && editor.merge("card:x", "E1"));
    LogbookReader reader(mPath);
    QCOMPARE(reader.engines().size(), 1u);
    const LogbookEngine engine = reader.engines()[0];
    QVERIFY(engine.merged.size() == 1 && engine.merged[0].id == "card:x" && engine.merged[0].hoursBefore == 50.0 && engine.merged[0].hours() == 51.0 && engine.flights == 4u);
    QCOMPARE(dueOf(reader.services("E1").at(0), engine.hours(), QDate(2025, 5, 1)).state, ServiceDue::eInDoubt); // done at hours of another count
    QCOMPARE(reader.engineOf("card:x"), std::string("E1"));
    QVERIFY(editor.separate("card:x"));
    QVERIFY(reader.engines().size() == 2 && reader.engineOf("card:x") == "card:x");
    QCOMPARE(reader.index(true).select({"card:x", {}, {}, {}, {}}, ELogbookOrder::eDate, true).flights, std::vector<int64_t>{14});
}

void TestLogbook::services_data()
{
    QTest::addColumn<Service>("service");
    QTest::addColumn<double>("hours");
    QTest::addColumn<int>("state");
    const QDate done(2025, 1, 31), none;
    const auto row = [](const char* pName, const Service& service, double hours, int state) { QTest::newRow(pName) << service << hours << state; };
    row("far", {0, {}, {}, 50.0, {}, 100.0, done, {}}, 120.0, ServiceDue::eFine);
    row("ten hours before", {0, {}, {}, 50.0, {}, 100.0, done, {}}, 140.0, ServiceDue::eSoon);
    row("at the hour", {0, {}, {}, 50.0, {}, 100.0, done, {}}, 150.0, ServiceDue::eOverdue);
    row("never done", {0, {}, {}, 50.0, {}, {}, none, {}}, 60.0, ServiceDue::eOverdue);
    row("done at more hours than there are", {0, {}, {}, 50.0, {}, 900.0, done, {}}, 812.5, ServiceDue::eInDoubt);
    row("done now, rounded", {0, {}, {}, 50.0, {}, 812.6, done, {}}, 812.55, ServiceDue::eFine);
    row("by months, the end of February", {0, {}, {}, {}, 13, {}, done, {}}, 0.0, ServiceDue::eFine);
    row("by months, thirty days before", {0, {}, {}, {}, 4, {}, done, {}}, 0.0, ServiceDue::eSoon);
    row("by months, the day after", {0, {}, {}, {}, 1, {}, done, {}}, 0.0, ServiceDue::eOverdue);
    row("by months, when is not known", {0, {}, {}, {}, 1, {}, none, {}}, 0.0, ServiceDue::eInDoubt);
    row("whichever is earlier", {0, {}, {}, 50.0, 1, 100.0, done, {}}, 120.0, ServiceDue::eOverdue);
}

void TestLogbook::services()
{
    QFETCH(Service, service);
    QFETCH(double, hours);
    QTEST(static_cast<int>(dueOf(service, hours, QDate(2025, 5, 1)).state), "state");
}

/// Hours of cycles that do not tell whether the engine ran may be hours of the engine.
void TestLogbook::hoursNotCounted()
{
    fill("UPDATE cycle SET start_time = 100, end_time = 36100 WHERE cycle_id = 'b'");
    const LogbookEngine engine = LogbookReader(mPath).engines()[0];
    QCOMPARE(engine.uncounted(), 10.0);
    const Service service{0, {}, {}, 50.0, {}, engine.hours(), QDate(2025, 1, 31), {}};
    for (const auto& [since, state] : {std::pair(39.9, ServiceDue::eFine), {40.1, ServiceDue::eSoon}, {50.0, ServiceDue::eOverdue}})
        QCOMPARE(dueOf(service, engine.hours() + since, QDate(2025, 5, 1), 10.0).state, state);
    const ServiceDue due = dueOf(service, engine.hours() + 35.0, QDate(2025, 5, 1), 20.0);
    QVERIFY(due.isAtMost && due.hoursLeft == std::optional(15.0) && due.state == ServiceDue::eInDoubt);
}

void TestLogbook::percentiles_data()
{
    QTest::addColumn<Flights>("flights");
    QTest::addColumn<double>("share");
    QTest::addColumn<double>("value");
    const std::array<double, 5> even{0, 5, 50, 95, 100}, far{1000, 1005, 1050, 1095, 1100}, still{7, 7, 7, 7, 7};
    const auto row = [](const char* pName, const Flights& flights, double share, double value) {
        QTest::newRow(pName) << flights << share << value;
    };
    row("one flight is itself", {even}, 0.05, 5);
    row("its upper end", {even}, 0.95, 95);
    row("two alike", {even, even}, 0.95, 95);
    row("apart: a tenth of the lower one", {even, far}, 0.05, 10);
    row("apart: all but a tenth of the upper one", {even, far}, 0.95, 1090);
    row("one value", {still, still}, 0.05, 7);
    row("a jump within", {even, still}, 0.3, 7); // half of all samples are 7
    row("behind the jump", {even, still}, 0.75, 50);
}

void TestLogbook::percentiles()
{
    QFETCH(Flights, flights);
    QFETCH(double, share);
    std::vector<TrendPoint> points;
    for (const auto& [least, p05, median, p95, greatest] : flights) {
        TrendPoint& point = points.emplace_back();
        point.minimum = least;
        point.p05 = p05;
        point.median = median;
        point.p95 = p95;
        point.maximum = greatest;
    }
    QTEST(jointPercentile(points, share), "value");
}

void TestLogbook::bandsOfEarlierFlights()
{
    fill(R"sql(
WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 40)
INSERT INTO cycle (cycle_id, engine_id, card_id, number, date_time) SELECT 'n' || i, 'E1', 1, i + 2, date('2025-06-01', i || ' days') FROM n;
INSERT INTO flight (flight_id, cycle_id, number, date_time) SELECT number + 100, cycle_id, 1, date_time FROM cycle WHERE cycle_id LIKE 'n%';
INSERT INTO key_value SELECT flight_id, 'climb', 'Oil', '°C', 9, flight_id, flight_id, flight_id, flight_id, flight_id, 0 FROM flight WHERE flight_id > 100;
)sql");
    StoreReader store(mPath);
    RecordFlight late, early;
    late.dateTime = QDateTime(QDate(2026, 1, 1), QTime(8, 0));
    early.dateTime = QDateTime(QDate(2025, 6, 10), QTime(8, 0)); // after nine
    const CycleHead head{"of no cycle here", {"E1", {}, {}, {}, {}}, 7, late.dateTime};
    const std::vector<NormalBand> bands = normalBands(store, head, std::array{early, late});
    QCOMPARE(bands.size(), 1u);
    QVERIFY(bands[0].flight == 2 && bands[0].flights == 30u && bands[0].phase == "climb");
    QVERIFY(bands[0].lower == 114.0 && bands[0].upper == 141.0); // of 113 to 142
}

void TestLogbook::formulasAreText()
{
    std::vector<LogbookNote> notes;
    for (const char* text : {"=1+1", "+1+cmd", "-5.5", "@x", "a;\"b\""})
        notes.push_back({{0, 1.0, text, {}}, "", "-E", "", 0, ""});
    const QString path = mFolder.filePath("notes.csv");
    SafeFile file(path.toStdString());
    QVERIFY(LogbookCsv(CsvForm::of("de_DE", ';').value()).writeNotes(file, notes));
    QFile written(path);
    QVERIFY(written.open(QIODevice::ReadOnly));
    const QByteArray bytes = written.readAll();
    QVERIFY(bytes.startsWith(CsvForm::kByteOrderMark));
    const QStringList lines = QString::fromUtf8(bytes).split("\r\n");
    const QStringList expected{"'=1+1", "'+1+cmd", "-5.5", "'@x", "\"a;\"\"b\"\"\""};
    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(lines[i + 1], ";00:00:01.000;" + expected[i] + ";;'-E;;;");
}

void TestLogbook::rescues_data()
{
    QTest::addColumn<QByteArray>("place"); // whose page is damaged
    QTest::addColumn<int>("left");         // bytes of the file in a hundred
    QTest::addColumn<std::size_t>("least"); // flights that are kept
    QTest::newRow("cycles in the midst, known by the indexes") << QByteArray("n1500E1") << 100 << std::size_t{3004};
    QTest::newRow("flights in the midst") << QByteArray("n15002025-06") << 100 << std::size_t{2900};
    QTest::newRow("the end is cut off") << QByteArray() << 90 << std::size_t{2000};
    QTest::newRow("the first page") << QByteArray("SQLite format 3") << 100 << std::size_t{3004};
    QTest::newRow("what tells of the tables") << QByteArray("engine_serial TEXT, ecu") << 100 << std::size_t{0};
}

void TestLogbook::rescues()
{
    QFETCH(QByteArray, place);
    QFETCH(int, left);
    QFETCH(std::size_t, least);
    fill("INSERT INTO service (engine_id, name, every_hours, done_hours) VALUES ('E1', 'Oil', 5000, 0);" + kManyFlights);
    QFile file(QString::fromStdString(mPath));
    QVERIFY(file.open(QIODevice::ReadWrite));
    const qint64 page = file.readAll().indexOf(place) / 4096 * 4096;
    QVERIFY(place.isEmpty() ? file.resize(file.size() * left / 100) : file.seek(page + (page == 0 ? 20 : 0)) && file.write(QByteArray(2000, 'U')) == 2000);
    file.close();
    const Store store(mPath, {});
    QVERIFY2(store.isDamaged() && (QString::fromStdString(store.error()).contains("nothing of it could be read") == (least == 0)), store.error().c_str());
    LogbookReader reader(mPath);
    QVERIFY2(reader.index().select({}, ELogbookOrder::eDate, true).flights.size() >= least, reader.error().c_str());
    const bool areCyclesHurt = place.endsWith("E1"); // so that an engine may have run more than is known
    for (const LogbookEngine& engine : reader.engines()) {
        QCOMPARE(engine.isLossy, areCyclesHurt);
        for (const Service& service : reader.services(engine.id))
            QCOMPARE(dueOf(service, engine.hours(), QDate(2025, 5, 1), engine.uncounted()).state, areCyclesHurt ? ServiceDue::eInDoubt : ServiceDue::eFine);
    }
    QVERIFY(least == 0 || (reader.services("E1").size() == 1 && LogbookEditor(mPath).setHoursBefore("E1", 10.0) && !reader.engines()[0].isLossy));
}

void TestLogbook::badStores_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("reason");
    for (const auto& [kind, reason] : {std::pair("text", "not an SQLite file"), {"newer", "newer version"}, {"locked", "another program is writing"},
                                       {"removed", "removed or replaced"}, {"damaged", "put aside"}})
        QTest::newRow(kind) << kind << reason;
}

void TestLogbook::badStores()
{
    QFETCH(QString, kind);
    QFETCH(QString, reason);
    QFile file(QString::fromStdString(mPath));
    std::optional<LogbookEditor> editor;
    Database other(mPath, Database::eReadWrite);
    if (kind == "newer")
        other.run("PRAGMA user_version = 99");
    else if (kind == "locked")
        other.run("BEGIN IMMEDIATE");
    else if (kind == "damaged")
        fill("INSERT INTO service (engine_id, name) VALUES ('E1', 'Oil')");
    const int64_t page = other.number("SELECT rootpage FROM sqlite_master WHERE name = 'note_cycle'");
    if (kind != "locked")
        other.close();
    if (kind == "removed") {
        editor.emplace(mPath);
        QVERIFY(file.remove());
    } else if (kind == "text" || kind == "damaged") {
        QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(kind == "text" ? 0 : (page - 1) * 4096) && file.write(QByteArray(64, '\x55')) == 64);
        file.close();
    }
    if (!editor)
        editor.emplace(mPath);
    const QByteArray before = kind == "text" && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    QVERIFY(!editor->saveNote("a", {0, 1.0, "lost?", {}}));
    QVERIFY2(QString::fromStdString(editor->error()).contains(reason), editor->error().c_str());
    QVERIFY(kind != "text" || (file.seek(0) && file.readAll() == before));
    if (kind == "damaged") // what people typed is in the new one
        QVERIFY(LogbookReader(mPath).services("E1").size() == 1 && editor->isDamaged());
}

QTEST_GUILESS_MAIN(TestLogbook)
#include "TestLogbook.moc"
