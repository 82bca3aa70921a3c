#include "support/CardBuilder.h"

#include "card/record/RecordWriter.h"
#include "support/FileHelpers.h"

#include <bit>
#include <cmath>

namespace ZARN::Test {

namespace {

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

RecordFileBuilder& RecordFileBuilder::texts(const std::vector<std::string>& texts)
{
    std::string* const fields[] = {&mInfo.softwarePartA, &mInfo.ecuType, &mInfo.engineSerial, &mInfo.engineType, &mInfo.softwarePartB,
                                   &mInfo.emuSoftwareVersion};
    for (std::size_t i = 0; i < texts.size(); ++i)
        *fields[i] = texts[i];
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
    RecordWriter writer(mBigEndian);
    writer.putHeader(mInfo, mHeaderTicks);
    for (const auto& [identifier, record] : mRecords)
        writer.putRecord(identifier, record);
    return QByteArray::fromStdString(writer.bytes());
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
