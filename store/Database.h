#pragma once

#include "store/FieldValue.h"

#include <QCoreApplication>

#include <map>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace ZARN {

class Database;

/// A prepared statement of a database, which owns it. Once anything failed in the database, it yields no row.
class Statement {
public:
    Statement(Database& database, const std::string& sql);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    /// Begins anew with these values in the places of the question marks.
    Statement& with(const Row& values);
    /// Goes to the next row. @return false at the end, and when it failed
    bool next();
    /// Whether there is a row; ends it.
    bool any();
    /// Runs it to its end. @return whether that went well
    bool run();

    // The fields of the row, from 0.
    [[nodiscard]] FieldValue value(int column) const;
    [[nodiscard]] int64_t integer(int column) const;
    [[nodiscard]] double real(int column) const;
    [[nodiscard]] std::string text(int column) const; ///< empty for nothing
    [[nodiscard]] bool isNull(int column) const;

private:
    Database& mDatabase;
    sqlite3_stmt* mpStatement = nullptr;
};

/// An open SQLite file. It remembers the first failure, after which every further call fails until reset(). For one thread at a time.
class Database {
    Q_DECLARE_TR_FUNCTIONS(ZARN::Database)

public:
    enum EMode {
        eReadWrite,
        eRead,    ///< reads alone, but tidies up as a writer does: the last one that closes leaves nothing beside the file
        eReadOnly ///< never touches the file
    };
    /// What kind of failure it was, where someone can do something about it.
    enum EFailure { eNone, eDamaged, eNoDatabase, eBusy, eOther };

    Database(const std::string& path, EMode mode);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    [[nodiscard]] bool isGood() const { return mFailure == eNone; }
    [[nodiscard]] EFailure failure() const { return mFailure; }
    /// "PATH: reason" of the first failure; empty when there was none.
    [[nodiscard]] const std::string& error() const { return mError; }
    [[nodiscard]] const std::string& path() const { return mPath; }
    /// Runs statements that yield nothing.
    bool run(const std::string& sql);
    /// A statement that is prepared once and kept.
    Statement& prepared(const std::string& sql);
    /// The first field of the first row; 0 when there is none.
    int64_t number(const std::string& sql);
    /// Makes a failure of its own.
    bool fail(const QString& reason);
    /// Notes what the check of the content found: damage, or a page that the medium did not give, of which nothing else is known.
    void failChecked(const std::string& finding);
    /// Undoes the open transaction, whatever failed in it.
    void rollBack();
    /// Whether the open file is still the one of that name: what goes into one that was removed or replaced would be lost without a word.
    [[nodiscard]] bool isInPlace() const;
    void close();

private:
    friend class Statement;
    bool open(const std::string& name, int flags);
    /// @return whether the code tells of success; else notes the failure
    bool check(int code);
    void note(int code);

    std::string mPath;
    std::string mError;
    EFailure mFailure = eNone;
    sqlite3* mpDatabase = nullptr;
    uint64_t mDevice = 0; ///< where the open file is
    uint64_t mInode = 0;
    int64_t mWritten = 0;  ///< when it was, in nanoseconds since 1970
    bool mIsNew = false;   ///< there was none
    bool mIsFixed = false; ///< it is read as one that nobody writes
    std::map<std::string, std::unique_ptr<Statement>> mStatements;
};

/// A transaction that writes. Undone unless it was committed.
class Transaction {
public:
    explicit Transaction(Database& database) : mDatabase(database) { mIsOpen = database.run("BEGIN IMMEDIATE"); }
    ~Transaction()
    {
        if (mIsOpen)
            mDatabase.rollBack();
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    bool commit()
    {
        if (mIsOpen && mDatabase.run("COMMIT"))
            mIsOpen = false;
        return mDatabase.isGood();
    }

private:
    Database& mDatabase;
    bool mIsOpen = false;
};

} // namespace ZARN
