#pragma once

#include "analysis/EventList.h"
#include "cli/Command.h"

namespace ZARN {

/// `summary`: for people, a card on one page: what flew, which limits were passed, which lamps were lit, which faults were set.
class CommandSummary : public Command {
public:
    explicit CommandSummary(CLI::App& program);
    int run() override;

private:
    [[nodiscard]] static std::string cycleText(CardContainer& container, uint32_t number);
    [[nodiscard]] static std::string flightText(const RecordFlight& flight, std::size_t number);
    [[nodiscard]] static std::string eventsText(const EventList& list, const char* worst, const char* lesser);
    [[nodiscard]] static std::string faultsText(const RecordData& data, const FaultMatrix& matrix);

    std::string mCard;
    std::string mProfileFile;
};

} // namespace ZARN
