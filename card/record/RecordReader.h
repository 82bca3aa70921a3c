#pragma once

#include "card/record/RecordInfo.h"

#include <QCoreApplication>

#include <cstdio>
#include <memory>

namespace ZARN {

class Console;
class Progress;
class RecordData;

/// Closes a file of the standard library when its owner goes.
struct CloseFile {
    void operator()(FILE* pFile) const { std::fclose(pFile); }
};
using File = std::unique_ptr<FILE, CloseFile>;

/// Reads one record file of a format, in two passes: what it holds, when the card is opened, and its records, when they are loaded.
/// Files are read with ordinary reads, never mapped: a medium that is pulled must not end the process. Only regular files are opened.
/// It is the passes that differ from format to format: nothing is virtual per record.
class RecordReader : public RecordInfo {
    Q_DECLARE_TR_FUNCTIONS(ZARN::RecordReader)

public:
    RecordReader(const Console& console, Progress& receiver) : mConsole(console), mProgress(receiver) {}
    virtual ~RecordReader() = default;

    /// The header pass. A file that cannot be opened is said on the console and leaves the info as it was.
    void readRecordInfo(const QString& path);
    /// The full pass: appends every data record of the file named by `fileName`, or some of them when the receiver of the progress
    /// cancels it. @return false when memory ran out.
    bool readRecordData(RecordData& data);

    /// What the last pass found wrong with the file, for people; empty when nothing is.
    [[nodiscard]] const QString& problem() const { return mProblem; }
    /// Whether that is the system's doing, not damage: the file may hold more than could be read.
    [[nodiscard]] bool isSystemError() const { return mIsSystemError; }

    [[nodiscard]] const RecordInfo& recordInfo() const { return *this; }
    void setRecordInfo(const RecordInfo& info) { static_cast<RecordInfo&>(*this) = info; }

    /// Opens a regular file, without waiting for what is none. @return null, with the reason in errno, when it is none.
    [[nodiscard]] static File openFile(const QString& path, int64_t& size);

protected:
    /// The header pass over the open file.
    virtual void scanFile(FILE* pFile) = 0;
    /// The full pass over the open file. @return false when memory ran out.
    virtual bool loadFile(FILE* pFile, RecordData& data) = 0;

    void note(const QString& problem, bool isSystemError);
    void noteSystemError(int error);
    void noteUnsoundTimes();
    /// That fewer records are there than the header pass found.
    void noteLost(uint32_t left);
    /// Extends the span, which begins anew with the first records of the data, by that of records, in ticks.
    void addSpan(bool isFirst, uint64_t lowest, uint64_t highest);
    /// Forgets what was read of a file of which not all could be read.
    void forgetInfo();
    [[nodiscard]] int64_t fileSize() const { return mSize; } ///< bytes
    [[nodiscard]] const Console& console() const { return mConsole; }
    /// @return false when whoever waits has had enough of it
    bool tellProgress(int32_t percent);

private:
    File open(const char* function);

    const Console& mConsole;
    Progress& mProgress;
    QString mProblem;
    bool mIsSystemError = false;
    int64_t mSize = 0;
    int32_t mToldProgress = -1;
};

} // namespace ZARN
