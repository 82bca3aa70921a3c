#pragma once

#include "store/Database.h"
#include "store/ScanTarget.h"

#include <mutex>

namespace ZARN {

/// What was found on many cards, as an SQLite file that any number of programs may read and one at a time writes. All that is kept of a
/// card comes in one transaction. Several threads may use it.
class Store : public ScanTarget {
    Q_DECLARE_TR_FUNCTIONS(ZARN::Store)

public:
    /// Opens a store to write, or makes one. One that is damaged is put aside. @param key by what cycles are worked out from now on
    Store(const std::string& path, AnalysisKey key);

    /// "PATH: reason" when it cannot be used (any more); else empty.
    [[nodiscard]] const std::string& error() const { return mError; }
    /// Whether that was damage: the store was put aside, and a new one can be opened.
    [[nodiscard]] bool isDamaged() const { return mIsDamaged; }

    bool isCurrent(const CardListing& listing) override;
    bool hasCycle(const CycleHead& cycle, std::vector<CardProblem>& told) override;
    std::string takeLoaded(const CardListing& /*card*/, const CycleFacts& /*cycle*/, const CycleValues& /*values*/) override { return {}; }
    std::string forgetFailures(const std::vector<std::string>& folders) override;
    std::string write(const CardFacts& card) override;
    /// Notes the decimals of each parameter of the profile in force, which tell what is unusual of its values.
    std::string writePrecisions(const ProfileModel& model);
    /// Ends the writing. @return empty when all that was written is in the file of that name
    std::string finish();

private:
    void open();
    void checkPlace();
    void finishFailure();
    /// Does work on the database, in a transaction. @return error()
    template <typename Work> const std::string& write(Work work);

    const AnalysisKey mKey;
    std::mutex mGuard;
    Database mDatabase;
    std::string mError;
    bool mIsDamaged = false;
};

} // namespace ZARN
