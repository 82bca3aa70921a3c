#pragma once

#include "sim/CardRecord.h"

#include <QDateTime>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace ZARN {

/// What the header of a record file tells of the unit and the recording.
struct CardHeader {
    QDateTime dateTime;      ///< invalid: written as zeros
    std::uint64_t ticks = 0; ///< of the counter when the file is begun
    std::uint32_t busType = 1;
    std::uint32_t ecuSerialNumber = 0;
    // Texts longer than their field (13 bytes, the last one 7) are cut.
    std::string softwarePartA, ecuType, engineSerial, engineType, softwarePartB, emuSoftwareVersion;
};

/// Writes one record file after the other, in pieces of fixed size. Never writes over a file that exists. A file that is not
/// closed, or whose closing fails, is removed.
class RecordWriter {
public:
    explicit RecordWriter(bool bigEndian);
    ~RecordWriter();
    RecordWriter(const RecordWriter&) = delete;
    RecordWriter& operator=(const RecordWriter&) = delete;

    /// Begins a file; none may be open.
    bool open(const std::string& path, const CardHeader& header);
    bool append(const std::vector<CardRecord>& records);
    bool close();

    [[nodiscard]] bool isOpen() const { return mpFile != nullptr; }
    /// "PATH: reason" of the first failure.
    [[nodiscard]] const std::string& error() const { return mError; }

private:
    void put16(std::uint16_t value);
    void put32(std::uint32_t value);
    void putText(const std::string& text, std::size_t width);
    void putHeader(const CardHeader& header);
    void putRecord(const CardRecord& record);
    bool flush();
    bool fail(int error);
    void discard();

    const bool mBigEndian;
    std::FILE* mpFile = nullptr;
    std::string mPath;
    std::string mError;
    std::vector<std::uint8_t> mBuffer;
};

} // namespace ZARN
