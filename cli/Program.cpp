#include "cli/Program.h"

#include "app/Revision.h"
#include "cli/Command.h"
#include "cli/Completion.h"
#include "cli/Operands.h"
#include "cli/Suggestion.h"

#include <QtGlobal>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <sstream>

namespace ZARN {

namespace {

constexpr const char* kHelp = "help";
constexpr const char* kComplete = "--complete"; // for shells only, and so in no help
constexpr const char* kSeeHelp = " (see zarn-cli --help)";

} // namespace

Program::Program(std::vector<std::string> arguments, const MakeCommands& makeCommands)
    : mArguments(std::move(arguments)),
      mpApp(std::make_unique<CLI::App>("Decodes what an engine management unit recorded: card folders to values, tables and files.",
                                       "zarn-cli"))
{
    mpApp->set_version_flag("--version", Revision::getRevisionString());
    mpApp->add_flag("--verbose", mVerbose, "tell on standard error what is done");
    mCommands = makeCommands(*mpApp);
    mpApp->footer("Example: zarn-cli csv /media/card -o flight.csv");
    mpApp->require_subcommand(1);
}

Program::~Program() = default;

int Program::run()
{
    if (mArguments.empty()) {
        std::fputs(mpApp->help().c_str(), stderr);
        return eWrongCall;
    }
    const std::string& first = mArguments.front();
    if (first == kComplete)
        return complete();
    if (first == kHelp && mArguments.size() <= 2)
        return help(mArguments.size() == 2 ? mArguments.back() : std::string());
    if (!first.starts_with('-') && std::ranges::count(names(), first) == 0)
        return refuseSubcommand(first);
    try {
        std::vector<std::string> arguments = Operands::marked(mArguments);
        std::ranges::reverse(arguments); // as the library wants them
        mpApp->parse(std::move(arguments));
    } catch (const CLI::ParseError& error) {
        return refuse(error);
    }
    return runSubcommand();
}

std::vector<std::string> Program::names() const
{
    std::vector<std::string> names;
    for (const auto& command : mCommands)
        names.push_back(command->name());
    return names;
}

int Program::runSubcommand()
{
    const auto chosen = std::ranges::find_if(mCommands, [](const auto& command) { return command->isChosen(); });
    if (mVerbose)
        (*chosen)->setVerbose();
    if (!(*chosen)->isVerbose())
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    (*chosen)->setCall(mArguments);
    return (*chosen)->run();
}

int Program::help(const std::string& subcommand) const
{
    if (subcommand.empty() || subcommand.starts_with('-'))
        return Command::print(mpApp->help());
    const CLI::App* pSubcommand = Completion::subcommand(*mpApp, subcommand);
    return pSubcommand ? Command::print(pSubcommand->help("zarn-cli")) : refuseSubcommand(subcommand);
}

int Program::complete() const
{
    std::string text;
    for (const std::string& candidate : Completion(*mpApp).candidates({mArguments.begin() + 1, mArguments.end()}))
        text += candidate + "\n";
    return Command::print(text);
}

int Program::refuse(const CLI::ParseError& error) const
{
    if (error.get_exit_code() == 0) { // --help and --version arrive here
        std::ostringstream text;
        mpApp->exit(error, text, text);
        return Command::print(text.str());
    }
    const std::string option = unknownOption();
    Command::say((option.empty() ? Operands::withoutMarks(error.what()) : option) + kSeeHelp);
    return eWrongCall;
}

int Program::refuseSubcommand(const std::string& name) const
{
    Command::say(name + ": no such subcommand" + suggestion(name, names()) + kSeeHelp);
    return eWrongCall;
}

/// The library complains of what a misspelt option leaves undone as well, and of that first.
std::string Program::unknownOption() const
{
    const std::vector<CLI::App*> chosen = mpApp->get_subcommands();
    if (chosen.empty())
        return {};
    const std::vector<std::string> known = Completion::optionNames(*chosen.front());
    for (const std::string& argument : mArguments) {
        const std::string name = argument.substr(0, argument.find('='));
        if (name == "--")
            break;
        if (name.starts_with("--") && std::ranges::count(known, name) == 0)
            return name + ": no such option of " + chosen.front()->get_name() + suggestion(name, known);
    }
    return {};
}

} // namespace ZARN
