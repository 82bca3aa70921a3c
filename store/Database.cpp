#include "store/Database.h"

#include "store/StoreText.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>

#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ZARN {

namespace {

constexpr int kBusyMilliseconds = 5000, kReaderMilliseconds = 1000; // a writer alone has to wait for another one
constexpr const char* kCache = "PRAGMA cache_size = -32768"; // KiB; with less the pages of large stores are read again and again


Database::EFailure failureOf(int code)
{
    switch (code & 0xFF) {
    case SQLITE_CORRUPT: return Database::eDamaged;
    case SQLITE_NOTADB: return Database::eNoDatabase;
    case SQLITE_BUSY:
    case SQLITE_LOCKED: return Database::eBusy;
    default: return Database::eOther;
    }
}

int flagsOf(Database::EMode mode)
{
    switch (mode) {
    case Database::eReadWrite: return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    case Database::eRead: return SQLITE_OPEN_READWRITE; // or less, where the file is write-protected
    case Database::eReadOnly: break;
    }
    return SQLITE_OPEN_READONLY;
}

int64_t writtenAt(const struct stat& status)
{
#ifdef __APPLE__
    const timespec& time = status.st_mtimespec;
#else
    const timespec& time = status.st_mtim;
#endif
    return int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

bool isEmpty(const std::string& path)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) != 0 || status.st_size == 0;
}

/// Whether a file begins as one of SQLite does; what it says of one whose further header it does not take is the same as of any other file.
bool hasMagic(const std::string& path)
{
    constexpr std::string_view kMagic("SQLite format 3", 16);
    std::string begin(kMagic.size(), ' ');
    std::ifstream(path, std::ios::binary).read(begin.data(), static_cast<std::streamsize>(begin.size()));
    return begin == kMagic;
}

std::string folderOf(const std::string& path)
{
    const std::size_t end = path.rfind('/');
    return end == std::string::npos ? "." : path.substr(0, end + 1);
}

/// The name of a file that nobody writes.
std::string immutable(const std::string& path)
{
    return "file:" + QByteArray::fromStdString(path).toPercentEncoding("/").toStdString() + "?immutable=1";
}

} // namespace

Statement::Statement(Database& database, const std::string& sql) : mDatabase(database)
{
    if (database.isGood() && database.mpDatabase)
        database.check(sqlite3_prepare_v2(database.mpDatabase, sql.c_str(), static_cast<int>(sql.size()), &mpStatement, nullptr));
}

Statement::~Statement()
{
    sqlite3_finalize(mpStatement);
}

Statement& Statement::with(const Row& values)
{
    if (!mpStatement)
        return *this;
    sqlite3_reset(mpStatement);
    sqlite3_clear_bindings(mpStatement);
    int place = 0;
    for (const FieldValue& value : values) {
        ++place;
        int code = SQLITE_OK;
        if (const auto* pInteger = std::get_if<int64_t>(&value))
            code = sqlite3_bind_int64(mpStatement, place, *pInteger);
        else if (const auto* pReal = std::get_if<double>(&value))
            code = sqlite3_bind_double(mpStatement, place, *pReal);
        else if (const auto* pText = std::get_if<std::string>(&value))
            code = sqlite3_bind_text64(mpStatement, place, pText->data(), pText->size(), SQLITE_TRANSIENT, SQLITE_UTF8);
        mDatabase.check(code);
    }
    return *this;
}

bool Statement::next()
{
    if (!mpStatement || !mDatabase.isGood())
        return false;
    const int code = sqlite3_step(mpStatement);
    if (code == SQLITE_ROW)
        return true;
    if (code != SQLITE_DONE)
        mDatabase.note(code);
    sqlite3_reset(mpStatement);
    return false;
}

bool Statement::any()
{
    const bool isAny = next();
    if (isAny)
        sqlite3_reset(mpStatement);
    return isAny;
}

bool Statement::run()
{
    while (next()) {
    }
    return mDatabase.isGood();
}

FieldValue Statement::value(int column) const
{
    switch (sqlite3_column_type(mpStatement, column)) {
    case SQLITE_INTEGER: return integer(column);
    case SQLITE_FLOAT: return real(column);
    case SQLITE_NULL: return {};
    default: return text(column);
    }
}

int64_t Statement::integer(int column) const
{
    return sqlite3_column_int64(mpStatement, column);
}

double Statement::real(int column) const
{
    return sqlite3_column_double(mpStatement, column);
}

std::string Statement::text(int column) const
{
    const auto* pText = reinterpret_cast<const char*>(sqlite3_column_text(mpStatement, column));
    return pText ? std::string(pText, static_cast<std::size_t>(sqlite3_column_bytes(mpStatement, column))) : std::string();
}

bool Statement::isNull(int column) const
{
    return sqlite3_column_type(mpStatement, column) == SQLITE_NULL;
}

Database::Database(const std::string& path, EMode mode) : mPath(path)
{
    struct stat status = {};
    if (path.empty()) { // which would be a store for the time being, kept nowhere
        fail(QString::fromLocal8Bit(std::strerror(ENOENT)));
        return;
    }
    if (::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        fail(tr("it is no file"));
        return;
    }
    mIsNew = mode == eReadWrite && ::stat(path.c_str(), &status) != 0 && errno == ENOENT;
    if (mIsNew && ::access(folderOf(path).c_str(), W_OK) != 0) { // which SQLite would not tell from a file that is missing
        fail(QString::fromLocal8Bit(std::strerror(errno)));
        return;
    }
    if (!open(path, flagsOf(mode)))
        return;
    if (mode != eReadWrite) {
        sqlite3_busy_timeout(mpDatabase, kReaderMilliseconds);
        // Where nothing can be written a reader cannot announce itself; nobody writes there.
        const int code = sqlite3_exec(mpDatabase, "SELECT 1 FROM sqlite_master", nullptr, nullptr, nullptr) % 256;
        const bool isFull = sqlite3_system_errno(mpDatabase) == ENOSPC && isEmpty(path + "-wal"); // else the file alone is not all
        if (code == SQLITE_CANTOPEN || code == SQLITE_READONLY || (code != SQLITE_OK && isFull)) {
            close();
            mIsFixed = open(immutable(path), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
        } else if (code == SQLITE_BUSY) {
            note(code); // once is enough to wait
        }
    }
    if (mode == eReadWrite && sqlite3_db_readonly(mpDatabase, "main") == 1)
        fail(tr("it cannot be written, only read"));
    if (::stat(path.c_str(), &status) == 0) {
        mDevice = status.st_dev;
        mInode = status.st_ino;
        mWritten = writtenAt(status);
    }
}

bool Database::isInPlace() const
{
    struct stat status = {};
    return ::stat(mPath.c_str(), &status) == 0 && status.st_dev == mDevice && status.st_ino == mInode &&
           (!mIsFixed || writtenAt(status) == mWritten); // which nothing else tells there
}

bool Database::open(const std::string& name, int flags)
{
    if (!check(sqlite3_open_v2(name.c_str(), &mpDatabase, flags | SQLITE_OPEN_NOMUTEX, nullptr)))
        return false;
    sqlite3_extended_result_codes(mpDatabase, 1);
    sqlite3_exec(mpDatabase, kCache, nullptr, nullptr, nullptr); // looks into the file, and waits for nobody
    sqlite3_busy_timeout(mpDatabase, kBusyMilliseconds);
    return true;
}

Database::~Database()
{
    close();
}

void Database::close()
{
    mStatements.clear();
    sqlite3_close(mpDatabase);
    mpDatabase = nullptr;
    if (mIsNew && mFailure == eOther && isInPlace() && isEmpty(mPath)) // what could not be begun leaves nothing behind
        std::remove(mPath.c_str());
}

bool Database::run(const std::string& sql)
{
    return isGood() && mpDatabase && check(sqlite3_exec(mpDatabase, sql.c_str(), nullptr, nullptr, nullptr));
}

Statement& Database::prepared(const std::string& sql)
{
    std::unique_ptr<Statement>& pStatement = mStatements[sql];
    if (!pStatement)
        pStatement = std::make_unique<Statement>(*this, sql);
    return *pStatement;
}

int64_t Database::number(const std::string& sql)
{
    Statement statement(*this, sql);
    return statement.next() ? statement.integer(0) : 0;
}

void Database::rollBack()
{
    if (mpDatabase && sqlite3_get_autocommit(mpDatabase) == 0)
        sqlite3_exec(mpDatabase, "ROLLBACK", nullptr, nullptr, nullptr);
}

bool Database::fail(const QString& reason)
{
    if (isGood()) {
        mFailure = eOther;
        mError = mPath + ": " + reason.toStdString();
    }
    return false;
}

void Database::failChecked(const std::string& finding)
{
    constexpr std::string_view kCode = "error code=";
    const std::size_t place = finding.find(kCode);
    const int code = place == std::string::npos ? SQLITE_CORRUPT : std::atoi(finding.c_str() + place + kCode.size());
    if ((code & 0xFF) == SQLITE_IOERR)
        fail(QString::fromUtf8(sqlite3_errstr(SQLITE_IOERR)));
    else
        note(SQLITE_CORRUPT);
}

bool Database::check(int code)
{
    if (code != SQLITE_OK)
        note(code);
    return code == SQLITE_OK;
}

void Database::note(int code)
{
    if (!isGood())
        return;
    if ((code & 0xFF) == SQLITE_NOTADB && hasMagic(mPath))
        code = SQLITE_CORRUPT;
    const int system = mpDatabase ? sqlite3_system_errno(mpDatabase) : 0;
    switch (code & 0xFF) {
    case SQLITE_NOTADB: fail(tr("it is no store: not an SQLite file")); break;
    case SQLITE_CORRUPT: fail(tr("the store is damaged")); break;
    case SQLITE_BUSY:
    case SQLITE_LOCKED: fail(tr("another program is writing to the store")); break;
    case SQLITE_READONLY: fail(tr("it cannot be written, only read")); break;
    case SQLITE_FULL: fail(tr("the disk is full")); break;
    default:
        fail(system != 0 ? QString::fromLocal8Bit(std::strerror(system))
                         : QString::fromUtf8(mpDatabase ? sqlite3_errmsg(mpDatabase) : sqlite3_errstr(code)));
    }
    mFailure = failureOf(code);
}

} // namespace ZARN
