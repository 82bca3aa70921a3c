#include "cli/CommandGpx.h"

#include "app/SafeFile.h"
#include "export/ExportGpx.h"

#include <unistd.h>

namespace ZARN {

CommandGpx::CommandGpx(CLI::App& program) : DataCommand(program, "gpx", "export the flight path as a GPX track, altitudes in metres")
{
    options().add("-o,--output", mOutput, "file to write; \"-\" is standard output", CommandOptions::eRequired);
}

int CommandGpx::runOnData()
{
    ExportGpx exporter(mProfile);
    const auto write = [&](SafeFile&& file) { return exporter.exportData(mContainer, file); };
    const bool written = mOutput == "-" ? write(SafeFile::onDescriptor(STDOUT_FILENO, "standard output")) : write(SafeFile(mOutput));
    return written ? eDone : fail(exporter.error());
}

} // namespace ZARN
