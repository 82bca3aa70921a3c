#include "cli/CommandEvents.h"

#include "analysis/LimitEvents.h"
#include "analysis/WarningEvents.h"
#include "cli/JsonWriter.h"
#include "cli/TextTable.h"

namespace ZARN {

CommandEvents::CommandEvents(CLI::App& program)
    : DataCommand(program, "events", "list the limit exceedances and warning lamps of a cycle",
                  "zarn-cli events /media/card --cycle 2 --flight 1")
{
    addJson();
}

int CommandEvents::runOnData()
{
    EventList limits = limitEvents(mContainer.recordData(), mProfile);
    EventList warnings = warningEvents(mContainer.recordData(), mProfile);
    if (const auto span = flightSpan()) {
        limits.crop(*span);
        warnings.crop(*span);
    }
    if (!mJson) {
        return print(table("Limit exceedances", "No limit was exceeded", limits, {"ok", "warning", "limit"}) + "\n" +
                     table("Warning lamps", "No warning lamp was lit", warnings, {"dark", "yellow", "red"}));
    }
    JsonWriter writer;
    writer.beginAnswer().key("limits");
    write(writer, limits);
    writer.key("warnings");
    write(writer, warnings);
    return print(writer.endAnswer());
}

void CommandEvents::write(JsonWriter& writer, const EventList& list)
{
    writer.beginArray();
    for (const Event& event : list.events()) {
        writer.beginObject().member("time", event.time).member("key", event.key.tenths).member("text", list.text(event));
        writer.member("state", event.state).key("color");
        event.colour.isValid() ? writer.value(event.colour.name()) : writer.null();
        writer.endObject();
    }
    writer.endArray();
}

std::string CommandEvents::table(const char* title, const char* nothing, const EventList& list, const std::vector<std::string>& states)
{
    if (list.events().empty())
        return std::string(nothing) + "\n";
    TextTable table({"Time", "Group", "Parameter", "Value", "Unit", "State"});
    for (const Event& event : list.events()) {
        const EventSource& source = list.source(event);
        const auto state = static_cast<std::size_t>(event.state);
        table.addRow({tableTime(event.time), source.group, source.parameter, event.value, source.unit,
                      state < states.size() ? states[state] : std::to_string(event.state)});
    }
    return std::string(title) + "\n\n" + table.text();
}

} // namespace ZARN
