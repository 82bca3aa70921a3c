#include "cli/CommandInfo.h"

#include "app/FileName.h"
#include "app/Progress.h"
#include "card/record/RecordFormats.h"
#include "cli/CardCommand.h"
#include "cli/JsonWriter.h"
#include "cli/TextTable.h"
#include "cli/VisibleText.h"

#include <algorithm>
#include <filesystem>

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

std::string baseName(const RecordInfo& info)
{
    return encodeFileName(info.fileName.mid(info.fileName.lastIndexOf('/') + 1));
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

CommandInfo::CommandInfo(CLI::App& program)
    : Command(program, "info", "list a card's record files and power cycles", "zarn-cli info /media/card")
{
    options().add("CARD", mCard, "the card folder, one record file of it, or a log of a CAN bus", CommandOptions::eRequired);
    addJson();
}

int CommandInfo::run()
{
    std::error_code ignored;
    const std::filesystem::path path(mCard);
    const bool isFile = std::filesystem::is_regular_file(path, ignored);
    if (isFile)
        mFile = path.filename();
    Profile profile(console());
    CardContainer container(console(), profile, nullProgress());
    // A file's neighbours are read too: its date may be known from the next one.
    const std::string folder = isFile ? encodeFileName(RecordFormats::cardOf(decodeFileName(mCard))) : mCard;
    if (!container.readContainer(decodeFileName(folder)))
        return fail(folderProblem(folder));
    if (isFile && !container.recordFiles().contains(mFile))
        return fail(mCard + ": no record file (" + RecordFormats::patternText().toStdString() + ")");
    const int status = print(mJson ? json(container) : tables(container));
    if (status != eDone)
        return status;
    const std::string problem = systemProblem(container);
    if (!problem.empty())
        return fail(problem);
    sayDamage(container.path(), container.problems());
    return eDone;
}

bool CommandInfo::isWanted(const RecordCycle& cycle) const
{
    return std::ranges::any_of(cycle.files, [this](const RecordInfo& info) { return isWanted(baseName(info)); });
}

std::string CommandInfo::json(const CardContainer& container) const
{
    JsonWriter writer;
    writer.beginAnswer().member("name", encodeFileName(container.name())).member("path", mCard).key("files").beginArray();
    for (const auto& [name, info] : container.recordFiles()) {
        if (isWanted(name))
            writeFile(writer, name, info);
    }
    writer.endArray().key("cycles").beginArray();
    for (const auto& [number, cycle] : container.recordCycles()) {
        if (isWanted(cycle))
            writeCycle(writer, number, cycle);
    }
    writer.endArray().key("problems").beginArray();
    for (const CardProblem& problem : container.problems()) {
        if (isWanted(problem.file))
            writer.beginObject().member("file", problem.file).member("reason", problem.reason).endObject();
    }
    return writer.endArray().endAnswer();
}

std::string CommandInfo::tables(const CardContainer& container) const
{
    const std::string heading = "Card " + visibleText(mCard);
    if (container.recordFiles().empty())
        return heading + ": no record file (" + RecordFormats::patternText().toStdString() + ") in this folder\n";
    TextTable cycles({"Cycle", "Date", "Ends at [h:m:s]", "Files"});
    for (const auto& [number, cycle] : container.recordCycles()) {
        if (isWanted(cycle))
            cycles.addRow({std::to_string(number), tableDate(cycle.dateTime), cycle.hasSoundTimes() ? tableTime(cycle.endTime) : "damaged",
                           std::to_string(cycle.files.size())});
    }
    const auto time = [](const RecordInfo& info, double seconds) { return info.hasSoundTimes() ? tableTime(seconds) : "damaged"; };
    TextTable files({"File", "Date", "From [h:m:s]", "To [h:m:s]", "Samples", "ECU", "Serial", "Engine", "Software A", "Software B"});
    for (const auto& [name, info] : container.recordFiles()) {
        if (isWanted(name))
            files.addRow({name, tableDate(info.dateTime), time(info, info.startTime), time(info, info.endTime), std::to_string(info.samples),
                          info.ecuType, std::to_string(info.ecuSerialNumber), info.engineType + " " + info.engineSerial, info.softwarePartA,
                          info.softwarePartB});
    }
    return heading + "\n\n" + cycles.text() + "\n" + files.text();
}

} // namespace ZARN
