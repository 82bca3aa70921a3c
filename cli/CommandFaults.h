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
    /// The time for which one fault was present.
    struct Presence {
        double from; // seconds since power-up
        double to;
        const char* kind;
        std::string name;
    };
    /// The change points of one kind in a matrix that lie in the flight, if one was asked for, and the state at its start.
    [[nodiscard]] std::vector<FaultChange> changes(const FaultMatrix& matrix, EErrorType kind) const;
    [[nodiscard]] std::string json() const;
    [[nodiscard]] std::string tables() const;
    void write(JsonWriter& writer, const FaultMatrix& matrix) const;
    [[nodiscard]] std::string table(const FaultMatrix& matrix) const;
    void addPresences(const std::vector<FaultChange>& points, Presence presence, std::vector<Presence>& presences) const;
};

} // namespace ZARN
