#include "app/NumberText.h"
#include "fuzz/Input.h"
#include "fuzz/Require.h"
#include "profile/Profile.h"

#include <QColor>
#include <QDomDocument>

#include <bit>
#include <cmath>
#include <string>
#include <vector>

// Builds profile documents out of elements and attributes that the input chooses, loads them, and decodes messages made of the
// input's rest with every parameter. The parser is not part of it: Qt is not instrumented, so texts would teach the fuzzer nothing.

namespace {

using namespace ZARN;

constexpr const char* kElements[] = {"Variants",  "Variant", "UnitConversions", "Unit",        "EnumList",  "Enum",   "ThresholdList",
                                     "Threshold", "Value",   "Device",          "ErrorMatrix", "Parameter", "Unknown"};
constexpr const char* kAttributes[] = {"name",         "variant",     "color",     "factor",    "offset",   "unitMetric",
                                       "unitImperial", "val",         "label",     "state",     "id",       "viewId",
                                       "startByte",    "startBit",    "endBit",    "precision", "dataType", "zarnDataType",
                                       "enumId",       "thresholdId", "errorType", "unknown"};
constexpr const char* kTexts[] = {"",     "A",         "B",     "!A",   "A, !B",   "Latitude", "Longitude", "GroundSpeed", "WarningLamps",
                                  "OK",   "WARNING",   "LIMIT", "Info", "Warning", "Fault",    "#ff0000",   "red",         "no colour",
                                  "0x10", "010",       "nan",   "inf",  "-1e308",  "1e400",    "%s%n",      "m",           "km/h",
                                  "<b>&", "2147483648"};
constexpr const char* kTypes[] = {"NODATA",  "ERROR",   "FLOAT",  "LONG",    "ULONG",   "BLONG",    "SHORT",    "USHORT",
                                  "BSHORT",  "CHAR",    "UCHAR",  "BCHAR",   "SHORT_2", "USHORT_2", "BSHORT_2", "CHAR_4",
                                  "UCHAR_4", "BCHAR_4", "CHAR_2", "UCHAR_2", "BCHAR_2", "MEMID",    "CHKSUM",   "ACHAR",
                                  "ACHAR_2", "ACHAR_4", "CHAR_3", "UCHAR_3", "BCHAR_3", "ACHAR_3"};

template <std::size_t size> const char* oneOf(const char* const (&table)[size], uint8_t choice)
{
    return table[choice % size];
}

QString attributeValue(Input& input)
{
    switch (input.byte() % 6) {
    case 0: return QString::fromLatin1(oneOf(kTypes, input.byte()));
    case 1: return QString::number(static_cast<int8_t>(input.byte()));
    case 2: return QString::number(input.number<int32_t>());
    case 3: return QString::number(input.number<double>(), 'g', 17);
    case 4: return QString(QChar(input.number<char16_t>()));
    default: return QString::fromLatin1(oneOf(kTexts, input.byte()));
    }
}

/// Reads commands until one says that the document is done: open an element, close it, set an attribute of it.
QDomDocument buildDocument(Input& input)
{
    constexpr int kMostCommands = 400;
    QDomDocument document;
    QDomElement root = document.createElement(QStringLiteral("CanAerospaceProfile"));
    document.appendChild(root);
    QDomElement current = root;
    for (int i = 0; i < kMostCommands && !input.empty(); ++i) {
        const uint8_t command = input.byte();
        if (command < 0x50) {
            QDomElement child = document.createElement(QString::fromLatin1(oneOf(kElements, command)));
            current.appendChild(child);
            current = child;
        } else if (command < 0xD0) {
            current.setAttribute(QString::fromLatin1(oneOf(kAttributes, static_cast<uint8_t>(command - 0x50))), attributeValue(input));
        } else if (command < 0xF8) {
            if (current != root)
                current = current.parentNode().toElement();
        } else {
            break;
        }
    }
    return document;
}

bool same(double a, double b)
{
    return std::bit_cast<uint64_t>(a) == std::bit_cast<uint64_t>(b) || (std::isnan(a) && std::isnan(b));
}

std::vector<StoredRecord> readRecords(Input& input)
{
    std::vector<StoredRecord> records;
    while (!input.empty() && records.size() < 40) {
        // What follows the payload is not 0, so that reading beyond it shows.
        records.push_back({input.number<Payload>(), 0xEE, 0xEE, 0xEEEE, 0xEEEE, 0xEEEE, records.size()});
    }
    return records;
}

/// The word of `size` bytes at `startByte`, big-endian; bytes outside the payload are 0.
uint32_t wordAt(const Payload& payload, int64_t startByte, int size)
{
    uint32_t word = 0;
    for (int64_t i = startByte; i < startByte + size; ++i)
        word = word << 8 | (i >= 0 && i < 8 ? payload[static_cast<std::size_t>(i)] : 0U);
    return word;
}

/// The unscaled metric value of a payload, bit by bit.
double rawValue(const Payload& payload, const ProfileParameter& parameter)
{
    const auto field = [&](int size) {
        const uint64_t word = wordAt(payload, parameter.startByte, size) >> (static_cast<uint32_t>(parameter.startBit) % 32);
        const uint32_t width = static_cast<uint32_t>(parameter.endBit) - static_cast<uint32_t>(parameter.startBit) + 1;
        return width >= 32 ? static_cast<double>(word) : static_cast<double>(word % (uint64_t{1} << width));
    };
    switch (parameter.dataType) {
    case eFloat: return std::bit_cast<float>(wordAt(payload, parameter.startByte, 4));
    case eLong: return static_cast<float>(static_cast<int32_t>(wordAt(payload, parameter.startByte, 4)));
    case eULong: return static_cast<float>(wordAt(payload, parameter.startByte, 4));
    case eBLong: return field(4);
    case eBShort: return field(2);
    case eShort:
    case eShort2: return static_cast<int16_t>(wordAt(payload, parameter.startByte, 2));
    case eUShort:
    case eUShort2: return wordAt(payload, parameter.startByte, 2);
    case eChar:
    case eChar2:
    case eChar3:
    case eChar4: return static_cast<int8_t>(wordAt(payload, parameter.startByte, 1));
    case eUChar:
    case eUChar2:
    case eUChar3:
    case eUChar4: return wordAt(payload, parameter.startByte, 1);
    default: return 0.0;
    }
}

bool isPosition(const ProfileParameter& parameter)
{
    return parameter.viewId == "Latitude" || parameter.viewId == "Longitude";
}

/// Single values and texts: never a state that does not exist, never an empty text, the same answer twice.
void decodeSingly(Profile& profile, const ProfileParameter& parameter, const std::vector<StoredRecord>& records)
{
    for (const StoredRecord& record : records) {
        const RecordEntry entry(record, static_cast<uint32_t>(parameter.id));
        int state = 0;
        QColor colour;
        profile.resetCoordinates();
        const double value = profile.getDouble(entry, parameter, state, colour, true);
        REQUIRE(state >= eThresholdOk && state <= eThresholdLimit);
        profile.resetCoordinates();
        REQUIRE(same(value, profile.getDouble(entry, parameter, true)));
        const double raw = profile.getDouble(entry, parameter, false);
        if (profile.currentUnit() == EUnit::eMetric && !isPosition(parameter))
            REQUIRE(same(raw, rawValue(record.payload, parameter)));
        profile.getDouble(entry, true);
        REQUIRE(profile.getInt(entry, parameter) == profile.getInt(entry, parameter));
        REQUIRE(!profile.getDataString(entry, parameter, state, colour).empty());
        REQUIRE(state >= eThresholdOk && state <= eThresholdLimit);
    }
}

/// Whole columns: the same bits as one by one.
void decodeColumn(const Profile& profile, const ProfileParameter& parameter, const std::vector<StoredRecord>& records)
{
    const ValueDecoder decoder = profile.context().decoder(parameter);
    std::vector<double> values(records.size());
    std::vector<double> textValues(records.size());
    CoordinateFilter columns[2];
    CoordinateFilter singles[2];
    decoder.values(records, values.data(), columns[0]);
    decoder.textValues(records, textValues.data(), columns[1]);
    for (std::size_t i = 0; i < records.size(); ++i) {
        REQUIRE(same(values[i], decoder.value(records[i].payload, true, singles[0])));
        REQUIRE(same(textValues[i], decoder.textValue(records[i].payload, singles[1])));
    }
}

/// Number texts against the standard library's.
void writeNumbers(const std::vector<StoredRecord>& records)
{
    for (const StoredRecord& record : records) {
        const double wide = std::bit_cast<double>(record.payload);
        const int decimals = record.payload[0] % 18;
        for (const double value : {wide, static_cast<double>(static_cast<float>(wide)), std::fmod(wide, 1e6)}) {
            if (std::isnan(value))
                continue;
            char expected[400];
            char written[kNumberTextSize];
            std::snprintf(expected, sizeof expected, "%.*f", decimals, value);
            REQUIRE(std::string(written, writeFixed(written, value, decimals)) == expected);
            std::snprintf(expected, sizeof expected, "%.*g", decimals, value);
            REQUIRE(std::string(written, writeGeneral(written, value, decimals)) == expected);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, std::size_t size)
{
    Input input(pData, size);
    const EUnit unit = input.byte() % 2 ? EUnit::eImperial : EUnit::eMetric;
    constexpr const char* kVariants[] = {"", "A", "B"};
    const std::string variant = oneOf(kVariants, input.byte());
    const QDomDocument document = buildDocument(input);
    Profile profile(silence(), unit);
    REQUIRE(profile.loadDocument(document.documentElement(), variant));

    const std::vector<StoredRecord> records = readRecords(input);
    writeNumbers(records);
    std::size_t parameters = 0;
    for (const ProfileDevice& device : profile.data()) {
        for (const ProfileParameter& parameter : device.parameters) {
            if (++parameters > 20) // more of them find nothing new and cost speed
                return 0;
            decodeSingly(profile, parameter, records);
            decodeColumn(profile, parameter, records);
        }
    }
    return 0;
}
