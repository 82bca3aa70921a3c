#include "bench/BenchCard.h"

#include "card/record/RecordWriter.h"

#include <QTemporaryDir>

#include <bit>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>

namespace ZARN {

namespace {

constexpr int kParameters = 60;
constexpr int kFirstLamp = 57;
constexpr std::size_t kPiece = 1 << 20; // bytes written at a time

std::string root()
{
    static const QTemporaryDir directory;
    return directory.path().toStdString();
}

int identifierOf(int parameter)
{
    return parameter < 5 ? 1036 + parameter : 300 + parameter;
}

int periodOf(int parameter) // milliseconds
{
    return parameter < 5 ? 100 : parameter < 11 ? 20 : parameter < 25 ? 50 : parameter < 29 ? 33 : 100;
}

StoredRecord record(int parameter, uint64_t ticks, float value)
{
    const uint32_t bits = std::bit_cast<uint32_t>(value);
    StoredRecord stored{};
    stored.payload[1] = parameter < kFirstLamp ? 2 : 8; // FLOAT, BSHORT
    for (int i = 0; i < 4; ++i)
        stored.payload[static_cast<std::size_t>(4 + i)] = static_cast<uint8_t>(bits >> (24 - 8 * i));
    stored.kind = static_cast<uint16_t>(parameter % 3);
    stored.ticks = ticks;
    return stored;
}

float valueAt(int parameter, double seconds)
{
    if (parameter == 0)
        return static_cast<float>(4807.038 + 10 * std::sin(seconds / 500));
    if (parameter == 1)
        return static_cast<float>(1131.0 + 10 * std::cos(seconds / 500));
    if (parameter >= kFirstLamp) // dark, yellow, red
        return static_cast<float>(static_cast<int>(seconds / (10 * (parameter - kFirstLamp + 1))) % 3); // the first byte differs
    return static_cast<float>(90 + 60 * std::sin(seconds / (100 + 10 * parameter)));
}

void writeFile(const std::string& path, std::size_t records)
{
    std::ofstream file(path, std::ios::binary);
    RecordWriter writer(true);
    RecordInfo info;
    info.dateTime = QDateTime(QDate(2024, 5, 17), QTime(0, 0), Qt::UTC);
    writer.putHeader(info, 0);
    std::size_t written = 0;
    for (uint64_t ms = 12000; written < records; ++ms) {
        uint64_t ticks = ms * 32000;
        for (int parameter = 0; parameter < kParameters && written < records; ++parameter) {
            if ((ms + static_cast<uint64_t>(parameter) * 7) % static_cast<uint64_t>(periodOf(parameter)) != 0)
                continue;
            const float value = valueAt(parameter, static_cast<double>(ms) / 1000);
            writer.putRecord(static_cast<uint32_t>(identifierOf(parameter)), record(parameter, ticks += 300, value));
            ++written;
        }
        if (writer.bytes().size() > kPiece || written == records) {
            file << writer.bytes();
            writer.bytes().clear();
        }
    }
}

/// @param keys of the first parameters; more: what stands at the end
std::string writeProfile(const std::string& name, const std::vector<std::string>& keys, const std::string& more)
{
    const std::string path = root() + "/" + name;
    if (std::filesystem::exists(path))
        return path;
    std::ofstream file(path);
    file << "<CanAerospaceProfile name=\"bench\"><ThresholdList><Threshold name=\"t\"><Value val=\"0\" state=\"OK\"/>"
            "<Value val=\"140\" state=\"WARNING\"/><Value val=\"149\" state=\"LIMIT\"/></Threshold></ThresholdList><Device name=\"ECU\">\n";
    for (int parameter = 0; parameter < kParameters; ++parameter) {
        if (parameter == kFirstLamp)
            file << "</Device><Device name=\"WarningLamp\">\n";
        const std::string key = static_cast<std::size_t>(parameter) < keys.size() ? keys[static_cast<std::size_t>(parameter)] : "";
        const bool isSpeed = key == "EngineSpeed"; // thousands, without limits
        file << "<Parameter name=\"P" << parameter << "\" id=\"" << identifierOf(parameter) << "\" startByte=\"4\" startBit=\"0\" endBit=\"15\" precision=\"" << parameter % 4
             << "\" dataType=\"" << (parameter < kFirstLamp ? "FLOAT" : "BSHORT") << "\" zarnDataType=\"" << key << "\" viewId=\"" << (parameter < 5 ? key : "")
             << (isSpeed ? "\" factor=\"40\"/>\n" : "\" thresholdId=\"t\"/>\n");
    }
    file << "</Device>\n" << more << "</CanAerospaceProfile>\n";
    return path;
}

} // namespace

std::string BenchCard::folder(std::size_t records)
{
    const std::string path = root() + "/" + std::to_string(records);
    if (std::filesystem::create_directory(path))
        writeFile(path + "/00000001.CAN", records);
    return path;
}

std::string BenchCard::folderOfFiles(int files)
{
    const std::string path = root() + "/files" + std::to_string(files);
    if (std::filesystem::create_directory(path)) {
        for (int i = 0; i < files; ++i)
            writeFile(path + "/" + std::to_string(10000000 + i) + ".CAN", 1000);
    }
    return path;
}

std::string BenchCard::profile()
{
    return writeProfile("Profile.xml", {"Latitude", "Longitude", "Altitude", "GroundSpeed", "Track"}, "");
}

std::string BenchCard::engineProfile()
{
    std::string faults = "<Device name=\"Faults\"><ErrorMatrix id=\"" + std::to_string(identifierOf(kParameters - 1)) + "\" name=\"Faults\"/>\n";
    for (int bit = 0; bit < 32; ++bit)
        faults += "<Parameter name=\"F" + std::to_string(bit) + "\" id=\"" + std::to_string(identifierOf(kParameters - 1)) +
                  "\" dataType=\"BLONG\" startBit=\"" + std::to_string(bit) + "\" endBit=\"" + std::to_string(bit) + "\" errorType=\"Warning\"/>\n";
    return writeProfile("Engine.xml", {"Latitude", "Longitude", "Altitude", "GroundSpeed", "Track", "EngineSpeed", "ThrottleA", "FuelA", "FuelB"},
                        faults + "</Device>\n");
}

} // namespace ZARN
