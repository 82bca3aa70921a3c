#include "app/CmdLine.h"
#include "app/DataHandler.h"
#include "app/Revision.h"
#include "support/ConsoleText.h"
#include "support/FileHelpers.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>

using namespace ZARN;

/// What the program does before it has a window: command line, folders, banner.
class TestStartUp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void parse_data();
    void parse();
    void folders();
    void foldersThatAreThere();
    void resourcePath_data();
    void resourcePath();
    void console();
};

namespace {

void registerOptions(CmdLine& cmdLine)
{
    cmdLine.addSwitch("-h", "print this help");
    cmdLine.addSwitch("-emu", "EMU display only");
    cmdLine.addSwitch("-connect", "connect after startup");
    cmdLine.addParameter("-s", "stylefile to load", "");
}

bool parseArguments(CmdLine& cmdLine, const QStringList& arguments)
{
    std::vector<std::string> texts = {"zarn"};
    for (const QString& argument : arguments)
        texts.push_back(argument.toStdString());
    std::vector<const char*> pointers;
    for (const std::string& text : texts)
        pointers.push_back(text.c_str());
    pointers.push_back(nullptr);
    return cmdLine.parse(static_cast<int>(texts.size()), pointers.data());
}

} // namespace

void TestStartUp::parse_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QString>("style");
    QTest::addColumn<QString>("said"); // empty: parse() succeeds
    using List = QStringList;
    QTest::newRow("none") << List{} << List{} << "" << "";
    QTest::newRow("help") << List{"-h"} << List{"-h"} << "" << "";
    QTest::newRow("unknown") << List{"-x", "-h"} << List{"-h"} << "" << "unknown option -x\n";
    QTest::newRow("style and switch") << List{"-s", "file.css", "-emu"} << List{"-s", "-emu"} << "file.css" << "";
    QTest::newRow("parameter is last") << List{"-emu", "-s"} << List{"-emu", "-s"} << "" << "";
    QTest::newRow("parameter twice") << List{"-s", "a", "-s", "b"} << List{"-s"} << "b" << "";
    QTest::newRow("no other forms") << List{"-S", "-s=a", "-em", "--emu"} << List{} << ""
                                    << "unknown option -S\nunknown option -s=a\nunknown option -em\nunknown option --emu\n";
}

void TestStartUp::parse()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, given);
    QFETCH(QString, style);
    QFETCH(QString, said);
    ConsoleText console;
    CmdLine cmdLine(console.console);
    registerOptions(cmdLine);
    QCOMPARE(parseArguments(cmdLine, arguments), said.isEmpty());
    QCOMPARE(console.text, said.toStdString());
    for (const char* name : {"-h", "-emu", "-connect", "-s"})
        QCOMPARE(cmdLine.getSwitch(name), given.contains(name));
    std::string value = "before";
    QCOMPARE(cmdLine.getParameter("-s", value), given.contains("-s"));
    QCOMPARE(value, style.toStdString());
    QVERIFY(!cmdLine.getSwitch("-none"));
    QVERIFY(!cmdLine.getParameter("-none", value));
    QCOMPARE(value, style.toStdString());
}

void TestStartUp::folders()
{
    const QTemporaryDir folder;
    const std::string home = folder.path().toStdString() + "/home";
    const std::string data = folder.path().toStdString() + "/share/deep/ZARN";
    ConsoleText console;
    const DataHandler handler("/opt/zarn/bin", home, data, console.console);
    QCOMPARE(console.text, "HOME: <" + home + ">\nData Path      : <" + data
                               + ">\nUser Data Path : <" + home + "/ZARN/>\nResource Path  : </opt/zarn/Resources/>\n");
    QCOMPARE(handler.dataPath(), data);
    QCOMPARE(handler.userDataPath(), home + "/ZARN/");
    QVERIFY(std::filesystem::is_directory(data));
    QVERIFY(!std::filesystem::exists(home)); // nothing was written there
}

void TestStartUp::foldersThatAreThere()
{
    const QTemporaryDir folder;
    const std::string home = folder.path().toStdString();
    ConsoleText console;
    const DataHandler withoutLocation("/opt/zarn/bin", home, "", console.console);
    QCOMPARE(withoutLocation.dataPath(), home + "/Library/ZARN/");
    QVERIFY(console.text.find("DataPath created <" + home + "/Library/ZARN/>\n") != std::string::npos);
    // A folder that cannot be made is not reported as made.
    putFile(home + "/file", "");
    console.take();
    const DataHandler blocked("/opt/zarn/bin", home, home + "/file/ZARN", console.console);
    QCOMPARE(blocked.dataPath(), home + "/file/ZARN");
    QVERIFY(console.text.find("created") == std::string::npos);
}

void TestStartUp::resourcePath_data()
{
    QTest::addColumn<QString>("executable");
    QTest::addColumn<QString>("resources");
    QTest::newRow("bundle") << "/Applications/zarn.app/Contents/MacOS" << "/Applications/zarn.app/Contents/Resources/";
    QTest::newRow("top level") << "/bin" << "/Resources/";
    QTest::newRow("no separator") << "bin" << "/Resources/";
}

void TestStartUp::resourcePath()
{
    QFETCH(QString, executable);
    QFETCH(QString, resources);
    ConsoleText console;
    QCOMPARE(DataHandler(executable.toStdString(), std::nullopt, "", console.console).resourcePath(), resources.toStdString());
}

void TestStartUp::console()
{
    ConsoleText console;
    const std::string longest(100'000, 'x');
    console.console.print("%s%d\n", longest.c_str(), 7);
    QCOMPARE(console.take(), longest + "7\n");
    console.console.print("%s", "");
    console.console.systemError("open %s", ENOENT);
    QCOMPARE(console.take(), std::string());
    QCOMPARE(console.errors, std::string("open %s: No such file or directory\n"));
}

QTEST_GUILESS_MAIN(TestStartUp)
#include "TestStartUp.moc"
