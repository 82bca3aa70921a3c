#include "cli/CommandSimulate.h"

namespace ZARN {

CommandSimulate::CommandSimulate(CLI::App& program)
    : Command(program, "simulate", "write a demo card", "zarn-cli simulate demo-card --hours 2")
{
    options().add("DIR", mDirectory, "the card folder to make", CommandOptions::eRequired);
    options().add("--hours", mCard.hours, "recorded hours, at least (default: the story of three power cycles, a good hour)",
                  CommandOptions::between(0, 10000));
    options().add("--seed", mCard.seed, "the same seed gives the same bytes (default: 1)");
    options().addFlag("--big-endian", mCard.bigEndian, "write the files in the other byte order");
}

int CommandSimulate::run()
{
    std::string error;
    return DemoCard().write(mDirectory, mCard, error) ? eDone : fail(error);
}

} // namespace ZARN
