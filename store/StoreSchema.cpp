#include "store/StoreSchema.h"

#include "store/Database.h"

#include <array>

namespace ZARN {

namespace {

constexpr const char* kFirst = R"sql(
CREATE TABLE engine (engine_id TEXT PRIMARY KEY, engine_serial TEXT, ecu_serial INTEGER, engine_type TEXT, ecu_type TEXT);
CREATE TABLE card (card_id INTEGER PRIMARY KEY, path TEXT NOT NULL UNIQUE, name TEXT, first_seen TEXT);
CREATE TABLE file (card_id INTEGER NOT NULL REFERENCES card ON DELETE CASCADE, name TEXT NOT NULL, size INTEGER, mtime REAL,
    cycle_id TEXT REFERENCES cycle ON DELETE SET NULL, PRIMARY KEY (card_id, name)) WITHOUT ROWID;
CREATE TABLE cycle (cycle_id TEXT PRIMARY KEY, engine_id TEXT NOT NULL REFERENCES engine, card_id INTEGER REFERENCES card,
    number INTEGER, date_time TEXT, start_time REAL, end_time REAL, engine_running REAL, flight_time REAL, fuel REAL, verdict TEXT,
    sources INTEGER, sources_with_samples INTEGER, profile TEXT, profile_hash TEXT, variant TEXT, analysis_version INTEGER);
CREATE TABLE flight (flight_id INTEGER PRIMARY KEY, cycle_id TEXT NOT NULL REFERENCES cycle ON DELETE CASCADE, number INTEGER,
    date_time TEXT, start_time REAL, end_time REAL, take_off_time REAL, landing_time REAL, min_altitude REAL, max_altitude REAL,
    total_climb REAL, average_climb_rate REAL, average_descend_rate REAL, max_ground_speed REAL, fuel_a REAL, fuel_b REAL,
    total_fuel REAL, time_per100m REAL, fuel_per100m REAL, take_off_distance REAL, take_off_distance15m REAL);
CREATE TABLE incident (incident_id INTEGER PRIMARY KEY, cycle_id TEXT NOT NULL REFERENCES cycle ON DELETE CASCADE,
    flight_id INTEGER REFERENCES flight ON DELETE CASCADE, start_time REAL, end_time REAL, state INTEGER, phase TEXT, title TEXT);
CREATE TABLE episode (episode_id INTEGER PRIMARY KEY, incident_id INTEGER REFERENCES incident ON DELETE CASCADE,
    cycle_id TEXT NOT NULL REFERENCES cycle ON DELETE CASCADE, kind TEXT, device TEXT, parameter TEXT, unit TEXT, state INTEGER,
    start_time REAL, end_time REAL, side TEXT, boundary REAL, peak REAL, peak_time REAL, text TEXT);
CREATE TABLE key_value (flight_id INTEGER NOT NULL REFERENCES flight ON DELETE CASCADE, phase TEXT, parameter TEXT, unit TEXT,
    samples INTEGER, minimum REAL, p05 REAL, median REAL, p95 REAL, maximum REAL, mean REAL);
CREATE TABLE problem (card_id INTEGER NOT NULL REFERENCES card ON DELETE CASCADE, file TEXT, reason TEXT);
CREATE TABLE service (service_id INTEGER PRIMARY KEY, engine_id TEXT NOT NULL REFERENCES engine, name TEXT, every_hours REAL,
    every_months INTEGER, done_hours REAL, done_date TEXT, note TEXT);
CREATE TABLE reading (engine_id TEXT NOT NULL REFERENCES engine, date TEXT, hours REAL, source TEXT CHECK (source IN ('typed', 'unit')));
CREATE TABLE note (note_id INTEGER PRIMARY KEY, cycle_id TEXT NOT NULL, time REAL, text TEXT, written TEXT);
CREATE TABLE parameter_precision (profile_hash TEXT, parameter TEXT, decimals INTEGER, PRIMARY KEY (profile_hash, parameter)) WITHOUT ROWID;
CREATE INDEX file_cycle ON file (cycle_id);
CREATE INDEX cycle_engine ON cycle (engine_id, date_time);
CREATE INDEX cycle_card ON cycle (card_id);
CREATE INDEX flight_cycle ON flight (cycle_id);
CREATE INDEX flight_date ON flight (date_time);
CREATE INDEX incident_cycle ON incident (cycle_id);
CREATE INDEX incident_flight ON incident (flight_id);
CREATE INDEX episode_cycle ON episode (cycle_id);
CREATE INDEX episode_incident ON episode (incident_id);
CREATE INDEX key_value_flight ON key_value (flight_id);
CREATE INDEX problem_card ON problem (card_id);
CREATE INDEX service_engine ON service (engine_id);
CREATE INDEX reading_engine ON reading (engine_id);
CREATE INDEX note_cycle ON note (cycle_id);
)sql";

// What people tell of their engines: the aircraft, and which of those that tell no serial number are one. A merged engine keeps its row and
// what was typed for it; the cycles know where they came from, so that it can be undone.
constexpr const char* kSecond = R"sql(
CREATE TABLE aircraft (engine_id TEXT PRIMARY KEY REFERENCES engine, name TEXT NOT NULL) WITHOUT ROWID;
CREATE TABLE engine_merge (engine_id TEXT PRIMARY KEY REFERENCES engine, merged_into TEXT NOT NULL REFERENCES engine) WITHOUT ROWID;
CREATE TABLE merged_cycle (cycle_id TEXT PRIMARY KEY REFERENCES cycle ON DELETE CASCADE, engine_id TEXT NOT NULL) WITHOUT ROWID;
CREATE INDEX engine_merge_into ON engine_merge (merged_into);
)sql";

// Engines whose units were changed, and two that tell one serial number, are known by the units' own.
constexpr const char* kThird = R"sql(
CREATE TABLE cycle_unit (cycle_id TEXT PRIMARY KEY REFERENCES cycle ON DELETE CASCADE, ecu_serial INTEGER NOT NULL) WITHOUT ROWID;
)sql";

/// Step n leads from the form n to n + 1; the form 0 is an empty file.
constexpr std::array kSteps{kFirst, kSecond, kThird};

bool isEmpty(Database& database)
{
    return database.number("SELECT count(*) FROM sqlite_master") == 0 && database.isGood();
}

} // namespace

const int StoreSchema::kVersion = static_cast<int>(kSteps.size());

bool StoreSchema::check(Database& database)
{
    const int64_t version = database.number("PRAGMA user_version");
    if (database.isGood() && version > kVersion)
        return database.fail(
            tr("the store was written by a newer version of the program (form %1, this one knows %2)").arg(version).arg(kVersion));
    if (database.isGood() && (version < 0 || (version == 0 && !isEmpty(database))))
        return database.fail(tr("it is no store: an SQLite file of another program"));
    if (database.isGood() && version < kVersion)
        return database.fail(version == 0 ? tr("the store is empty") : tr("the store is of an older version: scan a card into it first"));
    return database.isGood();
}

bool StoreSchema::prepare(Database& database)
{
    database.run("PRAGMA foreign_keys = ON");
    if (!bringUp(database)) // first, so that what is no store stays as it is
        return false;
    return database.run("PRAGMA journal_mode = WAL") && database.run("PRAGMA synchronous = NORMAL");
}

bool StoreSchema::bringUp(Database& database)
{
    const auto version = [&database] { return database.number("PRAGMA user_version"); };
    if (version() == kVersion || version() > kVersion || version() < 0 || (version() == 0 && !isEmpty(database)))
        return check(database);
    Transaction transaction(database); // another program may have done it meanwhile: what is asked now counts
    for (auto step = static_cast<std::size_t>(version()); step < kSteps.size() && database.isGood(); ++step)
        database.run(kSteps[step]);
    database.run("PRAGMA user_version = " + std::to_string(kVersion));
    database.run("PRAGMA application_id = 0x5A41524E"); // by which file managers tell the store from other SQLite files
    return transaction.commit();
}

} // namespace ZARN
