// compare-csv DIR OUT [RESOLUTION]
// How fast the whole way from a record file to a CSV can be on one thread: load, group, decode, write texts, fill forward. Right for what
// compare-data writes and for nothing else (times ascend, nothing is damaged, the decimal points are where that profile has them), so
// that no time goes into care. What it writes for that data is what the program must write, byte by byte.

#include "RecordFormat.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <span>
#include <sstream>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Compare;

namespace {

constexpr uint32_t kNoTick = ~0u;
constexpr char kSeparator = ';';
constexpr const char* kStates[] = {"Off", "Start", "Idle", "Run", "Stop"};
const std::map<std::string, int> kCodes = {{"FLOAT", 2}, {"LONG", 3},   {"ULONG", 4},  {"BLONG", 5},
                                           {"SHORT", 6}, {"USHORT", 7}, {"BSHORT", 8}, {"UCHAR", 10}};

struct Parameter {
    uint32_t id;
    int code, precision, startBit, endBit;
    double factor, offset;
    std::string name, view;
};

struct Sample {
    uint8_t payload[8];
    double time;
};

struct Column {
    Parameter parameter;
    std::span<const Sample> samples;
    std::vector<uint32_t> ticks;  // one more than samples: kNoTick
    std::vector<float> positions; // of latitude and longitude
};

// ------------------------------------------------------------------------------------------------------------------- texts

/// The hundred two-digit texts, since dividing is what writing numbers costs.
struct TwoDigits {
    char text[200];
    constexpr TwoDigits() : text{}
    {
        for (int i = 0; i < 100; ++i) {
            text[2 * i] = char('0' + i / 10);
            text[2 * i + 1] = char('0' + i % 10);
        }
    }
};
constexpr TwoDigits kTwo;
constexpr double kPowers[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8};

/// Writes up to 40 characters like printf's "%.*f": through a scaled integer unless the rounding is too near to call.
char* writeFixed(char* p, char* pEnd, float number, int decimals)
{
    const double value = number;
    const double scaled = std::fabs(value) * kPowers[decimals];
    if (!(scaled < 1e15))
        return std::to_chars(p, pEnd, value, std::chars_format::fixed, decimals).ptr;
    uint64_t digits = uint64_t(scaled);
    const double rest = scaled - double(digits);
    if (std::fabs(rest - 0.5) <= scaled * 0x1p-52)
        return std::to_chars(p, pEnd, value, std::chars_format::fixed, decimals).ptr;
    digits += rest > 0.5;
    if (std::signbit(value))
        *p++ = '-';
    char buffer[40];
    char* const pLast = buffer + 24;
    char* q = pLast;
    int written = 0;
    for (; written + 2 <= decimals; written += 2, digits /= 100)
        std::memcpy(q -= 2, kTwo.text + 2 * (digits % 100), 2);
    if (written < decimals) {
        *--q = char('0' + digits % 10);
        digits /= 10;
    }
    if (decimals)
        *--q = '.';
    for (; digits >= 100; digits /= 100)
        std::memcpy(q -= 2, kTwo.text + 2 * (digits % 100), 2);
    if (digits >= 10)
        std::memcpy(q -= 2, kTwo.text + 2 * digits, 2);
    else
        *--q = char('0' + digits);
    const std::size_t length = std::size_t(pLast - q);
    std::memcpy(p, q, 16); // of a fixed size, which is faster than of the right one
    if (length > 16)
        std::memcpy(p + 16, q + 16, 8);
    return p + length;
}

char* writeState(char* p, char* pEnd, unsigned state)
{
    p = std::to_chars(p, pEnd, state).ptr;
    if (state >= std::size(kStates))
        return p;
    *p++ = ':';
    *p++ = ' ';
    const std::size_t length = std::strlen(kStates[state]);
    std::memcpy(p, kStates[state], length);
    return p + length;
}

char* writeWord(char* p, char* pEnd, uint32_t word)
{
    const char* pText = word == 0 ? ": None" : ": Invalid ENUM Value";
    p = std::to_chars(p, pEnd, int32_t(word)).ptr;
    const std::size_t length = std::strlen(pText);
    std::memcpy(p, pText, length);
    return p + length;
}

float floatOf(const Parameter& p, const uint8_t* pValue)
{
    return float(std::fma(p.factor, double(std::bit_cast<float>(get32(pValue))), p.offset));
}

/// @return the length, 47 at most
std::size_t writeCell(const Column& column, std::size_t place, char* p)
{
    const uint8_t* pValue = column.samples[place].payload + kPayloadValue;
    const Parameter& parameter = column.parameter;
    char* const pEnd = p + 47;
    const auto whole = [&](double raw) { return std::to_chars(p, pEnd, int(std::fma(parameter.factor, raw, parameter.offset))).ptr; };
    char* pLast = p;
    switch (parameter.code) {
    case 2:
        pLast = writeFixed(p, pEnd, column.positions.empty() ? floatOf(parameter, pValue) : column.positions[place], parameter.precision);
        break;
    case 3: pLast = whole(double(float(int32_t(get32(pValue))))); break;
    case 4:
        pLast = std::to_chars(p, pEnd, std::fma(parameter.factor, double(get32(pValue)), parameter.offset), std::chars_format::general,
                              parameter.precision)
                    .ptr;
        break;
    case 5: pLast = writeWord(p, pEnd, get32(pValue)); break;
    case 6: pLast = whole(int16_t(get16(pValue))); break;
    case 7: pLast = whole(get16(pValue)); break;
    case 8:
        pLast =
            writeState(p, pEnd, unsigned(get16(pValue)) >> parameter.startBit & ((1u << (parameter.endBit - parameter.startBit + 1)) - 1));
        break;
    default: pLast = whole(pValue[0]); break;
    }
    return std::size_t(pLast - p);
}

// ------------------------------------------------------------------------------------------------------------------- loading

std::vector<Parameter> readParameters(const std::string& path)
{
    std::vector<Parameter> parameters;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        std::istringstream fields(line);
        std::string f[9];
        for (std::string& field : f)
            std::getline(fields, field, '\t');
        parameters.push_back({uint32_t(std::stoul(f[0])), kCodes.at(f[1]), std::stoi(f[2]), std::stoi(f[3]), std::stoi(f[4]),
                              std::stod(f[5]), std::stod(f[6]), f[7], f[8]});
    }
    return parameters;
}

/// The samples of each identifier side by side: one pass counts, one scatters. Nothing is given back: the process ends soon.
std::map<uint32_t, std::span<const Sample>> load(const std::string& path)
{
    const int descriptor = open(path.c_str(), O_RDONLY);
    struct stat status {};
    if (descriptor < 0 || fstat(descriptor, &status) != 0) {
        std::perror(path.c_str());
        std::exit(1);
    }
    const auto* pFile = static_cast<const uint8_t*>(mmap(nullptr, std::size_t(status.st_size), PROT_READ, MAP_PRIVATE, descriptor, 0));
    const std::size_t count = (std::size_t(status.st_size) - kHeader) / kRecord;
    const uint8_t* const pFirst = pFile + kHeader;
    const uint8_t* const pEnd = pFirst + count * kRecord;
    std::vector<std::size_t> places(65536);
    const auto placeOf = [&places](const uint8_t* pRecord) -> std::size_t& { return places[get32(pRecord + kIdentifier) & 0xFFFF]; };
    for (const uint8_t* p = pFirst; p < pEnd; p += kRecord)
        ++placeOf(p);
    const std::size_t size = count * sizeof(Sample) + (2 << 20);
    auto* pSamples = static_cast<Sample*>(mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    madvise(pSamples, size, MADV_HUGEPAGE);
    std::map<uint32_t, std::span<const Sample>> channels;
    std::size_t start = 0;
    for (uint32_t id = 0; id < places.size(); ++id) {
        const std::size_t samples = places[id];
        if (samples > 0)
            channels[id] = {pSamples + start, samples};
        places[id] = start;
        start += samples;
    }
    for (const uint8_t* p = pFirst; p < pEnd; p += kRecord) {
        Sample& sample = pSamples[placeOf(p)++];
        std::memcpy(sample.payload, p, sizeof sample.payload);
        sample.time = secondsOf(get32(p + kTicksHigh), get32(p + kTicksLow));
    }
    return channels;
}

float degrees(float raw)
{
    const double hundredth = double(raw) / 100;
    const double whole = std::trunc(hundredth);
    return float(whole + double(float(hundredth - whole)) * 100 / 60);
}

/// Coordinates as degrees; one that jumps is replaced by the one before it, after the first five fixes.
std::vector<float> positionsOf(const Parameter& parameter, std::span<const Sample> samples)
{
    std::vector<float> positions;
    positions.reserve(samples.size());
    double last = 0;
    unsigned fixes = 0;
    for (const Sample& sample : samples) {
        double value = degrees(floatOf(parameter, sample.payload + kPayloadValue));
        if (fixes > 4)
            value = std::fabs(value - last) > 0.08999280057595392 ? last : value;
        else
            fixes += std::fabs(value) > 0.001;
        last = value;
        positions.push_back(float(value));
    }
    return positions;
}

std::vector<Column> columnsOf(const std::vector<Parameter>& parameters, const std::string& path, int resolution)
{
    const auto channels = load(path);
    const double ticksASecond = 1 / (resolution * 0.001);
    std::vector<Column> columns;
    for (const Parameter& parameter : parameters) {
        const auto channel = channels.find(parameter.id);
        Column column{parameter, channel == channels.end() ? std::span<const Sample>() : channel->second, {}, {}};
        column.ticks.resize(column.samples.size() + 1, kNoTick);
        for (std::size_t i = 0; i < column.samples.size(); ++i)
            column.ticks[i] = uint32_t(column.samples[i].time * ticksASecond + 0.5);
        if (parameter.view == "Latitude" || parameter.view == "Longitude")
            column.positions = positionsOf(parameter, column.samples);
        columns.push_back(std::move(column));
    }
    return columns;
}

/// The ticks in which any column has a sample, ascending.
std::vector<uint32_t> rowsOf(const std::vector<Column>& columns)
{
    uint32_t first = kNoTick, last = 0;
    for (const Column& column : columns) {
        if (column.samples.empty())
            continue;
        first = std::min(first, column.ticks.front());
        last = std::max(last, column.ticks[column.samples.size() - 1]);
    }
    if (first > last)
        return {};
    std::vector<uint64_t> bits((last - first) / 64 + 1);
    for (const Column& column : columns)
        for (std::size_t i = 0; i < column.samples.size(); ++i)
            bits[(column.ticks[i] - first) / 64] |= 1ull << (column.ticks[i] - first) % 64;
    std::vector<uint32_t> rows;
    for (std::size_t word = 0; word < bits.size(); ++word)
        for (uint64_t b = bits[word]; b; b &= b - 1)
            rows.push_back(first + uint32_t(word * 64) + uint32_t(std::countr_zero(b)));
    return rows;
}

// ------------------------------------------------------------------------------------------------------------------- writing

/// Writes rows in blocks: first the texts of one column after the other, whose branches are predictable and whose samples lie in one
/// stream, then the rows gathered from them. A slot holds 14 characters, the separator and their number; longer texts stand aside.
class Writer {
public:
    Writer(const std::vector<Column>& columns, const std::vector<uint32_t>& rows, int resolution, const char* path)
        : mColumns(columns), mRows(rows), mResolution(uint32_t(resolution)), mDescriptor(open(path, O_CREAT | O_TRUNC | O_WRONLY, 0666)),
          mPlaces(columns.size()), mSlots(columns.size() * kBlock), mBuffer(kRows * (columns.size() * 48 + 64))
    {
        if (mDescriptor < 0) {
            std::perror(path);
            std::exit(1);
        }
    }
    ~Writer() { close(mDescriptor); }

    void write()
    {
        std::string head = "Time";
        for (const Column& column : mColumns)
            head += kSeparator + column.parameter.name;
        flush(head + '\n');
        for (std::size_t start = 0; start < mRows.size(); start += kRows) {
            char* p = mBuffer.data();
            for (std::size_t first = start; first < std::min(mRows.size(), start + kRows); first += kBlock) {
                const auto block = std::span(mRows).subspan(first, std::min(kBlock, mRows.size() - first));
                mAside.clear();
                for (std::size_t i = 0; i < mColumns.size(); ++i)
                    fillSlots(i, block);
                p = gather(p, block);
            }
            flush({mBuffer.data(), p});
        }
    }

private:
    struct alignas(16) Slot {
        char text[16]; // the last one: the length with the separator, or 0: the first four are the number of a text that stands aside
    };
    static constexpr std::size_t kRows = 2048, kBlock = 256, kLast = 15;

    void fill(Slot& slot, const Column& column, std::size_t place)
    {
        char text[64];
        const std::size_t length = writeCell(column, place, text);
        if (length < kLast) {
            std::memcpy(slot.text, text, sizeof slot.text);
            slot.text[length] = kSeparator;
            slot.text[kLast] = char(length + 1);
            return;
        }
        const uint32_t number = uint32_t(mAside.size());
        mAside.emplace_back(text, length).push_back(kSeparator);
        std::memcpy(slot.text, &number, sizeof number);
        slot.text[kLast] = 0;
    }

    void fillSlots(std::size_t index, std::span<const uint32_t> rows)
    {
        const Column& column = mColumns[index];
        const uint32_t* const pTicks = column.ticks.data();
        std::size_t place = mPlaces[index]; // the first sample that is not written yet
        Slot last{{kSeparator}};
        last.text[kLast] = 1;
        if (place > 0)
            fill(last, column, place - 1);
        Slot* pSlot = &mSlots[index * kBlock];
        for (const uint32_t tick : rows) {
            if (pTicks[place] == tick) {
                while (pTicks[++place] == tick) {
                }
                fill(last, column, place - 1);
            }
            *pSlot++ = last;
        }
        mPlaces[index] = place;
    }

    char* gather(char* p, std::span<const uint32_t> rows)
    {
        const std::size_t columns = mColumns.size(); // characters written may lie anywhere, so a member would be read again for each cell
        for (std::size_t row = 0; row < rows.size(); ++row) {
            p = writeTime(p, rows[row]);
            const Slot* pSlot = &mSlots[row];
            for (std::size_t i = 0; i < columns; ++i, pSlot += kBlock) {
                std::memcpy(p, pSlot->text, sizeof pSlot->text); // a whole register, which is faster than the right length
                std::size_t length = std::size_t(pSlot->text[kLast]);
                if (length == 0) {
                    uint32_t number;
                    std::memcpy(&number, pSlot->text, sizeof number);
                    length = mAside[number].size();
                    std::memcpy(p, mAside[number].data(), length);
                }
                p += length;
            }
            p[-1] = '\n';
        }
        return p;
    }

    char* writeTime(char* p, uint32_t tick) const // h:mm:ss.zzz and the separator
    {
        const uint32_t ticksASecond = 1000 / mResolution;
        const uint32_t seconds = tick / ticksASecond;
        const uint32_t thousandths = tick % ticksASecond * mResolution;
        p = std::to_chars(p, p + 12, seconds / 3600).ptr;
        *p++ = ':';
        std::memcpy(p, kTwo.text + 2 * (seconds / 60 % 60), 2);
        p[2] = ':';
        std::memcpy(p + 3, kTwo.text + 2 * (seconds % 60), 2);
        p[5] = '.';
        p[6] = char('0' + thousandths / 100);
        std::memcpy(p + 7, kTwo.text + 2 * (thousandths % 100), 2);
        p[9] = kSeparator;
        return p + 10;
    }

    void flush(std::string_view text) const
    {
        while (!text.empty()) {
            const ssize_t written = ::write(mDescriptor, text.data(), text.size());
            if (written <= 0) {
                std::perror("write");
                std::exit(1);
            }
            text.remove_prefix(std::size_t(written));
        }
    }

    const std::vector<Column>& mColumns;
    const std::vector<uint32_t>& mRows;
    const uint32_t mResolution;
    const int mDescriptor;
    std::vector<std::size_t> mPlaces;
    std::vector<Slot> mSlots;
    std::vector<std::string> mAside;
    std::vector<char> mBuffer;
};

} // namespace

int main(int argc, char** argv)
{
    const int resolution = argc > 3 ? std::atoi(argv[3]) : 100;
    if (argc < 3 || (resolution != 100 && resolution != 10)) {
        std::fputs("usage: compare-csv DIR OUT [100|10]\n", stderr);
        return 2;
    }
    const std::string folder = argv[1];
    const std::vector<Column> columns = columnsOf(readParameters(folder + "/parameters.tsv"), folder + "/card/00000001.CAN", resolution);
    const std::vector<uint32_t> rows = rowsOf(columns);
    Writer(columns, rows, resolution, argv[2]).write();
    return 0;
}
