#include "app/CmdLine.h"
#include "app/StartMarker.h"
#include "support/ConsoleText.h"
#include "support/FileHelpers.h"

#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

using namespace ZARN;

/// What helps a start that something stored would spoil, and the card folder among the arguments.
class TestStartMarker : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void failedStart();
    void secondProgram();
    void putAside();
    void operand();
};

namespace {

constexpr const char* kNoProcess = "2147483646\n"; // above every system's largest process number

} // namespace

void TestStartMarker::failedStart()
{
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString();
    StartMarker first(path);
    QVERIFY(!first.begin());
    QVERIFY(entryCount(path) == 1);
    first.succeed();
    QCOMPARE(entryCount(path), 0L);
    putFile(path + "/ZARN.starting", kNoProcess); // left by a process that is gone
    StartMarker second(path);
    QVERIFY(second.begin());
    second.succeed();
    QVERIFY(!StartMarker(path).begin());
}

void TestStartMarker::secondProgram()
{
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString();
    putFile(path + "/ZARN.starting", std::to_string(getppid())); // runs while this test does
    StartMarker second(path);
    QVERIFY(!second.begin());
    second.succeed();
    QCOMPARE(fileContent(path + "/ZARN.starting"), std::to_string(getppid()));
}

void TestStartMarker::putAside()
{
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString();
    for (const char* content : {"settings", "later"}) {
        putFile(path + "/ZARN.ini", content);
        QVERIFY(StartMarker::putAside(path));
    }
    QCOMPARE(entryCount(path), 2L);
    QCOMPARE(fileContent(path + "/ZARN.ini.old-1"), std::string("settings"));
    QCOMPARE(fileContent(path + "/ZARN.ini.old-2"), std::string("later"));
}

void TestStartMarker::operand()
{
    const ConsoleText console;
    CmdLine cmdLine(console.console);
    cmdLine.addParameter("-s", "stylefile to load", "");
    cmdLine.addOperand([](const std::string& argument) { return argument.starts_with("/card"); });
    const char* const arguments[] = {"zarn", "-s", "/card0", "/card1", "/card2", "other", nullptr};
    QVERIFY(!cmdLine.parse(6, arguments));
    QCOMPARE(cmdLine.operand(), std::string("/card1"));
    QCOMPARE(console.text, std::string("unknown option /card2\nunknown option other\n"));
}

QTEST_GUILESS_MAIN(TestStartMarker)
#include "TestStartMarker.moc"
