#pragma once

#include "cli/DataCommand.h"

namespace ZARN {

/// `path`: the flight path on its half-second grid.
class CommandPath : public DataCommand {
public:
    explicit CommandPath(CLI::App& program);

private:
    int runOnData() override;
};

} // namespace ZARN
