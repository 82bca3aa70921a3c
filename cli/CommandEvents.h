#pragma once

#include "analysis/Condition.h"
#include "analysis/EventList.h"
#include "cli/DataCommand.h"

namespace ZARN {

class JsonWriter;

/// `events`: the limit exceedances and warning lamps of a cycle.
class CommandEvents : public DataCommand {
public:
    explicit CommandEvents(CLI::App& program);

private:
    int runOnData() override;
    [[nodiscard]] std::string foundTable(const ConditionTimes& found) const;
    static void write(JsonWriter& writer, const EventList& list);
    /// @param states the names of the states from 0 on; others show their number.
    static std::string table(const char* title, const char* nothing, const EventList& list, const std::vector<std::string>& states);

    std::string mWhere;
    double mFor = 0.0;
};

} // namespace ZARN
