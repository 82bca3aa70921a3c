#include "store/StoreRescue.h"

#include "store/Database.h"
#include "store/StoreSchema.h"

namespace ZARN {

namespace {

/// A table with what people typed.
struct TypedTable {
    const char* name;
    int columns;
    int engine;        ///< the column that names an engine; negative: none
    const char* which; ///< of its rows
};

constexpr TypedTable kTables[] = {
    {"engine", 5, 0, ""}, {"service", 8, 1, ""}, {"reading", 4, 0, " WHERE source = 'typed'"}, {"note", 5, -1, ""}};

/// The rows that come before the damage.
std::vector<Row> legibleRows(const std::string& path, const TypedTable& table)
{
    std::vector<Row> rows;
    Database damaged(path, Database::eReadOnly); // a new one each time, for a failure ends it
    Statement read(damaged, "SELECT * FROM " + std::string(table.name) + table.which);
    while (read.next()) {
        Row& row = rows.emplace_back();
        for (int column = 0; column < table.columns; ++column)
            row.push_back(read.value(column));
    }
    return rows;
}

void insertRows(Database& fresh, const TypedTable& table, const std::vector<Row>& rows)
{
    std::string places = "?";
    for (int column = 1; column < table.columns; ++column)
        places += ", ?";
    Statement insert(fresh, "INSERT OR IGNORE INTO " + std::string(table.name) + " VALUES (" + places + ")");
    Statement engine(fresh, "INSERT OR IGNORE INTO engine (engine_id) VALUES (?)");
    for (const Row& row : rows) {
        insert.with(row).run();
        if (table.engine >= 0)
            engine.with({row[static_cast<std::size_t>(table.engine)]}).run();
    }
}

} // namespace

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

} // namespace ZARN
