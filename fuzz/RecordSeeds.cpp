#include "card/record/RecordWriter.h"

#include <fstream>
#include <functional>

// Writes the record files that FuzzRecordFile starts from, of both byte orders: whole, empty, cut, damaged.
//     RecordSeeds FOLDER

namespace {

using namespace ZARN;

constexpr uint64_t kTenth = 3'200'000; // ticks

struct Seed {
    const char* name;
    int count; ///< of records
    std::function<uint16_t(int)> kind;
    std::function<uint32_t(int)> identifier;
    std::function<uint64_t(int)> ticks;
    int cut = 0; ///< bytes that are missing at the end
    QDateTime dateTime = QDateTime(QDate(2024, 5, 17), QTime(10, 30), Qt::UTC);
};

std::string fileOf(const Seed& seed, bool bigEndian)
{
    RecordWriter writer(bigEndian);
    RecordInfo info;
    info.dateTime = seed.dateTime;
    info.ecuSerialNumber = 4711;
    info.softwarePartA = "PART-A";
    info.emuSoftwareVersion = "1.2.3";
    writer.putHeader(info, 10 * kTenth);
    for (int i = 0; i < seed.count; ++i) {
        const Payload payload{1, 2, 0, static_cast<uint8_t>(i), 0x3F, 0xC0, 0, 0};
        writer.putRecord(seed.identifier(i), {payload, 7, 9, seed.kind(i), 11, 13, seed.ticks(i)});
    }
    std::string bytes = writer.bytes();
    bytes.resize(bytes.size() - static_cast<std::size_t>(seed.cut));
    return bytes;
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2)
        return 2;
    const auto always = [](auto value) { return [value](int) { return value; }; };
    const auto third = [](int i) { return static_cast<uint16_t>(i % 3); };
    const auto four = [](int i) { return static_cast<uint32_t>(500 + i % 4); };
    const auto tenths = [](int i) { return static_cast<uint64_t>(i) * kTenth; };
    const Seed seeds[] = {
        {"empty", 0, third, four, tenths},
        {"plain", 40, third, four, tenths},
        {"cut-header", 0, third, four, tenths, 51},
        {"cut-record", 5, third, four, tenths, 9},
        {"no-clock", 1, third, four, tenths, 0, {}},
        {"backwards", 20, third, four, [](int i) { return static_cast<uint64_t>(20 - i * 7 % 20) * 10'000'000; }},
        {"equal-times", 12, always(uint16_t{0}), four, always(uint64_t{5})},
        {"high-word", 6, always(uint16_t{1}), four, [](int i) { return (static_cast<uint64_t>(i) << 32) + 1; }},
        {"late", 1, third, four, always(UINT64_MAX)},
        {"own-pseudo", 6, third, [](int i) { return 0x7FFFFFFEU + static_cast<uint32_t>(i) % 3; }, tenths},
        {"many-channels", 60, third, [](int i) { return static_cast<uint32_t>(i) * 2654435761U % (1U << 29); }, tenths}};
    for (const Seed& seed : seeds) {
        for (const bool bigEndian : {false, true})
            std::ofstream(std::string(arguments[1]) + (bigEndian ? "/big-" : "/little-") + seed.name, std::ios::binary) << fileOf(seed, bigEndian);
    }
    std::string marked = fileOf(seeds[1], true);
    std::ofstream(std::string(arguments[1]) + "/damaged-mark", std::ios::binary) << marked.replace(0, 2, "\x12\x34");
    marked.replace(12, 7, "\x07\xE8\x02\x1E\x18\x3D\x3D"); // 30 February, 24:61:61
    std::ofstream(std::string(arguments[1]) + "/bad-clock", std::ios::binary) << marked;
    return 0;
}
