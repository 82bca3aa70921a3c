#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace CLI {
class App;
class ParseError;
} // namespace CLI

namespace ZARN {

class Command;

/// The batch program as it is called: finds the subcommand that a call is for and lets it work, answers what is asked about calls, and says
/// what is wrong with one.
class Program {
public:
    /// Declares the subcommands, whose options refer to the app.
    using MakeCommands = std::function<std::vector<std::unique_ptr<Command>>(CLI::App&)>;

    /// @param arguments of the call, behind the program's name
    Program(std::vector<std::string> arguments, const MakeCommands& makeCommands);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// @return the exit status.
    int run();

private:
    [[nodiscard]] std::vector<std::string> names() const;
    int runSubcommand();
    int help(const std::string& subcommand) const;
    int complete() const;
    int refuse(const CLI::ParseError& error) const;
    int refuseSubcommand(const std::string& name) const;
    [[nodiscard]] std::string unknownOption() const;

    const std::vector<std::string> mArguments;
    bool mVerbose = false;
    std::unique_ptr<CLI::App> mpApp;
    std::vector<std::unique_ptr<Command>> mCommands;
};

} // namespace ZARN
