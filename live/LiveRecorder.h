#pragma once

#include "live/LiveRecord.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLockFile>
#include <QString>

#include <memory>

namespace ZARN {

/// Writes live records into a folder as the unit writes them on its card, so that the folder opens as a card and what came in one
/// recording is one power cycle with a clock: a first file of a second or two without a date, then files of ten minutes with one.
/// Each call's records have left the program when it returns: a killed program loses nothing that it was given, a machine that
/// loses its power what the system had not written yet. Files that are there stay as they are.
class LiveRecorder {
    Q_DECLARE_TR_FUNCTIONS(ZARN::LiveRecorder)

public:
    explicit LiveRecorder(QString folder);
    ~LiveRecorder();
    LiveRecorder(const LiveRecorder&) = delete;
    LiveRecorder& operator=(const LiveRecorder&) = delete;

    /// Makes the folder and holds it against a second recorder. The first file is begun by the first record. @return false with error().
    bool open();
    /// @param now the wall clock, which is looked at with the first records only: later dates follow from the records' times.
    /// @return false with error() when the recording has ended, with what could be written.
    bool append(const LiveRecords& records, const QDateTime& now);
    /// @return false with error() when the end of the recording may be lost.
    bool close();

    [[nodiscard]] bool isOpen() const { return mIsOpen; }
    [[nodiscard]] uint64_t recorded() const { return mRecorded; }
    [[nodiscard]] const QString& file() const { return mFile; } ///< the one that is written; empty before the first record
    /// "NAME: reason", empty while all is well.
    [[nodiscard]] const QString& error() const { return mError; }

private:
    bool findNumber();
    bool beginFile(uint64_t ticks, bool isDated);
    bool write(const std::string& bytes);
    void dropUnfinished() const;
    bool closeFile();
    bool fail(const QString& name, int reason);

    QString mFolder;
    QString mFile;
    QString mError;
    std::unique_ptr<QLockFile> mpLock;
    bool mIsOpen = false;
    int mDescriptor = -1;
    unsigned mNumber = 0;      // of the last file
    uint64_t mRecorded = 0;    // records written
    int64_t mFileBytes = 0;    // whole records of the file that is written, with its header
    QDateTime mTimeZero;       // the wall clock at tick 0
    uint64_t mNextFile = 0;    // ticks at which the next one begins
};

} // namespace ZARN
