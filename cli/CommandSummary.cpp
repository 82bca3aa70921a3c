#include "cli/CommandSummary.h"

#include "analysis/LimitEvents.h"
#include "analysis/WarningEvents.h"
#include "cli/VisibleText.h"
#include "report/ReportFaults.h"

#include <limits>
#include <map>

namespace ZARN {

namespace {

/// The worst that one parameter reached, and when first.
struct Passed {
    int state = 0;
    double time = 0.0; // seconds
};

/// "  Label: item, item ..."; nothing without items.
std::string line(const std::string& label, const std::vector<std::string>& items)
{
    std::string text;
    for (const std::string& item : items)
        text += (text.empty() ? "  " + visibleText(label) + ": " : ", ") + visibleText(item);
    return text.empty() ? text : text + "\n";
}

std::string minutes(double seconds)
{
    return tableNumber(seconds / 60, 0) + " min";
}

} // namespace

CommandSummary::CommandSummary(CLI::App& program)
    : CardCommand(program, "summary", "tell on one page what happened on a card", "zarn-cli summary /media/card")
{
}

int CommandSummary::runOnCard()
{
    std::string text;
    for (const auto& [number, cycle] : mContainer.recordCycles()) {
        if (chosenCycle().value_or(number) != number)
            continue;
        if (!load(number, 0))
            return eFailed;
        text += (text.empty() ? "" : "\n") + cycleText(number);
    }
    return print(text);
}

std::string CommandSummary::cycleText(uint32_t number)
{
    const RecordCycle& cycle = mContainer.recordCycles().at(number);
    std::string text = "Cycle " + std::to_string(number) + ", " + tableDate(cycle.dateTime) + ", " +
                       lengthText(cycle) + "\n";
    if (cycle.flights.empty())
        text += "  No flight\n";
    for (std::size_t i = 0; i < cycle.flights.size(); ++i)
        text += flightText(cycle.flights[i], i + 1);
    const RecordData& data = mContainer.recordData();
    text += eventsText(limitEvents(data, mProfile), "Limit passed", "Warning");
    text += eventsText(warningEvents(data, mProfile), "Lamp red", "Lamp yellow");
    return text + faultsText();
}

std::string CommandSummary::lengthText(const RecordCycle& cycle) const
{
    if (mContainer.recordData().count() == 0)
        return "no record";
    return cycle.hasSoundTimes() ? minutes(mContainer.endTime() - mContainer.startTime()) + " recorded" : "damaged, length unknown";
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

std::string CommandSummary::faultsText() const
{
    constexpr double always = std::numeric_limits<double>::infinity();
    const std::vector<ReportFault> present = presentFaults(mProfile.model(), mContainer.recordData(), -always, always);
    std::string text;
    for (const FaultMatrix& matrix : mProfile.model().errorMatrices) {
        std::vector<std::string> faults;
        std::vector<std::string> warnings;
        for (const ReportFault& fault : present) {
            if (fault.pMatrix == &matrix && fault.pBit->errorType != eErrorInfo)
                (fault.pBit->errorType == eErrorFault ? faults : warnings).push_back(fault.pBit->name);
        }
        text += line(matrix.name + ", faults", faults) + line(matrix.name + ", warnings", warnings);
    }
    return text;
}

} // namespace ZARN
