#include "cli/CommandIds.h"

#include "cli/JsonWriter.h"
#include "cli/TextTable.h"

#include <algorithm>
#include <cstdio>

namespace ZARN {

namespace {

constexpr std::size_t kTypeByte = 1; // of a CANaerospace message

/// Records a second, between the first and the last; 0 where that is no time.
double rate(uint64_t intervals, double seconds)
{
    return seconds > 0.0 ? static_cast<double>(intervals) / seconds : 0.0;
}

std::string joined(const std::vector<std::string>& texts)
{
    std::string line;
    for (const std::string& text : texts)
        line += (line.empty() ? "" : ", ") + text;
    return line;
}

std::string hexadecimal(uint32_t identifier)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%03X", identifier);
    return text;
}

} // namespace

CommandIds::CommandIds(CLI::App& program)
    : CardCommand(program, "ids", "list the CAN identifiers on a card, with what the profile knows of them; without --cycle those of all cycles",
                  "zarn-cli ids /media/card")
{
    addJson();
}

int CommandIds::runOnCard()
{
    Identifiers identifiers;
    for (const auto& [number, cycle] : mContainer.recordCycles()) {
        if (chosenCycle().value_or(number) != number)
            continue;
        if (!load(number, 0))
            return eFailed;
        add(identifiers, mContainer.recordData());
    }
    return print(mJson ? json(identifiers) : table(identifiers));
}

void CommandIds::add(Identifiers& identifiers, const RecordData& data)
{
    for (const auto& [number, channel] : data.channels()) {
        Identifier& identifier = identifiers[number];
        uint64_t earliest = UINT64_MAX; // ticks; a damaged recording need not ascend
        uint64_t latest = 0;
        for (std::size_t c = 0; c < channel.entries.chunkCount(); ++c) {
            for (const StoredRecord& record : channel.entries.chunk(c)) {
                earliest = std::min(earliest, record.ticks);
                latest = std::max(latest, record.ticks);
                identifier.types.insert(record.payload[kTypeByte]);
            }
        }
        const double first = StoredRecord{{}, 0, 0, 0, 0, 0, earliest}.time();
        const double last = StoredRecord{{}, 0, 0, 0, 0, 0, latest}.time();
        identifier.first = identifier.count == 0 ? first : std::min(identifier.first, first);
        identifier.last = identifier.count == 0 ? last : std::max(identifier.last, last);
        identifier.seconds += last - first;
        identifier.intervals += channel.entries.size() - 1;
        identifier.count += channel.entries.size();
    }
}

std::vector<std::string> CommandIds::known(uint32_t identifier) const
{
    std::vector<std::string> names;
    for (const ProfileDevice& device : mProfile.data()) {
        for (const ProfileParameter& parameter : device.parameters) {
            if (parameter.identifier() == identifier)
                names.push_back(parameter.name);
        }
    }
    return names;
}

std::string CommandIds::json(const Identifiers& identifiers) const
{
    JsonWriter writer;
    writer.beginAnswer().key("ids").beginArray();
    for (const auto& [number, identifier] : identifiers) {
        writer.beginObject().member("id", number).member("count", static_cast<int64_t>(identifier.count)).key("types").beginArray();
        for (const uint8_t type : identifier.types)
            writer.value(static_cast<uint32_t>(type));
        writer.endArray().member("first", identifier.first).member("last", identifier.last);
        writer.member("rate", rate(identifier.intervals, identifier.seconds)).key("known").beginArray();
        for (const std::string& name : known(number))
            writer.value(name);
        writer.endArray().endObject();
    }
    return writer.endArray().endAnswer();
}

std::string CommandIds::table(const Identifiers& identifiers) const
{
    if (identifiers.empty())
        return "No record\n";
    TextTable table({"Identifier", "Hex", "Records", "Types", "First [h:m:s]", "Last [h:m:s]", "Rate [1/s]", "Known as"});
    for (const auto& [number, identifier] : identifiers) {
        std::vector<std::string> types;
        for (const uint8_t type : identifier.types)
            types.push_back(std::to_string(type));
        table.addRow({std::to_string(number), hexadecimal(number), std::to_string(identifier.count), joined(types), tableTime(identifier.first),
                      tableTime(identifier.last), tableNumber(rate(identifier.intervals, identifier.seconds), 2), joined(known(number))});
    }
    return table.text();
}

} // namespace ZARN
