#include "store/StoreSalvage.h"

#include "store/Database.h"
#include "store/StoreSchema.h"

#include <algorithm>
#include <cstdio>
#include <deque>
#include <filesystem>
#include <fstream>
#include <limits>
#include <optional>
#include <set>

namespace ZARN {

namespace {

constexpr int kMostWalks = 100;      // of a table: a damaged part may have sound pages between its ends
constexpr std::size_t kPageCount = 28; // place of the number of pages in a file
constexpr int64_t kMostBeyond = 1024; // row numbers sought behind the last one that was read, where the end of the table is damaged

/// A part of a table that was not read, by the row numbers before and behind it.
struct Gap {
    int64_t before = std::numeric_limits<int64_t>::min();
    int64_t behind = std::numeric_limits<int64_t>::max();
};

bool isText(const FieldValue& value)
{
    const auto* pText = std::get_if<std::string>(&value);
    return pText && QString::fromStdString(*pText).toStdString() == *pText;
}

/// Damage may leave a row that can be read, with fields that no store has.
bool isPlausible(const FieldValue& value, const std::string& type)
{
    if (std::holds_alternative<std::monostate>(value))
        return true;
    if (type == "TEXT")
        return isText(value);
    if (type == "INTEGER")
        return std::holds_alternative<int64_t>(value);
    const auto* pReal = std::get_if<double>(&value);
    return pReal && std::isfinite(*pReal);
}

/// Reads rows of a damaged store from both ends, and between them, until the damage, and inserts what it finds into a table of the new one.
class TableSalvage {
public:
    /// @param from what follows FROM, with an order, where rows are not found by their number
    TableSalvage(const std::string& damaged, Database& fresh, const std::string& table, const std::string& from = {})
        : mDamaged(damaged), mFrom(from.empty() ? table + " NOT INDEXED WHERE rowid > ?1 AND rowid < ?2 ORDER BY rowid" : from), mHasRowNumbers(from.empty())
    {
        if (mHasRowNumbers)
            addColumn("rowid", "INTEGER");
        Statement columns(fresh, "SELECT name, type, pk FROM pragma_table_info('" + table + "')");
        while (columns.next()) {
            if (!mHasRowNumbers || columns.integer(2) == 0 || columns.text(1) != "INTEGER") // which is the row's number
                addColumn(columns.text(0), columns.text(1));
        }
        mpInsert = std::make_unique<Statement>(fresh, "INSERT OR IGNORE INTO " + table + " (" + mColumns + ") VALUES (" + mPlaces + ")");
    }

    /// @return whether nothing was left behind
    bool run()
    {
        const std::optional<Gap> rest = walk({}, false);
        if (!rest)
            return mIsSound;
        if (mHasRowNumbers)
            fillGaps(*rest);
        else
            walk({}, true);
        return false;
    }

private:
    void addColumn(const std::string& name, const std::string& type)
    {
        mColumns += (mTypes.empty() ? "" : ", ") + name;
        mPlaces += mTypes.empty() ? "?" : ", ?";
        mTypes.push_back(type);
    }

    void fillGaps(const Gap& behindStart)
    {
        std::optional<Gap> rest = walk(behindStart, true);
        if (rest && rest->behind == Gap().behind)
            rest->behind = std::max<int64_t>(rest->before, 0) * 2 + kMostBeyond;
        std::deque<Gap> gaps;
        add(gaps, rest);
        for (int walks = 0; walks < kMostWalks && !gaps.empty(); walks += 2) {
            const Gap gap = gaps.front();
            gaps.pop_front();
            const int64_t middle = std::max<int64_t>(gap.before, 0) / 2 + gap.behind / 2;
            add(gaps, walk({gap.before, middle + 1}, true));
            add(gaps, walk({middle, gap.behind}, false));
        }
    }

    static void add(std::deque<Gap>& gaps, const std::optional<Gap>& gap)
    {
        if (gap && std::max<int64_t>(gap->before, 0) + 1 < gap->behind)
            gaps.push_back(*gap);
    }

    /// Takes over the rows of a gap from one of its ends. @return what was not read; nothing when all was
    std::optional<Gap> walk(Gap gap, bool isDown)
    {
        Database damaged(mDamaged, Database::eReadOnly); // a new one each time, for a failure ends it
        damaged.run("PRAGMA writable_schema = ON"); // also reads a file that is shorter than it says
        Statement read(damaged, "SELECT " + mColumns + " FROM " + mFrom + (isDown ? " DESC" : ""));
        if (mHasRowNumbers)
            read.with({gap.before, gap.behind});
        while (read.next()) {
            const int64_t number = mHasRowNumbers ? read.integer(0) : 0;
            if (mHasRowNumbers && (number <= gap.before || number >= gap.behind))
                return gap; // damaged pages may lead in circles
            (isDown ? gap.behind : gap.before) = number;
            take(read);
        }
        return damaged.isGood() ? std::nullopt : std::optional(gap);
    }

    void take(const Statement& read)
    {
        Row row;
        for (std::size_t column = 0; column < mTypes.size(); ++column) {
            row.push_back(read.value(static_cast<int>(column)));
            if (!isPlausible(row.back(), mTypes[column])) {
                mIsSound = false;
                return;
            }
        }
        mpInsert->with(row).run();
    }

    const std::string& mDamaged;
    const std::string mFrom;
    const bool mHasRowNumbers;
    std::string mColumns;
    std::string mPlaces;
    std::vector<std::string> mTypes;
    std::unique_ptr<Statement> mpInsert;
    bool mIsSound = true; ///< all rows that were read
};

// What the indexes tell of a cycle that is lost itself: its flights stay, and that its engine hours are not known is seen.
constexpr const char* kLostTables = R"sql(
CREATE TEMP TABLE lost_name (rowid INTEGER PRIMARY KEY, cycle_id TEXT);
CREATE TEMP TABLE lost_engine (rowid INTEGER PRIMARY KEY, engine_id TEXT, date_time TEXT);
CREATE TEMP TABLE lost_card (rowid INTEGER PRIMARY KEY, card_id INTEGER);
)sql";
constexpr std::pair<const char*, const char*> kLostSources[] = {
    {"lost_name", "cycle INDEXED BY sqlite_autoindex_cycle_1 ORDER BY cycle_id"},
    {"lost_engine", "cycle INDEXED BY cycle_engine ORDER BY engine_id"},
    {"lost_card", "cycle INDEXED BY cycle_card ORDER BY card_id"},
};
constexpr const char* kLostCycles = "INSERT OR IGNORE INTO cycle (rowid, cycle_id, engine_id, date_time, card_id) SELECT lost_name.rowid, cycle_id, engine_id, "
                                    "date_time, card_id FROM lost_name JOIN lost_engine USING (rowid) LEFT JOIN lost_card USING (rowid)";

// What belongs to what is lost goes; an engine is known by its identifier alone. A card is looked through again as one that was never read whole.
constexpr const char* kMend = R"sql(
INSERT OR IGNORE INTO engine (engine_id, engine_serial)
    SELECT engine_id, CASE WHEN engine_id NOT GLOB 'ecu:*' AND engine_id NOT GLOB 'card:*' THEN engine_id END FROM (
        SELECT engine_id FROM cycle UNION SELECT engine_id FROM service UNION SELECT engine_id FROM reading UNION
        SELECT engine_id FROM aircraft UNION SELECT engine_id FROM engine_merge UNION SELECT merged_into FROM engine_merge);
UPDATE cycle SET analysis_version = 0;
UPDATE cycle SET card_id = NULL WHERE card_id NOT IN (SELECT card_id FROM card);
UPDATE file SET mtime = NULL;
DELETE FROM file WHERE card_id NOT IN (SELECT card_id FROM card) OR cycle_id NOT IN (SELECT cycle_id FROM cycle);
DELETE FROM problem WHERE card_id NOT IN (SELECT card_id FROM card);
DELETE FROM merged_cycle WHERE cycle_id NOT IN (SELECT cycle_id FROM cycle);
DELETE FROM cycle_unit WHERE cycle_id NOT IN (SELECT cycle_id FROM cycle);
DELETE FROM flight WHERE cycle_id NOT IN (SELECT cycle_id FROM cycle);
DELETE FROM incident WHERE cycle_id NOT IN (SELECT cycle_id FROM cycle) OR flight_id NOT IN (SELECT flight_id FROM flight);
DELETE FROM episode WHERE cycle_id NOT IN (SELECT cycle_id FROM cycle) OR incident_id NOT IN (SELECT incident_id FROM incident);
DELETE FROM key_value WHERE flight_id NOT IN (SELECT flight_id FROM flight);
)sql";

bool hasTable(const std::string& path, const std::string& name, bool& isReadable)
{
    Database database(path, Database::eReadOnly);
    database.run("PRAGMA writable_schema = ON");
    const bool isThere = Statement(database, "SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = '" + name + "'").any();
    isReadable = database.isGood();
    return isThere;
}

/// Where cycles are lost nobody knows whose they were: what an engine ran is not all, until people say how much it was.
void markLoss(Database& fresh)
{
    const Row loss{kLossPath};
    Statement(fresh, "INSERT OR IGNORE INTO card (path, name) VALUES (?1, ?1)").with(loss).run();
    Statement(fresh, "DELETE FROM problem WHERE card_id = (SELECT card_id FROM card WHERE path = ?1)").with(loss).run();
    Statement(fresh, "INSERT INTO problem (card_id, file, reason) SELECT card_id, engine_id, 'recordings were lost when the store was damaged' "
                     "FROM engine, card WHERE path = ?1")
        .with(loss)
        .run();
}

std::string pageOf(std::ifstream& file, int64_t page, int64_t size)
{
    std::string bytes(static_cast<std::size_t>(size), ' ');
    file.clear();
    file.seekg((page - 1) * size).read(bytes.data(), size);
    return bytes;
}

/// Where the first page alone is lost: a copy with that of the new store, in which the pages that tell of the tables must be the same.
/// @return its path; empty when it is none of that kind
std::string withSoundHead(const std::string& damaged, Database& fresh)
{
    std::set<int64_t> tables;
    Statement roots(fresh, "SELECT rootpage FROM sqlite_master");
    while (roots.next())
        tables.insert(roots.integer(0));
    const int64_t size = fresh.number("PRAGMA page_size"), pages = fresh.number("PRAGMA page_count");
    std::ifstream sound(fresh.path(), std::ios::binary), hurt(damaged, std::ios::binary);
    for (int64_t page = 2; page <= pages; ++page) {
        if (!tables.contains(page) && pageOf(sound, page, size) != pageOf(hurt, page, size))
            return {};
    }
    const std::string copy = fresh.path() + "-head";
    std::error_code failure, none;
    for (const char* companion : {"-wal", ""})
        std::filesystem::copy_file(damaged + companion, copy + companion, std::filesystem::copy_options::overwrite_existing, *companion ? none : failure);
    std::string head = pageOf(sound, 1, size);
    const auto count = static_cast<uint64_t>(std::filesystem::file_size(damaged, failure)) / static_cast<uint64_t>(size);
    for (std::size_t byte = 0; byte < 4; ++byte)
        head[kPageCount + byte] = static_cast<char>(count >> (24 - 8 * byte));
    std::fstream(copy, std::ios::binary | std::ios::in | std::ios::out).write(head.data(), size);
    return failure ? std::string() : copy;
}

void takeTables(const std::string& damaged, Database& fresh, StoreSalvage& salvage)
{
    std::vector<std::pair<std::string, std::string>> tables;
    Statement found(fresh, "SELECT name, CASE WHEN sql LIKE '%WITHOUT ROWID' THEN name || ' ORDER BY 1, 2' ELSE '' END FROM sqlite_master "
                           "WHERE type = 'table' ORDER BY rowid");
    while (found.next())
        tables.emplace_back(found.text(0), found.text(1));
    for (const auto& [table, from] : tables) {
        bool isReadable = false;
        if (hasTable(damaged, table, isReadable)) // which an older form has not
            isReadable = TableSalvage(damaged, fresh, table, from).run();
        salvage.isWhole = salvage.isWhole && isReadable;
        salvage.hasAllCycles = salvage.hasAllCycles && (isReadable || table != "cycle");
    }
}

void takeLostCycles(const std::string& damaged, Database& fresh, StoreSalvage& salvage)
{
    const int64_t before = fresh.number("SELECT count(*) FROM cycle");
    fresh.run(kLostTables);
    for (const auto& [table, from] : kLostSources)
        TableSalvage(damaged, fresh, table, from).run();
    fresh.run(kLostCycles);
    salvage.cycles = fresh.number("SELECT count(*) FROM cycle");
    salvage.lostCycles = salvage.cycles - before;
}

} // namespace

StoreSalvage salvageStore(const std::string& damaged, const std::string& fresh)
{
    StoreSalvage salvage;
    Database database(fresh, Database::eReadWrite);
    StoreSchema::bringUp(database);
    bool isReadable = false;
    hasTable(damaged, "engine", isReadable);
    const std::string copy = isReadable ? std::string() : withSoundHead(damaged, database), &source = copy.empty() ? damaged : copy;
    Transaction transaction(database);
    takeTables(source, database, salvage);
    takeLostCycles(source, database, salvage);
    for (const char* companion : {"", "-wal", "-shm"}) {
        if (!copy.empty())
            std::remove((copy + companion).c_str());
    }
    database.run(kMend);
    if (!salvage.hasAllCycles)
        markLoss(database);
    if (Statement(database, "PRAGMA foreign_key_check").any())
        database.fail("foreign keys"); // never
    salvage.flights = database.number("SELECT count(*) FROM flight");
    salvage.notes = database.number("SELECT count(*) FROM note");
    salvage.services = database.number("SELECT count(*) FROM service");
    salvage.readings = database.number("SELECT count(*) FROM reading WHERE source = 'typed'");
    transaction.commit();
    salvage.error = database.error();
    return salvage;
}

} // namespace ZARN
