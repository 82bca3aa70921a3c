#include "cli/CommandKml.h"

#include "app/SafeFile.h"
#include "export/ExportKml.h"

#include <unistd.h>

namespace ZARN {

CommandKml::CommandKml(CLI::App& program) : DataCommand(program, "kml", "export the flight path as KML")
{
    options().add("-o,--output", mOutput, "file to write; \"-\" is standard output", CommandOptions::eRequired);
    addSelect("place placemarks with this parameter's values; may be given many times (default: none)");
    options().addMany("--set", mSettings, "KEY=VALUE: a setting of the export, for example KmlTimeStamp=2; may be given many times",
                      &CommandKml::checkSetting);
}

std::string CommandKml::checkSetting(const std::string& text)
{
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos)
        return text + ": no KEY=VALUE";
    const std::string key = text.substr(0, equals);
    if (!KmlExportOptions::isKey(key))
        return key + ": the KML export has no such setting";
    const bool isInterval = key == "KmlTimeStamp" || key == "KmlPlaceMarkIntervall";
    return isInterval && std::atoi(text.c_str() + equals + 1) < 1 ? key + ": no number of seconds from 1 on" : std::string();
}

int CommandKml::runOnData()
{
    Property settings(Console::standardError()); // the defaults and what the call says, never the user's file
    for (const std::string& text : mSettings) {
        const std::size_t equals = text.find('=');
        settings.setString(text.substr(0, equals), text.substr(equals + 1));
    }
    KmlExportOptions kml;
    kml.read(settings);
    ExportKml exporter(Console::standardError(), mProfile, cycle().dateTime);
    const auto write = [&](SafeFile&& file) { return exporter.exportData(mContainer.recordData(), kml, file); };
    const bool written = mOutput == "-" ? write(SafeFile::onDescriptor(STDOUT_FILENO, "standard output")) : write(SafeFile(mOutput));
    return written ? eDone : fail(exporter.error());
}

} // namespace ZARN
