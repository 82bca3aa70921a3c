#pragma once

#include "cli/Command.h"

namespace ZARN {

/// `profile`: what a profile file declares for a variant, or what is wrong with it.
class CommandProfile : public Command {
public:
    explicit CommandProfile(CLI::App& program);
    int run() override;

private:
    [[nodiscard]] int check() const;

    std::string mFile;
    std::string mVariant;
    bool mIsCheck = false;
};

} // namespace ZARN
