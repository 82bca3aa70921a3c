#include "cli/CommandSummary.h"

#include "analysis/FaultTimeline.h"
#include "analysis/LimitEvents.h"
#include "analysis/WarningEvents.h"
#include "app/Progress.h"
#include "cli/Resources.h"

#include <map>

namespace ZARN {

namespace {

/// The worst that one parameter reached, and when first.
struct Passed {
    int state = 0;
    double time = 0.0; // seconds
};

/// "  Label: item, item ..."; nothing without items.
std::string line(const char* label, const std::vector<std::string>& items)
{
    std::string text;
    for (const std::string& item : items)
        text += (text.empty() ? std::string("  ") + label + ": " : ", ") + item;
    return text.empty() ? text : text + "\n";
}

std::string minutes(double seconds)
{
    return tableNumber(seconds / 60, 0) + " min";
}

} // namespace

CommandSummary::CommandSummary(CLI::App& program) : Command(program, "summary", "tell on one page what happened on a card")
{
    options().add("CARD", mCard, "the card folder", CommandOptions::eRequired);
    options().add("--profile", mProfileFile, "profile file (default: the shipped profile \"915\")");
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
    text += eventsText(limitEvents(data, profile), "Limit passed", "Warning");
    text += eventsText(warningEvents(data, profile), "Lamp red", "Lamp yellow");
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

std::string CommandSummary::eventsText(const EventList& list, const char* worst, const char* lesser)
{
    constexpr int worstState = 2; // of thresholds and lamps alike
    std::map<std::pair<std::string, std::string>, Passed> byParameter;
    for (const Event& event : list.events()) {
        const EventSource& source = list.source(event);
        Passed& passed = byParameter[{source.group, source.parameter}];
        if (event.state > passed.state)
            passed = {event.state, event.time};
    }
    std::vector<std::string> worstOnes;
    std::vector<std::string> lesserOnes;
    for (const auto& [name, passed] : byParameter)
        (passed.state == worstState ? worstOnes : lesserOnes).push_back(name.second + " " + tableTime(passed.time).substr(0, 8));
    return line(worst, worstOnes) + line(lesser, lesserOnes);
}

std::string CommandSummary::faultsText(const RecordData& data, const FaultMatrix& matrix)
{
    const RecordChannel* pChannel = data.channel(static_cast<uint32_t>(matrix.id));
    uint32_t everSet = 0;
    for (std::size_t i = 0; pChannel && i < pChannel->entries.chunkCount(); ++i) {
        for (const StoredRecord& record : pChannel->entries.chunk(i))
            everSet |= faultWord(record.payload);
    }
    std::vector<std::string> faults;
    std::vector<std::string> warnings;
    for (const auto& [bit, fault] : matrix.bits) {
        if (bit < 0 || bit > 31 || (everSet >> bit & 1U) == 0)
            continue;
        if (fault.errorType == eErrorFault)
            faults.push_back(fault.name);
        else if (fault.errorType == eErrorWarning)
            warnings.push_back(fault.name);
    }
    return line((matrix.name + ", faults").c_str(), faults) + line((matrix.name + ", warnings").c_str(), warnings);
}

} // namespace ZARN
