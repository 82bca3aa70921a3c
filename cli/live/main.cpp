#include "cli/Program.h"
#include "cli/StartUp.h"
#include "cli/live/LiveCommand.h"

// What zarn-cli becomes for its subcommand "live", with the same arguments.
int main(int argc, char** argv)
{
    return ZARN::startUp(argc, argv, [](std::vector<std::string> arguments) {
        const auto make = [](CLI::App& program) {
            std::vector<std::unique_ptr<ZARN::Command>> commands;
            commands.push_back(std::make_unique<ZARN::LiveCommand>(program));
            return commands;
        };
        return ZARN::Program(std::move(arguments), make).run();
    });
}
