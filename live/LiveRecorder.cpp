#include "live/LiveRecorder.h"

#include "app/Console.h"
#include "app/FileName.h"
#include "app/Progress.h"
#include "card/record/RecordFormats.h"
#include "card/record/RecordReader.h"
#include "card/record/RecordWriter.h"

#include <QDir>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace ZARN {

namespace {

constexpr uint64_t kTicksPerMillisecond = 32'000;
constexpr uint64_t kFileTicks = 600 * 1000 * kTicksPerMillisecond;
constexpr int kShortestFirst = 1000; // milliseconds

/// A unit tells who it is in each file, a recording of a bus never.
bool isOfUnit(const QString& file)
{
    static const Console silent([](std::string_view) {}, [](std::string_view) {});
    const std::unique_ptr<RecordReader> pReader = RecordFormats::reader(file, silent, nullProgress());
    if (!pReader)
        return false;
    pReader->readRecordInfo(file);
    const RecordInfo& info = pReader->recordInfo();
    return info.busType != 0 || info.ecuSerialNumber != 0 || !info.ecuType.empty() || !info.engineSerial.empty() || !info.engineType.empty();
}

} // namespace

LiveRecorder::LiveRecorder(QString folder) : mFolder(std::move(folder)) {}

LiveRecorder::~LiveRecorder()
{
    close();
}

bool LiveRecorder::open()
{
    mError.clear();
    errno = 0;
    if (!QDir().mkpath(mFolder))
        return fail(mFolder, errno != 0 ? errno : ENOTDIR);
    if (!findNumber()) // before anything is written there
        return false;
    mpLock = std::make_unique<QLockFile>(mFolder + "/.zarn-recording");
    mpLock->setStaleLockTime(0); // a recording may take days; a killed recorder's is known by its process
    if (!mpLock->tryLock()) {
        mError = mpLock->error() == QLockFile::LockFailedError ? tr("%1: another program records there").arg(mFolder)
                                                               : tr("%1: the folder cannot be written").arg(mFolder);
        return false;
    }
    mIsOpen = findNumber();
    return mIsOpen;
}

/// Goes on after what is there. Names of other kinds could stand between ours in the order of a card's files.
bool LiveRecorder::findNumber()
{
    for (const QString& name : QDir(mFolder).entryList(QDir::Files | QDir::NoDotAndDotDot)) {
        if (!RecordFormats::ofName(encodeFileName(name)))
            continue;
        const unsigned number = name.mid(3, 5).toUInt();
        if (name.toStdString() != RecordWriter::fileName(number)) {
            mError = tr("%1: holds the record file %2, which is none of a recording").arg(mFolder, name);
            return false;
        }
        if (isOfUnit(mFolder + '/' + name)) {
            mError = tr("%1: holds %2, which a unit recorded; a card is never written to").arg(mFolder, name);
            return false;
        }
        mNumber = std::max(mNumber, number);
    }
    return true;
}

bool LiveRecorder::append(const LiveRecords& records, const QDateTime& now)
{
    if (!mIsOpen)
        return false;
    RecordWriter writer;
    uint64_t gathered = 0;
    const auto flush = [&] {
        const bool isWritten = write(std::exchange(writer.bytes(), {}));
        mRecorded += isWritten ? gathered : 0;
        gathered = 0;
        return isWritten;
    };
    for (const LiveRecord& record : records) {
        const uint64_t ticks = record.record.ticks;
        const bool isFirst = mDescriptor < 0;
        if (isFirst)
            mTimeZero = now.addMSecs(-static_cast<qint64>(records.back().record.ticks / kTicksPerMillisecond));
        if ((isFirst || ticks >= mNextFile) && !(flush() && beginFile(isFirst ? ticks : mNextFile, !isFirst)))
            return false;
        // Whoever heard nothing for long makes no files of nothing.
        while (!isFirst && ticks >= mNextFile)
            mNextFile += kFileTicks;
        writer.putRecord(record.identifier, record.record);
        ++gathered;
    }
    return flush();
}

bool LiveRecorder::beginFile(uint64_t ticks, bool isDated)
{
    if (!closeFile())
        return false;
    if (mNumber == RecordWriter::kHighestNumber) {
        close();
        mError = tr("%1: all numbers of files are used up").arg(mFolder);
        return false;
    }
    mFile = mFolder + '/' + QString::fromStdString(RecordWriter::fileName(++mNumber));
    mDescriptor = ::open(encodeFileName(mFile).c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (mDescriptor < 0)
        return fail(mFile, errno);
    RecordInfo info;
    if (isDated)
        info.dateTime = mTimeZero.addMSecs(static_cast<qint64>(ticks / kTicksPerMillisecond));
    RecordWriter header;
    header.putHeader(info, ticks);
    mFileBytes = 0;
    if (!write(header.bytes()))
        return false;
    // A dated file begins with a whole second, as finely as its header can tell it.
    const qint64 begin = mTimeZero.toMSecsSinceEpoch() + static_cast<qint64>(ticks / kTicksPerMillisecond);
    const qint64 firstEnd = (begin + kShortestFirst + 999) / 1000 * 1000 - mTimeZero.toMSecsSinceEpoch();
    mNextFile = isDated ? ticks + kFileTicks : static_cast<uint64_t>(firstEnd) * kTicksPerMillisecond;
    return true;
}

bool LiveRecorder::write(const std::string& bytes)
{
    for (std::size_t done = 0; done < bytes.size();) {
        const ssize_t count = ::write(mDescriptor, bytes.data() + done, bytes.size() - done);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            const int reason = count < 0 ? errno : ENOSPC;
            dropUnfinished();
            return fail(mFile, reason);
        }
        done += static_cast<std::size_t>(count);
    }
    mFileBytes += static_cast<int64_t>(bytes.size());
    return true;
}

/// What is left ends with a whole batch; a file without its header is none. Where even that fails the reader tells what is cut off.
void LiveRecorder::dropUnfinished() const
{
    [[maybe_unused]] const int ignored = mFileBytes == 0 ? ::unlink(encodeFileName(mFile).c_str()) : ::ftruncate(mDescriptor, mFileBytes);
}

bool LiveRecorder::closeFile()
{
    if (mDescriptor < 0)
        return true;
    const bool isSynced = ::fdatasync(mDescriptor) == 0 || errno == EINVAL || errno == EROFS;
    const int reason = errno;
    const bool isClosed = ::close(std::exchange(mDescriptor, -1)) == 0;
    return (isSynced && isClosed) || fail(mFile, isSynced ? errno : reason);
}

bool LiveRecorder::close()
{
    mIsOpen = false;
    const bool isWhole = closeFile();
    mpLock.reset();
    return isWhole;
}

bool LiveRecorder::fail(const QString& name, int reason)
{
    mError = name + ": " + QString::fromLocal8Bit(std::strerror(reason));
    if (mDescriptor >= 0)
        ::close(std::exchange(mDescriptor, -1));
    close();
    return false;
}

} // namespace ZARN
