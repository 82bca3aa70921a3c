// compare-data DIR RECORDS [--position]
// Writes a made-up card of one file (DIR/card/00000001.CAN), a profile for it (DIR/Profile.xml) and the same as a plain list for other
// programs (DIR/parameters.tsv). 60 identifiers at 10 to 50 Hz, about 1,060 records a second: 1 M records are 16 minutes, 10 M 2.6
// hours. --position writes the five position identifiers alone, 50 records a second, for long tracks. Same call, same bytes.

#include "RecordFormat.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

using namespace Compare;

namespace {

enum ECode : uint8_t { eFloat = 2, eLong, eUlong, eBlong, eShort, eUshort, eBshort, eUchar = 10 };

struct Parameter {
    std::string name, type;
    ECode code;
    int id, period;               // milliseconds
    double base, amplitude, wave; // of a sine, in seconds
    int precision;
    const char *metric, *imperial, *view, *key, *texts, *limits;
    int startBit = 0, endBit = 0;
    double factor = 1, offset = 0;
};

const Parameter kParameters[] = {
    {"EngineSpeed", "FLOAT", eFloat, 500, 20, 2300, 2300, 900, 0, "rpm", "rpm", "Engine", "EngineSpeed", "", "rpm"},
    {"ManifoldPressure", "FLOAT", eFloat, 501, 20, 900, 500, 700, 1, "hPa", "inHg", "Engine", "", "", ""},
    {"Lambda", "FLOAT", eFloat, 502, 20, 1, 0.2, 13, 3, "", "", "Engine", "", "", ""},
    {"ThrottlePosition", "FLOAT", eFloat, 503, 20, 50, 50, 600, 1, "%", "%", "Engine", "", "", ""},
    {"FuelFlow", "FLOAT", eFloat, 524, 20, 20, 18, 500, 2, "l/h", "gal/h", "Engine", "FuelFlowA", "", ""},
    {"BoostPressure", "FLOAT", eFloat, 505, 20, 1200, 400, 350, 1, "hPa", "inHg", "Engine", "", "", ""},
    {"Latitude", "FLOAT", eFloat, 1036, 100, 4807.038, 10, 3000, 4, "deg", "deg", "Latitude", "Latitude", "", ""},
    {"Longitude", "FLOAT", eFloat, 1037, 100, 1131.0, 10, 3300, 4, "deg", "deg", "Longitude", "Longitude", "", ""},
    {"Altitude", "FLOAT", eFloat, 1038, 100, 900, 850, 1800, 1, "m", "ft", "Position", "Altitude", "", ""},
    {"GroundSpeed", "FLOAT", eFloat, 1039, 100, 20, 30, 1800, 1, "m/s", "kt", "Position", "GroundSpeed", "", ""},
    {"Track", "FLOAT", eFloat, 1040, 100, 180, 179, 240, 1, "deg", "deg", "Position", "Track", "", ""},
    {"EcuState", "BSHORT", eBshort, 600, 100, 2, 2, 111, 0, "", "", "Engine", "", "state", "", 0, 2},
    {"PumpState", "BSHORT", eBshort, 601, 100, 1, 1, 77, 0, "", "", "Engine", "", "state", "", 4, 5},
    {"FaultWordA", "BLONG", eBlong, 700, 100, 0, 0, 1, 0, "", "", "Faults", "", "word", "", 0, 31},
    {"FaultWordB", "BLONG", eBlong, 701, 100, 0, 0, 1, 0, "", "", "Faults", "", "word", "", 0, 31},
    {"EngineHours", "ULONG", eUlong, 800, 100, 36000, 0, 1, 6, "s", "s", "Engine", "", "", ""},
    {"CycleCounter", "LONG", eLong, 801, 100, 1000, 900, 50, 0, "", "", "Engine", "", "", ""},
    {"BatteryRaw", "USHORT", eUshort, 802, 50, 1400, 120, 300, 0, "V", "V", "Electric", "", "", "", 0, 0, 0.01},
    {"AlternatorRaw", "SHORT", eShort, 803, 50, 200, 600, 90, 0, "A", "A", "Electric", "", "", "", 0, 0, 0.1, -5},
    {"CoolantLevel", "UCHAR", eUchar, 804, 100, 200, 50, 60, 0, "%", "%", "Engine", "", "", "", 0, 0, 0.4},
};
constexpr int kCount = 60, kTemperatures = 24;

const char* const kUnits[][4] = {
    {"rpm", "rpm", "1", "0"},
    {"hPa", "inHg", "0.02953", "0"},
    {"%", "%", "1", "0"},
    {"l/h", "gal/h", "0.264172", "0"},
    {"deg", "deg", "1", "0"},
    {"m", "ft", "3.28084", "0"},
    {"m/s", "kt", "1.94384", "0"},
    {"s", "s", "1", "0"},
    {"V", "V", "1", "0"},
    {"A", "A", "1", "0"},
    {"degC", "degF", "1.8", "32"},
    {"bar", "psi", "14.5038", "0"},
    {"", "", "1", "0"},
};

class Random {
public:
    uint64_t next()
    {
        mState ^= mState << 13;
        mState ^= mState >> 7;
        return mState ^= mState << 17;
    }
    double unit() { return double(next() >> 11) * 0x1p-53; }

private:
    uint64_t mState = 12345 * 0x9E3779B97F4A7C15ull + 1;
};

Parameter furtherFloat(int i) // temperatures, then pressures
{
    const bool isTemperature = i < kTemperatures;
    const int period = i % 10 < 3 ? 50 : i % 10 == 9 ? 33 : 100;
    char name[32];
    std::snprintf(name, sizeof name, isTemperature ? "Temperature%02d" : "Pressure%02d", isTemperature ? i + 1 : i - kTemperatures + 1);
    if (isTemperature)
        return {name, "FLOAT", eFloat, 300 + i, period, 80.0 + i, 40, 200.0 + 37 * i, 1, "degC", "degF", "Engine", "", "", "temp"};
    return {name, "FLOAT", eFloat, 300 + i, period, 4, 3, 200.0 + 37 * i, 2, "bar", "psi", "Engine", "", "", ""};
}

std::vector<Parameter> parametersOf(bool positionOnly)
{
    std::vector<Parameter> parameters(std::begin(kParameters), std::end(kParameters));
    if (positionOnly)
        std::erase_if(parameters, [](const Parameter& p) { return p.id < 1036 || p.id > 1040; });
    for (int i = 0; !positionOnly && parameters.size() < kCount; ++i)
        parameters.push_back(furtherFloat(i));
    return parameters;
}

FILE* open(const std::string& path)
{
    FILE* pFile = std::fopen(path.c_str(), "wb");
    if (!pFile) {
        std::perror(path.c_str());
        std::exit(1);
    }
    return pFile;
}

void writeProfile(const std::string& path, const std::vector<Parameter>& parameters)
{
    FILE* pFile = open(path);
    std::fputs(R"(<?xml version="1.0" encoding="UTF-8"?>
<CanAerospaceProfile version="1" profileId="bench" name="bench" comment="">
 <UnitConversions>
)",
               pFile);
    for (const auto& unit : kUnits)
        std::fprintf(pFile, "  <Unit unitMetric=\"%s\" unitImperial=\"%s\" factor=\"%s\" offset=\"%s\"/>\n", unit[0], unit[1], unit[2],
                     unit[3]);
    std::fputs(R"( </UnitConversions>
 <EnumList>
  <Enum name="state">
   <Value val="0" label="Off"/><Value val="1" label="Start"/><Value val="2" label="Idle"/><Value val="3" label="Run"/><Value val="4" label="Stop"/>
  </Enum>
  <Enum name="word"><Value val="0" label="None"/></Enum>
 </EnumList>
 <ThresholdList>
  <Threshold name="rpm">
   <Value val="0" color="#00ff00" state="OK"/>
   <Value val="4300" color="#ffff00" state="WARNING"/>
   <Value val="4550" color="#ff0000" state="LIMIT"/>
  </Threshold>
  <Threshold name="temp">
   <Value val="0" color="#00ff00" state="OK"/>
   <Value val="125" color="#ffff00" state="WARNING"/>
   <Value val="138" color="#ff0000" state="LIMIT"/>
  </Threshold>
 </ThresholdList>
 <Device name="ECU">
)",
               pFile);
    for (const Parameter& p : parameters) {
        std::fprintf(
            pFile,
            "  <Parameter name=\"%s\" unitMetric=\"%s\" unitImperial=\"%s\" viewId=\"%s\" id=\"%d\" startByte=\"4\" startBit=\"%d\" "
            "endBit=\"%d\" "
            "offset=\"%g\" factor=\"%g\" precision=\"%d\" dataType=\"%s\" zarnDataType=\"%s\" enumId=\"%s\" thresholdId=\"%s\"/>\n",
            p.name.c_str(), p.metric, p.imperial, p.view, p.id, p.startBit, p.endBit, p.offset, p.factor, p.precision, p.type.c_str(),
            p.key, p.texts, p.limits);
    }
    std::fputs(" </Device>\n</CanAerospaceProfile>\n", pFile);
    std::fclose(pFile);
}

void writeList(const std::string& path, const std::vector<Parameter>& parameters)
{
    FILE* pFile = open(path);
    for (const Parameter& p : parameters)
        std::fprintf(pFile, "%d\t%s\t%d\t%d\t%d\t%g\t%g\t%s\t%s\n", p.id, p.type.c_str(), p.precision, p.startBit, p.endBit, p.factor,
                     p.offset, p.name.c_str(), p.view);
    std::fclose(pFile);
}

void putValue(uint8_t* pBytes, const Parameter& p, std::size_t place, double value, double seconds)
{
    switch (p.code) {
    case eFloat: put32(pBytes, std::bit_cast<uint32_t>(float(value))); break;
    case eLong: put32(pBytes, uint32_t(int64_t(value))); break;
    case eUlong: put32(pBytes, uint32_t(int64_t(p.base + seconds))); break;
    case eBlong: put32(pBytes, uint64_t(seconds) / 60 % 10 == 7 ? 1u << place % 32 : 0u); break;
    case eBshort: put16(pBytes, uint16_t(unsigned(std::max(0.0, value + 0.5)) << p.startBit)); break;
    case eShort:
    case eUshort: put16(pBytes, uint16_t(int(value))); break;
    case eUchar: pBytes[0] = uint8_t(int(value)); break;
    }
}

void fillRecord(uint8_t* pRecord, const Parameter& p, std::size_t place, uint64_t number, uint64_t ticks, Random& random)
{
    const double seconds = double(ticks) * kSecondsATick;
    const double value = p.base + p.amplitude * std::sin(seconds * 6.283185307179586 / p.wave) + p.amplitude * 0.01 * (random.unit() - 0.5);
    std::memset(pRecord, 0, kRecord);
    pRecord[0] = uint8_t(1 + place % 4);
    pRecord[1] = p.code;
    pRecord[3] = uint8_t(number);
    putValue(pRecord + kPayloadValue, p, place, value, seconds);
    pRecord[8] = uint8_t(place);
    put16(pRecord + kKind, place % 10 < 7 ? 0 : place % 10 < 9 ? 1 : 2);
    put32(pRecord + kIdentifier, uint32_t(p.id));
    put16(pRecord + kWords, 8);
    put16(pRecord + kWords + 2, uint16_t(number));
    put32(pRecord + kTicksHigh, uint32_t(ticks >> 32));
    put32(pRecord + kTicksLow, uint32_t(ticks));
}

void writeHeader(FILE* pFile, uint64_t milliseconds)
{
    uint8_t header[kHeader] = {};
    put16(header, 0xABBA); // tells the byte order
    put16(header + 12, 2024);
    header[14] = 5;
    header[15] = 17;
    header[16] = 8;
    header[18] = uint8_t(milliseconds / 1000);
    put32(header + 20, uint32_t(milliseconds * 32000 >> 32));
    put32(header + 24, uint32_t(milliseconds * 32000));
    put32(header + 28, 1);
    put32(header + 32, 4711);
    constexpr struct {
        std::size_t place;
        const char* text;
    } kTexts[] = {{36, "SW-A-1.0"}, {49, "EMU-2"}, {62, "ENG-0001"}, {75, "TYPE-X"}, {88, "SW-B-1.0"}, {101, "1.2.3"}};
    for (const auto& [place, text] : kTexts)
        std::memcpy(header + place, text, std::strlen(text));
    std::fwrite(header, 1, kHeader, pFile);
}

void writeRecords(const std::string& path, const std::vector<Parameter>& parameters, uint64_t count)
{
    Random random;
    std::vector<int> phases(parameters.size());
    for (int& phase : phases)
        phase = int(random.next() % 1000);
    FILE* pFile = open(path);
    uint64_t milliseconds = 12000; // the first sample comes that long after power-up
    writeHeader(pFile, milliseconds);
    for (uint64_t number = 0; number < count; ++milliseconds) {
        uint64_t within = 0;
        for (std::size_t i = 0; i < parameters.size() && number < count; ++i) {
            if ((milliseconds + uint64_t(phases[i])) % uint64_t(parameters[i].period) != 0)
                continue;
            within += 200 + random.next() % 300; // ascending within the millisecond
            uint8_t record[kRecord];
            fillRecord(record, parameters[i], i, number++, milliseconds * 32000 + within, random);
            std::fwrite(record, 1, kRecord, pFile);
        }
    }
    std::fclose(pFile);
}

} // namespace

int main(int argc, char** argv)
{
    const bool positionOnly = argc == 4 && std::string(argv[3]) == "--position";
    if (argc != 3 && !positionOnly) {
        std::fputs("usage: compare-data DIR RECORDS [--position]\n", stderr);
        return 2;
    }
    const std::string folder = argv[1];
    std::filesystem::create_directories(folder + "/card");
    const std::vector<Parameter> parameters = parametersOf(positionOnly);
    writeProfile(folder + "/Profile.xml", parameters);
    writeList(folder + "/parameters.tsv", parameters);
    writeRecords(folder + "/card/00000001.CAN", parameters, std::strtoull(argv[2], nullptr, 10));
    return 0;
}
