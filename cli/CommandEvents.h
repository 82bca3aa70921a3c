#pragma once

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
    static void write(JsonWriter& writer, const EventList& list);
    static std::string table(const char* title, const char* nothing, const EventList& list);
};

} // namespace ZARN
