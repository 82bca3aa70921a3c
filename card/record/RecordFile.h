#pragma once

#include "card/record/RecordInfo.h"

#include <QCoreApplication>

#include <cstdio>
#include <memory>

namespace ZARN {

class Console;
class Progress;
class RecordData;

/// Reads one record file: a 128-byte header and 28-byte data records, in the byte order that the mark at offset 0 tells.
/// Files are read with ordinary reads, never mapped: a medium that is pulled must not end the process. Only regular files are
/// opened. No checksum exists; a record counts only when all its bytes came.
class RecordFile : public RecordInfo {
    Q_DECLARE_TR_FUNCTIONS(ZARN::RecordFile)

public:
    RecordFile(const Console& console, Progress& receiver) : mConsole(console), mProgress(receiver) {}

    static constexpr int64_t kHeaderSize = 128;
    static constexpr int64_t kRecordSize = 28;

    /// The header pass. A file that cannot be opened is said on the console and leaves the info as it was.
    void readRecordInfo(const QString& path);
    /// The full pass: appends every data record of the file named by `fileName`. @return false when memory ran out.
    bool readRecordData(RecordData& data);

    bool readInfo(FILE* pFile, bool withTimes);
    /// Reads the data records from the file's position on. @return false only when no memory is left for them.
    bool readData(FILE* pFile, RecordData& data);

    /// What the last pass found wrong with the file, for people; empty when nothing is.
    [[nodiscard]] const QString& problem() const { return mProblem; }
    /// Whether that is the system's doing, not damage: the file may hold more than could be read.
    [[nodiscard]] bool isSystemError() const { return mSystemError != 0; }

    [[nodiscard]] const RecordInfo& recordInfo() const { return *this; }
    void setRecordInfo(const RecordInfo& info) { static_cast<RecordInfo&>(*this) = info; }

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
    struct Close {
        void operator()(FILE* pFile) const { std::fclose(pFile); }
    };
    using File = std::unique_ptr<FILE, Close>;

    File openFile();
    void noteSystemError(int error);
    double readTime(FILE* pFile) const;
    std::string readText(FILE* pFile, int length) const;
    QDateTime readDateTime(FILE* pFile) const;
    template <bool Swap> bool readRecords(FILE* pFile, RecordData& data);
    template <bool Swap> bool appendRecords(const uint8_t* pRecords, int32_t count, RecordData& data);
    void reportProgress(int32_t record);

    const Console& mConsole;
    Progress& mProgress;
    QString mProblem;
    int mSystemError = 0; ///< the system's number of the error that kept the file from being read
    bool swapped = false; ///< the file's byte order differs from the host's
    int32_t recordCount = 0;
    int32_t progress = 0; ///< percent
    int32_t lastProgress = -1;
};

} // namespace ZARN
