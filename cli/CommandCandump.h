#pragma once

#include "cli/DataCommand.h"

namespace ZARN {

/// `candump`: the records of a cycle as a log that tools for CAN buses read and replay.
class CommandCandump : public DataCommand {
public:
    explicit CommandCandump(CLI::App& program);

private:
    int runOnData() override;
};

} // namespace ZARN
