#include "sim/RecordWriter.h"

#include <cerrno>
#include <cstring>

namespace ZARN {

namespace {

constexpr std::size_t kHeaderSize = 128;
constexpr std::size_t kRecordSize = 28;
constexpr std::size_t kPiece = 256 * 1024;
constexpr std::uint16_t kByteOrderMark = 0xABBA;

} // namespace

RecordWriter::RecordWriter(bool bigEndian) : mBigEndian(bigEndian)
{
    mBuffer.reserve(kPiece + kRecordSize);
}

RecordWriter::~RecordWriter()
{
    discard();
}

void RecordWriter::put16(std::uint16_t value)
{
    const std::uint8_t low = static_cast<std::uint8_t>(value);
    const std::uint8_t high = static_cast<std::uint8_t>(value >> 8);
    mBuffer.push_back(mBigEndian ? high : low);
    mBuffer.push_back(mBigEndian ? low : high);
}

void RecordWriter::put32(std::uint32_t value)
{
    const std::uint16_t low = static_cast<std::uint16_t>(value);
    const std::uint16_t high = static_cast<std::uint16_t>(value >> 16);
    put16(mBigEndian ? high : low);
    put16(mBigEndian ? low : high);
}

void RecordWriter::putText(const std::string& text, std::size_t width)
{
    for (std::size_t i = 0; i < width; ++i)
        mBuffer.push_back(i < text.size() ? static_cast<std::uint8_t>(text[i]) : 0);
}

void RecordWriter::putHeader(const CardHeader& header)
{
    put16(kByteOrderMark);
    mBuffer.resize(12);
    const bool dated = header.dateTime.isValid();
    const QDate date = header.dateTime.date();
    const QTime time = header.dateTime.time();
    put16(static_cast<std::uint16_t>(dated ? date.year() : 0));
    for (const int part : {date.month(), date.day(), time.hour(), time.minute(), time.second(), 0})
        mBuffer.push_back(static_cast<std::uint8_t>(dated ? part : 0));
    put32(static_cast<std::uint32_t>(header.ticks >> 32));
    put32(static_cast<std::uint32_t>(header.ticks));
    put32(header.busType);
    put32(header.ecuSerialNumber);
    for (const std::string* pText : {&header.softwarePartA, &header.ecuType, &header.engineSerial, &header.engineType, &header.softwarePartB})
        putText(*pText, 13);
    putText(header.emuSoftwareVersion, 7);
    mBuffer.resize(kHeaderSize);
}

void RecordWriter::putRecord(const CardRecord& record)
{
    mBuffer.insert(mBuffer.end(), record.payload.begin(), record.payload.end());
    mBuffer.push_back(record.length);
    mBuffer.push_back(record.bus);
    put16(record.kind);
    put32(record.id);
    put16(record.sequence);
    put16(record.load);
    put32(static_cast<std::uint32_t>(record.ticks >> 32));
    put32(static_cast<std::uint32_t>(record.ticks));
}

bool RecordWriter::open(const std::string& path, const CardHeader& header)
{
    mPath = path;
    mBuffer.clear();
    mpFile = std::fopen(path.c_str(), "wbx");
    if (mpFile == nullptr)
        return fail(errno);
    std::setvbuf(mpFile, nullptr, _IONBF, 0);
    putHeader(header);
    return true;
}

bool RecordWriter::append(const std::vector<CardRecord>& records)
{
    for (const CardRecord& record : records) {
        putRecord(record);
        if (mBuffer.size() >= kPiece && !flush())
            return false;
    }
    return true;
}

bool RecordWriter::flush()
{
    errno = 0;
    if (std::fwrite(mBuffer.data(), 1, mBuffer.size(), mpFile) != mBuffer.size())
        return fail(errno);
    mBuffer.clear();
    return true;
}

bool RecordWriter::close()
{
    if (!flush())
        return false;
    std::FILE* file = mpFile;
    mpFile = nullptr;
    if (std::fclose(file) == 0)
        return true;
    const int error = errno;
    std::remove(mPath.c_str());
    return fail(error);
}

/// Keeps the first failure's text and removes what was written of the file.
bool RecordWriter::fail(int error)
{
    if (mError.empty())
        mError = mPath + ": " + (error != 0 ? std::strerror(error) : "not written whole");
    discard();
    return false;
}

void RecordWriter::discard()
{
    if (mpFile == nullptr)
        return;
    std::fclose(mpFile);
    mpFile = nullptr;
    std::remove(mPath.c_str());
}

} // namespace ZARN
