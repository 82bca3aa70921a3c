#include "app/Revision.h"
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

#include <QtGlobal>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <new>
#include <sstream>

#include <fcntl.h>
#include <unistd.h>

namespace ZARN {

namespace {

constexpr const char* kNoMemory = "zarn-cli: there is not enough memory for this work\n";

template <typename... Commands> std::vector<std::unique_ptr<Command>> makeCommands(CLI::App& program)
{
    std::vector<std::unique_ptr<Command>> commands;
    (commands.push_back(std::make_unique<Commands>(program)), ...);
    return commands;
}

/// Prints what was asked for, or says what is wrong with the call.
int answer(const CLI::App& program, const CLI::ParseError& error)
{
    if (error.get_exit_code() == 0) { // --help and --version arrive here
        std::ostringstream text;
        program.exit(error, text, text);
        return Command::print(text.str());
    }
    Command::say(std::string(error.what()) + " (see zarn-cli --help)");
    return eWrongCall;
}

int runProgram(int argc, char** argv)
{
    CLI::App program("Decodes what an engine management unit recorded: card folders to values, tables and files.", "zarn-cli");
    program.set_version_flag("--version", Revision::getRevisionString());
    bool isVerbose = false;
    program.add_flag("--verbose", isVerbose, "tell on standard error what is done");
    const auto commands = makeCommands<CommandInfo, CommandIds, CommandFlights, CommandEvents, CommandFaults, CommandPath, CommandValue,
                                       CommandCsv, CommandKml, CommandGpx, CommandCandump, CommandReport, CommandSummary, CommandScan,
                                       CommandTrend, CommandLive, CommandProfile, CommandSimulate>(program);
    program.footer("Example: zarn-cli csv /media/card -o flight.csv");
    if (argc < 2) {
        std::fputs(program.help().c_str(), stderr);
        return eWrongCall;
    }
    if (argv[1][0] != '-' && std::ranges::none_of(commands, [&](const auto& command) { return command->name() == argv[1]; })) {
        Command::say(std::string(argv[1]) + ": no such subcommand (see zarn-cli --help)");
        return eWrongCall;
    }
    program.require_subcommand(1);
    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return answer(program, error);
    }
    const auto chosen = std::ranges::find_if(commands, [](const auto& command) { return command->isChosen(); });
    if (isVerbose)
        (*chosen)->setVerbose();
    if (!(*chosen)->isVerbose())
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return (*chosen)->run();
}

/// Memory ran out where no exception may pass: nothing can be tidied up, but it is said.
[[noreturn]] void endAtOnce()
{
    try {
        if (const std::exception_ptr reason = std::current_exception())
            std::rethrow_exception(reason);
    } catch (const std::bad_alloc&) {
        std::fputs(kNoMemory, stderr);
        std::_Exit(eFailed);
    } catch (...) {
    }
    std::abort();
}

/// A file that the work opens must not become standard output or error because the caller closed these.
void holdStandardDescriptors()
{
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        if (fcntl(descriptor, F_GETFD) < 0 && errno == EBADF) [[maybe_unused]]
            const int held = open("/dev/null", descriptor == STDERR_FILENO ? O_WRONLY : O_RDONLY); // writing results fails
    }
}

} // namespace

} // namespace ZARN

int main(int argc, char** argv)
{
    ZARN::holdStandardDescriptors();
    // Full disks and closed pipes arrive as failed writes, so that they are said and no partial file stays.
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    std::signal(SIGPIPE, SIG_IGN);
    std::set_terminate(&ZARN::endAtOnce);
    try {
        return ZARN::runProgram(argc, argv);
    } catch (const std::bad_alloc&) {
        std::fputs(ZARN::kNoMemory, stderr);
        return ZARN::eFailed;
    }
}
