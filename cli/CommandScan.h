#pragma once

#include "cli/Command.h"
#include "profile/Profile.h"
#include "store/CardScan.h"

#include <chrono>

namespace ZARN {

/// `scan`: what many cards tell, kept in a store. Whatever ends it, the store holds whole cards, and the same call goes on.
class CommandScan : public Command {
public:
    explicit CommandScan(CLI::App& program);
    int run() override;

private:
    int scan(const std::vector<std::string>& paths);
    int scanParquet(const CardFinder::Found& found);
    int scanSqlite(const CardFinder::Found& found);
    [[nodiscard]] std::string prepare();
    /// @return what ended the scan; empty when nothing did
    [[nodiscard]] std::string scanInto(ScanTarget& target, const CardFinder::Found& found);
    void tellProgress(const ScanCount& count, std::size_t cards);
    void clearProgress();

    std::vector<std::string> mFolders;
    std::string mListFile;
    std::string mStore;
    std::string mProfileFile;
    std::string mVariant;
    std::string mFormat = "sqlite";
    std::string mSamples = "none";
    unsigned int mJobs = 0; ///< 0: one a core
    Profile mProfile;
    AnalysisKey mKey;
    ScanCount mCount;
    std::chrono::steady_clock::time_point mStart, mTold;
    bool mIsTold = false; ///< a line of progress stands on the terminal
};

} // namespace ZARN
