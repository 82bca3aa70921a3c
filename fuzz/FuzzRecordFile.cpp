#include "app/Progress.h"
#include "card/record/RecordData.h"
#include "card/record/RecordFile.h"
#include "fuzz/Input.h"
#include "fuzz/MemoryFile.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include <sys/mman.h>
#include <sys/prctl.h>
#include <unistd.h>

// Feeds bytes to the reader of record files and compares what it makes of them with the file read field by field, and with a
// twin of the file in the other byte order.

namespace {

using namespace ZARN;

using Bytes = std::vector<uint8_t>;

constexpr std::size_t kHeader = 128;
constexpr std::size_t kRecord = 28;
constexpr std::size_t kMemoryLimit = 64 << 20;

struct Field {
    std::size_t offset;
    std::size_t size;
};
constexpr Field kHeaderFields[] = {{0, 2}, {12, 2}, {20, 4}, {24, 4}, {28, 4}, {32, 4}};
constexpr Field kRecordFields[] = {{10, 2}, {12, 4}, {16, 2}, {18, 2}, {20, 4}, {24, 4}};

/// What one reading of a file gave.
struct Reading {
    RecordInfo info;
    RecordData data{kMemoryLimit};
    RecordInfo span; ///< the info after the full pass
};

/// Checks that progress runs upward within 0..99.
class RisingProgress : public Progress {
public:
    void setProgress(int percent) override
    {
        REQUIRE(percent >= 0 && percent < 100 && percent > mLast);
        mLast = percent;
    }

private:
    int mLast = -1;
};

void read(const Bytes& bytes, Reading& reading)
{
    const MemoryFile memory(bytes.data(), bytes.size());
    RisingProgress progress;
    RecordFile file(silence(), progress);
    file.readRecordInfo(memory.path());
    reading.info = file.recordInfo();
    REQUIRE(file.readRecordData(reading.data));
    reading.span = file.recordInfo();
    reading.data.buildTimeIndex();
}

bool isLittleEndian(const Bytes& bytes)
{
    return bytes.size() >= 2 && bytes[0] == 0xBA && bytes[1] == 0xAB;
}

uint64_t number(const uint8_t* pBytes, Field field, bool little)
{
    uint64_t value = 0;
    for (std::size_t i = 0; i < field.size; ++i)
        value = value << 8 | pBytes[field.offset + (little ? field.size - 1 - i : i)];
    return value;
}

void reverse(Bytes& bytes, std::size_t start, Field field)
{
    if (start + field.offset + field.size <= bytes.size()) {
        const auto first = bytes.begin() + static_cast<std::ptrdiff_t>(start + field.offset);
        std::reverse(first, first + static_cast<std::ptrdiff_t>(field.size));
    }
}

/// The same content in the other byte order. Only for files with a whole header.
Bytes twin(Bytes bytes)
{
    const bool little = isLittleEndian(bytes);
    bytes[0] = little ? 0xAB : 0xBA;
    bytes[1] = little ? 0xBA : 0xAB;
    for (const Field field : kHeaderFields) {
        if (field.offset != 0)
            reverse(bytes, 0, field);
    }
    for (std::size_t start = kHeader; start + kRecord <= bytes.size(); start += kRecord) {
        for (const Field field : kRecordFields)
            reverse(bytes, start, field);
    }
    return bytes;
}

void requireSameRecord(const StoredRecord& record, const uint8_t* pBytes, bool little)
{
    REQUIRE(std::memcmp(record.payload.data(), pBytes, 8) == 0);
    REQUIRE(record.extra0 == pBytes[8] && record.extra1 == pBytes[9]);
    REQUIRE(record.kind == number(pBytes, kRecordFields[0], little));
    REQUIRE(record.word0 == number(pBytes, kRecordFields[2], little));
    REQUIRE(record.word1 == number(pBytes, kRecordFields[3], little));
    REQUIRE(record.ticks == (number(pBytes, kRecordFields[4], little) << 32 | number(pBytes, kRecordFields[5], little)));
}

/// The channel of records, not of copies that a pseudo-channel has.
const RecordChannel* channelOf(const RecordData& data, uint32_t identifier)
{
    const auto found = std::ranges::lower_bound(data.channels(), identifier, {}, &RecordChannel::identifier);
    return found == data.channels().end() || (*found)->identifier() != identifier ? nullptr : *found;
}

/// Every record of the file stands where it belongs, in its channel and, by its kind, in a pseudo-channel; nothing else does.
void requireRecords(const Bytes& bytes, RecordData& data)
{
    const bool little = isLittleEndian(bytes);
    const std::size_t count = bytes.size() < kHeader ? 0 : (bytes.size() - kHeader) / kRecord;
    REQUIRE(data.count() == count);
    std::map<uint32_t, std::size_t> seen;
    for (std::size_t i = 0; i < count; ++i) {
        const uint8_t* pRecord = bytes.data() + kHeader + i * kRecord;
        const auto identifier = static_cast<uint32_t>(number(pRecord, kRecordFields[1], little));
        const uint64_t kind = number(pRecord, kRecordFields[0], little);
        const RecordChannel* pChannel = channelOf(data, identifier);
        REQUIRE(pChannel);
        requireSameRecord(pChannel->entries.stored(seen[identifier]++), pRecord, little);
        if (kind > 1)
            continue;
        const uint32_t pseudo = kind == 0 ? RecordData::kPseudoKind0 : RecordData::kPseudoKind1;
        // A damaged file can hold the pseudo-channel's own identifier; then its records and the copies share the name.
        if (channelOf(data, pseudo))
            continue;
        const RecordChannel* pPseudo = data.channel(pseudo);
        REQUIRE(pPseudo);
        const RecordEntry copy = pPseudo->entries[seen[pseudo]++];
        requireSameRecord(copy.stored(), pRecord, little);
        REQUIRE(copy.id == identifier);
    }
    std::size_t sum = 0;
    for (const RecordChannel* pChannel : data.channels()) {
        REQUIRE(pChannel->entries.size() == seen[pChannel->identifier()]);
        sum += pChannel->entries.size();
    }
    REQUIRE(sum == count);
}

/// The look-up by time against a scan from the first entry.
void requireLookUps(const RecordData& data)
{
    for (const RecordChannel* pChannel : data.channels()) {
        const RecordChannel& channel = *pChannel;
        const std::size_t size = channel.entries.size();
        for (std::size_t probe = 0; probe < size; probe += 1 + size / 8) {
            const double time = channel.entries.time(probe);
            std::size_t scan = 0;
            while (scan < size && !(channel.entries.time(scan) >= time))
                ++scan;
            REQUIRE(channel.firstAtOrAfter(time) == scan);
        }
        REQUIRE(channel.firstAtOrAfter(1e300) == size);
        REQUIRE(channel.firstAtOrAfter(-1.0) == 0);
    }
}

void requireSameInfo(const RecordInfo& a, const RecordInfo& b)
{
    REQUIRE(a.dateTime == b.dateTime && a.dateTime.isValid() == b.dateTime.isValid());
    REQUIRE(a.startTime == b.startTime && a.endTime == b.endTime && a.samples == b.samples);
    REQUIRE(a.busType == b.busType && a.ecuSerialNumber == b.ecuSerialNumber);
    REQUIRE(a.softwarePartA == b.softwarePartA && a.ecuType == b.ecuType && a.engineSerial == b.engineSerial);
    REQUIRE(a.engineType == b.engineType && a.softwarePartB == b.softwarePartB && a.emuSoftwareVersion == b.emuSoftwareVersion);
}

} // namespace

// The records' slabs are much larger than what an input fills: keep the sanitizer from mapping memory anew for each.
extern "C" const char* __asan_default_options()
{
    return "quarantine_size_mb=16:clear_shadow_mmap_threshold=16777216";
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    // A huge page a pool is a gain for cards and the main cost for inputs of some hundred bytes.
    prctl(PR_SET_THP_DISABLE, 1, 0, 0, 0);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* pData, std::size_t size)
{
    const Bytes bytes(pData, pData + size);
    Reading reading;
    read(bytes, reading);
    REQUIRE(reading.info.samples == reading.data.count());
    REQUIRE(reading.data.count() == 0 || reading.span.startTime <= reading.span.endTime);
    REQUIRE(reading.info.softwarePartA.size() <= 13 && reading.info.emuSoftwareVersion.size() <= 7);
    requireRecords(bytes, reading.data);
    requireLookUps(reading.data);
    // Reading costs most of the time, and a twin behaves as its original: one in four is enough.
    if (size < kHeader || size % 4 != 0)
        return 0;

    Reading other;
    const Bytes twinBytes = twin(bytes);
    read(twinBytes, other);
    requireSameInfo(reading.info, other.info);
    requireSameInfo(reading.span, other.span);
    requireRecords(twinBytes, other.data);
    return 0;
}
