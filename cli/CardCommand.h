#pragma once

#include "card/CardContainer.h"
#include "cli/Command.h"
#include "profile/Profile.h"

namespace ZARN {

/// What is wrong with a card that the system kept from being read whole: all of it in one line; empty when it was read.
[[nodiscard]] std::string systemProblem(const CardContainer& container);
/// Names what is damaged on a card, a line each.
void sayDamage(const CardContainer& container);
/// Why a path cannot be listed as a card folder.
[[nodiscard]] std::string folderProblem(const std::string& path);

/// A subcommand that decodes a card's data: the options that all of them share, and the way from them to the card.
class CardCommand : public Command {
public:
    CardCommand(CLI::App& program, const char* name, const char* description, const char* example);
    int run() final;

protected:
    /// The work on the open card; no cycle is loaded. @return the exit status.
    virtual int runOnCard() = 0;
    /// Loads a cycle and one of its flights (from 1), or the whole of it (0). @return false, having said why, when that fails.
    bool load(unsigned int cycle, int flight);
    [[nodiscard]] const std::string& card() const { return mCard; }
    /// The number that the call asks for.
    [[nodiscard]] std::optional<unsigned int> chosenCycle() const;

    Profile mProfile;
    CardContainer mContainer;

private:
    /// Empty when all went well, else what failed and why.
    [[nodiscard]] std::string loadProfile();
    [[nodiscard]] std::string openCard();

    std::string mCard;
    std::string mProfileFile;
    std::string mVariant;
    std::string mUnit = "metric";
    unsigned int mCycle = 0;
};

/// Loads a profile for a variant. @return empty, or what failed and why.
[[nodiscard]] std::string loadProfileFile(Profile& profile, const std::string& file, const std::string& variant);

} // namespace ZARN
