#pragma once

#include "card/CardContainer.h"
#include "cli/Command.h"
#include "profile/Profile.h"

namespace ZARN {

/// What is wrong with a card that the system kept from being read whole: all of it in one line; empty when it was read.
[[nodiscard]] std::string systemProblem(const CardContainer& container);
/// Names what is damaged on a card, a line each. @param path of the card, which stands for a problem of the whole
void sayDamage(const QString& path, const std::vector<CardProblem>& problems);
[[nodiscard]] std::string problemText(const QString& path, const CardProblem& problem);
/// Why a path cannot be listed as a card folder.
[[nodiscard]] std::string folderProblem(const std::string& path);
/// Opens a card. @return empty, or why not all of it could be read, or that it has no such cycle.
[[nodiscard]] std::string openContainer(CardContainer& container, const std::string& path, std::optional<unsigned int> cycle);

/// A subcommand that decodes a card's data: the options that all of them share, and the way from them to the card.
class CardCommand : public Command {
public:
    enum ECards { eOneCycle, eWholeCard, eManyCards }; ///< what is taken where no cycle is named
    CardCommand(CLI::App& program, const char* name, const char* description, const char* example, ECards cards = eOneCycle);
    int run() override;

protected:
    /// The work on the open card; no cycle is loaded. @return the exit status.
    virtual int runOnCard() = 0;
    /// Says what keeps a cycle from being shown whole; empty when it was loaded.
    [[nodiscard]] std::string loadProblem(unsigned int cycle, int flight);
    /// Loads a cycle and one of its flights (from 1), or the whole of it (0). @return false, having said why, when that fails.
    bool load(unsigned int cycle, int flight);
    [[nodiscard]] const std::string& card() const { return mCard; }
    /// The cards that the call names one after the other, of a subcommand that takes many.
    [[nodiscard]] const std::vector<std::string>& cards() const { return mCards; }
    /// Empty when all went well, else what failed and why.
    [[nodiscard]] std::string loadProfile();
    [[nodiscard]] std::string openCard(const std::string& path);
    /// The number that the call asks for.
    [[nodiscard]] std::optional<unsigned int> chosenCycle() const;

    Profile mProfile;
    CardContainer mContainer;
    std::string mProfileFile; ///< where it is given, else the shipped one
    std::string mVariant;
    std::string mUnit = "metric";

private:
    std::string mCard;
    std::vector<std::string> mCards;
    unsigned int mCycle = 0;
};

/// Loads a profile for a variant. @return empty, or what failed and why.
[[nodiscard]] std::string loadProfileFile(Profile& profile, const std::string& file, const std::string& variant);

} // namespace ZARN
