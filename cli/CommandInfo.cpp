#include "cli/CommandInfo.h"

#include "app/Progress.h"
#include "cli/JsonWriter.h"
#include "cli/TextTable.h"

namespace ZARN {

namespace {

void writeFile(JsonWriter& writer, const std::string& name, const RecordInfo& info)
{
    writer.beginObject()
        .member("name", name)
        .member("dateTime", info.dateTime)
        .member("startTime", info.startTime)
        .member("endTime", info.endTime)
        .member("samples", info.samples)
        .member("busType", info.busType)
        .member("ecuSerialNumber", info.ecuSerialNumber)
        .member("softwarePartA", info.softwarePartA)
        .member("softwarePartB", info.softwarePartB)
        .member("ecuType", info.ecuType)
        .member("engineSerial", info.engineSerial)
        .member("engineType", info.engineType)
        .member("emuSoftwareVersion", info.emuSoftwareVersion)
        .member("startsCycle", info.startsCycle)
        .endObject();
}

QString baseName(const RecordInfo& info)
{
    return info.fileName.mid(info.fileName.lastIndexOf('/') + 1);
}

void writeCycle(JsonWriter& writer, uint32_t number, const RecordCycle& cycle)
{
    writer.beginObject().member("number", number).member("name", cycle.name).member("dateTime", cycle.dateTime).member("endTime", cycle.endTime);
    writer.key("files").beginArray();
    for (const RecordInfo& info : cycle.files)
        writer.value(baseName(info));
    writer.endArray().endObject();
}

} // namespace

CommandInfo::CommandInfo(CLI::App& program) : Command(program, "info", "list a card's record files and power cycles")
{
    options().add("CARD", mCard, "the card folder", CommandOptions::eRequired);
    addJson();
}

int CommandInfo::run()
{
    Profile profile(Console::standardError());
    CardContainer container(Console::standardError(), profile, nullProgress());
    if (!container.readContainer(QString::fromStdString(mCard)))
        return fail(mCard + ": no such folder");
    return print(mJson ? json(container) : tables(container));
}

std::string CommandInfo::json(const CardContainer& container)
{
    JsonWriter writer;
    writer.beginObject().member("name", container.name()).member("path", container.path()).key("files").beginArray();
    for (const auto& [name, info] : container.recordFiles())
        writeFile(writer, name, info);
    writer.endArray().key("cycles").beginArray();
    for (const auto& [number, cycle] : container.recordCycles())
        writeCycle(writer, number, cycle);
    writer.endArray().endObject();
    return writer.text() + "\n";
}

std::string CommandInfo::tables(const CardContainer& container)
{
    if (container.recordFiles().empty())
        return "Card " + container.path().toStdString() + ": no record file (*.CAN, *.can, *.xcb) in this folder\n";
    TextTable cycles({"Cycle", "Date", "Ends at", "Files"});
    for (const auto& [number, cycle] : container.recordCycles())
        cycles.addRow({std::to_string(number), tableDate(cycle.dateTime), tableTime(cycle.endTime), std::to_string(cycle.files.size())});
    TextTable files({"File", "Date", "From", "To", "Samples", "ECU", "Serial", "Engine", "Software A", "Software B"});
    for (const auto& [name, info] : container.recordFiles()) {
        files.addRow({name, tableDate(info.dateTime), tableTime(info.startTime), tableTime(info.endTime), std::to_string(info.samples),
                      info.ecuType, std::to_string(info.ecuSerialNumber), info.engineType + " " + info.engineSerial, info.softwarePartA,
                      info.softwarePartB});
    }
    return "Card " + container.path().toStdString() + "\n\n" + cycles.text() + "\n" + files.text();
}

} // namespace ZARN
