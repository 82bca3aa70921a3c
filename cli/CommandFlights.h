#pragma once

#include "cli/DataCommand.h"

namespace ZARN {

/// `flights`: the flights of a cycle with their tow statistics.
class CommandFlights : public DataCommand {
public:
    explicit CommandFlights(CLI::App& program);

private:
    int runOnData() override;
    [[nodiscard]] std::string json() const;
    [[nodiscard]] std::string tables() const;
};

} // namespace ZARN
