#include "cli/CommandGpx.h"

#include "export/ExportGpx.h"

namespace ZARN {

CommandGpx::CommandGpx(CLI::App& program)
    : DataCommand(program, "gpx", "export the flight path as a GPX track, altitudes in metres",
                  "zarn-cli gpx /media/card --flight 1 -o flight.gpx")
{
    addOutput();
}

int CommandGpx::runOnData()
{
    ExportGpx exporter;
    return writeOutput([&](SafeFile& file) {
        exporter.exportData(mContainer.loaded(), file);
        return exporter.error();
    });
}

} // namespace ZARN
