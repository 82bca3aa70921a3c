#include "card/CycleNote.h"
#include "store/LogbookEditor.h"
#include "store/LogbookReader.h"
#include "store/Service.h"
#include "store/StoreSchema.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace ZARN;

/// What people see of a store, and what they write into it.
class TestLogbook : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void finds_data();
    void finds();
    void sums();
    void keepsWhatWasTyped();
    void mergesEngines();
    void services_data();
    void services();
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
INSERT INTO incident (cycle_id, flight_id, title) VALUES ('c', 14, 'Oil Temperature A');
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
    QTest::newRow("note, folded") << "" << "" << "" << "" << "größere BÖEN" << Flights{12, 11};
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
    QCOMPARE(all.totals.fuel, std::optional(22.0)); // none of the cycle that does not tell
    const std::vector<LogbookEntry> entries = reader.entries(std::vector<int64_t>{12, 99, 13});
    QCOMPARE(entries[0].notes, QString("Größere Böen")); // of this flight's time alone
    QCOMPARE(entries[1].flight, 0);
    QVERIFY(entries[2].dateTime.empty() && !entries[2].fuel && !entries[2].climb);
    QVERIFY(reader.entries(std::vector<int64_t>{11})[0].notes.isEmpty());
    const int64_t version = reader.version();
    fill("DELETE FROM flight WHERE flight_id = 13");
    QVERIFY(reader.version() != version);
    reader.index().read();
    QCOMPARE(reader.index().select({}, ELogbookOrder::eDate, false).totals.flights, 3u);
}

void TestLogbook::keepsWhatWasTyped()
{
    LogbookEditor editor(mPath);
    QVERIFY(editor.setHoursBefore("E1", 100.0) && editor.setHoursBefore("E1", 812.5) && editor.nameAircraft("card:x", " D-1234 "));
    fill("INSERT INTO reading VALUES ('E1', '2025-04-01T00:00:00', 811, 'unit'), ('E1', '2025-05-01T00:00:00', 814.25, 'unit')");
    QVERIFY(editor.saveNote("a", {0, 2.5, "first", QDateTime::currentDateTime()}));
    Service service{0, "E1", "Oil", 50.0, 12, 800.0, QDate(2025, 1, 31), {}};
    QVERIFY(editor.saveService(service));
    LogbookReader reader(mPath);
    const LogbookEngine engine = reader.engines()[1];
    QCOMPARE(engine.aircraft, std::string("D-KÜST"));
    QCOMPARE(engine.hours(), 814.5);
    QCOMPARE(engine.counter, std::optional(814.25)); // the latest
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
    QVERIFY(editor.saveNote("of no cycle here", {0, 1.0, "kept", {}}) && reader.notes().size() == 2);
}

void TestLogbook::mergesEngines()
{
    LogbookEditor editor(mPath);
    QVERIFY(editor.merge("card:x", "E1"));
    LogbookReader reader(mPath);
    QCOMPARE(reader.engines().size(), 1u);
    QVERIFY(reader.engines()[0].merged == std::vector<std::string>{"card:x"} && reader.engines()[0].flights == 4u);
    QCOMPARE(reader.engineOf("card:x"), std::string("E1"));
    QVERIFY(editor.separate("card:x"));
    QVERIFY(reader.engines().size() == 2 && reader.engineOf("card:x") == "card:x");
    reader.index().read();
    QCOMPARE(reader.index().select({"card:x", {}, {}, {}, {}}, ELogbookOrder::eDate, true).flights, std::vector<int64_t>{14});
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
    row("by months, the end of February", {0, {}, {}, {}, 13, {}, done, {}}, 0.0, ServiceDue::eFine);
    row("by months, thirty days before", {0, {}, {}, {}, 4, {}, done, {}}, 0.0, ServiceDue::eSoon);
    row("by months, the day after", {0, {}, {}, {}, 1, {}, done, {}}, 0.0, ServiceDue::eOverdue);
    row("by months, when is not known", {0, {}, {}, {}, 1, {}, none, {}}, 0.0, ServiceDue::eUnknown);
    row("whichever is earlier", {0, {}, {}, 50.0, 1, 100.0, done, {}}, 120.0, ServiceDue::eOverdue);
}

void TestLogbook::services()
{
    QFETCH(Service, service);
    QFETCH(double, hours);
    QTEST(static_cast<int>(dueOf(service, hours, QDate(2025, 5, 1)).state), "state");
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
