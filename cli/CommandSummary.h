#pragma once

#include "cli/CardCommand.h"
#include "cli/JsonWriter.h"
#include "cli/Output.h"
#include "cli/SummaryText.h"

namespace ZARN {

/// `summary`: whether the engine was all right: of each cycle of any number of cards the verdict, what it took and what happened. A card that
/// cannot be read is said and does not keep the others from being told.
class CommandSummary : public CardCommand {
public:
    explicit CommandSummary(CLI::App& program);
    int run() override;

private:
    int runOnCard() override;
    /// Empty when all went well, else what failed and why.
    [[nodiscard]] std::string openStore();
    [[nodiscard]] std::string reviewCycles();
    void keepProblems();
    void tell(const ReviewedCycle& reviewed);
    int finish(int status);
    void writeJson();
    void writeText();

    std::string mListFile;
    std::string mStore;
    std::unique_ptr<StoreReader> mpStore; ///< null without a store
    std::vector<CardProblem> mProblems;   ///< of the open card, its cycles included: they are told first
    std::string mText;                    ///< what is told of its cycles, which takes a tenth of the memory of what is known of them
    JsonWriter mCycles;                   ///< the same for --json
    Output mOutput;
    JsonWriter mWriter{mOutput};
    bool mIsBegun = false; ///< a card has been told
};

} // namespace ZARN
