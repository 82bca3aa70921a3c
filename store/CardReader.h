#pragma once

#include "card/CardContainer.h"
#include "store/ScanTarget.h"

#include <set>

namespace ZARN {

class Progress;

/// Reads one card: its cycles one after the other, each worked out and forgotten. For one thread; many may read cards side by side.
class CardReader {
    Q_DECLARE_TR_FUNCTIONS(ZARN::CardReader)

public:
    /// @param context metric; @param progress may cancel it, and the card is worth nothing then; all must outlive the reader
    CardReader(const Console& console, const DecodingContext& context, ScanTarget& target, Progress& progress)
        : mConsole(console), mContext(context), mTarget(target), mProgress(progress)
    {
    }

    /// @param failure what the target failed at; the card is worth nothing then
    [[nodiscard]] CardFacts read(CardListing listing, std::string& failure);

private:
    void readCycles(CardContainer& container, CardFacts& card, std::string& failure);
    /// @return false when the system kept it from being read whole
    bool readCycle(CardContainer& container, CycleHead head, CardFacts& card, std::string& failure);
    static void keepProblems(const std::vector<CardProblem>& problems, CardFacts& card);

    const Console& mConsole;
    const DecodingContext& mContext;
    ScanTarget& mTarget;
    Progress& mProgress;
    std::set<std::string> mSeen; ///< cycles of the card
};

} // namespace ZARN
