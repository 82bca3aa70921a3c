#pragma once

#include <QCoreApplication>

namespace ZARN {

class Database;

/// The tables of the store as an SQLite file, and the ways from each older form of them to the present one. A step never changes once a
/// store has been written with it: what comes later is another step.
class StoreSchema {
    Q_DECLARE_TR_FUNCTIONS(ZARN::StoreSchema)

public:
    /// The number of the present form, which the file has as its `user_version`.
    static const int kVersion;
    /// Brings an open store to the present form, in one transaction; an empty file becomes a store. @return false, with the reason noted in the
    /// database, when it is a newer one, or of another program.
    static bool bringUp(Database& database);
    /// The same to an open file that is going to be written, in the ways in which stores are written.
    static bool prepare(Database& database);
    /// Whether an open file has the present form; else the reason is noted.
    static bool check(Database& database);
};

} // namespace ZARN
