#include "card/record/RecordReader.h"

#include "app/Console.h"
#include "app/FileName.h"
#include "app/Progress.h"
#include "card/record/RecordEntry.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ZARN {

void RecordReader::readRecordInfo(const QString& path)
{
    fileName = path;
    if (const File file = open("readRecordInfo")) {
        scanFile(file.get());
        return;
    }
    mConsole.systemError("Error:", errno);
}

bool RecordReader::readRecordData(RecordData& data)
{
    const File file = open("readRecordData");
    return !file || loadFile(file.get(), data);
}

File RecordReader::openFile(const QString& path, int64_t& size)
{
    // Not blocking: a pipe in the folder must not stop the program.
    const int descriptor = ::open(encodeFileName(path).c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat status {};
    if (descriptor >= 0 && fstat(descriptor, &status) == 0) {
        if (S_ISREG(status.st_mode)) {
            size = status.st_size;
            if (FILE* pFile = fdopen(descriptor, "rb"))
                return File(pFile);
        } else {
            errno = EINVAL;
        }
    }
    const int error = errno;
    if (descriptor >= 0)
        close(descriptor);
    errno = error;
    return nullptr;
}

File RecordReader::open(const char* function)
{
    mProblem.clear();
    mIsSystemError = false;
    File file = openFile(fileName, mSize);
    if (!file) {
        const int error = errno;
        noteSystemError(error);
        mConsole.print("RecordFile::%s: Could not open %s\n", function, fileName.toUtf8().constData());
        errno = error;
    }
    return file;
}

void RecordReader::note(const QString& problem, bool isSystemError)
{
    mProblem += mProblem.isEmpty() ? problem : "; " + problem;
    mIsSystemError |= isSystemError;
}

void RecordReader::noteSystemError(int error)
{
    note(tr("it cannot be read: %1").arg(qt_error_string(error)), true);
}

void RecordReader::noteUnsoundTimes()
{
    if (!hasSoundTimes() && endTime < startTime)
        note(tr("damaged: its records end (%1 s) before they begin (%2 s)").arg(endTime).arg(startTime), false);
    else if (!hasSoundTimes())
        note(tr("damaged: its records end at %1 s").arg(endTime), false);
}

void RecordReader::noteLost(uint32_t left)
{
    if (samples > left)
        note(tr("%1 of %2 records are left since the card was opened").arg(left).arg(samples), true);
}

void RecordReader::addSpan(bool isFirst, uint64_t lowest, uint64_t highest)
{
    const double from = recordTime(static_cast<uint32_t>(lowest >> 32), static_cast<uint32_t>(lowest));
    const double to = recordTime(static_cast<uint32_t>(highest >> 32), static_cast<uint32_t>(highest));
    startTime = isFirst ? from : std::min(startTime, from);
    endTime = isFirst ? to : std::max(endTime, to);
}

void RecordReader::forgetInfo()
{
    const QString path = fileName;
    static_cast<RecordInfo&>(*this) = {};
    fileName = path;
}

bool RecordReader::tellProgress(int32_t percent)
{
    if (percent != mToldProgress) {
        mToldProgress = percent;
        mProgress.setProgress(percent);
    }
    return !mProgress.isCancelled();
}

} // namespace ZARN
