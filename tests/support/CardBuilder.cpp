#include "support/CardBuilder.h"

#include "support/FileHelpers.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace ZARN::Test {

namespace {

/// Appends fields in the byte order of the file.
class FieldWriter {
public:
    explicit FieldWriter(bool bigEndian) : mBigEndian(bigEndian) {}

    FieldWriter& number(uint64_t value, int width)
    {
        for (int i = 0; i < width; ++i)
            mBytes += static_cast<char>(value >> 8 * (mBigEndian ? width - 1 - i : i));
        return *this;
    }
    FieldWriter& text(const std::string& text, std::size_t width)
    {
        std::string field = text.substr(0, width);
        field.resize(width, '\0');
        mBytes.append(field.data(), static_cast<qsizetype>(field.size()));
        return *this;
    }
    FieldWriter& ticks(uint64_t ticks) { return number(ticks >> 32, 4).number(ticks & 0xFFFFFFFF, 4); }
    [[nodiscard]] const QByteArray& bytes() const { return mBytes; }

private:
    bool mBigEndian;
    QByteArray mBytes;
};

Payload dataPayload(uint8_t dataType, uint32_t data)
{
    return {0, dataType, 0, 0, static_cast<uint8_t>(data >> 24), static_cast<uint8_t>(data >> 16), static_cast<uint8_t>(data >> 8),
            static_cast<uint8_t>(data)};
}

} // namespace

Payload floatPayload(float value)
{
    return dataPayload(2, std::bit_cast<uint32_t>(value));
}

Payload wordPayload(uint32_t value, uint8_t dataType)
{
    return dataPayload(dataType, value);
}

Payload shortPayload(uint16_t value, uint8_t dataType)
{
    return dataPayload(dataType, static_cast<uint32_t>(value) << 16);
}

Payload bytePayload(uint8_t value, uint8_t dataType)
{
    return dataPayload(dataType, static_cast<uint32_t>(value) << 24);
}

uint64_t ticksOf(double seconds)
{
    return static_cast<uint64_t>(std::llround(seconds * 32e6));
}

RecordFileBuilder& RecordFileBuilder::dateTime(const QDateTime& dateTime)
{
    mDateTime = dateTime;
    return *this;
}

RecordFileBuilder& RecordFileBuilder::headerTicks(uint64_t ticks)
{
    mHeaderTicks = ticks;
    return *this;
}

RecordFileBuilder& RecordFileBuilder::serial(uint32_t number)
{
    mSerial = number;
    return *this;
}

RecordFileBuilder& RecordFileBuilder::texts(const std::vector<std::string>& texts)
{
    mTexts = texts;
    return *this;
}

RecordFileBuilder& RecordFileBuilder::add(uint32_t identifier, double seconds, const Payload& payload, uint16_t kind)
{
    return add(identifier, StoredRecord{payload, 0, 0, kind, 0, 0, ticksOf(seconds)});
}

RecordFileBuilder& RecordFileBuilder::add(uint32_t identifier, const StoredRecord& record)
{
    mRecords.push_back({identifier, record});
    return *this;
}

RecordFileBuilder& RecordFileBuilder::addFloat(uint32_t identifier, double seconds, float value)
{
    return add(identifier, seconds, floatPayload(value));
}

RecordFileBuilder& RecordFileBuilder::addWord(uint32_t identifier, double seconds, uint32_t value, uint8_t dataType)
{
    return add(identifier, seconds, wordPayload(value, dataType));
}

RecordFileBuilder& RecordFileBuilder::addShort(uint32_t identifier, double seconds, uint16_t value, uint8_t dataType)
{
    return add(identifier, seconds, shortPayload(value, dataType));
}

QByteArray RecordFileBuilder::bytes() const
{
    FieldWriter writer(mBigEndian);
    const QDate date = mDateTime.date();
    const QTime time = mDateTime.time();
    writer.number(0xABBA, 2).number(0, 6).number(0, 4);
    writer.number(static_cast<uint64_t>(mDateTime.isValid() ? date.year() : 0), 2);
    for (const int field : {date.month(), date.day(), time.hour(), time.minute(), time.second(), 0})
        writer.number(static_cast<uint64_t>(std::max(field, 0)), 1);
    writer.ticks(mHeaderTicks).number(1, 4).number(mSerial, 4);
    for (std::size_t i = 0; i < 6; ++i)
        writer.text(i < mTexts.size() ? mTexts[i] : std::string(), i == 5 ? 7 : 13);
    writer.text({}, 20);
    for (const auto& [identifier, record] : mRecords) {
        writer.text(std::string(record.payload.begin(), record.payload.end()), record.payload.size());
        writer.number(record.extra0, 1).number(record.extra1, 1).number(record.kind, 2).number(identifier, 4);
        writer.number(record.word0, 2).number(record.word1, 2).ticks(record.ticks);
    }
    return writer.bytes();
}

void RecordFileBuilder::fill(RecordData& data) const
{
    for (const auto& [identifier, record] : mRecords)
        data.append(identifier, record);
    data.buildTimeIndex();
}

RecordFileBuilder& CardBuilder::file(const std::string& name, bool bigEndian)
{
    return mFiles.emplace_back(name, RecordFileBuilder(bigEndian)).second;
}

void CardBuilder::rawFile(const std::string& name, const QByteArray& bytes) const
{
    putFile(path().toStdString() + "/" + name, bytes.toStdString());
}

QString CardBuilder::write() const
{
    for (const auto& [name, file] : mFiles)
        rawFile(name, file.bytes());
    return path();
}

} // namespace ZARN::Test
