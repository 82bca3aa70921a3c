#include "cli/CommandFaults.h"

#include "analysis/FaultWords.h"
#include "cli/JsonWriter.h"
#include "cli/TextTable.h"
#include "cli/VisibleText.h"

#include <algorithm>

namespace ZARN {

namespace {

struct Kind {
    EErrorType type;
    const char* key;
    const char* label;
};

constexpr Kind kKinds[] = {{eErrorInfo, "info", "Info"}, {eErrorWarning, "warning", "Warning"}, {eErrorFault, "fault", "Fault"}};

} // namespace

CommandFaults::CommandFaults(CLI::App& program)
    : DataCommand(program, "faults", "tell when the faults of the error matrices were present",
                  "zarn-cli faults /media/card --cycle 2")
{
    addJson();
}

int CommandFaults::runOnData()
{
    return print(mJson ? json() : tables());
}

std::vector<FaultChange> CommandFaults::changes(const FaultMatrix& matrix, EErrorType kind) const
{
    const FaultTimeline timeline(matrix, *faultWords(mContainer.recordData(), mProfile.context(), matrix));
    const std::optional<TimeSpan> span = flightSpan();
    if (!span)
        return timeline.changes(kind);
    // In the precision of the points themselves, so that one that made the flight's start lies in it.
    const auto start = static_cast<float>(span->start);
    const auto end = static_cast<float>(span->end);
    std::optional<FaultChange> before;
    std::vector<FaultChange> found;
    for (const FaultChange& change : timeline.changes(kind)) { // times may go backwards
        if (change.time < start)
            before = FaultChange{start, change.on};
        else if (change.time <= end)
            found.push_back(change);
    }
    if (before)
        found.insert(found.begin(), *before);
    return found;
}

std::string CommandFaults::json() const
{
    JsonWriter writer;
    writer.beginAnswer().key("matrices").beginArray();
    for (const FaultMatrix& matrix : mProfile.model().errorMatrices)
        write(writer, matrix);
    return writer.endArray().endAnswer();
}

void CommandFaults::write(JsonWriter& writer, const FaultMatrix& matrix) const
{
    writer.beginObject().member("id", matrix.id).member("name", matrix.name).key("bits").beginArray();
    for (const auto& [bit, fault] : matrix.bits)
        writer.beginObject().member("bit", bit).member("name", fault.name).member("errorType", fault.errorType).endObject();
    writer.endArray();
    for (const Kind& kind : kKinds) {
        writer.key(kind.key).beginArray();
        for (const FaultChange& change : changes(matrix, kind.type))
            writer.beginArray().value(static_cast<double>(change.time)).value(change.on).endArray();
        writer.endArray();
    }
    writer.endObject();
}

std::string CommandFaults::tables() const
{
    std::string text;
    for (const FaultMatrix& matrix : mProfile.model().errorMatrices) {
        text += (text.empty() ? "" : "\n") + visibleText(matrix.name) + " (" + std::to_string(matrix.id) + ")\n";
        text += changes(matrix, eErrorInfo).empty() ? "  not recorded\n" : table(matrix);
    }
    return text.empty() ? "The profile has no error matrix\n" : text;
}

std::string CommandFaults::table(const FaultMatrix& matrix) const
{
    std::vector<Presence> presences;
    for (const auto& bit : matrix.bits) {
        FaultMatrix single = matrix;
        single.bits = {bit};
        for (const Kind& kind : kKinds) {
            if (bit.second.errorType == kind.type)
                addPresences(changes(single, kind.type), {0, 0, kind.label, bit.second.name}, presences);
        }
    }
    std::ranges::stable_sort(presences, {}, &Presence::from);
    TextTable table({"Fault", "Kind", "From [h:m:s]", "To [h:m:s]"});
    for (const Presence& presence : presences)
        table.addRow({presence.name, presence.kind, tableTime(presence.from), tableTime(presence.to)});
    return presences.empty() ? "  no fault\n" : table.text();
}

void CommandFaults::addPresences(const std::vector<FaultChange>& points, Presence presence, std::vector<Presence>& presences) const
{
    const std::optional<TimeSpan> span = flightSpan();
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (!points[i].on)
            continue;
        const bool isLast = i + 1 == points.size();
        if (isLast && (!span || (i > 0 && points[i - 1].on))) // the recording's end
            continue;
        presence.from = static_cast<double>(points[i].time);
        presence.to = isLast ? span->end : static_cast<double>(points[i + 1].time);
        presences.push_back(presence);
    }
}

} // namespace ZARN
