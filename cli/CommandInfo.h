#pragma once

#include "cli/Command.h"

namespace ZARN {

/// `info`: the record files of a card and the power cycles that they form.
class CommandInfo : public Command {
public:
    explicit CommandInfo(CLI::App& program);
    int run() override;

private:
    [[nodiscard]] static std::string json(const CardContainer& container);
    [[nodiscard]] static std::string tables(const CardContainer& container);

    std::string mCard;
};

} // namespace ZARN
