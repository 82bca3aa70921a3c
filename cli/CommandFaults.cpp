#include "cli/CommandFaults.h"

#include "cli/JsonWriter.h"
#include "cli/TextTable.h"

namespace ZARN {

namespace {

struct Kind {
    EErrorType type;
    const char* key;
    const char* label;
};

constexpr Kind kKinds[] = {{eErrorInfo, "info", "Info"}, {eErrorWarning, "warning", "Warning"}, {eErrorFault, "fault", "Fault"}};

} // namespace

CommandFaults::CommandFaults(CLI::App& program) : DataCommand(program, "faults", "tell when the faults of the error matrices were present")
{
    addJson();
}

int CommandFaults::runOnData()
{
    return print(mJson ? json() : tables());
}

FaultTimeline CommandFaults::timeline(const FaultMatrix& matrix) const
{
    return {matrix, mContainer.recordData().channel(static_cast<uint32_t>(matrix.id))};
}

std::string CommandFaults::json() const
{
    JsonWriter writer;
    writer.beginObject().key("matrices").beginArray();
    for (const FaultMatrix& matrix : mProfile.errorMatrices())
        write(writer, matrix, timeline(matrix));
    writer.endArray().endObject();
    return writer.text() + "\n";
}

void CommandFaults::write(JsonWriter& writer, const FaultMatrix& matrix, const FaultTimeline& timeline)
{
    writer.beginObject().member("id", matrix.id).member("name", matrix.name).key("bits").beginArray();
    for (const auto& [bit, fault] : matrix.bits)
        writer.beginObject().member("bit", bit).member("name", fault.name).member("errorType", fault.errorType).endObject();
    writer.endArray();
    for (const Kind& kind : kKinds) {
        writer.key(kind.key).beginArray();
        for (const FaultChange& change : timeline.changes(kind.type))
            writer.beginArray().value(static_cast<double>(change.time)).value(change.on).endArray();
        writer.endArray();
    }
    writer.endObject();
}

std::string CommandFaults::tables() const
{
    std::string text;
    for (const FaultMatrix& matrix : mProfile.errorMatrices())
        text += (text.empty() ? "" : "\n") + matrix.name + " (" + std::to_string(matrix.id) + ")\n" + table(timeline(matrix));
    return text.empty() ? "The profile has no error matrix\n" : text;
}

std::string CommandFaults::table(const FaultTimeline& timeline)
{
    if (timeline.changes(eErrorInfo).empty())
        return "  not recorded\n";
    TextTable table({"Kind", "From", "To"});
    bool present = false;
    for (const Kind& kind : kKinds) {
        const std::vector<FaultChange>& changes = timeline.changes(kind.type);
        for (std::size_t i = 0; i + 1 < changes.size(); ++i) {
            if (!changes[i].on)
                continue;
            present = true;
            table.addRow({kind.label, tableTime(static_cast<double>(changes[i].time)), tableTime(static_cast<double>(changes[i + 1].time))});
        }
    }
    return present ? table.text() : "  no fault\n";
}

} // namespace ZARN
