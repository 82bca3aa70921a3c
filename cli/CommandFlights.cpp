#include "cli/CommandFlights.h"

#include "cli/JsonWriter.h"
#include "cli/TextTable.h"

namespace ZARN {

namespace {

struct Figure {
    const char* key;
    const char* label;
    double RecordFlight::*value;
    int decimals;
};

constexpr Figure kFigures[] = {
    {"minAltitude", "Minimum altitude [m]", &RecordFlight::minAltitude, 1},
    {"maxAltitude", "Maximum altitude [m]", &RecordFlight::maxAltitude, 1},
    {"totalClimb", "Total climb [m]", &RecordFlight::totalClimb, 1},
    {"averageClimbRate", "Average climb rate [m/s]", &RecordFlight::averageClimbRate, 2},
    {"averageDescendRate", "Average descend rate [m/s]", &RecordFlight::averageDescendRate, 2},
    {"maxGroundSpeed", "Max ground speed [km/h]", &RecordFlight::maxGroundSpeed, 1},
    {"fuelA", "Fuel lane A [l]", &RecordFlight::fuelA, 2},
    {"fuelB", "Fuel lane B [l]", &RecordFlight::fuelB, 2},
    {"totalFuel", "Total fuel [l]", &RecordFlight::totalFuel, 2},
    {"timePer100m", "Time / 100 m [s]", &RecordFlight::timePer100m, 1},
    {"fuelPer100m", "Fuel / 100 m [l]", &RecordFlight::fuelPer100m, 3},
    {"takeOffDistance", "Take-off distance [m]", &RecordFlight::takeOffDistance, 0},
    {"takeOffDistance15m", "Take-off distance 15 m [m]", &RecordFlight::takeOffDistance15m, 0},
};

} // namespace

void writeFlights(JsonWriter& writer, const std::vector<RecordFlight>& flights)
{
    writer.key("flights").beginArray();
    int number = 0;
    for (const RecordFlight& flight : flights) {
        writer.beginObject().member("number", ++number).member("dateTime", flight.dateTime);
        writer.member("startTime", flight.startTime).member("endTime", flight.endTime);
        writer.member("takeOffTime", flight.takeOffTime).member("landingTime", flight.landingTime);
        for (const Figure& figure : kFigures)
            writer.member(figure.key, flight.*figure.value);
        writer.endObject();
    }
    writer.endArray();
}

CommandFlights::CommandFlights(CLI::App& program)
    : DataCommand(program, "flights", "list the flights of a cycle with their tow statistics", "zarn-cli flights /media/card --cycle 2")
{
    addJson();
}

int CommandFlights::runOnData()
{
    return print(mJson ? json() : tables());
}

std::string CommandFlights::json() const
{
    JsonWriter writer;
    writer.beginAnswer().member("cycle", *mContainer.loadedCycleNumber()).member("dateTime", mContainer.dateTime());
    writer.member("startTime", mContainer.startTime()).member("endTime", mContainer.endTime());
    writeFlights(writer, cycle().flights);
    return writer.endAnswer();
}

std::string CommandFlights::tables() const
{
    const std::vector<RecordFlight>& flights = cycle().flights;
    const std::string span = cycle().hasSoundTimes() ? tableTime(mContainer.startTime()) + " to " + tableTime(mContainer.endTime())
                                                     : "damaged, length unknown";
    const std::string text = "Cycle " + std::to_string(*mContainer.loadedCycleNumber()) + ", " + tableDate(cycle().dateTime) + ", " + span + "\n";
    if (flights.empty())
        return text + "No flight in this cycle\n";
    std::vector<std::string> header{"Flight"};
    std::vector<std::string> dates{"Take-off [date]"};
    std::vector<std::string> takeOffs{"Take-off [h:m:s]"};
    std::vector<std::string> landings{"Landing [h:m:s]"};
    for (const RecordFlight& flight : flights) {
        header.push_back(std::to_string(header.size()));
        dates.push_back(tableDate(flight.dateTime));
        takeOffs.push_back(tableTime(flight.takeOffTime));
        landings.push_back(tableTime(flight.landingTime));
    }
    TextTable table(header);
    table.addRow(dates);
    table.addRow(takeOffs);
    table.addRow(landings);
    for (const Figure& figure : kFigures) {
        std::vector<std::string> row{figure.label};
        for (const RecordFlight& flight : flights)
            row.push_back(tableNumber(flight.*figure.value, figure.decimals));
        table.addRow(row);
    }
    return text + "\n" + table.text();
}

} // namespace ZARN
