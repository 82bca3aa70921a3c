#include "app/SafeFile.h"
#include "support/FileHelpers.h"

#include <QTemporaryDir>
#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <memory>
#include <thread>

using ZARN::SafeFile;

class TestSafeFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void contents_data();
    void contents();
    void failures_data();
    void failures();
    void abandonedLeavesNothing();
    void permissions();
    void links();
    void pipeWithReader();
    void pipeThatBreaks();
    void nonBlockingDescriptor();

private:
    [[nodiscard]] std::string path(const std::string& name) const { return mFolder->path().toStdString() + "/" + name; }

    std::unique_ptr<QTemporaryDir> mFolder;
};

namespace {

bool writeWhole(SafeFile& file, const std::string& text)
{
    return file.open() && file.write(text) && file.commit();
}

std::string someText(std::size_t size)
{
    std::string text;
    for (int i = 0; text.size() < size; ++i)
        text += std::to_string(i * 0.1) + ";" + std::to_string(i % 997) + "\n";
    text.resize(size);
    return text;
}

} // namespace

void TestSafeFile::initTestCase()
{
    std::signal(SIGPIPE, SIG_IGN);
}

void TestSafeFile::init()
{
    mFolder = std::make_unique<QTemporaryDir>();
}

void TestSafeFile::contents_data()
{
    QTest::addColumn<qsizetype>("size");
    QTest::addColumn<qsizetype>("piece");
    QTest::newRow("nothing") << qsizetype(0) << qsizetype(1);
    QTest::newRow("pieces of the buffer's size") << qsizetype(4 * 262144) << qsizetype(262144);
    QTest::newRow("uneven pieces") << qsizetype(2'000'001) << qsizetype(262143);
}

void TestSafeFile::contents()
{
    QFETCH(qsizetype, size);
    QFETCH(qsizetype, piece);
    const std::string text = someText(static_cast<std::size_t>(size));
    putFile(path("x.csv"), "old");
    SafeFile file(path("x.csv"));
    QVERIFY(file.open());
    for (std::size_t i = 0; i < text.size(); i += static_cast<std::size_t>(piece))
        QVERIFY(file.write(std::string_view(text).substr(i, static_cast<std::size_t>(piece))));
    QCOMPARE(fileContent(path("x.csv")), std::string("old"));
    QVERIFY(file.commit());
    QVERIFY(fileContent(path("x.csv")) == text);
    QCOMPARE(entryCount(path("")), 1L);
    QCOMPARE(file.error(), std::string());
    QVERIFY(!file.write("more"));
}

void TestSafeFile::failures_data()
{
    QTest::addColumn<QString>("name"); // "/": as it stands, else below a folder with "file", "folder", "loop"
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing folder") << "missing/x.csv" << "No such file or directory";
    QTest::newRow("too long") << QString(300, 'x') << "File name too long";
    QTest::newRow("links in a circle") << "loop" << "Too many levels of symbolic links";
    QTest::newRow("full device") << "/dev/full" << "No space left on device";
}

void TestSafeFile::failures()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    putFile(path("file"), "old");
    std::filesystem::create_directory(path("folder"));
    std::filesystem::create_symlink("loop", path("loop"));
    const std::string target = name.startsWith('/') ? name.toStdString() : path(name.toStdString());
    SafeFile file(target);
    QVERIFY(!writeWhole(file, "new"));
    QCOMPARE(file.error(), target + ": " + reason.toStdString());
    QCOMPARE(entryCount(path("")), 3L);
    QCOMPARE(fileContent(path("file")), std::string("old"));
    for (const std::string& odd : {std::string(), path("a") + std::string(1, '\0') + "b"}) {
        SafeFile none(odd);
        QVERIFY(!none.open());
        QVERIFY(none.error().starts_with(odd + ": "));
    }
}

void TestSafeFile::abandonedLeavesNothing()
{
    putFile(path("x"), "old");
    {
        SafeFile file(path("x"));
        QVERIFY(file.open());
        QVERIFY(file.write(someText(600'000)));
    }
    {
        SafeFile fresh(path("y"));
        QVERIFY(fresh.open());
        QVERIFY(fresh.write("new"));
    }
    SafeFile unopened(path("z"));
    QVERIFY(!unopened.write("x"));
    QVERIFY(!unopened.commit());
    QCOMPARE(fileContent(path("x")), std::string("old"));
    QCOMPARE(entryCount(path("")), 1L);
    // What a killed program left goes with the next save, unless somebody writes it still.
    for (const char* name : {".zarn-1-2-3.tmp", ".zarn-open.tmp", ".zarn-other"})
        putFile(path(name), "half");
    std::ifstream reader(path(".zarn-open.tmp"));
    SafeFile next(path("x"));
    QVERIFY(writeWhole(next, "new"));
    QCOMPARE(QDir(mFolder->path()).entryList(QDir::Files | QDir::Hidden), QStringList({".zarn-open.tmp", ".zarn-other", "x"}));
}

void TestSafeFile::permissions()
{
    const auto modeOf = [](const std::string& name) {
        struct stat status = {};
        return ::stat(name.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
    };
    const mode_t before = ::umask(027);
    for (const mode_t mode : {0600, 0644, 0666, 0751}) {
        putFile(path("x"), "old");
        QCOMPARE(::chmod(path("x").c_str(), mode), 0);
        SafeFile file(path("x"));
        QVERIFY(writeWhole(file, "new"));
        QCOMPARE(modeOf(path("x")), mode);
    }
    SafeFile fresh(path("y"));
    QVERIFY(writeWhole(fresh, "new"));
    QCOMPARE(modeOf(path("y")), mode_t(0640));
    ::umask(before);
}

void TestSafeFile::links()
{
    std::filesystem::create_directories(path("a/b"));
    putFile(path("a/b/real"), "old");
    std::filesystem::create_symlink("b/real", path("a/relative"));
    std::filesystem::create_symlink(path("a/relative"), path("absolute"));
    std::filesystem::create_symlink("a/new", path("dangling"));
    SafeFile file(path("absolute"));
    QVERIFY(writeWhole(file, "new"));
    QCOMPARE(fileContent(path("a/b/real")), std::string("new"));
    SafeFile fresh(path("dangling"));
    QVERIFY(writeWhole(fresh, "fresh"));
    QCOMPARE(fileContent(path("a/new")), std::string("fresh"));
    for (const char* name : {"absolute", "dangling", "a/relative"})
        QVERIFY(std::filesystem::is_symlink(path(name)));
    QCOMPARE(entryCount(path("a/b")), 1L);
    QCOMPARE(entryCount(path("a")), 3L);
    QCOMPARE(entryCount(path("")), 3L);
}

void TestSafeFile::pipeWithReader()
{
    const std::string text = someText(500'000);
    QCOMPARE(::mkfifo(path("pipe").c_str(), 0600), 0);
    std::string read;
    std::thread reader([&] { read = fileContent(path("pipe")); });
    SafeFile file(path("pipe"));
    const bool done = writeWhole(file, text);
    reader.join();
    QVERIFY(done);
    QVERIFY(read == text);
    QVERIFY(std::filesystem::is_fifo(path("pipe")));
    QCOMPARE(entryCount(path("")), 1L);
}

void TestSafeFile::pipeThatBreaks()
{
    int ends[2] = {};
    QCOMPARE(::pipe(ends), 0);
    ::close(ends[0]);
    SafeFile file = SafeFile::onDescriptor(ends[1], "standard output");
    QVERIFY(!writeWhole(file, "text"));
    QCOMPARE(file.error(), std::string("standard output: Broken pipe"));
    QCOMPARE(::close(ends[1]), 0);
}

/// Whoever started the program may have made its standard output non-blocking: a full pipe is then waited for.
void TestSafeFile::nonBlockingDescriptor()
{
    const std::string text = someText(1'000'000);
    int ends[2] = {};
    QCOMPARE(::pipe2(ends, O_NONBLOCK), 0);
    QCOMPARE(::fcntl(ends[0], F_SETFL, 0), 0);
    std::string read;
    std::thread reader([&] {
        std::string piece(4096, '\0');
        for (ssize_t count = 1; (count = ::read(ends[0], piece.data(), piece.size())) > 0;)
            read.append(piece, 0, static_cast<std::size_t>(count));
    });
    SafeFile file = SafeFile::onDescriptor(ends[1], "pipe");
    const bool done = writeWhole(file, text);
    ::close(ends[1]);
    reader.join();
    ::close(ends[0]);
    QVERIFY2(done, file.error().c_str());
    QVERIFY(read == text);
}

QTEST_GUILESS_MAIN(TestSafeFile)
#include "TestSafeFile.moc"
