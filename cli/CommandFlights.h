#pragma once

#include "cli/DataCommand.h"

namespace ZARN {

class JsonWriter;

/// Writes the member "flights": all that is told of each.
void writeFlights(JsonWriter& writer, const std::vector<RecordFlight>& flights);

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
