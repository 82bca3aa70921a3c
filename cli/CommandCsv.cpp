#include "cli/CommandCsv.h"

#include "app/SafeFile.h"
#include "export/ExportCsv.h"

#include <unistd.h>

namespace ZARN {

CommandCsv::CommandCsv(CLI::App& program) : DataCommand(program, "csv", "export the decoded data as CSV")
{
    options().add("-o,--output", mOutput, "file to write; \"-\" is standard output", CommandOptions::eRequired);
    options().add("--resolution", mResolution, "milliseconds a row: 100 (default) or 10", CommandOptions::oneOf({"100", "10"}));
    options().add("--separator", mSeparator, "semicolon (default), comma or tab", CommandOptions::eOptional,
                  CommandOptions::oneOf({"semicolon", "comma", "tab"}));
    addSelect("export only this parameter; may be given many times (default: all)");
}

int CommandCsv::runOnData()
{
    CsvExportOptions csv;
    csv.separator = mSeparator == "semicolon" ? ';' : mSeparator == "comma" ? ',' : '\t';
    csv.allParameters = !hasSelection();
    csv.resolution = mResolution;
    ExportCsv exporter(mProfile);
    const auto write = [&](SafeFile&& file) { return exporter.writeFile(file, mContainer.recordData(), csv); };
    const bool written = mOutput == "-" ? write(SafeFile::onDescriptor(STDOUT_FILENO, "standard output")) : write(SafeFile(mOutput));
    return written ? eDone : fail(exporter.error());
}

} // namespace ZARN
