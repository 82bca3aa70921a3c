#include "cli/CommandCandump.h"

#include "export/ExportCandump.h"

namespace ZARN {

CommandCandump::CommandCandump(CLI::App& program)
    : DataCommand(program, "candump", "export the records as a log of a CAN bus, as can-utils write and replay it",
                  "zarn-cli candump /media/card --flight 1 -o flight.log")
{
    addOutput();
}

int CommandCandump::runOnData()
{
    ExportCandump exporter;
    const int status = writeOutput([&](SafeFile& file) {
        exporter.exportData(mContainer, flightSpan(), file);
        return exporter.error();
    });
    if (status == eDone && exporter.leftOut() > 0)
        say(card() + ": records left out, since no frame has their identifier: " + std::to_string(exporter.leftOut()));
    return status;
}

} // namespace ZARN
