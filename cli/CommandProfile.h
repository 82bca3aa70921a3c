#pragma once

#include "cli/Command.h"

namespace ZARN {

/// `profile`: what a profile file declares for a variant.
class CommandProfile : public Command {
public:
    explicit CommandProfile(CLI::App& program);
    int run() override;

private:
    std::string mFile;
    std::string mVariant;
};

} // namespace ZARN
