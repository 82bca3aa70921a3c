#include "support/CardBuilder.h"
#include "support/FileHelpers.h"
#include "support/Places.h"
#include "support/ProfileBuilder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

struct Answer {
    int status = -1;
    QByteArray out;
    QByteArray errors;
};

Answer run(const QString& program, const QStringList& arguments, const QString& folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        qFatal("%s did not end", qPrintable(arguments.join(' ')));
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QJsonObject json(const QByteArray& text)
{
    return QJsonDocument::fromJson(text).object();
}

} // namespace

/// Starts the batch program in a folder that holds a card, "card", one without records, "empty", and profiles.
class TestCli : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void helps_data();
    void helps();
    void helpsWithoutArguments();
    void failures_data();
    void failures();
    void failedWritesLeaveNothing_data();
    void failedWritesLeaveNothing();
    void csvGoesWhereItIsTold();
    void kmlTakesItsSettings();
    void valuesSurviveTheRoundTrip();
    void textsAreEscaped();
    void damageIsNamed();
    void manyCards();
    void namesMayBeAnyBytes();
    void tablesForPeople_data();
    void tablesForPeople();

private:
    Answer cli(const QStringList& arguments) const { return run(binaryDir() + "/bin/zarn-cli", arguments, mFolder.path()); }
    Answer shell(const QString& command) const { return run("bash", {"-c", command, "bash", binaryDir() + "/bin/zarn-cli"}, mFolder.path()); }
    [[nodiscard]] QString csv() const { return fileContent((mFolder.path() + "/out.csv").toStdString()).c_str(); }
    [[nodiscard]] std::set<std::string> entries() const
    {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(mFolder.path().toStdString()))
            names.insert(entry.path().filename());
        return names;
    }

    QTemporaryDir mFolder;
    const QStringList mWith{"card", "--profile", "Profile.xml"};
};

void TestCli::initTestCase()
{
    const std::string folder = mFolder.path().toStdString();
    std::filesystem::create_directories(folder + "/card");
    std::filesystem::create_directories(folder + "/empty");
    ProfileBuilder builder;
    builder.variants({"A", "B"}).unit("m", "ft", 2);
    builder.thresholds("T", {{0, "OK", "#00ff00"}, {90, "LIMIT", "red"}}).device("D");
    builder.parameter("height", 1, "FLOAT", {{"thresholdId", "T"}, {"unitMetric", "m"}, {"unitImperial", "ft"}, {"precision", "1"}});
    builder.parameter("Drehzahl ü", 2, "USHORT").parameter("only A", 2, "USHORT", {{"variant", "A"}}).write(mFolder.path());
    ProfileBuilder warnings;
    warnings.device("WarningLamp").parameter("Oil", 3, "UCHAR").device("Faults").errorMatrix(700, "Lane A").errorMatrix(701, "Lane B");
    putFile(folder + "/warnings.xml", warnings.faultBit("Sensor", 700, 3, "Fault").xml().toStdString());
    putFile(folder + "/other.xml", "<SomethingElse/>");
    putFile(folder + "/broken.xml", "<CanAerospaceProfile><Device>");
    RecordFileBuilder file;
    file.dateTime(QDateTime(QDate(2024, 5, 1), QTime(12, 0), Qt::UTC)).texts({"A", "B \"quoted\"", "C\x01\xff", "D", "E", "F"});
    for (int i = 0; i < 400; ++i)
        file.addFloat(1, 1 + i * 0.1, static_cast<float>(i) * 0.25F).addShort(2, 1 + i * 0.1, static_cast<uint16_t>(i));
    file.add(3, 3, bytePayload(1)).addWord(700, 1, 0).addWord(700, 2, 8).addWord(700, 4, 0);
    file.addFloat(1, 50, std::numeric_limits<float>::quiet_NaN()).addFloat(1, 51, -HUGE_VALF).addFloat(1, 60, 0.1F).addFloat(1, 61, 0);
    putFile(folder + "/card/LOG 1.CAN", file.bytes().toStdString());
    std::filesystem::create_hard_link(folder + "/card/LOG 1.CAN", folder + "/link to a recording");
}

void TestCli::helps_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("needle");
    QTest::newRow("help") << QStringList{"--help"} << "Example: zarn-cli";
    QTest::newRow("help of a subcommand") << QStringList{"csv", "--help"} << "--resolution";
    QTest::newRow("help by a word") << QStringList{"help", "csv"} << "--separator";
    QTest::newRow("help although the rest is wrong") << QStringList{"value", "nowhere", "--help"} << "--parameter";
    QTest::newRow("version") << QStringList{"--version"} << ".";
}

void TestCli::helps()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, needle);
    const Answer answer = cli(arguments);
    QCOMPARE(answer.status, 0);
    QVERIFY(QString(answer.out).contains(needle));
    QCOMPARE(answer.errors, QByteArray());
}

void TestCli::failures_data()
{
    QTest::addColumn<QStringList>("arguments"); // "CARD" stands for the card and its profile
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("said"); // in the one line that is the program's own
    const auto row = [](const char* name, const QStringList& arguments, int status, const char* said) {
        QTest::newRow(name) << arguments << status << said;
    };
    row("missing folder", {"info", "no%s%n"}, 1, "no%s%n: no such folder");
    row("file that is no recording", {"info", "Profile.xml"}, 1, "Profile.xml: no record file");
    row("folder without records", {"csv", "empty", "--profile", "Profile.xml", "-o", "out.csv"}, 1, "empty: the folder holds no record file");
    row("unknown cycle", {"flights", "CARD", "--cycle", "7"}, 1, "no cycle 7");
    row("unknown flight", {"path", "CARD", "--flight", "1"}, 1, "no flight 1 in cycle 0");
    row("unknown parameter", {"value", "CARD", "--parameter", "nope%s", "--time", "1"}, 1, "nope%s: the profile has no such parameter");
    row("unknown selection", {"csv", "CARD", "-o", "out.csv", "--select", "height", "--select", "nope"}, 1, "nope: the profile has no such");
    row("missing profile", {"flights", "card", "--profile", "none.xml"}, 1, "none.xml: It cannot be read: No such file or directory.");
    row("unknown variant", {"summary", "CARD", "--variant", "b"}, 1, "b: the profile has no such variant");
    row("unknown variant of a profile", {"profile", "Profile.xml", "--variant", "AB"}, 1, "AB: the profile has no such variant");
    row("flight for the whole card", {"summary", "CARD", "--flight", "1"}, 2, "--flight");
    row("no card to sum up", {"summary", "--profile", "Profile.xml"}, 2, "CARD");
    row("list that is missing", {"summary", "--from-file", "no list", "--profile", "Profile.xml"}, 1, "no list: No such file");
    row("profile without a name", {"flights", "card", "--profile", ""}, 1, "\"\": ");
    row("list that is a folder", {"summary", "--from-file", "empty", "--profile", "Profile.xml"}, 1, "empty: Is a directory");
    row("store on standard output", {"scan", "CARD", "-o", "-"}, 2, "-o");
    row("store in place of a record file", {"scan", "CARD", "-o", "LOG.CAN"}, 1, "LOG.CAN: called like a record file");
    row("samples of no dataset", {"scan", "CARD", "-o", "store", "--samples", "all"}, 2, "--samples");
    row("missing card to sum up", {"summary", "nowhere", "--profile", "Profile.xml", "--json"}, 1, "nowhere: no such folder");
    row("record file of the card as target", {"csv", "CARD", "-o", "link to a recording"}, 1, "link to a recording: a record file of the card");
    row("other root", {"profile", "other.xml"}, 1, "other.xml: Line 1, column 1: It is no profile");
    row("broken profile", {"csv", "card", "--profile", "broken.xml", "-o", "out.csv"}, 1, "broken.xml: Line 1, column ");
    row("missing target folder", {"csv", "CARD", "-o", "no/out.csv"}, 1, "no/out.csv: No such file or directory");
    row("folder as target", {"csv", "CARD", "-o", "card"}, 1, "card: Is a directory");
    row("full device", {"csv", "CARD", "-o", "/dev/full"}, 1, "/dev/full: No space left on device");
    row("missing target folder of GPX", {"gpx", "CARD", "-o", "no/out.gpx"}, 1, "no/out.gpx: No such file or directory");
    row("unknown subcommand", {"bogus"}, 2, "bogus: no such subcommand (");
    row("misspelt subcommand", {"sumary", "card"}, 2, "sumary: no such subcommand; did you mean summary?");
    row("help of a misspelt subcommand", {"help", "fligths"}, 2, "fligths: no such subcommand; did you mean flights?");
    row("misspelt option that is needed", {"csv", "card", "--outptu", "x"}, 2, "--outptu: no such option of csv; did you mean --output?");
    row("no card", {"info"}, 2, "CARD");
    row("unknown option", {"info", "card", "--bogus"}, 2, "--bogus");
    row("too many cards", {"info", "card", "empty"}, 2, "empty");
    row("card in brackets", {"summary", "[card]", "--profile", "Profile.xml"}, 1, "[card]: no such folder");
    row("option without value", {"flights", "CARD", "--cycle"}, 2, "--cycle");
    row("cycle no number", {"flights", "CARD", "--cycle", "x"}, 2, "--cycle");
    row("cycle beyond 32 bits", {"flights", "CARD", "--cycle", "4294967296"}, 2, "--cycle");
    row("unknown unit", {"flights", "CARD", "--unit", "nautical"}, 2, "--unit");
    row("no parameter", {"value", "CARD", "--time", "1"}, 2, "--parameter");
    row("no output", {"csv", "CARD"}, 2, "--output");
    row("resolution", {"csv", "CARD", "-o", "out.csv", "--resolution", "50"}, 2, "--resolution");
    row("separator", {"csv", "CARD", "-o", "out.csv", "--separator", "|"}, 2, "--separator");
    row("setting of another export", {"kml", "CARD", "-o", "out.kml", "--set", "KmlLineWidth=3", "--set", "CsvLimiter=59"}, 2, "CsvLimiter");
    row("interval of no seconds", {"kml", "CARD", "-o", "out.kml", "--set", "KmlTimeStamp=0"}, 2, "KmlTimeStamp: must be a number of seconds");
    row("locale that nobody has", {"csv", "CARD", "-o", "out.csv", "--locale", "klingon"}, 2, "klingon: no locale");
    row("separator beside a locale", {"csv", "CARD", "-o", "out.csv", "--locale", "de", "--separator", "comma"}, 2, "--separator");
    row("json for a file", {"csv", "CARD", "-o", "out.csv", "--json"}, 2, "--json");
    row("what a terminal would obey", {"info", "no\n\x1b[2J\u202e\u009b"}, 1, "no\\n\\x1b[2J\\u202e\\x9b: no such folder");
}

void TestCli::failures()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, said);
    const qsizetype place = arguments.indexOf("CARD");
    if (place >= 0)
        arguments = arguments.mid(0, place) + mWith + arguments.mid(place + 1);
    const auto before = entries();
    const Answer answer = cli(arguments);
    QCOMPARE(answer.status, status);
    QCOMPARE(answer.out, QByteArray());
    QVERIFY(entries() == before);
    const QStringList lines = QString(answer.errors).split('\n', Qt::SkipEmptyParts);
    QVERIFY(!lines.isEmpty());
    QVERIFY2(lines.last().startsWith("zarn-cli: ") && lines.last().contains(said), answer.errors.constData());
    QCOMPARE(lines.size(), 1);
}

void TestCli::helpsWithoutArguments()
{
    const Answer answer = cli({});
    QCOMPARE(answer.status, 2);
    QVERIFY(QString(answer.errors).contains("Example: zarn-cli"));
}

void TestCli::failedWritesLeaveNothing_data()
{
    QTest::addColumn<QString>("command"); // $1 is the program
    QTest::addColumn<QString>("said");
    QTest::newRow("limit, new file") << "ulimit -f 1; \"$1\" csv card --profile Profile.xml -o new.csv" << "new.csv: File too large";
    QTest::newRow("full standard output") << "\"$1\" csv card --profile Profile.xml -o - >/dev/full" << "standard output: No space left";
    QTest::newRow("file size limit, KML") << "ulimit -f 1; \"$1\" kml card --profile Profile.xml --select height -o kept.csv "
                                             "--set KmlPlaceMarkIntervall=1" << "kept.csv: File too large";
    QTest::newRow("full standard output, json") << "\"$1\" info card --json >/dev/full" << "standard output: No space left";
    QTest::newRow("closed standard output") << "\"$1\" csv card --profile Profile.xml -o - >&-" << "standard output: Bad file descriptor";
    QTest::newRow("full standard output, help") << "\"$1\" csv --help >/dev/full" << "standard output: No space left";
#ifndef __SANITIZE_ADDRESS__ // the sanitizer alone takes more
    QTest::newRow("no memory") << "ulimit -v 262144; cp -r card big; truncate -s 1G 'big/LOG 1.CAN'; "
                                  "\"$1\" csv big -o new.csv; status=$?; rm -r big; exit $status" << "not enough memory";
    QTest::newRow("no memory, report") << "ulimit -v 122880; \"$1\" report card --profile Profile.xml -o new.pdf" << "not enough memory";
#endif
    QTest::newRow("reader gone") << "set -o pipefail; \"$1\" csv card --profile Profile.xml -o - | true; exit ${PIPESTATUS[0]}" << "";
}

void TestCli::failedWritesLeaveNothing()
{
    QFETCH(QString, command);
    QFETCH(QString, said);
    putFile((mFolder.path() + "/kept.csv").toStdString(), "of yesterday");
    const auto before = entries();
    const Answer answer = shell(command);
    if (!said.isEmpty()) { // whether a pipe's reader is gone in time is chance; but never a crash, and status 0 or 1
        QCOMPARE(answer.status, 1);
        const QString line = answer.errors;
        QVERIFY2(line.startsWith("zarn-cli: ") && line.contains(said) && line.count('\n') == 1, answer.errors.constData());
    }
    else
        QCOMPARE(answer.errors, QByteArray());
    QVERIFY(answer.status == 0 || answer.status == 1);
    QVERIFY(entries() == before);
    QCOMPARE(fileContent((mFolder.path() + "/kept.csv").toStdString()), std::string("of yesterday"));
}

void TestCli::csvGoesWhereItIsTold()
{
    const Answer file = cli(QStringList{"csv"} + mWith + QStringList{"-o", "out.csv"});
    QCOMPARE(file.status, 0);
    QCOMPARE(file.out, QByteArray());
    QCOMPARE(csv().section('\n', 0, 1), QString("Time;height;Drehzahl ü;only A\n0:00:01.000;0.0;0;0"));
    const Answer output = cli(QStringList{"csv"} + mWith + QStringList{"-o", "-"});
    QCOMPARE(QString(output.out), csv());
    cli(QStringList{"csv"} + mWith + QStringList{"--output", "out.csv", "--resolution", "10", "--separator", "tab", "--select", "Drehzahl ü"});
    QCOMPARE(csv().section('\n', 0, 2), QString("Time\tDrehzahl ü\n0:00:01.000\t0\n0:00:01.100\t1"));
    cli(QStringList{"csv"} + mWith + QStringList{"-o", "out.csv", "--separator", "comma", "--select", "only A", "--select", "height"});
    QCOMPARE(csv().section('\n', 0, 0), QString("Time,height,only A")); // in the profile's order
    cli(QStringList{"csv"} + mWith + QStringList{"-o", "out.csv", "--locale", "de", "--select", "height"});
    QCOMPARE(csv().section('\n', 1, 1), QString("1,000;0:00:01,000;01.05.2024 12:00:00,000;0,0"));
    std::filesystem::remove((mFolder.path() + "/out.csv").toStdString());
}

void TestCli::kmlTakesItsSettings()
{
    const QStringList call = QStringList{"kml"} + mWith + QStringList{"-o", "-", "--select", "height"};
    const Answer plain = cli(call);
    QCOMPARE(plain.status, 0);
    QVERIFY(plain.out.contains("<width>1</width>") && plain.out.endsWith("</kml>\n"));
    QCOMPARE(plain.errors, QByteArray("zarn-cli: card: no position recorded\n"));
    const Answer set = cli(call + QStringList{"--set", "KmlLineWidth=7", "--set", "KmlLineWidth=9", "--set", "KmlPolygonOn=1"});
    QVERIFY(set.out.contains("<width>9</width>") && set.out.contains("<extrude>0</extrude>"));
}

void TestCli::valuesSurviveTheRoundTrip()
{
    const Answer answer = cli(QStringList{"value"} + mWith + QStringList{"--parameter", "height", "--time", "50.5", "--time", "51.5", "--time",
                                                                        "60.5", "--time", "-5", "--time", "61.5", "--time", "0.5", "--json"});
    QCOMPARE(answer.status, 0);
    const QJsonArray values = json(answer.out)["values"].toArray();
    QCOMPARE(values.size(), 6);
    QCOMPARE(values[0].toObject()["value"].toString(), QString("nan"));
    QCOMPARE(values[1].toObject()["value"].toString(), QString("-inf"));
    QCOMPARE(values[2].toObject()["value"].toDouble(), static_cast<double>(0.1F));
    QVERIFY(values[2].toObject()["value"].toDouble() == static_cast<double>(0.1F));
    QCOMPARE(values[0].toObject()["color"].toString(), QString("#ff0000"));
    QCOMPARE(values[0].toObject()["state"].toInt(), 2);
    for (const int none : {3, 4}) { // before the index and after the last sample
        QCOMPARE(values[none].toObject()["text"].toString(), QString(""));
        QVERIFY(values[none].toObject()["color"].isNull());
    }
    QCOMPARE(values[5].toObject()["text"].toString(), QString("0.0")); // before the first sample: the first
    QCOMPARE(json(answer.out)["unit"].toString(), QString("m"));
}

void TestCli::textsAreEscaped()
{
    const QJsonObject file = json(cli({"info", "card", "--json"}).out)["files"].toArray().at(0).toObject();
    QCOMPARE(file["ecuType"].toString(), QString("B \"quoted\""));
    QCOMPARE(file["engineSerial"].toString(), QString("C\x01") + QChar(QChar::ReplacementCharacter)); // whatever stands in a damaged file
    CardBuilder card;
    card.rawFile("quote\" back\\ line\n tab\t ü.CAN", RecordFileBuilder().addWord(1, 1, 0).bytes());
    const QByteArray answer = cli({"info", card.path(), "--json"}).out;
    QVERIFY(answer.startsWith("{\"schema\":1,"));
    QCOMPARE(json(answer)["files"].toArray().at(0).toObject()["name"].toString(), QString("quote\" back\\ line\n tab\t ü.CAN"));
    QVERIFY(json(answer)["files"].toArray().at(0).toObject()["dateTime"].isNull());
}

/// What is wrong with a card is told beside the answer, and fails nothing.
void TestCli::damageIsNamed()
{
    const Answer answer = shell("cp -r card bad; : >bad/LOG2.CAN; \"$1\" info bad --json; rm -r bad");
    QCOMPARE(answer.errors, QByteArray("zarn-cli: LOG2.CAN: 0 bytes, no record\n"));
    const QJsonObject problem = json(answer.out)["problems"].toArray().at(0).toObject();
    QCOMPARE(problem["file"].toString() + ": " + problem["reason"].toString(), QString("LOG2.CAN: 0 bytes, no record"));
}

/// One that cannot be read is said and keeps no other from being told.
void TestCli::manyCards()
{
    const Answer answer = shell("printf 'nowhere\n\ncard\n' | \"$1\" summary card --from-file - --profile Profile.xml --cycle 0 --json");
    QCOMPARE(answer.status, 1);
    QCOMPARE(answer.errors, QByteArray("zarn-cli: nowhere: no such folder\n"));
    QVERIFY(answer.out.startsWith("{\"schema\":1,"));
    const QJsonArray cards = json(answer.out)["cards"].toArray();
    QCOMPARE(cards.size(), 2);
    QVERIFY(cards[0] == cards[1]);
    const QJsonObject cycle = cards[0].toObject()["cycles"].toArray().at(0).toObject();
    QCOMPARE(cycle["verdict"].toString(), QString("limit"));
    QVERIFY(cycle["engineRunning"].isNull() && cycle["fuel"].isNull() && cycle["incidents"].toArray().size() == 1);
}

void TestCli::namesMayBeAnyBytes()
{
    const Answer answer = shell("set -e; d=$'no\\xff\\xc3'; mkdir $d; cp 'card/LOG 1.CAN' $d/$'\\xfe.CAN'; cp Profile.xml $d/$'\\xe9.xml'; "
                                "\"$1\" csv $d --profile $d/$'\\xe9.xml' -o $d/$'\\xe9.csv'; head -n 1 $d/$'\\xe9.csv'; \"$1\" info $d/$'\\xfe.CAN'; "
                                "\"$1\" simulate $d 2>&1 || true; \"$1\" csv $d --profile Profile.xml -o $d/v.csv --verbose 2>&-; "
                                "if grep flight $d/v.csv; then exit 1; fi; rm -r $d; cp -r card ./-c; \"$1\" summary card --profile Profile.xml -- -c; rm -r ./-c");
    QCOMPARE(answer.status, 0);
    QCOMPARE(answer.errors, QByteArray());
    QVERIFY2(answer.out.startsWith("Time;height") && answer.out.contains("\n\\xfe.CAN  2024-05-01") &&
                 answer.out.contains("no\\xff\\xc3: holds the record file \\xfe.CAN already") && answer.out.contains("\nCard -c\n"),
             answer.out.constData());
}

void TestCli::tablesForPeople_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("needles");
    QTest::newRow("info") << QStringList{"info", "card"} << QStringList{"LOG 1.CAN", "2024-05-01 12:00:00", "00:01:01.000", "808"};
    QTest::newRow("info of one file") << QStringList{"info", "card/LOG 1.CAN"} << QStringList{"LOG 1.CAN", "B \"quoted\"", "C\\x01\\xff"};
    QTest::newRow("info, nothing there") << QStringList{"info", "empty"} << QStringList{"empty", "no record file"};
    QTest::newRow("ids") << QStringList{"ids", "CARD"} << QStringList{"Rate [1/s]", "404      2  00:00:01.000   00:01:01.000        6.72  height\n", "0x2BC"};
    QTest::newRow("candump") << QStringList{"candump", "CARD", "-o", "-"}
                             << QStringList{"(1714564800.000000) zarn0 001#0002000000000000\n", "(1714564860.000000) zarn0 001#0002000000000000\n"};
    QTest::newRow("flights") << QStringList{"flights", "CARD"} << QStringList{"Cycle 0", "No flight"};
    QTest::newRow("value") << QStringList{"value", "CARD", "--parameter", "height", "--time", "60.5", "--time", "99"}
                           << QStringList{"D/height\n", "Value [m]", "0.100000", "ok", "no data"};
    QTest::newRow("summary") << QStringList{"summary", "CARD"}
                             << QStringList{"Cycle 0, 2024-05-01 12:00:00, 1 min 0 s recorded: LIMIT EXCEEDED", "1 of 1 watched parameters recorded",
                                            "  !! 0:37  height 99.8 m, limit 90, for 13 s on the ground", "names no engine speed"};
    QTest::newRow("summary of lamps and faults") << QStringList{"summary", "card", "--profile", "warnings.xml"}
                                                 << QStringList{"  !! 0:02  Sensor, on the ground, with Oil yellow", "2 of 2 watched"};
    QTest::newRow("path") << QStringList{"path", "CARD"} << QStringList{"Latitude [deg]"};
    QTest::newRow("limits") << QStringList{"events", "CARD"} << QStringList{"Limit exceedances", "00:00:37.000", "90.0", "No warning lamp was lit"};
    QTest::newRow("lamps") << QStringList{"events", "card", "--profile", "warnings.xml"}
                           << QStringList{"No limit was exceeded", "Warning lamps", "00:00:03.000  WarningLamp  Oil"};
    QTest::newRow("faults") << QStringList{"faults", "card", "--profile", "warnings.xml"}
                            << QStringList{"Lane A (700)", "Sensor  Fault  00:00:02.000  00:00:04.000", "Lane B (701)", "not recorded"};
    QTest::newRow("faults, nothing there") << QStringList{"faults", "CARD"} << QStringList{"no error matrix"};
    QTest::newRow("profile") << QStringList{"profile", "Profile.xml"} << QStringList{"D/Drehzahl ü", "Variant A"};
    QTest::newRow("profile, check") << QStringList{"profile", "Profile.xml", "--check"}
                                    << QStringList{"Severity", "warning", "same bytes of the same message. (Variant \"A\")"};
}

void TestCli::tablesForPeople()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, needles);
    const qsizetype place = arguments.indexOf("CARD");
    if (place >= 0)
        arguments = arguments.mid(0, place) + mWith + arguments.mid(place + 1);
    const Answer answer = cli(arguments);
    QCOMPARE(answer.status, 0);
    for (const QString& needle : needles)
        QVERIFY2(QString(answer.out).contains(needle), answer.out.constData());
    for (const QByteArray& line : answer.out.split('\n'))
        QVERIFY2(!line.endsWith(' ') && !line.contains('\t'), line.constData());
}

QTEST_APPLESS_MAIN(TestCli)
#include "TestCli.moc"
