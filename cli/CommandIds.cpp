#include "cli/CommandIds.h"

#include "cli/JsonWriter.h"
#include "cli/Output.h"
#include "cli/TextTable.h"

#include <algorithm>
#include <cstdio>
#include <utility>

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

/// Calls `visit` with each code of a set.
template <typename Visitor> void forEachType(const std::bitset<256>& types, Visitor visit)
{
    for (uint32_t type = 0; type < types.size(); ++type) {
        if (types.test(type))
            visit(type);
    }
}

std::string hexadecimal(uint32_t identifier)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%03X", identifier);
    return text;
}

} // namespace

CommandIds::CommandIds(CLI::App& program)
    : CardCommand(program, "ids", "list the CAN identifiers on a card, with what the profile knows of them", "zarn-cli ids /media/card", eWholeCard)
{
    addJson();
}

int CommandIds::runOnCard()
{
    bool isLoaded = false;
    for (const auto& [number, cycle] : mContainer.recordCycles()) {
        if (chosenCycle().value_or(number) != number)
            continue;
        if (std::exchange(isLoaded, true)) {
            for (const RecordChannel* pChannel : mContainer.recordData().channels())
                add(mBefore[pChannel->identifier()], *pChannel);
        }
        if (!load(number, 0))
            return eFailed;
    }
    findKnown();
    Output output;
    mJson ? writeJson(output) : writeTable(output);
    return output.finish();
}

void CommandIds::add(Identifier& identifier, const RecordChannel& channel)
{
    uint64_t earliest = UINT64_MAX; // ticks; a damaged recording need not ascend
    uint64_t latest = 0;
    for (std::size_t c = 0; c < channel.entries.chunkCount(); ++c) {
        for (const StoredRecord& record : channel.entries.chunk(c)) {
            earliest = std::min(earliest, record.ticks);
            latest = std::max(latest, record.ticks);
            identifier.types.set(record.payload[kTypeByte]);
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

void CommandIds::forEach(const Visitor& visit) const
{
    auto before = mBefore.begin();
    for (const RecordChannel* pChannel : mContainer.recordData().channels()) {
        for (; before != mBefore.end() && before->first < pChannel->identifier(); ++before)
            visit(before->first, before->second);
        const bool isKnown = before != mBefore.end() && before->first == pChannel->identifier();
        Identifier identifier = isKnown ? (before++)->second : Identifier{};
        add(identifier, *pChannel);
        visit(pChannel->identifier(), identifier);
    }
    for (; before != mBefore.end(); ++before)
        visit(before->first, before->second);
}

void CommandIds::findKnown()
{
    for (const auto& [device, parameter] : mProfile.model().parameters())
        mKnown[parameter.identifier()].push_back(parameter.name);
}

void CommandIds::writeJson(Output& output) const
{
    JsonWriter writer(output);
    writer.beginAnswer().key("ids").beginArray();
    forEach([&](uint32_t number, const Identifier& identifier) {
        writer.beginObject().member("id", number).member("count", static_cast<int64_t>(identifier.count)).key("types").beginArray();
        forEachType(identifier.types, [&writer](uint32_t type) { writer.value(type); });
        writer.endArray().member("first", identifier.first).member("last", identifier.last);
        writer.member("rate", rate(identifier.intervals, identifier.seconds)).key("known").beginArray();
        if (const auto names = mKnown.find(number); names != mKnown.end())
            std::ranges::for_each(names->second, [&writer](const std::string& name) { writer.value(name); });
        writer.endArray().endObject();
    });
    output.write(writer.endArray().endAnswer());
}

void CommandIds::writeTable(Output& output) const
{
    if (mBefore.empty() && mContainer.recordData().count() == 0) {
        output.write("No record\n");
        return;
    }
    // Twice over them, so that no text is held.
    const std::vector<std::string> header{"Identifier", "Hex", "Records", "Types", "First [h:m:s]", "Last [h:m:s]", "Rate [1/s]", "Known as"};
    TableColumns columns;
    columns.measure(header);
    forEach([&](uint32_t number, const Identifier& identifier) { columns.measure(cells(number, identifier)); });
    output.write(columns.line(header));
    forEach([&](uint32_t number, const Identifier& identifier) { output.write(columns.line(cells(number, identifier))); });
}

std::vector<std::string> CommandIds::cells(uint32_t number, const Identifier& identifier) const
{
    std::vector<std::string> types;
    forEachType(identifier.types, [&types](uint32_t type) { types.push_back(std::to_string(type)); });
    const auto names = mKnown.find(number);
    return {std::to_string(number), hexadecimal(number), std::to_string(identifier.count), joined(types), tableTime(identifier.first),
            tableTime(identifier.last), tableNumber(rate(identifier.intervals, identifier.seconds), 2), names == mKnown.end() ? "" : joined(names->second)};
}

} // namespace ZARN
