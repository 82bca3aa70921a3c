#include "app/SafeFile.h"
#include "support/FileHelpers.h"

#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>

namespace {

/// What the system calls of this program do while `active`. Only the code under test runs then.
struct Faults {
    bool active = false;
    bool unnamedFiles = true;  ///< the file system has files without a name
    int failAt = 0;            ///< the call that fails, counted from 1; 0: none
    int calls = 0;             ///< so far
    bool stutter = false;      ///< every second write is interrupted, the others take 7 bytes
    bool loseBytes = false;    ///< writes are acknowledged but not done
    bool onDisk = false;       ///< nothing was written since the last flush to disk
    bool renamedEarly = false; ///< a file took its place before it was on disk
};
Faults faults;

/// Counts a call. @return whether it is to fail.
bool fails()
{
    if (!faults.active || ++faults.calls != faults.failAt)
        return false;
    errno = EIO;
    return true;
}

/// The real calls go straight to the kernel, for their names are taken over below.
template <typename... Arguments> int kernel(long number, Arguments... arguments)
{
    return static_cast<int>(::syscall(number, arguments...));
}

} // namespace

extern "C" {

int openat(int directory, const char* path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = va_arg(arguments, mode_t);
    va_end(arguments);
    if (faults.active && !faults.unnamedFiles && (flags & O_TMPFILE) == O_TMPFILE) {
        errno = EOPNOTSUPP;
        return -1;
    }
    return fails() ? -1 : kernel(SYS_openat, directory, path, flags, mode);
}

ssize_t write(int descriptor, const void* data, size_t size)
{
    faults.onDisk = false;
    if (fails())
        return -1;
    if (faults.active && faults.loseBytes)
        return static_cast<ssize_t>(size);
    if (faults.active && faults.stutter) {
        if (faults.calls % 2 == 1) {
            errno = EINTR;
            return -1;
        }
        size = std::min<size_t>(size, 7);
    }
    return ::syscall(SYS_write, descriptor, data, size);
}

int fsync(int descriptor)
{
    faults.onDisk = !fails() && kernel(SYS_fsync, descriptor) == 0;
    return faults.onDisk ? 0 : -1;
}

int fchmod(int descriptor, mode_t mode) noexcept
{
    return fails() ? -1 : kernel(SYS_fchmod, descriptor, mode);
}

int linkat(int oldDirectory, const char* oldPath, int newDirectory, const char* newPath, int flags) noexcept
{
    return fails() ? -1 : kernel(SYS_linkat, oldDirectory, oldPath, newDirectory, newPath, flags);
}

int renameat(int oldDirectory, const char* oldPath, int newDirectory, const char* newPath) noexcept
{
    faults.renamedEarly = faults.renamedEarly || !faults.onDisk;
    return fails() ? -1 : kernel(SYS_renameat2, oldDirectory, oldPath, newDirectory, newPath, 0U);
}
}

/// SafeFile on a system that fails where no test can make it fail from outside.
class TestSafeFileFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyCallFailsOnce_data();
    void everyCallFailsOnce();
    void interruptedAndShortWrites_data();
    void interruptedAndShortWrites();
    void lostBytesAreNoticed();
};

namespace {

/// Writes 600 kB over a file with the content "old". @return the error.
std::string writeOver(const std::string& path, const Faults& plan, const std::string& text)
{
    ZARN::SafeFile file(path);
    faults = plan;
    faults.active = true;
    bool done = file.open();
    for (std::size_t i = 0; i < text.size(); i += 100'000)
        done = file.write(std::string_view(text).substr(i, 100'000)) && done;
    done = done && file.commit();
    faults.active = false;
    return done ? std::string() : file.error();
}

void addKindsOfFiles()
{
    QTest::addColumn<bool>("unnamed");
    QTest::newRow("file without a name") << true;
    QTest::newRow("file with a name") << false;
}

} // namespace

void TestSafeFileFaults::everyCallFailsOnce_data()
{
    addKindsOfFiles();
}

void TestSafeFileFaults::everyCallFailsOnce()
{
    QFETCH(bool, unnamed);
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString() + "/x";
    const std::string text(600'000, 'n');
    int failures = 0;
    for (int i = 1; faults.failAt <= faults.calls; ++i) {
        putFile(path, "old");
        Faults plan;
        plan.unnamedFiles = unnamed;
        plan.failAt = i;
        const std::string error = writeOver(path, plan, text);
        QCOMPARE(entryCount(folder.path().toStdString()), 1L);
        QVERIFY(fileContent(path) == (error.empty() ? text : "old"));
        QVERIFY(!faults.renamedEarly);
        if (!error.empty())
            QCOMPARE(error, path + ": Input/output error");
        failures += error.empty() ? 0 : 1;
    }
    // Three writes, permissions, flush and rename at least.
    QVERIFY(failures >= 6);
    QCOMPARE(faults.calls, faults.failAt - 1);
    faults = {};
}

void TestSafeFileFaults::interruptedAndShortWrites_data()
{
    addKindsOfFiles();
}

void TestSafeFileFaults::interruptedAndShortWrites()
{
    QFETCH(bool, unnamed);
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString() + "/x";
    std::string text;
    for (int i = 0; text.size() < 600'000; ++i)
        text += std::to_string(i);
    Faults plan;
    plan.unnamedFiles = unnamed;
    plan.stutter = true;
    QCOMPARE(writeOver(path, plan, text), std::string());
    QVERIFY(faults.calls > 100'000);
    QVERIFY(fileContent(path) == text);
}

void TestSafeFileFaults::lostBytesAreNoticed()
{
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString() + "/x";
    putFile(path, "old");
    Faults plan;
    plan.loseBytes = true;
    QCOMPARE(writeOver(path, plan, "new"), path + ": Input/output error");
    QCOMPARE(fileContent(path), std::string("old"));
    QCOMPARE(entryCount(folder.path().toStdString()), 1L);
}

QTEST_GUILESS_MAIN(TestSafeFileFaults)
#include "TestSafeFileFaults.moc"
