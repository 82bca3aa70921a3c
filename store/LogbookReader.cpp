#include "store/LogbookReader.h"

#include "store/FlightVerdict.h"
#include "store/PlacedFlights.h"
#include "store/StoreSalvage.h"
#include "store/StoreSchema.h"

#include <QStringList>

#include <algorithm>
#include <utility>

namespace ZARN {

namespace {

// An engine together with those that were merged into it.
constexpr const char* kSame = "(engine_id = ?1 OR engine_id IN (SELECT engine_id FROM engine_merge WHERE merged_into = ?1))";

QDateTime dateOf(const std::string& text)
{
    QDateTime date = QDateTime::fromString(QString::fromStdString(text), Qt::ISODate);
    date.setTimeSpec(Qt::UTC);
    return date;
}

std::optional<double> realOf(const Statement& row, int column)
{
    return row.isNull(column) ? std::nullopt : std::optional(row.real(column));
}

QString textOf(const Statement& row, int column)
{
    return QString::fromStdString(row.text(column));
}

} // namespace

LogbookReader::LogbookReader(const std::string& path) : mDatabase(path, Database::eRead)
{
    if (mDatabase.isGood())
        StoreSchema::check(mDatabase);
}

int64_t LogbookReader::version()
{
    return mDatabase.number("PRAGMA data_version");
}

const RecordingCopies& LogbookReader::copies()
{
    const int64_t now = version();
    if (std::exchange(mCopiesVersion, now) != now || !mCopies)
        mCopies.emplace(mDatabase);
    return *mCopies;
}

LogbookIndex& LogbookReader::index(bool isAnew)
{
    if (!mIndex)
        mIndex.emplace(mDatabase, copies());
    else if (isAnew)
        mIndex->read(copies());
    return *mIndex;
}

std::vector<LogbookEntry> LogbookReader::entries(std::span<const int64_t> flights)
{
    std::vector<LogbookEntry> entries;
    Statement& found = mDatabase.prepared(
        "SELECT flight_id, cycle.cycle_id, " + clockOf("flight.date_time") + ", engine_id, aircraft.name, card.path, card.name, cycle.number, flight.number, "
        "landing_time - take_off_time, CASE WHEN cycle.fuel IS NOT NULL THEN total_fuel END, "
        "CASE WHEN min_altitude <> max_altitude THEN total_climb END, verdict, (SELECT max(state) FROM incident WHERE " + kDuringFlight + "), "
        "flight.start_time, flight.end_time "
        "FROM flight JOIN cycle USING (cycle_id) LEFT JOIN aircraft USING (engine_id) LEFT JOIN card USING (card_id) WHERE flight_id = ?");
    for (const int64_t flight : flights) {
        LogbookEntry& entry = entries.emplace_back();
        found.with({flight});
        if (!found.next())
            continue;
        const EVerdict whole = verdictOfKey(found.text(12));
        entry = {found.integer(0), found.text(1), found.text(2), found.text(3), found.text(4), found.text(5), found.text(6),
                 static_cast<int>(found.integer(7)), static_cast<int>(found.integer(8)), found.real(9), realOf(found, 10), realOf(found, 11),
                 verdictOfFlight(whole, found.integer(13)), whole, notesIn(found.text(1), found.value(14), found.value(15))};
        found.run(); // to its end
    }
    return entries;
}

/// With those that were pinned to a copy: times are the same there.
QString LogbookReader::notesIn(const std::string& cycle, const FieldValue& start, const FieldValue& end)
{
    QStringList texts;
    Statement& notes = mDatabase.prepared("SELECT text FROM note WHERE cycle_id = ? AND time BETWEEN ? AND ? ORDER BY time, note_id");
    for (const std::string& same : copies().same(cycle)) {
        notes.with({same, start, end});
        while (notes.next())
            texts.append(textOf(notes, 0).simplified());
    }
    return texts.join("; ");
}

std::vector<LogbookEngine> LogbookReader::engines()
{
    std::vector<LogbookEngine> engines;
    Statement& found = mDatabase.prepared(
        // In the order of the file: by engine the pages of a large one would be read again and again.
        "WITH totals AS MATERIALIZED (SELECT engine_id, total(engine_running) AS running, count(*) - count(engine_running) AS unknown, "
        "total(CASE WHEN engine_running IS NULL THEN max(end_time - start_time, 0) END) AS unknown_time, "
        "sum((SELECT count(*) FROM flight WHERE flight.cycle_id = cycle.cycle_id)) AS flights FROM cycle NOT INDEXED GROUP BY engine_id) "
        "SELECT engine_id, aircraft.name, engine_type, engine_serial IS NOT NULL, running, unknown, "
        "EXISTS (SELECT 1 FROM problem JOIN card USING (card_id) WHERE file = engine.engine_id AND path = ?1), flights, unknown_time "
        "FROM engine LEFT JOIN aircraft USING (engine_id) LEFT JOIN totals USING (engine_id) "
        "WHERE engine_id NOT IN (SELECT engine_id FROM engine_merge) ORDER BY aircraft.name IS NULL, aircraft.name, engine_id");
    found.with({kLossPath});
    while (found.next()) {
        LogbookEngine& engine = engines.emplace_back();
        engine.id = found.text(0);
        engine.aircraft = found.text(1);
        engine.type = found.text(2);
        engine.hasSerial = found.integer(3) != 0;
        engine.running = found.real(4);
        engine.unknownCycles = static_cast<std::size_t>(found.integer(5));
        engine.isLossy = found.integer(6) != 0;
        engine.flights = static_cast<std::size_t>(found.integer(7));
        engine.unknownTime = found.real(8);
    }
    takeCopies(engines);
    std::ranges::for_each(engines, [this](LogbookEngine& engine) { readTyped(engine); });
    return engines;
}

/// Takes off what copies would count twice.
void LogbookReader::takeCopies(std::vector<LogbookEngine>& engines)
{
    std::unordered_map<std::string, LogbookEngine*> byId;
    for (LogbookEngine& engine : engines) {
        engine.recordings = copies().engine(engine.id);
        byId.emplace(engine.id, &engine);
    }
    for (const auto& [cycle, copy] : copies().copies()) {
        const auto found = byId.find(copy.engine);
        if (found == byId.end())
            continue;
        LogbookEngine& engine = *found->second;
        engine.flights -= std::min(engine.flights, copy.flights);
        if (copy.running)
            engine.running -= *copy.running - copy.counted.value_or(0.0);
        else
            engine.unknownCycles -= std::min<std::size_t>(engine.unknownCycles, 1);
        if (engine.unknownCycles == 0)
            engine.unknownTime = 0.0;
    }
}

void LogbookReader::readTyped(LogbookEngine& engine)
{
    Statement& typed = mDatabase.prepared("SELECT hours FROM reading WHERE engine_id = ? AND source = 'typed' AND date IS NULL");
    Statement& counter = mDatabase.prepared("SELECT hours, date FROM reading WHERE source = 'unit' AND " + std::string(kSame) +
                                            " ORDER BY hours DESC, date DESC LIMIT 1"); // it never falls, while a clock may jump
    if (typed.with({engine.id}).next())
        engine.hoursBefore = typed.real(0);
    if (counter.with({engine.id}).next()) {
        engine.counter = counter.real(0);
        engine.counterDate = dateOf(counter.text(1));
    }
    typed.with({}).run(); // an open one would keep the store as it was
    counter.with({}).run();
    Statement& merged = mDatabase.prepared("SELECT m.engine_id, name, hours, (SELECT total(engine_running) FROM merged_cycle JOIN cycle USING (cycle_id) "
                                           "WHERE merged_cycle.engine_id = m.engine_id) FROM engine_merge AS m LEFT JOIN aircraft USING (engine_id) LEFT JOIN reading "
                                           "ON reading.engine_id = m.engine_id AND source = 'typed' AND date IS NULL WHERE merged_into = ? GROUP BY 1 ORDER BY 1");
    merged.with({engine.id});
    while (merged.next()) {
        LogbookEngine& other = engine.merged.emplace_back();
        other.id = merged.text(0);
        other.aircraft = merged.text(1);
        other.hoursBefore = realOf(merged, 2);
        other.running = merged.real(3);
    }
}

std::vector<Service> LogbookReader::services(const std::string& engine)
{
    std::vector<Service> services;
    Statement& found = mDatabase.prepared("SELECT service_id, engine_id, name, every_hours, every_months, done_hours, done_date, note FROM service WHERE " +
                                          std::string(kSame) + " ORDER BY name, service_id");
    found.with({engine});
    while (found.next()) {
        Service& service = services.emplace_back();
        service.id = found.integer(0);
        service.engine = found.text(1);
        service.name = textOf(found, 2);
        service.everyHours = realOf(found, 3);
        if (!found.isNull(4))
            service.everyMonths = static_cast<int>(found.integer(4));
        service.doneHours = realOf(found, 5);
        service.doneDate = QDate::fromString(textOf(found, 6).left(10), Qt::ISODate);
        service.note = textOf(found, 7);
        service.isOfOtherCount = service.engine != engine && service.everyHours && service.doneHours;
    }
    return services;
}

std::string LogbookReader::engineOf(const std::string& engine)
{
    return mergedEngine(mDatabase, engine);
}

std::vector<LogbookNote> LogbookReader::notes(const std::string& cycle)
{
    std::vector<LogbookNote> notes;
    Statement& found = mDatabase.prepared(
        "SELECT note_id, time, text, written, note.cycle_id, engine_id, card.name, cycle.number, " + clockOf("date_time") + ", aircraft.name FROM note "
        "LEFT JOIN cycle USING (cycle_id) LEFT JOIN card USING (card_id) LEFT JOIN aircraft USING (engine_id) WHERE ?1 = '' OR "
        "note.cycle_id = ?1 ORDER BY date_time, note.cycle_id, time, note_id");
    for (const std::string& same : cycle.empty() ? std::vector{cycle} : copies().same(cycle)) { // times are the same there
        found.with({same});
        while (found.next()) {
            notes.push_back({{found.integer(0), found.real(1), textOf(found, 2), dateOf(found.text(3))},
                             found.text(4),
                             found.text(5),
                             found.text(6),
                             static_cast<int>(found.integer(7)),
                             found.text(8),
                             found.text(9)});
        }
    }
    if (!cycle.empty())
        std::ranges::stable_sort(notes, {}, [](const LogbookNote& note) { return note.note.time; });
    return notes;
}

std::vector<CycleFlight> LogbookReader::sameFlights(const CycleFlight& flight)
{
    std::vector<CycleFlight> flights{flight};
    Statement& found = mDatabase.prepared("SELECT other.number FROM flight AS one JOIN flight AS other ON other.cycle_id = ?3 AND "
                                          "min(one.end_time, other.end_time) > max(one.start_time, other.start_time) WHERE one.cycle_id = ?1 AND "
                                          "one.number = ?2 ORDER BY min(one.end_time, other.end_time) - max(one.start_time, other.start_time) DESC");
    for (const std::string& cycle : copies().same(flight.cycleId)) {
        if (cycle == flight.cycleId)
            continue;
        found.with({flight.cycleId, int64_t{flight.flight}, cycle});
        if (flight.flight == 0 || found.next())
            flights.push_back({cycle, flight.flight == 0 ? 0 : static_cast<int>(found.integer(0))});
    }
    found.with({}).run(); // an open one would keep the store as it was
    return flights;
}

std::vector<std::string> LogbookReader::foldersOf(const std::string& cycle)
{
    std::vector<std::string> folders;
    Statement& found = mDatabase.prepared("SELECT path FROM card WHERE card_id IN (SELECT card_id FROM file WHERE cycle_id = ?1 UNION ALL SELECT card_id "
                                          "FROM cycle WHERE cycle_id = ?1) ORDER BY card_id DESC");
    found.with({cycle});
    while (found.next())
        folders.push_back(found.text(0));
    return folders;
}

} // namespace ZARN
