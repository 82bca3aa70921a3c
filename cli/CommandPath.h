#pragma once

#include "cli/DataCommand.h"

namespace ZARN {

class Output;

/// `path`: the flight path on its half-second grid.
class CommandPath : public DataCommand {
public:
    explicit CommandPath(CLI::App& program);

private:
    int runOnData() override;
    void writeTable(Output& output) const;
    void writeJson(Output& output) const;
};

} // namespace ZARN
