#include "export/ExportCsv.h"
#include "support/CardBuilder.h"
#include "support/FileHelpers.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QTemporaryDir>
#include <QTest>

#include <random>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

/// The table as it is defined: an ordered map of rows, each an ordered map of cells, filled column by column.
class NaiveCsv {
public:
    NaiveCsv(Profile& profile, const RecordData& data, const CsvExportOptions& options) : mProfile(profile), mData(data), mOptions(options) {}

    std::string text()
    {
        std::string text = "Time";
        std::vector<const ProfileParameter*> columns;
        for (const ProfileDevice& device : mProfile.data()) {
            for (const ProfileParameter& parameter : device.parameters) {
                if (mOptions.allParameters || mProfile.isSelected(parameter.name))
                    columns.push_back(&parameter);
            }
        }
        mProfile.resetCoordinates();
        for (std::size_t i = 0; i < columns.size(); ++i) {
            text += mOptions.separator + columns[i]->name;
            fillColumn(i, *columns[i]);
        }
        text += "\n";
        std::vector<std::string> held(columns.size());
        for (const auto& [tick, cells] : mRows) {
            text += timeText(tick);
            for (std::size_t i = 0; i < columns.size(); ++i) {
                if (const auto cell = cells.find(i); cell != cells.end())
                    held[i] = cell->second;
                text += mOptions.separator + held[i];
            }
            text += "\n";
        }
        return text;
    }

private:
    void fillColumn(std::size_t column, const ProfileParameter& parameter)
    {
        const RecordChannel* pChannel = mData.channel(parameter.identifier());
        if (!pChannel)
            return;
        int state = 0;
        QColor colour;
        for (const RecordEntry& entry : pChannel->entries) {
            const double tick = entry.time * (1 / (mOptions.resolution * 0.001)) + 0.5;
            mRows[tick < 4294967295.0 ? static_cast<uint32_t>(tick) : UINT32_MAX][column] =
                mProfile.getDataString(entry, parameter, state, colour);
        }
    }

    [[nodiscard]] std::string timeText(uint32_t tick) const
    {
        const double second = 1 / (mOptions.resolution * 0.001);
        const double hours = std::trunc(tick / (second * 3600));
        double rest = tick - hours * second * 3600;
        const double minutes = std::trunc(rest / (second * 60));
        rest -= minutes * second * 60;
        const double seconds = std::trunc(rest / second);
        rest -= seconds * second;
        char buffer[64];
        std::snprintf(buffer, sizeof buffer, "%d:%02d:%02d.%03d", static_cast<int>(hours), static_cast<int>(minutes),
                      static_cast<int>(seconds), static_cast<int>(rest * mOptions.resolution));
        return buffer;
    }

    Profile& mProfile;
    const RecordData& mData;
    const CsvExportOptions& mOptions;
    std::map<uint32_t, std::map<std::size_t, std::string>> mRows;
};

const QString kLongLabel = QString("a long label; with, separators\tin it ").repeated(3);

void loadProfile(Profile& profile)
{
    ProfileBuilder builder;
    builder.enumeration("E", {{0, "off"}, {1, kLongLabel}, {2, "ein Wort für zwei"}, {3, ""}});
    builder.device("A").parameter("speed", 1, "FLOAT", {{"precision", "2"}});
    builder.parameter("far", 1, "FLOAT", {{"precision", "17"}, {"factor", "1e20"}});
    builder.parameter("switch", 2, "BLONG", {{"enumId", "E"}, {"endBit", "2"}});
    builder.parameter("flags", 2, "BSHORT", {{"startByte", "6"}, {"endBit", "3"}});
    builder.position("Latitude", 3).position("Longitude", 4).parameter("unknown", 5, "ACHAR").parameter("silent", 77, "USHORT");
    builder.device("B").parameter("count", 5, "ULONG", {{"precision", "4"}}).parameter("byte", 1, "UCHAR").parameter("speed", 6, "LONG");
    builder.parameter("all of kind 0", RecordData::kPseudoKind0, "USHORT", {{"startByte", "2"}}).position("Latitude", 4);
    if (!builder.load(profile))
        qFatal("the profile does not load");
}

/// The next tick of a recording of some kind.
uint64_t nextTicks(const QString& kind, uint64_t now, std::mt19937_64& random)
{
    if (kind == "dense")
        return now + random() % 40000; // several samples a row
    if (kind == "sparse")
        return now + random() % 2 * (random() % (UINT64_C(1) << 36)) + 7;
    if (kind == "unordered")
        return random() % 64'000'000'000;
    if (kind == "restarts")
        return random() % 200 ? now + random() % 900000 : random() % 1000000;
    return now + random() % 400000; // ends of the tick range
}

RecordData& fill(RecordData& data, const QString& kind, std::mt19937_64& random)
{
    // 2^32 ticks of 10 ms, of 100 ms, and times beyond both.
    const std::map<QString, double> starts{{"near 2^32 of 10 ms", 42949670}, {"near 2^32 of 100 ms", 429496727}, {"beyond", 5e11}};
    uint64_t now = starts.contains(kind) ? static_cast<uint64_t>(starts.at(kind) * 32e6) : 0;
    for (int i = 0; i < 4000; ++i) {
        now = nextTicks(kind, now, random);
        const auto identifier = static_cast<uint32_t>(random() % 7 + 1);
        StoredRecord record{wordPayload(static_cast<uint32_t>(random())), 0, 0, static_cast<uint16_t>(random() % 3), 0, 0, now};
        if (identifier == 3 || identifier == 4)
            record.payload = floatPayload(static_cast<float>(4800 + static_cast<int>(random() % 100) / 10.0 + (random() % 30 == 0 ? 500 : 0)));
        else if (identifier == 1 && random() % 4)
            record.payload = floatPayload(static_cast<float>(random() % 30000) / 128);
        data.append(identifier, record);
    }
    data.buildTimeIndex();
    return data;
}

struct Export {
    Export() { options.directory = folder.path(), options.fileName = "out.csv"; }
    std::string run(const RecordData& data)
    {
        ExportCsv exporter(cycle.profile, cycle.profile.selection(), powerUp);
        if (!exporter.exportData(data, options))
            qFatal("%s", exporter.error().c_str());
        return fileContent((folder.path() + "/out.csv").toStdString());
    }

    QTemporaryDir folder;
    TestCycle cycle;
    CsvExportOptions options;
    QDateTime powerUp;
};

/// Compares line by line, so that a failure names the place.
void compareLines(const std::string& actual, const std::string& expected)
{
    if (actual == expected)
        return;
    const QList<QByteArray> actualLines = QByteArray::fromStdString(actual).split('\n');
    const QList<QByteArray> expectedLines = QByteArray::fromStdString(expected).split('\n');
    for (qsizetype i = 0; i < std::min(actualLines.size(), expectedLines.size()); ++i)
        QCOMPARE(actualLines[i], expectedLines[i]);
    QCOMPARE(actualLines.size(), expectedLines.size());
}

} // namespace

class TestExportCsv : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void equalsNaiveTable_data();
    void equalsNaiveTable();
    void widthsAndTextsBeyondTheBuffers_data();
    void widthsAndTextsBeyondTheBuffers();
    void spreadsheets_data();
    void spreadsheets();
    void tellsOtherTimes();
};

void TestExportCsv::equalsNaiveTable_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("resolution");
    for (const char* kind : {"dense", "sparse", "unordered", "restarts", "near 2^32 of 10 ms", "near 2^32 of 100 ms", "beyond"}) {
        for (const int resolution : {100, 10})
            QTest::addRow("%s, %d ms", kind, resolution) << kind << resolution;
    }
}

void TestExportCsv::equalsNaiveTable()
{
    QFETCH(QString, kind);
    QFETCH(int, resolution);
    std::mt19937_64 random(qHash(kind, 1));
    Export csv;
    loadProfile(csv.cycle.profile);
    RecordData data;
    fill(data, kind, random);
    csv.options.resolution = static_cast<uint32_t>(resolution);
    csv.options.separator = resolution == 10 ? '\t' : ';';
    compareLines(csv.run(data), NaiveCsv(csv.cycle.profile, data, csv.options).text());
    // Again, in other units and with some columns: nothing of the first export remains, the position filter least of all.
    csv.cycle.profile.setCurrentUnit(EUnit::eImperial);
    csv.options.allParameters = false;
    for (const char* name : {"Longitude", "Latitude", "switch"})
        csv.cycle.profile.setSelected(name, true);
    compareLines(csv.run(data), NaiveCsv(csv.cycle.profile, data, csv.options).text());
}

void TestExportCsv::widthsAndTextsBeyondTheBuffers_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("labelLength");
    for (const int length : {13, 14, 15, 16, 17, 1000}) // around what a cell holds with the number before it and the separator
        QTest::addRow("label of %d", length) << 3 << length - 4;
    QTest::newRow("label beyond the line buffer") << 3 << 700000;
    QTest::newRow("many columns") << 5000 << 3;
    QTest::newRow("a row beyond the line buffer") << 40000 << 20;
}

void TestExportCsv::widthsAndTextsBeyondTheBuffers()
{
    QFETCH(int, columns);
    QFETCH(int, labelLength);
    Export csv;
    ProfileBuilder builder;
    builder.enumeration("E", {{0, QString(labelLength, 'x')}, {1, "y"}}).device("D");
    for (int i = 0; i < columns; ++i)
        builder.parameter(QString::number(i), i % 50, "BLONG", {{"enumId", "E"}, {"endBit", QString::number(i % 3)}});
    QVERIFY(builder.load(csv.cycle.profile));
    RecordData data;
    RecordFileBuilder file;
    for (int i = 0; i < 150; ++i)
        file.addWord(static_cast<uint32_t>(i * 7 % 50), i * 0.1 + (i > 100 ? 100 : 0), static_cast<uint32_t>(i / 3 % 8), 5);
    file.fill(data);
    compareLines(csv.run(data), NaiveCsv(csv.cycle.profile, data, csv.options).text());
}

void TestExportCsv::spreadsheets_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("expected"); // behind the mark

    QTest::newRow("comma") << "de_DE" << "Time [s];Time [h:mm:ss];Date and time;Speed [km/h];'=1+1;State\n"
                                         "1,000;0:00:01,000;31.12.2024 23:59:59,500;-1,5;\"0: a;b \"\"c\"\"\";0: a, b\n"
                                         "2,000;0:00:02,000;01.01.2025 00:00:00,500;;1 = 30;1 = 30\n";
    QTest::newRow("point") << "en_US" << "Time [s],Time [h:mm:ss],Date and time,Speed [km/h],'=1+1,State\n"
                                         "1.000,0:00:01.000,12/31/2024 23:59:59.500,-1.5,\"0: a;b \"\"c\"\"\",\"0: a, b\"\n"
                                         "2.000,0:00:02.000,1/1/2025 00:00:00.500,,1 = 30,1 = 30\n";
}

void TestExportCsv::spreadsheets()
{
    QFETCH(QString, expected);
    QFETCH(QString, locale);
    Export csv;
    ProfileBuilder builder;
    builder.enumeration("A", {{0, "a;b \"c\""}, {1, "30"}}).enumeration("B", {{0, "a, b"}, {1, "30"}});
    builder.unit("km/h", "kt", 0.5).device("D").parameter("Speed", 1, "FLOAT", {{"unitMetric", "km/h"}, {"precision", "1"}});
    builder.parameter("=1+1", 2, "BLONG", {{"enumId", "A"}, {"endBit", "2"}}).parameter("State", 2, "BLONG", {{"enumId", "B"}, {"endBit", "2"}});
    QVERIFY(builder.load(csv.cycle.profile));
    RecordData data;
    RecordFileBuilder().addFloat(1, 1, -1.5F).addWord(2, 1, 0).addFloat(1, 2, std::numeric_limits<float>::quiet_NaN()).addWord(2, 2, 1).fill(data);
    csv.options.locale = locale;
    csv.powerUp = QDateTime(QDate(2024, 12, 31), QTime(23, 59, 58, 500), Qt::UTC);
    compareLines(csv.run(data), "\xEF\xBB\xBF" + expected.toStdString());
}

void TestExportCsv::tellsOtherTimes()
{
    Export csv;
    QVERIFY(ProfileBuilder().device("D").parameter("a", 1, "UCHAR").load(csv.cycle.profile));
    RecordData data;
    RecordFileBuilder().addWord(1, 5, 0, 4).addWord(1, 15, 0, 4).fill(data);
    csv.options.times = {ETimeReference::eClock, 86390};
    QVERIFY(csv.run(data).starts_with("Clock;a\n23:59:55.000;0\n0:00:05.000;"));
    csv.options.times = {ETimeReference::eTakeOff, -10};
    QVERIFY(csv.run(data).starts_with("Time since take-off;a\n-0:00:05.000;0\n0:00:05.000;"));
    QCOMPARE(csv.options.times.text(5000) + TimeReference(ETimeReference::eClock, 1).text(-2000), "-00:00:05.00023:59:59.000");
}

QTEST_APPLESS_MAIN(TestExportCsv)
#include "TestExportCsv.moc"
