#pragma once

#include "analysis/EventList.h"
#include "cli/CardCommand.h"

namespace ZARN {

/// `summary`: for people, a card on one page: what flew, which limits were passed, which lamps were lit, which faults were set.
class CommandSummary : public CardCommand {
public:
    explicit CommandSummary(CLI::App& program);

private:
    int runOnCard() override;
    [[nodiscard]] std::string cycleText(uint32_t number);
    [[nodiscard]] std::string lengthText(const RecordCycle& cycle) const;
    [[nodiscard]] static std::string flightText(const RecordFlight& flight, std::size_t number);
    [[nodiscard]] static std::string eventsText(const EventList& list, const char* worst, const char* lesser);
    [[nodiscard]] std::string faultsText() const;
};

} // namespace ZARN
