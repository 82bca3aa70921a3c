#pragma once

#include "analysis/FaultTimeline.h"
#include "cli/DataCommand.h"

namespace ZARN {

class JsonWriter;

/// `faults`: the error matrices of the profile and when their faults were present.
class CommandFaults : public DataCommand {
public:
    explicit CommandFaults(CLI::App& program);

private:
    int runOnData() override;
    [[nodiscard]] FaultTimeline timeline(const FaultMatrix& matrix) const;
    [[nodiscard]] std::string json() const;
    [[nodiscard]] std::string tables() const;
    static void write(JsonWriter& writer, const FaultMatrix& matrix, const FaultTimeline& timeline);
    static std::string table(const FaultTimeline& timeline);
};

} // namespace ZARN
