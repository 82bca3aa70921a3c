#include "fuzz/DatabaseInput.h"
#include "store/LogbookReader.h"
#include "store/Store.h"
#include "store/StoreReader.h"

#include <QTemporaryDir>

// A store of which the input changes bytes, or fields to whatever SQLite takes. Readers tell what is wrong or answer, and change nothing.

namespace {

using namespace ZARN;

const QTemporaryDir& folder()
{
    static const QTemporaryDir folder("/dev/shm/FuzzStore-XXXXXX");
    return folder;
}

constexpr const char* kRows = R"sql(
INSERT INTO engine VALUES ('e1', 's1', 7, 't', 'u'), ('e2', NULL, NULL, '', '');
INSERT INTO card VALUES (1, '/c/1', 'one', '2024-01-01'), (2, '/c/2', 'two', '2024-01-02');
INSERT INTO cycle VALUES ('c1', 'e1', 1, 1, '2024-06-15T07:40:00', 0, 900, 800, 600, 5, 'ok', 2, 2, '915', 'h', '', 1),
    ('c2', 'e1', 2, 1, NULL, 0, 900, 800, 600, 5, 'limit', 2, 2, '915', 'h', '', 1);
INSERT INTO file VALUES (1, 'LOG1.CAN', 1000, 1.5, 'c1'), (2, 'LOG1.CAN', 1000, 1.5, 'c2');
INSERT INTO flight (flight_id, cycle_id, number, date_time, start_time, end_time, take_off_time, landing_time, total_climb, total_fuel)
    VALUES (1, 'c1', 1, '2024-06-15T07:50:00', 100, 700, 120, 680, 800, 4), (2, 'c2', 1, NULL, 100, 700, 120, 680, 800, 4);
INSERT INTO incident VALUES (1, 'c2', 2, 200, 210, 2, 'climb', 'Overboost');
INSERT INTO episode VALUES (1, 1, 'c2', 'limit', 'D', 'P', 'hPa', 2, 200, 210, 'high', 1560, 1587, 205, '');
INSERT INTO key_value VALUES (1, 'climb', 'P', 'hPa', 90, 1, 2, 3, 4, 5, 3), (2, 'climb', 'P', 'hPa', 90, 1, 2, 9, 4, 5, 3);
INSERT INTO problem VALUES (1, 'LOG1.CAN', 'cut off');
INSERT INTO service VALUES (1, 'e1', 'Oil', 50, 12, 10, '2024-01-01', '');
INSERT INTO reading VALUES ('e1', '2024-01-01', 100, 'typed'), ('e1', '2024-06-15', 120, 'unit');
INSERT INTO note VALUES (1, 'c1', 100, 'a note', '2024-06-16T10:00:00');
INSERT INTO parameter_precision VALUES ('h', 'P', 0);
)sql";

constexpr const char* kFields[][2] = {
    {"engine", "engine_serial"}, {"engine", "ecu_serial"}, {"card", "name"}, {"card", "first_seen"}, {"cycle", "number"}, {"cycle", "date_time"},
    {"cycle", "start_time"}, {"cycle", "engine_running"}, {"cycle", "fuel"}, {"cycle", "verdict"}, {"cycle", "profile_hash"}, {"flight", "number"},
    {"flight", "date_time"}, {"flight", "take_off_time"}, {"flight", "landing_time"}, {"flight", "total_climb"}, {"flight", "total_fuel"},
    {"incident", "title"}, {"incident", "start_time"}, {"key_value", "phase"}, {"key_value", "parameter"}, {"key_value", "samples"},
    {"key_value", "p05"}, {"key_value", "median"}, {"key_value", "p95"}, {"service", "name"}, {"service", "every_hours"}, {"service", "every_months"},
    {"service", "done_hours"}, {"service", "done_date"}, {"reading", "date"}, {"reading", "hours"}, {"note", "time"}, {"note", "text"},
    {"note", "written"}, {"parameter_precision", "decimals"}};

void changeFields(const QString& path, Input& input)
{
    Database database(path.toStdString(), Database::eReadWrite);
    for (int i = 0; i < 20 && !input.empty(); ++i) {
        const auto& [pTable, pColumn] = kFields[input.byte() % std::size(kFields)];
        const std::string row = " WHERE rowid = " + std::to_string(1 + input.byte() % 2);
        const std::string where = std::string(pTable) == "parameter_precision" ? "" : row; // a table without row numbers
        database.run("UPDATE OR IGNORE " + std::string(pTable) + " SET " + pColumn + " = " + literal(input) + where);
    }
    database.run("PRAGMA journal_mode = DELETE");
}

std::size_t readAll(const std::string& path)
{
    std::size_t told = 0;
    StoreReader store(path);
    for (const std::string& engine : store.engines()) {
        for (const Trend& trend : store.trends(engine))
            REQUIRE(judgeTrend(trend, 1).size() == trend.points.size());
        told += store.places(engine, "c1").size();
    }
    LogbookReader logbook(path);
    LogbookFilter filter;
    for (const char* pText : {"", "e1", "\xC3\xA4"}) {
        filter.text = QString::fromUtf8(pText);
        const LogbookSelection selection = logbook.index().select(filter, ELogbookOrder::eFuel, true);
        REQUIRE(selection.totals.flights == selection.flights.size());
        REQUIRE(logbook.entries(selection.flights).size() == selection.flights.size() || !logbook.error().empty());
    }
    for (const LogbookEngine& engine : logbook.engines()) {
        for (const Service& service : logbook.services(engine.id))
            told += dueOf(service, engine.hours(), QDate(2024, 7, 1)).state;
    }
    return told + logbook.notes().size() + logbook.foldersOf("c1").size();
}

/// A store as a scan leaves it: one file, nothing beside it.
const QByteArray& wholeStore()
{
    static const QByteArray bytes = [] {
        const std::string path = folder().filePath("whole").toStdString();
        {
            Store store(path, {"915", "h", ""});
            REQUIRE(store.finish().empty());
        }
        Database database(path, Database::eReadWrite);
        REQUIRE(database.run(kRows) && database.run("PRAGMA journal_mode = DELETE"));
        database.close();
        REQUIRE(readAll(path) > 3); // all of it is found
        return contentOf(QString::fromStdString(path));
    }();
    return bytes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, std::size_t size)
{
    Input input(pData, size);
    const QString path = folder().filePath("store");
    const QByteArray before = putChanged(path, wholeStore(), input, [&] { changeFields(path, input); });
    REQUIRE(readAll(path.toStdString()) < 1000);
    REQUIRE(contentOf(path) == before);
    return 0;
}
