#include "cli/Command.h"
#include "cli/Commands.h"
#include "cli/Program.h"
#include "cli/StartUp.h"

int main(int argc, char** argv)
{
    return ZARN::startUp(argc, argv,
                         [](std::vector<std::string> arguments) { return ZARN::Program(std::move(arguments), &ZARN::makeCommands).run(); });
}
