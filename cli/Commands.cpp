#include "cli/Commands.h"

#include "cli/CommandCandump.h"
#include "cli/CommandCsv.h"
#include "cli/CommandEvents.h"
#include "cli/CommandFaults.h"
#include "cli/CommandFlights.h"
#include "cli/CommandGpx.h"
#include "cli/CommandIds.h"
#include "cli/CommandInfo.h"
#include "cli/CommandKml.h"
#include "cli/CommandLive.h"
#include "cli/CommandPath.h"
#include "cli/CommandProfile.h"
#include "cli/CommandReport.h"
#include "cli/CommandScan.h"
#include "cli/CommandSimulate.h"
#include "cli/CommandSummary.h"
#include "cli/CommandTrend.h"
#include "cli/CommandValue.h"

namespace ZARN {

namespace {

template <typename... Each> std::vector<std::unique_ptr<Command>> make(CLI::App& program)
{
    std::vector<std::unique_ptr<Command>> commands;
    (commands.push_back(std::make_unique<Each>(program)), ...);
    return commands;
}

} // namespace

std::vector<std::unique_ptr<Command>> makeCommands(CLI::App& program)
{
    return make<CommandInfo, CommandIds, CommandFlights, CommandEvents, CommandFaults, CommandPath, CommandValue, CommandCsv, CommandKml,
                CommandGpx, CommandCandump, CommandReport, CommandSummary, CommandScan, CommandTrend, CommandLive, CommandProfile,
                CommandSimulate>(program);
}

} // namespace ZARN
