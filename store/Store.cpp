#include "store/Store.h"

#include "profile/ProfileModel.h"
#include "store/CardWriter.h"
#include "store/StoreRescue.h"
#include "store/StoreSchema.h"
#include "store/StoreText.h"

#include <algorithm>

namespace ZARN {

Store::Store(const std::string& path, AnalysisKey key) : mKey(std::move(key)), mDatabase(path, Database::eReadWrite)
{
    if (mDatabase.isGood())
        open();
    finishFailure();
}

void Store::open()
{
    if (StoreSchema::prepare(mDatabase))
        checkStoreContent(mDatabase);
}

/// A damaged store is not written any more: it is kept under another name, and what can be read of it in a new one.
void Store::finishFailure()
{
    mError = mDatabase.error();
    if (mDatabase.failure() != Database::eDamaged)
        return;
    mDatabase.close();
    const StoreRescue rescue = rescueStore(mDatabase.path(), mError);
    mError = rescue.error;
    mIsDamaged = rescue.isDamaged;
}

void Store::checkPlace()
{
    if (mDatabase.isGood() && !mDatabase.isInPlace())
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
    finishFailure();
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

bool Store::hasCycle(const CycleHead& cycle, std::vector<CardProblem>& told)
{
    const std::lock_guard lock(mGuard);
    if (!mError.empty() || !CardWriter(mDatabase, mKey).hasCycle(cycle.id))
        return false;
    Statement& problems = mDatabase.prepared("SELECT DISTINCT file.name, reason FROM file JOIN problem ON problem.card_id = file.card_id AND "
                                             "problem.file = file.name WHERE cycle_id = ?");
    problems.with({cycle.id});
    while (problems.next())
        told.push_back({problems.text(0), QString::fromStdString(problems.text(1)), false});
    return true;
}

std::string Store::forgetFailures(const std::vector<std::string>& folders)
{
    return write([&] {
        CardWriter writer(mDatabase, mKey);
        for (const std::string& folder : folders)
            writer.forgetFailure(folder);
    });
}

std::string Store::write(const CardFacts& card)
{
    return write([&] { CardWriter(mDatabase, mKey).write(card); });
}

std::string Store::writePrecisions(const ProfileModel& model)
{
    return write([&] {
        Statement& insert = mDatabase.prepared("INSERT OR IGNORE INTO parameter_precision VALUES (?, ?, ?)");
        for (const auto& [device, parameter] : model.parameters())
            insert.with({mKey.profileHash, storeText(parameter.name), int64_t{std::clamp(parameter.precision, 0, 17)}}).run();
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
