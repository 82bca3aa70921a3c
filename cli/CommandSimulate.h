#pragma once

#include "cli/Command.h"

#include "sim/DemoCard.h"

namespace ZARN {

/// `simulate`: writes a demo card that the shipped profile decodes.
class CommandSimulate : public Command {
public:
    explicit CommandSimulate(CLI::App& program);
    int run() override;

private:
    std::string mDirectory;
    DemoCardOptions mCard;
};

} // namespace ZARN
