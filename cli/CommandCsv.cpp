#include "cli/CommandCsv.h"

#include "export/ExportCsv.h"

namespace ZARN {

CommandCsv::CommandCsv(CLI::App& program)
    : DataCommand(program, "csv", "export the decoded data as CSV", "zarn-cli csv /media/card --flight 1 -o flight.csv")
{
    addOutput();
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
    csv.span = flightSpan();
    ExportCsv exporter(mProfile, mProfile.selection());
    return writeOutput([&](SafeFile& file) {
        exporter.writeFile(file, mContainer.recordData(), csv);
        return exporter.error();
    });
}

} // namespace ZARN
