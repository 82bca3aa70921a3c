#include "support/Places.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QtTest>

/// The program itself, started without a screen: what it says, in which order, and what it leaves behind.
class TestProgram : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startUp();
    void arguments_data();
    void arguments();
    void german();
    void safeMode();
};

namespace {

/// One start over a home folder; ended by terminate() once it has restored the last run's work.
QString run(const QString& home, const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home);
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.remove("DISPLAY"); // with an X server the platform finds OpenGL
    environment.remove("XDG_DATA_HOME");
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(home);
    process.start(ZARN::binaryDir() + "/bin/zarn", arguments);
    QString output;
    QElapsedTimer timer;
    timer.start();
    while (process.state() != QProcess::NotRunning && timer.elapsed() < 30000) {
        process.waitForReadyRead(100);
        output += QString::fromUtf8(process.readAllStandardOutput());
        if (output.contains("Profile::loadProfil") && !QFile::exists(home + "/.local/share/ZARN/ZARN.starting"))
            break;
    }
    process.terminate();
    process.waitForFinished(5000);
    return output + QString::fromUtf8(process.readAllStandardOutput());
}

void verifyOrder(const QString& output, const QStringList& lines)
{
    qsizetype position = 0;
    for (const QString& line : lines) {
        const auto found = output.indexOf(line, position);
        QVERIFY2(found >= 0, qPrintable("not found, or not in this place: " + line + "\n" + output));
        position = found + line.size();
    }
}

} // namespace

void TestProgram::startUp()
{
    const QTemporaryDir home;
    const QString output = run(home.path(), {});
    const QString data = home.path() + "/.local/share/ZARN";
    verifyOrder(output, {"Version  : ZARN 2.1.0\n", "HOME: <" + home.path() + ">\n", "UserDataPath created <" + home.path() + "/ZARN/>\n",
                         "Data Path      : <" + data + ">\n", "readXmlFile <" + data + "/ZARN.ini> 0\n", "Translation QT <us> 0\n",
                         "Translation IOS <us> 0\n", "Profile::loadProfil <", "CurrentProject.xml"});
    QVERIFY(!output.contains("Usage of"));
    QVERIFY(output.contains("No OpenGL here: the map cannot be drawn\n"));
    QCOMPARE(QDir(data).entryList(QDir::Files), QStringList()); // the marker of the start is gone
}

void TestProgram::arguments_data()
{
    QTest::addColumn<QStringList>("given");
    QTest::addColumn<QStringList>("said");
    QTest::newRow("help") << QStringList{"-h"} << QStringList{"Usage of ", "--safe-mode ", "-connect ", "-emu     EMU display only\n", "-h       print this help\n",
                                                              "-s       [stylefile to load] default []\n\n", "HOME:"};
    QTest::newRow("unknown") << QStringList{"-x"} << QStringList{"unknown option -x\n", "Usage of ", "HOME:"};
}

void TestProgram::arguments()
{
    QFETCH(QStringList, given);
    QFETCH(QStringList, said);
    const QTemporaryDir home;
    verifyOrder(run(home.path(), given), said);
}

void TestProgram::german()
{
    const QTemporaryDir home;
    QVERIFY(QDir().mkpath(home.filePath(".local/share/ZARN")));
    QFile settings(home.filePath(".local/share/ZARN/ZARN.ini"));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("<ZARN><Property id=\"Locale\" value=\"de\"/></ZARN>");
    settings.close();
    verifyOrder(run(home.path(), {}), {"Translation QT <de> 1\n", "Translation IOS <de> 1\n", "Kein OpenGL: die Karte"});
}

void TestProgram::safeMode()
{
    const QTemporaryDir home;
    const QString data = home.filePath(".local/share/ZARN");
    QVERIFY(QDir().mkpath(data));
    QFile settings(data + "/ZARN.ini");
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("<ZARN><Property id=\"Locale\" value=\"de\"/></ZARN>");
    settings.close();
    QFile marker(data + "/ZARN.starting"); // without the switch this would ask
    QVERIFY(marker.open(QIODevice::WriteOnly));
    marker.close();
    const QString output = run(home.path(), {"--safe-mode"});
    verifyOrder(output, {"readXmlFile <" + data + "/ZARN.ini> 0\n", "Translation QT <us> 0\n"});
    QVERIFY(QFile::exists(data + "/ZARN.ini.old"));
}

QTEST_GUILESS_MAIN(TestProgram)
#include "TestProgram.moc"
