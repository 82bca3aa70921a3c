#include "cli/CommandCsv.h"

#include "export/CsvForm.h"
#include "export/ExportCsv.h"

namespace ZARN {

CommandCsv::CommandCsv(CLI::App& program)
    : DataCommand(program, "csv", "export the decoded data as CSV", "zarn-cli csv /media/card --flight 1 -o flight.csv")
{
    addOutput();
    options().add("--resolution", mResolution, "milliseconds a row: 100 (default) or 10", CommandOptions::oneOf({"100", "10"}));
    options().add("--separator", mSeparator, "semicolon (default), comma or tab", CommandOptions::eOptional,
                  CommandOptions::oneOf({"semicolon", "comma", "tab"}));
    options().add("--locale", mLocale, "for spreadsheets: \"system\" as on this computer, or a locale such as de_DE (default: the fixed form)",
                  CommandOptions::eOptional, &CommandCsv::checkLocale);
    addSelect("export only this parameter; may be given many times (default: all)");
}

std::string CommandCsv::checkLocale(const std::string& name)
{
    return CsvForm::of(QString::fromStdString(name), ';') ? "" : name + ": no locale that is known";
}

int CommandCsv::runOnData()
{
    if (isGiven("--locale") && isGiven("--separator")) {
        say("--separator: a locale has its own (see zarn-cli csv --help)");
        return eWrongCall;
    }
    CsvExportOptions csv;
    csv.separator = mSeparator == "semicolon" ? ';' : mSeparator == "comma" ? ',' : '\t';
    csv.allParameters = !hasSelection();
    csv.resolution = mResolution;
    csv.span = flightSpan();
    csv.locale = QString::fromStdString(mLocale);
    ExportCsv exporter(mProfile, mProfile.selection(), mContainer.loaded().powerUp);
    return writeOutput([&](SafeFile& file) {
        exporter.writeFile(file, mContainer.recordData(), csv);
        return exporter.error();
    });
}

} // namespace ZARN
