#pragma once

#include "cli/Command.h"

namespace ZARN {

/// `info`: the record files of a card, or one of them, and the power cycles that they form.
class CommandInfo : public Command {
public:
    explicit CommandInfo(CLI::App& program);
    int run() override;

private:
    /// Whether the answer is to tell of a file of the card.
    [[nodiscard]] bool isWanted(const std::string& file) const { return mFile.empty() || file == mFile; }
    [[nodiscard]] bool isWanted(const RecordCycle& cycle) const;
    [[nodiscard]] std::string json(const CardContainer& container) const;
    [[nodiscard]] std::string tables(const CardContainer& container) const;

    std::string mCard;
    std::string mFile; // the only one that the call asks for; empty for all
};

} // namespace ZARN
