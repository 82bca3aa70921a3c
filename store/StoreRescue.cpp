#include "store/StoreRescue.h"

#include "store/Database.h"
#include "store/StoreSchema.h"
#include "store/StoreText.h"

#include <QCoreApplication>
#include <QDateTime>

#include <algorithm>
#include <cstdio>

#include <sys/stat.h>

namespace ZARN {

namespace {

/// A table with what people typed.
struct TypedTable {
    const char* name;
    const char* columns;
    int engine;       ///< the column that names an engine; negative: none
    const char* rest; ///< which of its rows
};

constexpr TypedTable kTables[] = {
    {"engine", "engine_id, engine_serial, ecu_serial, engine_type, ecu_type", -1, ""},
    {"service", "service_id, engine_id, name, every_hours, every_months, done_hours, done_date, note", 1, ""},
    {"reading", "engine_id, date, hours, source", 0, " WHERE source = 'typed'"},
    {"note", "note_id, cycle_id, time, text, written", -1, ""},
    {"aircraft", "engine_id, name", 0, ""},
    {"engine_merge", "engine_id, merged_into", 1, ""},
};

/// The rows that come before the damage.
std::vector<Row> legibleRows(const std::string& path, const TypedTable& table)
{
    std::vector<Row> rows;
    Database damaged(path, Database::eReadOnly); // a new one each time, for a failure ends it
    Statement read(damaged, "SELECT " + std::string(table.columns) + " FROM " + table.name + table.rest);
    const auto columns = std::ranges::count(std::string_view(table.columns), ',') + 1;
    while (read.next()) {
        Row& row = rows.emplace_back();
        for (int column = 0; column < columns; ++column)
            row.push_back(read.value(column));
    }
    return rows;
}

void insertRows(Database& fresh, const TypedTable& table, const std::vector<Row>& rows)
{
    std::string places = "?";
    for (auto comma = std::ranges::count(std::string_view(table.columns), ','); comma > 0; --comma)
        places += ", ?";
    Statement insert(fresh, "INSERT OR IGNORE INTO " + std::string(table.name) + " (" + table.columns + ") VALUES (" + places + ")");
    Statement engine(fresh, "INSERT OR IGNORE INTO engine (engine_id) VALUES (?)");
    for (const Row& row : rows) {
        if (table.engine >= 0)
            engine.with({row[static_cast<std::size_t>(table.engine)]}).run();
        insert.with(row).run();
    }
}

/// @return how many rows; without any no new store is made
std::size_t rescueTyped(const std::string& damaged, const std::string& fresh)
{
    std::vector<std::vector<Row>> legible;
    std::size_t typed = 0;
    for (const TypedTable& table : kTables) {
        legible.push_back(legibleRows(damaged, table));
        typed += legible.size() > 1 ? legible.back().size() : 0; // engines alone are no loss
    }
    if (typed == 0)
        return 0;
    Database database(fresh, Database::eReadWrite);
    StoreSchema::bringUp(database);
    Transaction transaction(database);
    for (std::size_t i = 0; i < legible.size(); ++i)
        insertRows(database, kTables[i], legible[i]);
    return transaction.commit() ? typed : 0;
}

QString translated(const char* text)
{
    return QCoreApplication::translate("ZARN::Store", text);
}

/// Under another name, so that the next scan makes a sound one.
std::string putAside(const std::string& path)
{
    const std::string aside = path + ".damaged-" + QDateTime::currentDateTime().toString("yyyyMMdd-hhmmss").toStdString();
    bool isAside = std::rename(path.c_str(), aside.c_str()) == 0;
    for (const char* companion : {"-wal", "-shm"}) {
        struct stat status = {};
        if (isAside && ::stat((path + companion).c_str(), &status) == 0)
            isAside = std::rename((path + companion).c_str(), (aside + companion).c_str()) == 0;
    }
    if (!isAside)
        return {};
    QString told = translated(QT_TRANSLATE_NOOP("ZARN::Store", "; it was put aside as %1, and the next scan makes it anew"))
                       .arg(QString::fromStdString(storeText(aside)));
    if (const std::size_t rows = rescueTyped(aside, path))
        told += translated(QT_TRANSLATE_NOOP("ZARN::Store", "; rows of notes, services and readings that were kept: %1")).arg(rows);
    return told.toStdString();
}

/// The second look: what a medium did not give once is no damage.
bool isDamaged(const std::string& path)
{
    Database again(path, Database::eReadOnly);
    checkStoreContent(again);
    return again.failure() == Database::eDamaged;
}

} // namespace

void checkStoreContent(Database& database)
{
    Statement check(database, "PRAGMA quick_check(1)");
    if (check.next() && check.text(0) != "ok")
        database.failChecked(check.text(0));
}

StoreRescue rescueStore(const std::string& path, const std::string& error)
{
    if (isDamaged(path))
        return {error + putAside(path), true};
    return {path + ": " + translated(QT_TRANSLATE_NOOP("ZARN::Store", "it could not be read; nothing is wrong with it")).toStdString(),
            false};
}

} // namespace ZARN
