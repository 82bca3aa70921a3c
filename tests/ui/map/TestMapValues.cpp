#include "ui/canvas/ColourContrast.h"
#include "ui/data/DataCycle.h"
#include "ui/map/model/MapDescription.h"
#include "ui/map/model/MapValueModel.h"
#include "ui/map/model/MapValues.h"
#include "ui/map/model/MapScene.h"
#include "ui/map/model/TileConsent.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace ZARN;

namespace {

/// EGT (warning from 50, limit from 90) at 10, 11, ... 20 s; Mode, a list of words, at 15 s alone; Oil without a record.
struct Engine : Test::DataCycle {
    Engine()
    {
        Test::ProfileBuilder()
            .unit("bar", "psi", 10)
            .enumeration("Mode", {{0, "Off"}, {1, "On"}})
            .thresholds("T", {{50, "WARNING", "#a0a000"}, {90, "LIMIT", "#ff0000"}})
            .device("E")
            .parameter("EGT", 1, "FLOAT", {{"unitMetric", "bar"}, {"unitImperial", "psi"}, {"precision", "0"}, {"thresholdId", "T"}})
            .parameter("hidden", 1, "FLOAT")
            .device("F")
            .parameter("Mode", 2, "BLONG", {{"enumId", "Mode"}, {"endBit", "2"}})
            .parameter("Oil", 3, "FLOAT")
            .load(profile);
        for (const char* name : {"EGT", "Mode", "Oil"})
            profile.setSelected(name, true);
        for (int i = 10; i <= 20; ++i) {
            records().addFloat(1, i, static_cast<float>(10 * (i - 10)));
            if (i == 15)
                records().addWord(2, i, 1, 5);
        }
    }
    [[nodiscard]] QString at(double time, bool hasRecord = true) const
    {
        QStringList all;
        for (const MapValue& value : MapValues(session).at(time, hasRecord))
            all << QString("%1=%2 %3 %4").arg(value.name, value.text, value.unit).arg(value.state);
        return all.join("; ");
    }
};

} // namespace

/// The values that stand beside the map.
class TestMapValues : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ofACard();
    void ofABus();
    void manyParameters();
    void table();
    void consent();
    void inWords();
};

void TestMapValues::ofACard()
{
    Engine engine;
    engine.load();
    QCOMPARE(engine.at(15, false), QString("EGT=  0; Mode=  0; Oil=  0"));
    // The value strictly before the time; a list has no value behind its last sample.
    for (const auto& [time, text] : {std::pair(14.5, "EGT=40 bar 0; Mode=1: On  0; Oil=-  0"), {15.5, "EGT=50 bar 1; Mode=-  0; Oil=-  0"},
                                     {19.5, "EGT=90 bar 2; Mode=-  0; Oil=-  0"}, {8.5, "EGT=0 bar 0; Mode=-  0; Oil=-  0"},
                                     {7.9, "EGT=-  0; Mode=-  0; Oil=-  0"}, {21.0, "EGT=-  0; Mode=-  0; Oil=-  0"}})
        QCOMPARE(engine.at(time), QString(text));
    QCOMPARE(MapValues(engine.session).at(19.5, true)[0].colour, QColor(255, 0, 0));
    engine.profile.setCurrentUnit(EUnit::eImperial);
    QVERIFY(engine.at(15.5).startsWith("EGT=500 psi 1;")); // the state is the value's, whatever unit it is told in
}

/// What is received still stands until the next sample is overdue.
void TestMapValues::ofABus()
{
    Engine engine;
    auto pRecord = std::make_shared<RecordData>();
    Test::RecordFileBuilder file;
    for (const double time : {10.0, 11.0, 12.0})
        file.addFloat(1, time, static_cast<float>(5 * time));
    file.addWord(2, 20, 1, 5);
    file.fill(*pRecord);
    engine.container.beginLive({}, pRecord);
    for (const auto& [time, text] : {std::pair(12.0, "EGT=60 bar 1"), {14.9, "EGT=60 bar 1"}, {15.1, "EGT=- "}, {10.5, "EGT=50 bar 1"}, {8.5, "EGT=50 bar 1"}, {7.5, "EGT=- "}})
        QVERIFY2(engine.at(time).startsWith(text), qPrintable(engine.at(time)));
    QVERIFY(engine.at(21.9).contains("Mode=1: On") && engine.at(22.1).contains("Mode=-")); // of a single one nobody knows its pace
    QVERIFY(engine.at(20).endsWith("Oil=-  0"));
}

void TestMapValues::manyParameters()
{
    Engine engine;
    Test::ProfileBuilder builder;
    builder.device("D");
    for (int i = 0; i < 1001; ++i)
        builder.parameter(QString::number(i), i + 1, "FLOAT");
    QVERIFY(builder.load(engine.profile));
    for (int i = 0; i < 1001; ++i)
        engine.profile.setSelected(std::to_string(i), true);
    QCOMPARE(MapValues(engine.session).at(0, false).size(), MapValues::kMostRows);
    engine.profile.setSelected("0", false);
    QCOMPARE(MapValues(engine.session).at(0, false).back().name, QString("1000"));
}

void TestMapValues::table()
{
    MapValueModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset), changed(&model, &QAbstractItemModel::dataChanged);
    std::vector<MapValue> values{{"EGT", "700", "C", QColor(Qt::red), 2}, {"Oil", "3", "bar", {}, 0}, {"RPM", "1", "", QColor(Qt::yellow), 1}};
    model.setValues(values);
    QVERIFY(reset.count() == 1 && model.rowCount() == 3 && model.columnCount() == MapValueModel::eColumns);
    model.setValues(values);
    QVERIFY(reset.count() == 1 && changed.isEmpty());
    values[1].text = "4";
    model.setValues(values);
    QVERIFY(reset.count() == 1 && changed.count() == 1);
    QVERIFY(changed[0][0].toModelIndex() == model.index(1, 0) && changed[0][1].toModelIndex() == model.index(1, MapValueModel::eUnit));
    const auto row = [&model](int number, int role) {
        QStringList cells;
        for (int column = 0; column < MapValueModel::eColumns; ++column)
            cells << model.index(number, column).data(role).toString();
        return cells.join('|');
    };
    QCOMPARE(row(0, Qt::DisplayRole), QString::fromUtf8("\u25a0|EGT|700|C"));
    QCOMPARE(row(1, Qt::DisplayRole), QString("|Oil|4|bar"));
    QVERIFY(row(2, Qt::DisplayRole).startsWith(QChar(0x25b2)));
    QCOMPARE(row(0, Qt::AccessibleTextRole), QString("Limit|EGT|700|C"));
    QCOMPARE(row(2, Qt::AccessibleTextRole), QString("Warning|RPM|1|"));
    QVERIFY(model.index(0, 0).data(Qt::ToolTipRole).toString().contains("Limit"));
    for (const QColor& ground : {QColor(Qt::white), QColor(Qt::black)}) { // colours can be read on both
        model.setGround(ground);
        for (const int column : {int(MapValueModel::eState), int(MapValueModel::eValue)})
            QVERIFY(contrastRatio(model.index(2, column).data(Qt::ForegroundRole).value<QColor>(), ground) >= 4.5);
    }
    QVERIFY(!model.index(0, MapValueModel::eName).data(Qt::ForegroundRole).isValid() && !model.index(1, MapValueModel::eValue).data(Qt::ForegroundRole).isValid());
    const auto aligned = [&model](int column) { return model.index(0, column).data(Qt::TextAlignmentRole).value<Qt::Alignment>(); };
    QVERIFY(aligned(MapValueModel::eValue).testFlag(Qt::AlignRight) && aligned(MapValueModel::eName).testFlag(Qt::AlignLeft));
    QVERIFY(model.headerData(MapValueModel::eValue, Qt::Horizontal, Qt::DisplayRole) == "Value" && !model.headerData(0, Qt::Horizontal, Qt::DisplayRole).isValid() &&
            !model.headerData(1, Qt::Vertical, Qt::DisplayRole).isValid());
    values.pop_back();
    model.setValues(values);
    QVERIFY(reset.count() == 2 && model.rowCount() == 2);
}

/// Agreeing to one server is no answer about another; refusing is one about all.
void TestMapValues::consent()
{
    Engine engine;
    TileConsent consent(engine.property);
    QCOMPARE(consent.answer("https://a"), TileConsent::eNotAsked);
    QCOMPARE(consent.answer(""), TileConsent::eNotAsked);
    consent.set("https://a", true);
    QVERIFY(consent.answer("https://a") == TileConsent::eYes && consent.answer("https://b") == TileConsent::eNotAsked);
    consent.set("https://a", false);
    QVERIFY(consent.answer("https://a") == TileConsent::eNo && consent.answer("https://b") == TileConsent::eNo);
}

void TestMapValues::inWords()
{
    MapScene scene;
    QCOMPARE(MapDescription(scene).text(), QString("There is no path to show."));
    scene.path().setPoints(std::vector<FlightPathPoint>{{3661, -48.5, 11.25, 0, 0, 0}, {7322, -48.6, 11.25, 0, 0, 0}});
    for (const auto& [track, told] : {std::pair(10.4, "10"), {-10.0, "350"}, {370.0, "10"}, {359.4, "359"}}) {
        scene.setAircraft({0, -48.51234, 11.25, 0, 0, track});
        QCOMPARE(MapDescription(scene).text(), QString::fromUtf8("Flight path from 01:01:01 to 02:02:02. Aircraft at 48.5123\u00b0 S, 11.2500\u00b0 E, track %1\u00b0.").arg(told));
    }
}

QTEST_MAIN(TestMapValues)
#include "TestMapValues.moc"
