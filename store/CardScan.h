#pragma once

#include "app/Progress.h"
#include "store/ScanTarget.h"

#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <thread>
#include <unordered_set>

namespace ZARN {

class Console;

/// What a scan did.
struct ScanCount {
    std::size_t cards = 0;     ///< done with, of those below
    std::size_t unchanged = 0; ///< that were there already
    std::size_t damaged = 0;   ///< with a problem, but read
    std::size_t unread = 0;    ///< of which the system kept something from being read
    std::size_t cycles = 0;    ///< worked out
    std::size_t flights = 0;   ///< in them
};

/// Reads many cards side by side and hands them to a target, one after the other in the order given, so that the same cards make the same
/// store whatever the number of workers. Few of them wait at a time, so memory does not grow with their number.
class CardScan {
public:
    using Told = std::function<void(const ScanCount&)>;

    /// @param context metric; @param jobs how many cards are read side by side; @param progress of one card may end it
    CardScan(const Console& console, const DecodingContext& context, ScanTarget& target, unsigned int jobs, Progress& progress = nullProgress())
        : mConsole(console), mContext(context), mTarget(target), mJobs(jobs), mProgress(progress)
    {
    }

    /// @param told hears how far it is, now and then, in this thread; @param problem hears of what is wrong, a line each
    /// @return empty, or what ended the scan
    std::string run(const std::vector<std::string>& cards, const Told& told, const std::function<void(const std::string&)>& problem);
    [[nodiscard]] const ScanCount& count() const { return mCount; }

private:
    /// What a worker found out about a card.
    struct Result {
        CardFacts card;
        bool isUnchanged = false;
        std::string failure;
    };
    void work(const std::vector<std::string>& cards);
    [[nodiscard]] Result read(const std::string& path) const;
    [[nodiscard]] bool isOpen(std::size_t place) const { return place < mWritten + 4u * mJobs; }
    void count(const CycleFacts& cycle);
    std::string take(const Result& result, const std::function<void(const std::string&)>& problem);
    void end(std::vector<std::thread>& workers);

    const Console& mConsole;
    const DecodingContext& mContext;
    ScanTarget& mTarget;
    const unsigned int mJobs;
    Progress& mProgress;
    ScanCount mCount;
    std::unordered_set<std::size_t> mCounted; // hashes of cycles
    std::mutex mGuard; // of what follows
    std::condition_variable mChanged;
    std::map<std::size_t, Result> mResults; // that wait for their turn
    std::size_t mNext = 0;                  // card that nobody has taken yet
    std::size_t mWritten = 0;
    bool mIsEnded = false;
};

} // namespace ZARN
