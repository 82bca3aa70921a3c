#include "cli/CommandSummary.h"

#include "analysis/FaultTimeline.h"
#include "analysis/LimitEvents.h"
#include "analysis/WarningEvents.h"
#include "app/Progress.h"
#include "cli/Resources.h"

#include <map>

namespace ZARN {

namespace {

/// The events of one parameter.
struct Passed {
    int state = 0;     // the worst
    double time = 0.0; // when it was first reached
    int count = 0;
};

std::string minutes(double seconds)
{
    return tableNumber(seconds / 60, 0) + " min";
}

} // namespace

CommandSummary::CommandSummary(CLI::App& program) : Command(program, "summary", "tell on one page what happened on a card")
{
    options().add_option("CARD", mCard, "the card folder")->required();
    options().add_option("--profile", mProfileFile, "profile file (default: the shipped profile \"915\")");
}

int CommandSummary::run()
{
    // The summary is the result; what the core says while it loads cycle after cycle would only bury it.
    const Console silent([](std::string_view) {}, [](std::string_view) {});
    Profile profile(silent);
    const std::string profileFile = mProfileFile.empty() ? shippedProfile("915") : mProfileFile;
    if (!profile.loadProfile(QString::fromStdString(profileFile)))
        return fail(profileFile + ": not a readable ZARN profile");
    CardContainer container(silent, profile, nullProgress());
    if (!container.readContainer(QString::fromStdString(mCard)))
        return fail(mCard + ": no such folder");
    if (container.recordCycles().empty())
        return fail(mCard + ": the folder holds no record file (*.CAN, *.can, *.xcb)");
    std::string text;
    for (const auto& [number, cycle] : container.recordCycles()) {
        container.loadCycle(number, -1);
        if (!container.loadError().empty())
            return fail(container.loadError());
        text += (text.empty() ? "" : "\n") + cycleText(container, number);
    }
    return print(text);
}

std::string CommandSummary::cycleText(CardContainer& container, uint32_t number)
{
    const RecordCycle& cycle = container.recordCycles().at(number);
    Profile& profile = container.values().profile();
    std::string text = "Cycle " + std::to_string(number) + ", " + tableDate(cycle.dateTime) + ", " +
                       minutes(container.endTime() - container.startTime()) + " recorded\n";
    if (cycle.flights.empty())
        text += "  No flight\n";
    for (std::size_t i = 0; i < cycle.flights.size(); ++i)
        text += flightText(cycle.flights[i], i + 1);
    const RecordData& data = container.recordData();
    text += eventsText("Exceeded", limitEvents(data, profile), eThresholdLimit, "limit");
    text += eventsText("Lamp", warningEvents(data, profile), 2, "red");
    for (const FaultMatrix& matrix : profile.errorMatrices())
        text += faultsText(data, matrix);
    return text;
}

std::string CommandSummary::flightText(const RecordFlight& flight, std::size_t number)
{
    return "  Flight " + std::to_string(number) + ": take-off " + tableTime(flight.takeOffTime) + ", " +
           minutes(flight.landingTime - flight.takeOffTime) + ", climb " + tableNumber(flight.totalClimb, 0) + " m at " +
           tableNumber(flight.averageClimbRate, 1) + " m/s, fuel " + tableNumber(flight.totalFuel, 1) + " l, take-off distance " +
           tableNumber(flight.takeOffDistance, 0) + " m\n";
}

std::string CommandSummary::eventsText(const char* title, const EventList& list, int worst, const char* worstName)
{
    std::map<std::string, Passed> byParameter;
    for (const Event& event : list.events()) {
        const EventSource& source = list.source(event);
        Passed& passed = byParameter[source.group + "/" + source.parameter];
        ++passed.count;
        if (event.state > passed.state) {
            passed.state = event.state;
            passed.time = event.time;
        }
    }
    std::string text;
    for (const auto& [name, passed] : byParameter) {
        text += std::string("  ") + title + ": " + name + ", " + (passed.state == worst ? worstName : "warning") + " at " + tableTime(passed.time);
        text += passed.count > 1 ? " (" + std::to_string(passed.count) + " events)\n" : "\n";
    }
    return text;
}

std::string CommandSummary::faultsText(const RecordData& data, const FaultMatrix& matrix)
{
    const RecordChannel* pChannel = data.channel(static_cast<uint32_t>(matrix.id));
    uint32_t everSet = 0;
    for (std::size_t i = 0; pChannel && i < pChannel->entries.chunkCount(); ++i) {
        for (const StoredRecord& record : pChannel->entries.chunk(i))
            everSet |= faultWord(record.payload);
    }
    static const char* const kinds[] = {"no kind", "info", "warning", "fault"};
    std::string text;
    for (const auto& [bit, fault] : matrix.bits) {
        if (bit >= 0 && bit < 32 && (everSet >> bit & 1U) != 0)
            text += "  Set: " + matrix.name + ", " + fault.name + " (" + kinds[fault.errorType] + ")\n";
    }
    return text;
}

} // namespace ZARN
