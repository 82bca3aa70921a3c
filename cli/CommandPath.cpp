#include "cli/CommandPath.h"

#include "cli/JsonWriter.h"
#include "cli/TextTable.h"

namespace ZARN {

CommandPath::CommandPath(CLI::App& program)
    : DataCommand(program, "path", "print the flight path, a point every half second",
                  "zarn-cli path /media/card --flight 1 --json")
{
    addJson();
}

int CommandPath::runOnData()
{
    const std::vector<FlightPathPoint>& points = mContainer.flightPath();
    if (!mJson) {
        const auto title = [this](const char* name, const char* key) { return tableTitle(name, mProfile.getParameterFromZarnType(key).unit); };
        TextTable table({"Time [h:m:s]", "Latitude [deg]", "Longitude [deg]", title("Altitude", "Altitude"), title("Ground speed", "GroundSpeed"),
                         title("Track", "Track")});
        for (const FlightPathPoint& point : points) {
            table.addRow({tableTime(point.time), tableNumber(point.latitude, 6), tableNumber(point.longitude, 6),
                          tableNumber(point.altitude, 1), tableNumber(point.groundSpeed, 1), tableNumber(point.track, 1)});
        }
        return print(table.text());
    }
    JsonWriter writer;
    writer.beginAnswer().key("points").beginArray();
    for (const FlightPathPoint& point : points) {
        writer.beginArray().value(point.time).value(point.latitude).value(point.longitude);
        writer.value(point.altitude).value(point.groundSpeed).value(point.track).endArray();
    }
    return print(writer.endArray().endAnswer());
}

} // namespace ZARN
