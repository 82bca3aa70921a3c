#include "card/record/RecordFile.h"

#include "app/Console.h"
#include "app/FirstNumber.h"
#include "card/record/ByteOrder.h"
#include "card/record/RecordData.h"

#include <algorithm>
#include <cerrno>

namespace ZARN {

namespace {

constexpr uint16_t kByteOrderMark = 0xABBA;
constexpr uint16_t kExchangedMark = 0xBAAB;
constexpr long kFieldsEnd = 108;       // bytes of a header that are read
constexpr long kFirstRecordTime = 148; // offset of the first record's time words; those of the last one stand at 28 x count + 120

template <typename T> bool readField(FILE* pFile, T& value, bool swap)
{
    if (std::fread(&value, sizeof value, 1, pFile) != 1) {
        value = 0;
        return false;
    }
    if (swap)
        SWAP(&value, sizeof value);
    return true;
}

template <typename T> void copyField(const char* source, int& index, T& value, bool swap)
{
    std::memcpy(&value, source + index, sizeof value);
    if (swap)
        SWAP(&value, sizeof value);
    index += static_cast<int>(sizeof value);
}

/// How many whole records a file of this size holds.
int32_t recordsOf(int64_t fileSize)
{
    if (fileSize < RecordFile::kHeaderSize)
        return 0;
    return static_cast<int32_t>(std::min<int64_t>((fileSize - RecordFile::kHeaderSize) / RecordFile::kRecordSize, INT32_MAX));
}

int32_t percentOf(int32_t record, int32_t count)
{
    return static_cast<int32_t>(static_cast<float>(record) / static_cast<float>(count) * 100.0F);
}

/// The first record in (record, count] whose percentage differs from `record`'s.
int32_t nextPercent(int32_t record, int32_t count)
{
    const int32_t first = std::min(record, count - 1) + 1;
    const int32_t percent = percentOf(record, count);
    return firstNumber(first, count, [=](int32_t later) { return percentOf(later, count) > percent; });
}

template <bool Swap> StoredRecord parseRecord(const uint8_t* pRecord)
{
    StoredRecord record;
    std::memcpy(record.payload.data(), pRecord, record.payload.size());
    record.extra0 = pRecord[8];
    record.extra1 = pRecord[9];
    record.kind = loadInteger<uint16_t, Swap>(pRecord + 10);
    record.word0 = loadInteger<uint16_t, Swap>(pRecord + 16);
    record.word1 = loadInteger<uint16_t, Swap>(pRecord + 18);
    record.ticks = static_cast<uint64_t>(loadInteger<uint32_t, Swap>(pRecord + 20)) << 32 | loadInteger<uint32_t, Swap>(pRecord + 24);
    return record;
}

} // namespace

void RecordFile::scanFile(FILE* pFile)
{
    recordCount = recordsOf(fileSize());
    samples = static_cast<uint32_t>(recordCount);
    std::setvbuf(pFile, mHeaderBuffer.data(), _IOFBF, mHeaderBuffer.size());
    if (readInfo(pFile, true))
        noteDamage();
}

bool RecordFile::loadFile(FILE* pFile, RecordData& data)
{
    recordCount = recordsOf(fileSize());
    noteLost(static_cast<uint32_t>(recordCount));
    return !readInfo(pFile, false) || readData(pFile, data);
}

void RecordFile::noteDamage()
{
    if (fileSize() < kHeaderSize) {
        note(tr("%1 bytes, no record").arg(fileSize()), false);
        return;
    }
    if (!mHasMark)
        note(tr("the header is damaged: no byte-order mark"), false);
    if ((fileSize() - kHeaderSize) % kRecordSize != 0)
        note(tr("the last record is cut off"), false);
    noteUnsoundTimes();
}

bool RecordFile::readTime(FILE* pFile, double& seconds) const
{
    unsigned int high = 0;
    unsigned int low = 0;
    const bool whole = getUInt(pFile, high) && getUInt(pFile, low);
    seconds = recordTime(high, low);
    return whole;
}

std::string RecordFile::readText(FILE* pFile, int length) const
{
    char buffer[16] = {};
    getString(pFile, buffer, length);
    return buffer;
}

QDateTime RecordFile::readDateTime(FILE* pFile) const
{
    short year = 0;
    unsigned char fields[6] = {}; // month, day, hour, minute, second, reserved
    getShort(pFile, year);
    for (unsigned char& field : fields)
        getUChar(pFile, field);
    const QDate date(year, fields[0], fields[1]);
    const QTime time(fields[2], fields[3], fields[4], 0);
    // The toolkit would take midnight for an invalid time of day; a damaged clock is no clock.
    return date.isValid() && time.isValid() ? QDateTime(date, time, Qt::UTC) : QDateTime();
}

bool RecordFile::readInfo(FILE* pFile, bool withTimes)
{
    errno = 0;
    if (readHeader(pFile, withTimes))
        return true;
    // What a failed read leaves is no header: its zeros would pass for the unit's numbers, and for the other byte order.
    forgetInfo();
    recordCount = 0;
    if (std::ferror(pFile) || errno != 0)
        noteSystemError(errno != 0 ? errno : EIO);
    else
        note(tr("it became shorter while it was read"), true);
    return false;
}

bool RecordFile::readHeader(FILE* pFile, bool withTimes)
{
    swapped = false;
    unsigned short mark = 0;
    getUShort(pFile, mark);
    swapped = mark != kByteOrderMark;
    mHasMark = !swapped || mark == kExchangedMark;
    unsigned short reserved = 0;
    unsigned int reservedLong = 0;
    for (int i = 0; i < 3; ++i)
        getUShort(pFile, reserved);
    getUInt(pFile, reservedLong);
    dateTime = readDateTime(pFile);
    double headerTime = 0.0;
    readTime(pFile, headerTime);
    getUInt(pFile, busType);
    getUInt(pFile, ecuSerialNumber);
    softwarePartA = readText(pFile, 13);
    ecuType = readText(pFile, 13);
    engineSerial = readText(pFile, 13);
    engineType = readText(pFile, 13);
    softwarePartB = readText(pFile, 13);
    emuSoftwareVersion = readText(pFile, 7);
    if (withTimes)
        startTime = headerTime;
    if (std::ferror(pFile) || recordCount < 1)
        return !std::ferror(pFile);
    if (std::feof(pFile))
        return false;
    const auto seek = [pFile](int64_t offset) { return std::fseek(pFile, static_cast<long>(offset), SEEK_SET) == 0; };
    if (!withTimes)
        return seek(kHeaderSize);
    char between[kFirstRecordTime - kFieldsEnd]; // read, since a seek would have the library read the file's beginning again
    return std::fread(between, sizeof between, 1, pFile) == 1 && readTime(pFile, startTime) && seek(kRecordSize * recordCount + 120) &&
           readTime(pFile, endTime);
}

bool RecordFile::readData(FILE* pFile, RecordData& data)
{
    return swapped ? readRecords<true>(pFile, data) : readRecords<false>(pFile, data);
}

template <bool Swap> bool RecordFile::readRecords(FILE* pFile, RecordData& data)
{
    constexpr int32_t kPiece = 256 * 1024 / kRecordSize; // records a read
    const auto buffer = std::make_unique_for_overwrite<uint8_t[]>(kPiece * kRecordSize);
    for (int32_t done = 0; done < recordCount;) {
        const int32_t wanted = std::min(kPiece, recordCount - done);
        errno = 0;
        const auto got = static_cast<int32_t>(std::fread(buffer.get(), kRecordSize, static_cast<std::size_t>(wanted), pFile));
        for (int32_t i = 0; i < got;) {
            if (!tellProgress(percentOf(done + i, recordCount)))
                return true;
            const int32_t run = std::min(got - i, nextPercent(done + i, recordCount) - (done + i));
            if (!appendRecords<Swap>(buffer.get() + i * kRecordSize, run, data))
                return false;
            i += run;
        }
        done += got;
        if (got < wanted) {
            if (std::ferror(pFile))
                noteSystemError(errno != 0 ? errno : EIO);
            note(tr("only %1 of %2 records could be read").arg(done).arg(recordCount), true);
            console().print("RecordFile::readData: %s ends after %d of %d records\n", fileName.toUtf8().constData(), done, recordCount);
            break;
        }
    }
    return true;
}

template <bool Swap> bool RecordFile::appendRecords(const uint8_t* pRecords, int32_t count, RecordData& data)
{
    const bool first = data.count() == 0;
    uint64_t lowest = UINT64_MAX;
    uint64_t highest = 0;
    int32_t done = 0;
    for (; done < count; ++done, pRecords += kRecordSize) {
        const StoredRecord record = parseRecord<Swap>(pRecords);
        lowest = std::min(lowest, record.ticks);
        highest = std::max(highest, record.ticks);
        if (!data.append(loadInteger<uint32_t, Swap>(pRecords + 12), record))
            break;
    }
    if (done > 0)
        addSpan(first, lowest, highest);
    return done == count;
}

bool RecordFile::getChar(FILE* pFile, char& value) const
{
    return readField(pFile, value, swapped);
}

bool RecordFile::getUChar(FILE* pFile, unsigned char& value) const
{
    return readField(pFile, value, swapped);
}

bool RecordFile::getShort(FILE* pFile, short& value) const
{
    return readField(pFile, value, swapped);
}

bool RecordFile::getUShort(FILE* pFile, unsigned short& value) const
{
    return readField(pFile, value, swapped);
}

bool RecordFile::getInt(FILE* pFile, int& value) const
{
    return readField(pFile, value, swapped);
}

bool RecordFile::getUInt(FILE* pFile, unsigned int& value) const
{
    return readField(pFile, value, swapped);
}

bool RecordFile::getString(FILE* pFile, char* buffer, int length) const
{
    const bool whole = std::fread(buffer, static_cast<std::size_t>(length), 1, pFile) == 1;
    buffer[whole ? length : 0] = '\0';
    return whole;
}

void RecordFile::getbChar(const char* source, int& index, char& value) const
{
    copyField(source, index, value, swapped);
}

void RecordFile::getbUChar(const char* source, int& index, unsigned char& value) const
{
    copyField(source, index, value, swapped);
}

void RecordFile::getbShort(const char* source, int& index, short& value) const
{
    copyField(source, index, value, swapped);
}

void RecordFile::getbUShort(const char* source, int& index, unsigned short& value) const
{
    copyField(source, index, value, swapped);
}

void RecordFile::getbInt(const char* source, int& index, int& value) const
{
    copyField(source, index, value, swapped);
}

void RecordFile::getbUInt(const char* source, int& index, unsigned int& value) const
{
    copyField(source, index, value, swapped);
}

void RecordFile::getbString(const char* source, int& index, char* buffer, int length) const
{
    std::memcpy(buffer, source + index, static_cast<std::size_t>(length));
    buffer[length] = '\0';
    index += length;
}

} // namespace ZARN
