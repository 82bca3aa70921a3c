#include "store/CardWriter.h"

#include "store/CycleIdentity.h"
#include "store/StoreText.h"

#include <set>

namespace ZARN {

namespace {

/// The statement that inserts a row of a table; a cycle that is there takes the new fields.
std::string insertion(const StoreTable& table, bool isCycle)
{
    std::string names, places, updates;
    for (const StoreColumn& column : table.columns) {
        const std::string name = column.name, comma = names.empty() ? "" : ", ";
        names += comma + name;
        places += comma + "?";
        updates += comma + name + " = excluded." + name;
    }
    const std::string sql = "INSERT INTO " + std::string(table.name) + " (" + names + ") VALUES (" + places + ")";
    return isCycle ? sql + " ON CONFLICT (cycle_id) DO UPDATE SET " + updates : sql;
}

} // namespace

bool CardWriter::hasCycle(const std::string& id)
{
    Statement& found =
        mDatabase.prepared("SELECT 1 FROM cycle WHERE cycle_id = ? AND analysis_version = ? AND profile_hash = ? AND variant = ?");
    return found.with({id, int64_t{AnalysisKey::kVersion}, mKey.profileHash, storeText(mKey.variant)}).any();
}

void CardWriter::write(const CardFacts& facts)
{
    const int64_t card = writeCard(facts);
    if (facts.listing.files.empty()) {
        writeFailure(card, facts);
        return;
    }
    Statement& number = mDatabase.prepared("UPDATE cycle SET number = ?1 WHERE cycle_id = ?2 AND card_id = ?3 AND number <> ?1");
    for (const CycleHead& cycle : facts.heads) // older files may be gone from the card
        number.with({int64_t{cycle.number}, cycle.id, card}).run();
    for (const CycleFacts& cycle : facts.cycles) {
        if (!hasCycle(cycle.head.id)) // another card, or another program, may have brought it meanwhile
            writeCycle(card, cycle);
    }
    writeUnits(facts);
    writeProblems(card, facts);
    writeFiles(card, facts);
}

int64_t CardWriter::writeCard(const CardFacts& facts)
{
    const std::string path = storeText(facts.listing.path);
    mDatabase.prepared("INSERT INTO card (path, name, first_seen) VALUES (?, ?, ?) ON CONFLICT (path) DO NOTHING")
        .with({path, storeText(facts.name), storeDate(QDateTime::currentDateTime())})
        .run();
    Statement& card = mDatabase.prepared("SELECT card_id FROM card WHERE path = ?").with({path});
    const int64_t id = card.next() ? card.integer(0) : 0;
    card.run(); // to its end
    return id;
}

/// Where nothing could be listed, what was found there before still holds.
void CardWriter::writeFailure(int64_t card, const CardFacts& facts)
{
    mDatabase.prepared("DELETE FROM problem WHERE card_id = ? AND file IS NULL").with({card}).run();
    for (const CardProblem& problem : facts.problems)
        insertProblem(card, {}, problem.reason.toStdString());
}

void CardWriter::insertProblem(int64_t card, const std::string& file, const std::string& reason)
{
    mDatabase.prepared("INSERT INTO problem (card_id, file, reason) VALUES (?, ?, ?)").with({card, textOrNothing(file), reason}).run();
}

void CardWriter::forgetFailure(const std::string& path)
{
    const Row folder{storeText(path)};
    mDatabase.prepared("DELETE FROM problem WHERE file IS NULL AND card_id = (SELECT card_id FROM card WHERE path = ?)").with(folder).run();
    mDatabase
        .prepared("DELETE FROM card WHERE path = ? AND card_id NOT IN (SELECT card_id FROM file WHERE file.card_id = card.card_id UNION ALL "
                  "SELECT card_id FROM cycle WHERE cycle.card_id = card.card_id)")
        .with(folder)
        .run();
}

void CardWriter::writeProblems(int64_t card, const CardFacts& facts)
{
    std::set<std::pair<std::string, std::string>> problems;
    for (const CardProblem& problem : facts.problems)
        problems.emplace(storeText(problem.file), problem.reason.toStdString());
    mDatabase.prepared("DELETE FROM problem WHERE card_id = ?").with({card}).run();
    for (const auto& [file, reason] : problems)
        insertProblem(card, file, reason);
}

CardWriter::KnownFiles CardWriter::knownFiles(int64_t card)
{
    KnownFiles known;
    Statement& old =
        mDatabase.prepared("SELECT name, size, mtime, cycle_id FROM file WHERE card_id = ? AND cycle_id IS NOT NULL").with({card});
    while (old.next())
        known[old.text(0)] = {old.integer(1), old.isNull(2) ? std::nullopt : std::optional(old.real(2)), old.text(3)};
    return known;
}

std::map<std::string, int64_t> CardWriter::filesOf(const std::string& cycle, const KnownFiles& files)
{
    std::map<std::string, int64_t> sizes;
    for (const auto& [name, known] : files) {
        if (known.cycle == cycle)
            sizes[name] = known.size;
    }
    return sizes;
}

void CardWriter::writeFiles(int64_t card, const CardFacts& facts)
{
    const KnownFiles before = knownFiles(card);
    mDatabase.prepared("DELETE FROM file WHERE card_id = ?").with({card}).run();
    Statement& insert = mDatabase.prepared("INSERT OR REPLACE INTO file (card_id, name, size, mtime, cycle_id) VALUES (?, ?, ?, ?, ?)");
    std::set<std::pair<std::string, std::string>> grown, shrunk;
    for (std::size_t i = 0; i < facts.listing.files.size(); ++i) {
        const ListedFile& file = facts.listing.files[i];
        const std::string name = storeText(file.name), &cycle = facts.cycleOfFile[i];
        insert.with({card, name, file.size, facts.isWhole ? FieldValue(file.mtime) : FieldValue(), textOrNothing(cycle)}).run();
        const auto known = before.find(name);
        if (known == before.end() || cycle.empty() || known->second.cycle == cycle)
            continue;
        const std::string& oldCycle = known->second.cycle;
        if (grown.contains({oldCycle, cycle}))
            continue;
        const bool isSame = known->second.is(file) || (known->second.size == file.size && holdsCycle(facts.listing, filesOf(oldCycle, before), oldCycle));
        const bool isGrown = isSame || (known->second.size < file.size && isBeginning(oldCycle, cycle));
        if (isGrown && isCovered(oldCycle, cycle))
            grown.emplace(oldCycle, cycle);
        else if (isSame && isCovered(cycle, oldCycle))
            shrunk.emplace(oldCycle, cycle);
    }
    for (const auto& [oldCycle, newCycle] : grown)
        replace(oldCycle, newCycle);
    for (const auto& [wholeCycle, rest] : shrunk)
        keepWhole(card, wholeCycle, rest);
}

bool CardWriter::isCovered(const std::string& cycle, const std::string& byCycle)
{
    return mDatabase
        .prepared("SELECT 1 FROM cycle AS a, cycle AS b WHERE a.cycle_id = ? AND b.cycle_id = ? AND b.start_time <= a.start_time AND "
                  "b.end_time >= a.end_time")
        .with({cycle, byCycle})
        .any();
}

/// The card has lost a part of a recording: what is left of it is no recording of its own, or its hours would count twice.
void CardWriter::keepWhole(int64_t card, const std::string& wholeCycle, const std::string& rest)
{
    mDatabase.prepared("UPDATE file SET cycle_id = ?1 WHERE card_id = ?2 AND cycle_id = ?3").with({wholeCycle, card, rest}).run();
    replace(rest, wholeCycle);
}

/// The date of a recording may become known from a file that was not there yet.
bool CardWriter::isBeginning(const std::string& oldCycle, const std::string& newCycle)
{
    return mDatabase
        .prepared("SELECT 1 FROM cycle AS a JOIN cycle AS b USING (engine_id, number, start_time) WHERE a.cycle_id = ? AND "
                  "b.cycle_id = ? AND (a.date_time IS NULL OR a.date_time = b.date_time)")
        .with({oldCycle, newCycle})
        .any();
}

/// A cycle one of whose files now belongs to another one was the beginning of that: a card that was read while it was copied.
void CardWriter::replace(const std::string& oldCycle, const std::string& newCycle)
{
    if (mDatabase.prepared("SELECT 1 FROM file WHERE cycle_id = ?").with({oldCycle}).any())
        return; // by another card, which has no more of it
    mDatabase.prepared("UPDATE note SET cycle_id = ?2 WHERE cycle_id = ?1").with({oldCycle, newCycle}).run();
    mDatabase.prepared("DELETE FROM cycle WHERE cycle_id = ?").with({oldCycle}).run();
}

void CardWriter::writeEngine(const EngineIdentity& engine)
{
    mDatabase
        .prepared("INSERT INTO engine (engine_id, engine_serial, ecu_serial, engine_type, ecu_type) VALUES (?, ?, ?, ?, ?) "
                  "ON CONFLICT (engine_id) DO UPDATE SET ecu_serial = coalesce(ecu_serial, excluded.ecu_serial), "
                  "engine_type = coalesce(engine_type, excluded.engine_type), ecu_type = coalesce(ecu_type, excluded.ecu_type)")
        .with({engine.id, textOrNothing(engine.serial), engine.ecuSerial ? FieldValue(*engine.ecuSerial) : FieldValue(), textOrNothing(engine.type),
               textOrNothing(engine.ecuType)})
        .run();
}

void CardWriter::writeUnits(const CardFacts& facts)
{
    Statement& unit = mDatabase.prepared("INSERT OR REPLACE INTO cycle_unit SELECT cycle_id, ?2 FROM cycle WHERE cycle_id = ?1");
    for (const CycleHead& cycle : facts.heads) {
        if (cycle.engine.ecuSerial)
            unit.with({cycle.id, *cycle.engine.ecuSerial}).run();
    }
}

void CardWriter::writeReading(const std::string& engine, const HoursReading& reading)
{
    const std::string date = storeDate(reading.date);
    if (date.empty())
        return;
    mDatabase.prepared("DELETE FROM reading WHERE engine_id = ? AND date = ? AND source = 'unit'").with({engine, date}).run();
    mDatabase.prepared("INSERT INTO reading (engine_id, date, hours, source) VALUES (?, ?, ?, 'unit')")
        .with({engine, date, reading.hours})
        .run();
}

void CardWriter::insert(EStoreTable table, const Row& row)
{
    mDatabase.prepared(insertion(storeTable(table), table == eCycleTable)).with(row).run();
}

void CardWriter::writeCycle(int64_t card, const CycleFacts& cycle)
{
    writeEngine(cycle.head.engine);
    if (cycle.hours)
        writeReading(cycle.head.engine.id, *cycle.hours);
    for (const char* table : {"episode", "incident", "flight"}) // key values go with their flight
        mDatabase.prepared("DELETE FROM " + std::string(table) + " WHERE cycle_id = ?").with({cycle.head.id}).run();
    std::map<EStoreTable, int64_t> first;
    for (const EStoreTable table : {eFlightTable, eIncidentTable, eEpisodeTable}) {
        const StoreTable& columns = storeTable(table);
        first[table] = mDatabase.number("SELECT coalesce(max(" + std::string(columns.columns[0].name) + "), 0) + 1 FROM " + columns.name);
    }
    const RowIds ids{card, [&first](EStoreTable table, std::size_t place) { return first.at(table) + static_cast<int64_t>(place); }};
    const CycleRows rows = cycleRows(cycle, mKey, ids);
    for (int table = eCycleTable; table < eStoreTables; ++table) {
        for (const Row& row : rows[static_cast<std::size_t>(table)])
            insert(static_cast<EStoreTable>(table), row);
    }
    joinEngine(cycle.head);
}

/// The user may have said that the engine of the card is another one.
void CardWriter::joinEngine(const CycleHead& cycle)
{
    mDatabase
        .prepared("INSERT OR REPLACE INTO merged_cycle SELECT ?1, engine_id FROM engine_merge WHERE engine_id = ?2")
        .with({cycle.id, cycle.engine.id})
        .run();
    mDatabase
        .prepared("UPDATE cycle SET engine_id = merged_into FROM engine_merge WHERE cycle_id = ?1 AND engine_merge.engine_id = ?2")
        .with({cycle.id, cycle.engine.id})
        .run();
}

} // namespace ZARN
