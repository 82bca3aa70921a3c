#pragma once

#include "card/record/RecordReader.h"

#include <array>

namespace ZARN {

/// Reads one record file: a 128-byte header and 28-byte data records, in the byte order that the mark at offset 0 tells.
/// No checksum exists; a record counts only when all its bytes came.
class RecordFile : public RecordReader {
    Q_DECLARE_TR_FUNCTIONS(ZARN::RecordFile)

public:
    using RecordReader::RecordReader;

    static constexpr int64_t kHeaderSize = 128;
    static constexpr int64_t kRecordSize = 28;

    /// The file then stands at its first record, unless the times were read. @return false, leaving no info, when not all could be read.
    bool readInfo(FILE* pFile, bool withTimes);
    /// Reads the data records from the file's position on. @return false only when no memory is left for them.
    bool readData(FILE* pFile, RecordData& data);

    // Field readers. Each exchanges the byte order when the file's differs from the host's. From a file: false, and 0 or an
    // empty string, when fewer bytes than the field's width remain.
    bool getChar(FILE* pFile, char& value) const;
    bool getUChar(FILE* pFile, unsigned char& value) const;
    bool getShort(FILE* pFile, short& value) const;
    bool getUShort(FILE* pFile, unsigned short& value) const;
    bool getInt(FILE* pFile, int& value) const;
    bool getUInt(FILE* pFile, unsigned int& value) const;
    /// `buffer` takes `length` bytes and a terminating NUL.
    bool getString(FILE* pFile, char* buffer, int length) const;
    // From a buffer, at `index`, which is advanced by the field's width.
    void getbChar(const char* source, int& index, char& value) const;
    void getbUChar(const char* source, int& index, unsigned char& value) const;
    void getbShort(const char* source, int& index, short& value) const;
    void getbUShort(const char* source, int& index, unsigned short& value) const;
    void getbInt(const char* source, int& index, int& value) const;
    void getbUInt(const char* source, int& index, unsigned int& value) const;
    void getbString(const char* source, int& index, char* buffer, int length) const;

private:
    void scanFile(FILE* pFile) override;
    bool loadFile(FILE* pFile, RecordData& data) override;
    void noteDamage();
    bool readHeader(FILE* pFile, bool withTimes);
    bool readTime(FILE* pFile, double& seconds) const;
    std::string readText(FILE* pFile, int length) const;
    QDateTime readDateTime(FILE* pFile) const;
    template <bool Swap> bool readRecords(FILE* pFile, RecordData& data);
    template <bool Swap> bool appendRecords(const uint8_t* pRecords, int32_t count, RecordData& data);

    std::array<char, 512> mHeaderBuffer{}; ///< for the library, which would copy whole pages; lives longer than the file is open
    bool mHasMark = false;                 ///< the header begins with the mark, in either order
    bool swapped = false;                  ///< the file's byte order differs from the host's
    int32_t recordCount = 0;
};

} // namespace ZARN
