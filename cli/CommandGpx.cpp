#include "cli/CommandGpx.h"

#include "export/ExportGpx.h"

namespace ZARN {

CommandGpx::CommandGpx(CLI::App& program)
    : DataCommand(program, "gpx", "export the flight path as a GPX track, altitudes in metres",
                  "zarn-cli gpx /media/card --flight 1 -o flight.gpx")
{
    mContainer.setPathWanted(true);
    addOutput();
    options().addFlag("--track-per-flight", mTrackPerFlight, "one track a flight (default: one of the whole cycle)");
}

int CommandGpx::runOnData()
{
    ExportGpx exporter;
    return writeOutput([&](SafeFile& file) {
        exporter.exportData(mContainer.loaded(), file, mTrackPerFlight ? ExportGpx::eTrackPerFlight : ExportGpx::eOneTrack);
        return exporter.error();
    });
}

} // namespace ZARN
