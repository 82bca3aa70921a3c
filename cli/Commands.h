#pragma once

#include <memory>
#include <vector>

namespace CLI {
class App;
}

namespace ZARN {

class Command;

/// All subcommands of the batch program, in the order of its help.
std::vector<std::unique_ptr<Command>> makeCommands(CLI::App& program);

} // namespace ZARN
