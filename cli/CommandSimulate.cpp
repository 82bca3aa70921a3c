#include "cli/CommandSimulate.h"

namespace ZARN {

CommandSimulate::CommandSimulate(CLI::App& program) : Command(program, "simulate", "write a demo card")
{
    options().add_option("DIR", mDirectory, "the card folder to make")->required();
    options().add_option("--hours", mCard.hours, "recorded hours, at least (default: the story of three power cycles, a good hour)")
        ->check(CLI::Range(0.0, 10000.0));
    options().add_option("--seed", mCard.seed, "the same seed gives the same bytes (default: 1)");
    options().add_flag("--big-endian", mCard.bigEndian, "write the files in the other byte order");
}

int CommandSimulate::run()
{
    std::string error;
    return DemoCard().write(mDirectory, mCard, error) ? eDone : fail(error);
}

} // namespace ZARN
