#include "store/Store.h"

#include "profile/ProfileModel.h"
#include "store/CardWriter.h"
#include "store/StoreRescue.h"
#include "store/StoreSchema.h"
#include "store/StoreText.h"

#include <algorithm>
#include <cstdio>

#include <sys/stat.h>

namespace ZARN {

Store::Store(const std::string& path, AnalysisKey key) : mKey(std::move(key)), mDatabase(path, Database::eReadWrite)
{
    if (mDatabase.isGood())
        open(path);
    mError = mDatabase.error();
    if (mDatabase.failure() == Database::eDamaged)
        putAside();
}

void Store::open(const std::string& path)
{
    mDatabase.run("PRAGMA foreign_keys = ON");
    if (!StoreSchema::bringUp(mDatabase)) // first, so that what is no store stays as it is
        return;
    mDatabase.run("PRAGMA journal_mode = WAL");
    mDatabase.run("PRAGMA synchronous = NORMAL");
    Statement check(mDatabase, "PRAGMA quick_check(1)");
    if (check.next() && check.text(0) != "ok")
        mDatabase.failDamaged();
    struct stat status = {};
    if (::stat(path.c_str(), &status) == 0) {
        mDevice = status.st_dev;
        mInode = status.st_ino;
    }
}

/// A damaged store is not written any more: it is kept under another name, so that the next scan makes a sound one.
void Store::putAside()
{
    const std::string path = mDatabase.path();
    mDatabase.close();
    const std::string aside = path + ".damaged-" + QDateTime::currentDateTime().toString("yyyyMMdd-hhmmss").toStdString();
    bool isAside = std::rename(path.c_str(), aside.c_str()) == 0;
    for (const char* companion : {"-wal", "-shm"}) {
        struct stat status = {};
        if (isAside && ::stat((path + companion).c_str(), &status) == 0)
            isAside = std::rename((path + companion).c_str(), (aside + companion).c_str()) == 0;
    }
    if (!isAside)
        return;
    mError += tr("; it was put aside as %1, and the next scan makes it anew").arg(QString::fromStdString(storeText(aside))).toStdString();
    if (const std::size_t rows = rescueTyped(aside, path))
        mError += tr("; rows of notes, services and readings that were kept: %1").arg(rows).toStdString();
}

/// What goes into a file that has no name any more would be lost without a word.
void Store::checkPlace()
{
    struct stat status = {};
    const bool isThere = ::stat(mDatabase.path().c_str(), &status) == 0;
    if (!isThere || status.st_dev != mDevice || status.st_ino != mInode)
        mDatabase.fail(tr("the store was removed or replaced while it was written"));
}

template <typename Work> const std::string& Store::write(Work work)
{
    const std::lock_guard lock(mGuard);
    if (!mError.empty())
        return mError;
    checkPlace();
    {
        Transaction transaction(mDatabase);
        if (mDatabase.isGood())
            work();
        transaction.commit();
    }
    mError = mDatabase.error();
    if (mDatabase.failure() == Database::eDamaged)
        putAside();
    return mError;
}

bool Store::isCurrent(const CardListing& listing)
{
    const std::lock_guard lock(mGuard);
    if (!mError.empty())
        return true; // no work any more
    Statement& files = mDatabase.prepared(
        "SELECT file.name, size, mtime, cycle_id IS NULL OR (analysis_version = ?2 AND profile_hash = ?3 AND variant = ?4), "
        "EXISTS (SELECT 1 FROM problem WHERE card_id = card.card_id AND file IS NULL) FROM card JOIN file USING (card_id) "
        "LEFT JOIN cycle USING (cycle_id) WHERE path = ?1 ORDER BY file.name");
    files.with({storeText(listing.path), int64_t{AnalysisKey::kVersion}, mKey.profileHash, storeText(mKey.variant)});
    std::size_t place = 0;
    bool isSame = true;
    while (files.next()) {
        isSame = isSame && place < listing.files.size() && files.text(0) == storeText(listing.files[place].name) &&
                 files.integer(1) == listing.files[place].size && !files.isNull(2) && files.real(2) == listing.files[place].mtime &&
                 files.integer(3) == 1 && files.integer(4) == 0;
        ++place;
    }
    return isSame && place == listing.files.size() && place > 0;
}

bool Store::hasCycle(const CycleHead& cycle, std::vector<CardProblem>& /*told*/)
{
    const std::lock_guard lock(mGuard);
    return mError.empty() && CardWriter(mDatabase, mKey).hasCycle(cycle.id);
}

std::string Store::write(const CardFacts& card)
{
    return write([&] { CardWriter(mDatabase, mKey).write(card); });
}

std::string Store::writePrecisions(const ProfileModel& model)
{
    return write([&] {
        Statement& insert = mDatabase.prepared("INSERT OR IGNORE INTO parameter_precision VALUES (?, ?, ?)");
        for (const ProfileDevice& device : model.devices) {
            for (const ProfileParameter& parameter : device.parameters)
                insert.with({mKey.profileHash, storeText(parameter.name), int64_t{std::clamp(parameter.precision, 0, 17)}}).run();
        }
    });
}

std::string Store::finish()
{
    const std::lock_guard lock(mGuard);
    if (mError.empty())
        checkPlace();
    if (mError.empty())
        mError = mDatabase.error();
    mDatabase.close();
    return mError;
}

} // namespace ZARN
