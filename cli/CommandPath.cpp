#include "cli/CommandPath.h"

#include "cli/JsonWriter.h"
#include "cli/Output.h"
#include "cli/TextTable.h"

namespace ZARN {

CommandPath::CommandPath(CLI::App& program)
    : DataCommand(program, "path", "print the flight path, a point every half second", "zarn-cli path /media/card --flight 1 --json")
{
    mContainer.setPathWanted(true);
    addJson();
}

int CommandPath::runOnData()
{
    Output output;
    mJson ? writeJson(output) : writeTable(output);
    return output.finish();
}

void CommandPath::writeTable(Output& output) const
{
    const auto title = [this](const char* name, const char* key) {
        return tableTitle(name, mProfile.context().unitOf(mProfile.model().ofZarnType(key)));
    };
    const std::vector<std::string> header{"Time [h:m:s]", "Latitude [deg]", "Longitude [deg]", title("Altitude", "Altitude"),
                                          title("Ground speed", "GroundSpeed"), title("Track", "Track")};
    const auto cells = [](const FlightPathPoint& point) {
        return std::vector{tableTime(point.time),           tableNumber(point.latitude, 6),    tableNumber(point.longitude, 6),
                           tableNumber(point.altitude, 1), tableNumber(point.groundSpeed, 1), tableNumber(point.track, 1)};
    };
    TableColumns columns;
    columns.measure(header);
    for (const FlightPathPoint& point : mContainer.flightPath())
        columns.measure(cells(point));
    output.write(columns.line(header));
    for (const FlightPathPoint& point : mContainer.flightPath()) {
        if (!output.isGood())
            break;
        output.write(columns.line(cells(point)));
    }
}

void CommandPath::writeJson(Output& output) const
{
    JsonWriter writer(output);
    writer.beginAnswer().key("points").beginArray();
    for (const FlightPathPoint& point : mContainer.flightPath()) {
        if (!output.isGood())
            break;
        writer.beginArray().value(point.time).value(point.latitude).value(point.longitude);
        writer.value(point.altitude).value(point.groundSpeed).value(point.track).endArray();
    }
    output.write(writer.endArray().endAnswer());
}

} // namespace ZARN
