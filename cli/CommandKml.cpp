#include "cli/CommandKml.h"

#include "cli/Suggestion.h"
#include "export/ExportKml.h"

#include <algorithm>

namespace ZARN {

CommandKml::CommandKml(CLI::App& program)
    : DataCommand(program, "kml", "export the flight path as KML",
                  "zarn-cli kml /media/card --select Altitude --set KmlTimeStamp=2 -o flight.kml")
{
    addOutput();
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
    const std::vector<std::string> keys = KmlExportOptions::keys();
    if (std::ranges::find(keys, key) != keys.end())
        return KmlExportOptions::problem(key, text.substr(equals + 1));
    return key + ": the KML export has no such setting" + suggestion(key, keys);
}

int CommandKml::runOnData()
{
    Property settings(console()); // the defaults and what the call says, never the user's file
    for (const std::string& text : mSettings) {
        const std::size_t equals = text.find('=');
        settings.setString(text.substr(0, equals), text.substr(equals + 1));
    }
    KmlExportOptions kml;
    kml.read(settings);
    kml.span = flightSpan();
    if (kml.track)
        mContainer.calcFlightPath();
    ExportKml exporter(console(), mProfile, mProfile.selection(), cycle().dateTime);
    const LoadedCard loaded = mContainer.loaded();
    exporter.setTracksOf(loaded);
    const int status = writeOutput([&](SafeFile& file) {
        exporter.exportData(mContainer.recordData(), kml, file);
        return exporter.error();
    });
    if (status == eDone && !exporter.hasPosition())
        say(card() + ": no position recorded");
    else if (status == eDone && kml.track && !exporter.hasTracks())
        say(card() + ": no track with times: " + (loaded.powerUp.isValid() ? "the profile knows no flight path" : "the unit had no clock"));
    return status;
}

} // namespace ZARN
