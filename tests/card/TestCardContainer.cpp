#include "support/CardBuilder.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QDir>
#include <QTest>

#include <filesystem>
#include <limits>

#include <dirent.h>
#include <dlfcn.h>
#include <sys/stat.h>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

int readdirFailsAfter = -1; // entries; -1: never

const QDateTime kNoon(QDate(2024, 5, 1), QTime(12, 0), Qt::UTC);

struct ProgressLog : Progress {
    void setProgress(int percent) override { values.push_back(percent); }
    std::vector<int> values;
};

QString fileNames(const CardContainer& container)
{
    QStringList names;
    for (const auto& [name, info] : container.recordFiles())
        names << QString::fromStdString(name);
    return names.join(' ');
}

/// "number:name@date=files" of every cycle.
QString cycles(const CardContainer& container)
{
    QStringList texts;
    for (const auto& [number, cycle] : container.recordCycles()) {
        QStringList files;
        for (const RecordInfo& info : cycle.files)
            files << info.fileName.section('/', -1).section('.', 0, 0);
        const QString date = cycle.dateTime.isValid() ? cycle.dateTime.toString("dd hh:mm:ss.zzz") : "-";
        texts << QString("%1:%2@%3=%4").arg(number).arg(cycle.name, date, files.join('+'));
    }
    return texts.join("; ");
}

QString problems(const std::vector<CardProblem>& problems)
{
    QStringList texts;
    for (const CardProblem& problem : problems)
        texts << QString::fromStdString(problem.file) + ": " + problem.reason + (problem.isSystemError ? " (system)" : "");
    return texts.join("; ");
}

QString problems(const CardContainer& container)
{
    return problems(container.problems());
}

/// A parameter "P" of identifier 1 with samples whose value tells their place.
struct Sampled {
    explicit Sampled(const std::vector<double>& times, double endTime = 0)
    {
        if (!ProfileBuilder().device("D").parameter("P", 1, "ULONG", {{"thresholdId", "none"}}).load(cycle.profile))
            qFatal("the profile does not load");
        RecordFileBuilder& file = card.file("A.CAN").dateTime(kNoon);
        for (std::size_t i = 0; i < times.size(); ++i)
            file.addWord(1, times[i], static_cast<uint32_t>(i + 1));
        if (endTime > 0)
            file.addWord(2, endTime, 0);
        cycle.container.readContainer(card.write());
        cycle.container.loadCycle(0, -1);
    }
    double at(double time) { return cycle.container.getValue(cycle.profile.model().parameter(1), time); }

    CardBuilder card;
    TestCycle cycle;
};

std::vector<Sample> resampled(double step, const std::vector<Sample>& in, std::vector<Sample> out = {})
{
    resampleData(step, in, out);
    return out;
}

/// The grid point by point, each from the definition.
std::vector<Sample> resampledByScan(double step, const std::vector<Sample>& in)
{
    std::vector<Sample> out;
    for (int i = 0; i * step <= in.back().time; ++i) {
        const double time = i * step;
        std::size_t upper = 0;
        while (upper < in.size() && in[upper].time <= time)
            ++upper;
        upper = std::clamp<std::size_t>(upper, 1, in.size() - 1);
        const Sample& a = in[upper - 1];
        const Sample& b = in[upper];
        const double fraction = a.time == b.time ? 1.0 : std::clamp((time - a.time) / (b.time - a.time), 0.0, 1.0);
        out.push_back({time, a.value + fraction * (b.value - a.value)});
    }
    return out;
}

} // namespace

/// Stands before the system's function of that name.
extern "C" dirent* readdir(DIR* pFolder)
{
    static const auto next = reinterpret_cast<dirent* (*)(DIR*)>(dlsym(RTLD_NEXT, "readdir"));
    if (readdirFailsAfter < 0 || readdirFailsAfter-- > 0)
        return next(pFolder);
    errno = EIO;
    return nullptr;
}

class TestCardContainer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void onlyRecordFilesAreRead();
    void cyclesAndDates_data();
    void cyclesAndDates();
    void unreadableFileStartsACycle();
    void loadedSpanIsThatOfTheFiles();
    void tellsWhatIsLoaded();
    void growsLive();
    void draftsAreTakenOver();
    void damagedCardLoads();
    void valuesAtTimes_data();
    void valuesAtTimes();
    void valuesOutsideLeaveBandsAlone();
    void timeTexts_data();
    void timeTexts();
    void resampling_data();
    void resampling();
    void resamplingOfShortSeries();
};

void TestCardContainer::onlyRecordFilesAreRead()
{
    CardBuilder card;
    const QByteArray bytes = RecordFileBuilder().dateTime(kNoon).bytes();
    for (const char* name : {"a.CAN", "b.txt", "c.Can", "d.xcb", "e.can", "f.XCB", "CAN", "can", "g.CAN.bak", "h.bak.CAN", "i.", ".CAN", "._a.CAN",
                             "Übung.can", "j k.can", "\xff\xc3.can"})
        card.rawFile(name, bytes);
    std::filesystem::create_directory(card.path().toStdString() + "/folder.CAN");
    QCOMPARE(mkfifo((card.path().toStdString() + "/pipe.CAN").c_str(), 0600), 0);
    TestCycle cycle;
    ProgressLog progress;
    CardContainer container(cycle.console, cycle.profile, progress);
    QVERIFY(container.readContainer(card.write() + "//"));
    QCOMPARE(container.path(), card.path());
    QCOMPARE(fileNames(container), QString("a.CAN d.xcb e.can h.bak.CAN j k.can Übung.can \ufffd\ufffd.can")); // umlauts behind all else
    for (const char* name : {"Übung.can", "\xff\xc3.can"})
        QVERIFY(container.recordFiles().at(name).dateTime.isValid());
    QCOMPARE(container.recordFiles().at("j k.can").fileName, card.path() + "/j k.can");
    QCOMPARE(container.name(), card.path().section('/', -1));
    QCOMPARE(progress.values.back(), 100);
    QCOMPARE(std::count(progress.values.begin(), progress.values.end(), 0), static_cast<std::ptrdiff_t>(progress.values.size() - 1));
    container.clear();
    QVERIFY(container.recordFiles().empty());
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(card.path()));
    QVERIFY(container.readContainer("."));
    QCOMPARE(container.name(), card.path().section('/', -1));
    readdirFailsAfter = 3;
    QVERIFY(container.readContainer("."));
    readdirFailsAfter = -1;
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(problems(container).section("; ", 0, 0), QString(": it cannot be listed to its end: Input/output error (system)"));
}

void TestCardContainer::cyclesAndDates_data()
{
    QTest::addColumn<QString>("files"); // each name:start-end:date, the date as minutes after noon or "-"
    QTest::addColumn<QString>("expected");
    QTest::newRow("none") << "" << "";
    QTest::newRow("all dated") << "1:1-5:0 2:6-9:10" << "0:@01 12:00:00.000=1+2";
    QTest::newRow("first undated") << "1:1-60.5:- 2:61-70:10 3:71-80:20" << "1:Cycle 1@01 12:08:59.500=1+2+3";
    QTest::newRow("in the middle") << "1:1-9:0 2:1-30:- 3:31-40:10" << "0:@01 12:00:00.000=1; 1:Cycle 1@01 12:09:30.000=2+3";
    QTest::newRow("two undated, one date") << "1:1-9:- 2:1-9:- 3:10-11:1" << "1:Cycle 1@-=1; 2:Cycle 2@01 12:00:51.000=2+3";
    QTest::newRow("by name, not by time") << "b:1-9:- a:1-9:3" << "0:@01 12:03:00.000=a; 1:Cycle 1@-=b";
    QTest::newRow("names by bytes") << "a10:1-2:0 a9:1-2:0 B:1-2:0" << "0:@01 12:00:00.000=B+a10+a9";
    QTest::newRow("across midnight") << "1:1-43201:- 2:61-70:0" << "1:Cycle 1@30 23:59:59.000=1+2";
}

void TestCardContainer::cyclesAndDates()
{
    QFETCH(QString, files);
    CardBuilder card;
    for (const QString& text : files.split(' ', Qt::SkipEmptyParts)) {
        RecordFileBuilder& file = card.file(text.section(':', 0, 0).toStdString() + ".CAN");
        const QString date = text.section(':', 2);
        if (date != "-")
            file.dateTime(kNoon.addSecs(60 * date.toInt()));
        file.addWord(1, text.section(':', 1, 1).section('-', 0, 0).toDouble(), 0);
        file.addWord(1, text.section(':', 1, 1).section('-', 1).toDouble(), 0);
    }
    TestCycle cycle;
    QVERIFY(cycle.container.readContainer(card.write()));
    QTEST(cycles(cycle.container), "expected");
}

void TestCardContainer::unreadableFileStartsACycle()
{
    CardBuilder card;
    card.file("A.CAN").dateTime(kNoon).addWord(1, 1, 0);
    card.rawFile("B.CAN", "");
    card.file("C.CAN").dateTime(kNoon).addWord(1, 4, 0);
    TestCycle cycle;
    QVERIFY(cycle.container.readContainer(card.write()));
    QCOMPARE(cycles(cycle.container), QString("0:@01 12:00:00.000=A; 1:Cycle 1@01 12:00:00.000=B+C"));
    QCOMPARE(problems(cycle.container), QString("B.CAN: 0 bytes, no record"));
    std::filesystem::resize_file(card.path().toStdString() + "/A.CAN", 130);
    QVERIFY(cycle.container.loadCycle(0, -1));
    QCOMPARE(problems(cycle.container.loadProblems()), QString("A.CAN: 0 of 1 records are left since the card was opened (system)"));
    std::filesystem::remove(card.path().toStdString() + "/C.CAN"); // the card is pulled between listing and loading
    QVERIFY(cycle.container.loadCycle(1, -1));
    QCOMPARE(cycle.container.recordData().count(), 0U);
    const QString lost = "C.CAN: it cannot be read: No such file or directory (system)";
    QCOMPARE(problems(cycle.container), "B.CAN: 0 bytes, no record; " + lost);
    QCOMPARE(problems(cycle.container.loadProblems()), lost); // that of B is known
    QVERIFY(cycle.lines.find("RecordFile::readRecordData: Could not open " + card.path().toStdString() + "/C.CAN\n") != std::string::npos);
    QVERIFY(cycle.container.readContainer(card.path()));
    QCOMPARE(problems(cycle.container), QString("A.CAN: the last record is cut off; B.CAN: 0 bytes, no record"));
}

void TestCardContainer::loadedSpanIsThatOfTheFiles()
{
    CardBuilder card;
    card.file("A.CAN").dateTime(kNoon).addWord(1, 20, 1).addWord(1, 7, 2).addWord(1, 10, 3);
    card.file("B.CAN", true).dateTime(kNoon.addSecs(60)).addWord(1, 70, 4).addWord(1, 50, 5);
    card.file("B2.CAN").dateTime(kNoon.addSecs(90)).headerTicks(1); // opened as power went
    card.file("C.CAN").addWord(1, 5, 6);
    TestCycle cycle;
    CardContainer& container = cycle.container;
    QVERIFY(container.readContainer(card.write()));
    QVERIFY(container.loadCycle(0, -1));
    QCOMPARE(container.recordData().count(), 5U);
    QCOMPARE(container.dateTime(), kNoon);
    QCOMPARE(container.startTime(), 20.0); // first record of the first file, last record of the last: not least and greatest
    QCOMPARE(container.endTime(), 50.0);
    QCOMPARE(container.selectedFlight().endTime, 50.0);
    QCOMPARE(container.loadedCycle()->endTime, 50.0);
    QCOMPARE(container.recordFiles().at("A.CAN").startTime, 20.0); // the data pass does not touch the list
    QCOMPARE(*container.loadedCycleNumber(), 0U);
    QVERIFY(container.loadCycle(1, -1)); // replaces what was loaded
    QCOMPARE(container.recordData().count(), 1U);
    QVERIFY(!container.dateTime().isValid());
    QCOMPARE(container.loadedCycle()->name, QString("Cycle 1"));
    container.loadFiles({"B.CAN", "unknown.CAN", card.path() + "/A.CAN"}); // by name or path, in the list's order
    QCOMPARE(container.recordData().count(), 5U);
    QCOMPARE(container.startTime(), 70.0);
    QCOMPARE(container.endTime(), 10.0);
    QCOMPARE(container.recordData().channel(1)->entries.front().time, 70.0);
}

void TestCardContainer::tellsWhatIsLoaded()
{
    CardBuilder card;
    card.file("A.CAN").dateTime(kNoon).serial(1).addWord(1, 20, 1).addWord(1, 30, 2);
    card.file("B.CAN").dateTime(kNoon.addSecs(60)).serial(2).addWord(1, 70, 4).addWord(1, 90, 5);
    card.rawFile("C.CAN", "x");
    TestCycle cycle;
    CardContainer& container = cycle.container;
    QVERIFY(container.name().isEmpty() && !container.loadedCycle() && container.selectedFlightNumber() == 0 && !container.loaded().cycle);
    QVERIFY(container.readContainer(card.write() + "//"));
    QCOMPARE(container.path(), card.path());
    QCOMPARE(container.name(), card.path().section('/', -1));
    QVERIFY(!container.loadCycle(7, -1) && !container.loadedCycleNumber());
    const unsigned int number = container.recordCycles().begin()->first;
    QVERIFY(!container.loadCycle(number, 0) && container.loadCycle(number, -1)); // there is no flight
    const LoadedCard loaded = container.loaded();
    QVERIFY(loaded.card == container.name() && loaded.cycle == number && loaded.cycleName == container.loadedCycle()->name);
    QVERIFY(loaded.startTime == 20 && loaded.endTime == 90 && loaded.wholeStart == 20 && loaded.wholeEnd == 90 && loaded.indexEnd == 90);
    QVERIFY(loaded.cycleDate == kNoon && loaded.powerUp == kNoon.addSecs(-20) && loaded.flightNumber == 0 && loaded.flights.empty());
    QVERIFY(loaded.unit && loaded.unit->ecuSerialNumber == 2U); // of its last file
    QVERIFY(loaded.pRecord->count() == 4 && loaded.problems.size() == container.problems().size() && !loaded.problems.empty());
    QVERIFY(container.loadCycle(number, -1));
    QVERIFY(container.loaded().pRecord != loaded.pRecord && loaded.pRecord->count() == 4); // a loaded one does not change
    container.clear();
    QVERIFY(container.recordFiles().empty() && container.recordCycles().empty() && !container.loadedCycle() && container.recordData().count() == 4);
}

void TestCardContainer::growsLive()
{
    TestCycle cycle;
    CardContainer& container = cycle.container;
    const auto recordOf = [](const std::vector<double>& times) {
        auto pRecord = std::make_shared<RecordData>();
        RecordFileBuilder file;
        for (const double time : times)
            file.addWord(static_cast<uint32_t>(time) % 2 + 1, time, 1);
        file.fill(*pRecord);
        return pRecord;
    };
    container.beginLive(kNoon, std::make_shared<RecordData>());
    QVERIFY(container.isLive() && container.startTime() == 0 && container.endTime() == 0 && container.dateTime() == kNoon && !container.name().isEmpty());
    container.growLive(recordOf({4, 5, 7}));
    QVERIFY(container.startTime() == 4 && container.endTime() == 7 && container.selectedFlight().endTime == 7 && container.loadedCycle()->endTime == 7);
    QVERIFY(container.loaded().indexEnd == 7 && container.loaded().wholeStart == 4 && container.loaded().powerUp == kNoon);
    container.growLive(recordOf({4, 5, 7, 10}));
    QVERIFY(container.endTime() == 10 && container.recordData().count() == 4);
    QVERIFY(container.loadCycle(*container.loadedCycleNumber(), -1) && container.recordData().count() == 4); // reads nothing
    CardBuilder card;
    card.file("A.CAN").addWord(1, 1, 1);
    QVERIFY(container.readContainer(card.write()) && !container.isLive() && container.recordCycles().size() == 1);
}

/// A draft reads in another thread, and is worth nothing until it is taken over.
void TestCardContainer::draftsAreTakenOver()
{
    CardBuilder card, other;
    card.file("A.CAN").dateTime(kNoon).addWord(1, 20, 1).addWord(1, 30, 2);
    other.file("X.CAN").dateTime(kNoon).addWord(1, 5, 1);
    TestCycle cycle;
    CardContainer& container = cycle.container;
    QVERIFY(container.readContainer(card.write()));
    const unsigned int number = container.recordCycles().begin()->first;
    QVERIFY(container.loadCycle(number, -1));
    const DecodingContext context;
    CardContainer draft(container, context);
    QVERIFY(draft.path() == container.path() && draft.recordData().count() == 2 && draft.loadCycle(number, -1));
    QVERIFY(draft.readContainer(other.write()) && draft.loadCycle(draft.recordCycles().begin()->first, -1));
    QVERIFY(container.recordData().count() == 2 && container.endTime() == 30 && container.loadCycle(number, -1) && fileNames(container) == "A.CAN");
    container.adopt(draft);
    QVERIFY(fileNames(container) == "X.CAN" && container.endTime() == 5 && container.recordData().count() == 1 && draft.endTime() == 30);
    container.forgetRecord();
    QVERIFY(container.recordData().count() == 0 && !container.loadedCycle() && container.loaded().indexEnd == 0 && fileNames(container) == "X.CAN");
}

void TestCardContainer::damagedCardLoads()
{
    // Times up to the greatest, in every order: nothing may grow with a time that stands in a file.
    CardBuilder card;
    RecordFileBuilder& file = card.file("A.CAN");
    for (const uint64_t ticks : {UINT64_MAX, uint64_t(0), UINT64_MAX / 2, uint64_t(5), UINT64_MAX - 1})
        file.add(1, StoredRecord{floatPayload(47), 0, 0, 0, 0, 0, ticks});
    TestCycle cycle;
    QVERIFY(ProfileBuilder().device("D").position("Latitude", 1).parameter("L", 1, "FLOAT", {{"zarnDataType", "Longitude"}}).load(cycle.profile));
    cycle.container.readContainer(card.write());
    QVERIFY(cycle.container.loadCycle(1, -1));
    QCOMPARE(cycle.container.recordData().count(), 5U);
    QVERIFY(cycle.container.endTime() > 5e11);
    QVERIFY(cycle.container.flightPath().size() <= 2);
    QVERIFY(cycle.container.getValue(cycle.profile.model().parameter(1), 1e11) != 0.0);
}

void TestCardContainer::valuesAtTimes_data()
{
    QTest::addColumn<QList<double>>("times");
    QTest::addColumn<double>("time");
    QTest::addColumn<double>("expected"); // place of the sample, from 1; 0 for none
    const QList<double> plain{10, 20, 20, 30};
    const auto row = [](const char* name, const QList<double>& times, double time, double expected) {
        QTest::addRow("%s at %g", name, time) << times << time << expected;
    };
    for (const auto& [time, expected] : std::map<double, int>{{-0.9, 1}, {0, 1}, {10, 1}, {10.001, 1}, {20, 1}, {20.001, 3}, {30, 3}})
        row("ascending", plain, time, expected);
    for (const double time : {30.001, 31.0, 1e300, -1.0, -5.0, HUGE_VAL, -HUGE_VAL, std::numeric_limits<double>::quiet_NaN()})
        row("outside", plain, time, 0);
    // The scan stops at the first sample at or after the time, wherever later ones stand.
    const QList<double> restart{10, 50, 5, 15, 60};
    for (const auto& [time, expected] : std::map<double, int>{{3, 1}, {12, 1}, {50, 1}, {55, 4}, {60, 4}})
        row("restarted", restart, time, expected);
    row("time beyond the last file's end", {10, 50, 5}, 20, 0); // the index ends 2 s after the end, at 7
    row("last second of the index", {10, 50, 5}, 6.99, 1);
    row("no samples", {}, 1, 0);
}

void TestCardContainer::valuesAtTimes()
{
    QFETCH(QList<double>, times);
    QFETCH(double, time);
    Sampled sampled({times.begin(), times.end()});
    QTEST(sampled.at(time), "expected");
}

void TestCardContainer::valuesOutsideLeaveBandsAlone()
{
    Sampled sampled({10, 20}, 40);
    const auto shown = [&](double time) {
        return sampled.cycle.container.values().displayAt(sampled.cycle.profile.model().parameter(1), time);
    };
    QVERIFY(!shown(30));
    QVERIFY(shown(5));
    const auto toPeople = [&](double time) {
        return sampled.cycle.container.values().shownAt(sampled.cycle.profile.model().parameter(1), time).has_value();
    };
    QVERIFY(!toPeople(5) && toPeople(9) && toPeople(15) && !toPeople(30));
    QCOMPARE(shown(15)->text, "1");
    int state = 9;
    QColor colour(Qt::blue);
    QCOMPARE(sampled.cycle.container.getValue(sampled.cycle.profile.model().parameter(1), 30, state, colour), 0.0);
    QCOMPARE(state, 9);
    QCOMPARE(colour, QColor(Qt::blue));
    QCOMPARE(sampled.cycle.container.getValue(sampled.cycle.profile.model().parameter(1), 15, state, colour), 1.0);
    QCOMPARE(state, 0);
    QCOMPARE(colour, QColor(255, 255, 255));
}

void TestCardContainer::timeTexts_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("usual") << 3661.5 << "01:01:01.500";
    QTest::newRow("cut, not rounded") << 0.9999 << "00:00:00.999";
    QTest::newRow("wraps") << 86400.25 << "00:00:00.250";
    QTest::newRow("years") << 86400.0 * 40000 + 1 << "00:00:01.000"; // more milliseconds than 32 bits hold
    QTest::newRow("before zero") << -0.5 << "23:59:59.500";
    QTest::newRow("nan") << std::numeric_limits<double>::quiet_NaN() << "00:00:00.000";
}

void TestCardContainer::timeTexts()
{
    QFETCH(double, seconds);
    QTEST(CardContainer::time(seconds), "text");
}

void TestCardContainer::resampling_data()
{
    QTest::addColumn<QList<double>>("numbers"); // time, value, time, value, ...
    QTest::newRow("line") << QList<double>{0, 0, 10, 100};
    QTest::newRow("starts late") << QList<double>{3.2, 7, 5.9, -7, 6, 1};
    QTest::newRow("ties: the later holds") << QList<double>{0, 1, 2, 5, 2, 9, 2, 7, 4, 1};
    QTest::newRow("tie at the start") << QList<double>{1, 4, 1, 6, 3, 0};
    QTest::newRow("before zero") << QList<double>{-5, 10, 5, 20};
}

void TestCardContainer::resampling()
{
    QFETCH(QList<double>, numbers);
    std::vector<Sample> in;
    for (qsizetype i = 0; i < numbers.size(); i += 2)
        in.push_back({numbers[i], numbers[i + 1]});
    for (const double step : {0.5, 1.0, 0.3}) {
        const std::vector<Sample> out = resampled(step, in);
        const std::vector<Sample> expected = resampledByScan(step, in);
        QCOMPARE(out.size(), expected.size());
        for (std::size_t i = 0; i < out.size(); ++i) {
            QCOMPARE(out[i].time, expected[i].time);
            QCOMPARE(out[i].value, expected[i].value);
        }
    }
}

void TestCardContainer::resamplingOfShortSeries()
{
    const std::vector<Sample> held{{1, 1}, {2, 2}, {3, 3}};
    QCOMPARE(resampled(0.5, {}, held).size(), std::size_t(0)); // a copy of the series takes the place of what was there
    QCOMPARE(resampled(0.5, {{7.3, 4}}, held).front().time, 7.3);
    QCOMPARE(resampled(0.5, {{-2, 1}, {-1, 4}}, held).size(), std::size_t(3));
    QCOMPARE(resampled(1, {{0, 1}, {1, 4}}, held).size(), std::size_t(5)); // appended
}

QTEST_APPLESS_MAIN(TestCardContainer)
#include "TestCardContainer.moc"
