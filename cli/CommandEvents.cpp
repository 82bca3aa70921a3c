#include "cli/CommandEvents.h"

#include "analysis/LimitEvents.h"
#include "analysis/WarningEvents.h"
#include "cli/JsonWriter.h"
#include "cli/TextTable.h"
#include "cli/VisibleText.h"

#include <cmath>
#include <cstdlib>

namespace ZARN {

CommandEvents::CommandEvents(CLI::App& program)
    : DataCommand(program, "events", "list the limit exceedances and warning lamps of a cycle",
                  "zarn-cli events /media/card --cycle 2 --flight 1")
{
    const CommandOptions::Check isTime = [](const std::string& text) {
        char* pEnd = nullptr;
        const double value = std::strtod(text.c_str(), &pEnd);
        return pEnd != text.c_str() && *pEnd == 0 && value >= 0 && std::isfinite(value) ? std::string() : "not a number of seconds: " + text;
    };
    options().add("--where", mWhere, "also list when this held, for example '\"Oil Temperature\" > 120' (metric)");
    options().add("--for", mFor, "only where it held for so many seconds", isTime);
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
    ConditionTimes found;
    if (isGiven("--where")) {
        try {
            found = timesWhere(mWhere, mFor, mContainer.recordData(), mProfile, flightSpan());
        } catch (const FormulaError& error) {
            return fail("--where: character " + std::to_string(error.place() + 1) + ": " + error.what());
        }
    } else if (isGiven("--for")) {
        say("--for: needs --where");
        return eWrongCall;
    }
    if (!mJson) {
        const std::string where = isGiven("--where") ? foundTable(found) + "\n" : std::string();
        return print(where + table("Limit exceedances", "No limit was exceeded", limits, {"ok", "warning", "limit"}) + "\n" +
                     table("Warning lamps", "No warning lamp was lit", warnings, {"dark", "yellow", "red"}));
    }
    JsonWriter writer;
    writer.beginAnswer().key("limits");
    write(writer, limits);
    writer.key("warnings");
    write(writer, warnings);
    if (isGiven("--where")) {
        writer.key("found").beginArray();
        for (const TimeSpan& span : found.spans)
            writer.beginObject().member("start", span.start).member("end", span.end).endObject();
        writer.endArray();
        for (const auto& [key, pNames] : {std::pair("unrecorded", &found.unrecorded), std::pair("withoutNumber", &found.withoutNumber)}) {
            writer.key(key).beginArray();
            for (const std::string& name : *pNames)
                writer.value(name);
            writer.endArray();
        }
    }
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

std::string CommandEvents::foundTable(const ConditionTimes& found) const
{
    std::string remarks;
    for (const std::string& name : found.unrecorded)
        remarks += "Not recorded: " + visibleText(name) + "\n";
    for (const std::string& name : found.withoutNumber)
        remarks += "No sample is a number: " + visibleText(name) + "\n";
    if (!found.unrecorded.empty())
        return "Unknown: " + visibleText(mWhere) + "\n" + remarks;
    if (found.spans.empty())
        return "Never: " + visibleText(mWhere) + "\n" + remarks;
    TextTable table({"From [h:m:s]", "To [h:m:s]", "For [s]"});
    for (const TimeSpan& span : found.spans)
        table.addRow({tableTime(span.start), tableTime(span.end), tableNumber(span.end - span.start, 1)});
    return visibleText(mWhere) + "\n" + remarks + "\n" + table.text();
}

std::string CommandEvents::table(const char* title, const char* nothing, const EventList& list, const std::vector<std::string>& states)
{
    if (list.events().empty())
        return std::string(nothing) + "\n";
    TextTable table({"Time [h:m:s]", "Group", "Parameter", "Value", "Unit", "State"});
    for (const Event& event : list.events()) {
        const EventSource& source = list.source(event);
        const auto state = static_cast<std::size_t>(event.state);
        table.addRow({tableTime(event.time), source.group, source.parameter, event.value, source.unit,
                      state < states.size() ? states[state] : std::to_string(event.state)});
    }
    return std::string(title) + "\n\n" + table.text();
}

} // namespace ZARN
