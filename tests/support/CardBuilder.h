#pragma once

#include "card/record/RecordData.h"
#include "card/record/RecordInfo.h"

#include <QByteArray>
#include <QTemporaryDir>

#include <list>
#include <string>
#include <vector>

namespace ZARN::Test {

// Payloads of CANaerospace messages: byte 1 the data type code, the data from byte 4 on, big-endian.
Payload floatPayload(float value);
Payload wordPayload(uint32_t value, uint8_t dataType = 4);  ///< 32 bits; also LONG (3), BLONG (5) and fault words
Payload shortPayload(uint16_t value, uint8_t dataType = 7); ///< 16 bits in bytes 4 and 5
Payload bytePayload(uint8_t value, uint8_t dataType = 10);  ///< 8 bits in byte 4

/// Seconds to the nearest tick of the 32 MHz counter.
uint64_t ticksOf(double seconds);

/// One record file of a card, in either byte order, built record by record.
class RecordFileBuilder {
public:
    explicit RecordFileBuilder(bool bigEndian = false) : mBigEndian(bigEndian) { mInfo.busType = 1; }

    /// Without it the header's date is all 0 and so invalid.
    RecordFileBuilder& dateTime(const QDateTime& dateTime) { return mInfo.dateTime = dateTime, *this; }
    RecordFileBuilder& headerTicks(uint64_t ticks) { return mHeaderTicks = ticks, *this; }
    RecordFileBuilder& serial(uint32_t number) { return mInfo.ecuSerialNumber = number, *this; }
    /// The header's texts in the file's order: software part A, ECU type, engine serial, engine type, software part B, EMU version.
    RecordFileBuilder& texts(const std::vector<std::string>& texts);

    RecordFileBuilder& add(uint32_t identifier, double seconds, const Payload& payload, uint16_t kind = 2);
    RecordFileBuilder& add(uint32_t identifier, const StoredRecord& record);
    RecordFileBuilder& addFloat(uint32_t identifier, double seconds, float value);
    RecordFileBuilder& addWord(uint32_t identifier, double seconds, uint32_t value, uint8_t dataType = 4);
    RecordFileBuilder& addShort(uint32_t identifier, double seconds, uint16_t value, uint8_t dataType = 7);

    /// The file's bytes: a header of 128 and 28 a record.
    [[nodiscard]] QByteArray bytes() const;
    /// The records alone, straight into memory, with the time index built.
    void fill(RecordData& data) const;

private:
    struct Record {
        uint32_t identifier;
        StoredRecord record;
    };
    bool mBigEndian;
    RecordInfo mInfo;
    uint64_t mHeaderTicks = 0;
    std::vector<Record> mRecords;
};

/// A card folder that lives as long as the builder.
class CardBuilder {
public:
    /// A new record file of that name; the reference stays valid.
    RecordFileBuilder& file(const std::string& name, bool bigEndian = false);
    /// A file with any content.
    void rawFile(const std::string& name, const QByteArray& bytes) const;
    /// Writes the record files. @return the folder.
    QString write() const;
    [[nodiscard]] QString path() const { return mFolder.path(); }

private:
    QTemporaryDir mFolder;
    std::list<std::pair<std::string, RecordFileBuilder>> mFiles;
};

} // namespace ZARN::Test
