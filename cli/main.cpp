#include "app/Revision.h"
#include "cli/CommandCsv.h"
#include "cli/CommandEvents.h"
#include "cli/CommandFaults.h"
#include "cli/CommandFlights.h"
#include "cli/CommandGpx.h"
#include "cli/CommandInfo.h"
#include "cli/CommandKml.h"
#include "cli/CommandPath.h"
#include "cli/CommandProfile.h"
#include "cli/CommandReport.h"
#include "cli/CommandSimulate.h"
#include "cli/CommandSummary.h"
#include "cli/CommandValue.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <csignal>

namespace ZARN {

namespace {

template <typename... Commands> std::vector<std::unique_ptr<Command>> makeCommands(CLI::App& program)
{
    std::vector<std::unique_ptr<Command>> commands;
    (commands.push_back(std::make_unique<Commands>(program)), ...);
    return commands;
}

int runProgram(int argc, char** argv)
{
    CLI::App program("Decodes what an engine management unit recorded: card folders to values, tables and files.", "zarn-cli");
    program.set_version_flag("--version", Revision::getRevisionString());
    program.footer("Example: zarn-cli csv /media/card -o flight.csv");
    const auto commands = makeCommands<CommandInfo, CommandFlights, CommandEvents, CommandFaults, CommandPath, CommandValue, CommandCsv,
                                       CommandKml, CommandGpx, CommandReport, CommandSummary, CommandProfile, CommandSimulate>(program);
    if (argc < 2) {
        std::fputs(program.help().c_str(), stderr);
        return eWrongCall;
    }
    if (argv[1][0] != '-' && std::ranges::none_of(commands, [&](const auto& command) { return command->name() == argv[1]; })) {
        std::fprintf(stderr, "zarn-cli: %s: no such subcommand (see zarn-cli --help)\n", argv[1]);
        return eWrongCall;
    }
    program.require_subcommand(1);
    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) { // --help and --version arrive here too
            program.exit(error);
            return eDone;
        }
        std::string reason = error.what();
        std::ranges::replace(reason, '\n', ' ');
        std::fprintf(stderr, "zarn-cli: %s (see zarn-cli --help)\n", reason.c_str());
        return eWrongCall;
    }
    for (const auto& command : commands) {
        if (command->isChosen())
            return command->run();
    }
    return eWrongCall;
}

} // namespace

} // namespace ZARN

int main(int argc, char** argv)
{
    // Full disks and closed pipes arrive as failed writes, so that they are said and no partial file stays.
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    std::signal(SIGPIPE, SIG_IGN);
    return ZARN::runProgram(argc, argv);
}
