#include "DataCycle.h"
#include "ui/data/model/CellText.h"
#include "ui/data/model/DataTableModel.h"
#include "ui/data/model/LiveTableModel.h"
#include "ui/data/model/PositionMarks.h"
#include "ui/data/model/ReplaySpeed.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>

#include <cmath>

using namespace ZARN;

namespace {

/// A (float, warning from 5, limit from 50), B (a list of words) and C (nothing received); "hidden" is not ticked.
struct Tables : Test::DataCycle {
    Tables()
    {
        Test::ProfileBuilder()
            .enumeration("Gear", {{0, "Up"}, {1, "Down\tand\nlocked"}})
            .thresholds("T", {{5, "WARNING", "#a00000"}, {50, "LIMIT", "#00ff00"}})
            .device("D<b>")
            .parameter("A", 1, "FLOAT", {{"unitMetric", "r&m"}, {"precision", "1"}, {"thresholdId", "T"}})
            .parameter("hidden", 1, "FLOAT")
            .parameter("B", 2, "BLONG", {{"enumId", "Gear"}, {"endBit", "2"}})
            .parameter("C", 3, "FLOAT")
            .load(profile);
        for (const char* name : {"A", "B", "C"})
            profile.setSelected(name, true);
    }
    void fill()
    {
        records().addFloat(1, 10.0, 1.0F).addWord(2, 10.0, 0, 5).addFloat(1, 10.5, 5.0F).addWord(2, 11.0, 1, 5).addFloat(1, 12.0, 50.0F);
        load();
    }
    static QString line(const QAbstractItemModel& model, int row)
    {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells << model.index(row, column).data().toString();
        return cells.join('|');
    }
};

RecordEntry live(uint32_t identifier, const Payload& payload)
{
    RecordEntry entry;
    entry.id = identifier;
    entry.payload = payload;
    return entry;
}

} // namespace

/// What the tables of the data area say, without their windows.
class TestTableModels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rowsOfARecord();
    void timesAreToldAnew();
    void rowAt();
    void widestTexts();
    void headers();
    void toolTips();
    void liveValues();
    void copiedText();
    void copiedSelections_data();
    void copiedSelections();
    void positionMarks();
    void replaySpeeds_data();
    void replaySpeeds();
};

void TestTableModels::rowsOfARecord()
{
    Tables tables;
    tables.fill();
    DataTableModel model(tables.profile);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 1);
    model.updateParameters();
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted), removed(&model, &QAbstractItemModel::rowsRemoved);
    model.setRecord(tables.data());
    QCOMPARE(inserted.takeFirst().mid(1), (QList<QVariant>{0, 3}));
    QCOMPARE(model.columnCount(), 4);
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row)
        rows << Tables::line(model, row);
    QCOMPARE(rows, QStringList({"00:00:10.000|1.0|0: Up|", "00:00:10.500|5.0||", "00:00:11.000||1: Down\tand\nlocked|", "00:00:12.000|50.0||"}));
    for (const auto& [row, state] : {std::pair(0, ""), {1, "Warning"}, {3, "Limit"}}) // exactly at the boundary it is reached
        QCOMPARE(model.index(row, 1).data(Qt::ToolTipRole).toString(), state);
    QCOMPARE(model.index(3, 1).data(Qt::BackgroundRole).value<QColor>(), QColor(0, 255, 0));
    QCOMPARE(model.index(3, 1).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::black));
    QCOMPARE(model.index(1, 1).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::white));
    for (const int role : {int(Qt::BackgroundRole), int(Qt::ForegroundRole), int(Qt::ToolTipRole), int(Qt::DecorationRole)})
        QVERIFY(!model.index(0, 1).data(role).isValid()); // of a value that nothing is said about
    const auto aligned = [&](int column) { return Qt::Alignment(model.index(0, column).data(Qt::TextAlignmentRole).toInt()); };
    QVERIFY(aligned(1) == (Qt::AlignRight | Qt::AlignVCenter) && aligned(2) == (Qt::AlignLeft | Qt::AlignVCenter));
    QCOMPARE(model.index(1, 0).data(Qt::UserRole), QVariant(10500));
    QVERIFY(!model.index(1, 1).data(Qt::UserRole).isValid() && !model.data({}, Qt::DisplayRole).isValid());
    QVERIFY(model.rowCount(model.index(0, 0)) == 0 && model.columnCount(model.index(0, 0)) == 0);
    QVERIFY(model.bytes() > 0);

    model.setRecord(nullptr);
    QCOMPARE(removed.takeFirst().mid(1), (QList<QVariant>{0, 3}));
    QCOMPARE(model.rowCount(), 0);
    model.setRecord(tables.data());
    tables.profile.setSelected("C", false); // ticks alone change nothing until they are told
    QCOMPARE(model.columnCount(), 4);
    model.updateParameters();
    QVERIFY(model.columnCount() == 3 && model.rowCount() == 0);
    model.setRecord(tables.data());
    QCOMPARE(Tables::line(model, 3), QString("00:00:12.000|50.0|"));
    Test::ProfileBuilder().device("X").parameter("A", 2, "ULONG").load(tables.profile); // another profile: nothing of the old one is said
    QCOMPARE(Tables::line(model, 3), QString("||"));
    QVERIFY(model.widestTexts(1).isEmpty() && model.headerData(1, Qt::Horizontal, Qt::ToolTipRole).toString().isEmpty());
}

void TestTableModels::timesAreToldAnew()
{
    Tables tables;
    tables.fill();
    DataTableModel model(tables.profile);
    model.updateParameters();
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged), header(&model, &QAbstractItemModel::headerDataChanged);
    const TimeReference sinceTakeOff = TimeReference(ETimeReference::eTakeOff, -10.5);
    model.setTimes(sinceTakeOff);
    QVERIFY(changed.isEmpty() && header.count() == 1); // there are no rows yet
    model.setTimes({});
    model.setRecord(tables.data());
    header.clear();
    model.setTimes(sinceTakeOff);
    QVERIFY(model.times() == sinceTakeOff);
    QCOMPARE(header.takeFirst(), (QList<QVariant>{QVariant::fromValue(Qt::Horizontal), 0, 0}));
    QVERIFY(changed.first()[0].toModelIndex() == model.index(0, 0) && changed.first()[1].toModelIndex() == model.index(3, 0));
    model.setTimes(sinceTakeOff);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(model.index(0, 0).data().toString(), QString("-00:00:00.500"));
    QCOMPARE(model.index(0, 0).data(Qt::UserRole), QVariant(10000)); // a time is a time, however it is told
    QVERIFY(model.headerData(0, Qt::Horizontal).toString() != "Time");
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).toString().contains("power-up"));
}

void TestTableModels::rowAt()
{
    Tables tables;
    DataTableModel model(tables.profile);
    model.updateParameters();
    QCOMPARE(model.rowAt(11.0), 0);
    tables.fill();
    model.setRecord(tables.data());
    for (const auto& [time, row] : {std::pair(-1.0, 0), {10.0, 0}, {10.44, 0}, {10.5, 1}, {10.99, 2}, {11.94, 2}, {12.0, 3}, {1e15, 3}})
        QVERIFY2(model.rowAt(time) == row, qPrintable(QString::number(time)));
}

/// A column is as wide as its widest text needs, which may be anywhere in it.
void TestTableModels::widestTexts()
{
    Tables tables;
    for (int i = 0; i < 500; ++i)
        tables.records().addFloat(1, 10.0 + i, i == 499 ? 123456.0F : i == 0 ? -5000.0F : static_cast<float>(i % 50)).addWord(2, 10.0 + i, i == 499, 5);
    tables.load();
    DataTableModel model(tables.profile);
    model.updateParameters();
    QVERIFY(model.widestTexts(1).isEmpty());
    model.setRecord(tables.data());
    const QStringList numbers = model.widestTexts(1), words = model.widestTexts(2);
    QVERIFY2(numbers.contains("123456.0") && numbers.contains("-5000.0") && numbers.size() == 3, qPrintable(numbers.join('|')));
    QCOMPARE(words, QStringList({"0: Up", "1: Down\tand\nlocked"}));
    for (const int column : {-1, 0, 3, 4}) // the time, one without samples, none
        QVERIFY(model.widestTexts(column).isEmpty());
}

void TestTableModels::headers()
{
    Tables tables;
    DataTableModel model(tables.profile);
    model.updateParameters();
    LiveTableModel values(tables.profile);
    values.updateParameters();
    QStringList across, down;
    for (int i = -1; i <= 4; ++i) {
        across << model.headerData(i, Qt::Horizontal).toString();
        down << values.headerData(i, Qt::Vertical).toString();
    }
    QCOMPARE(across, QStringList({"", "Time", "A [r&m]", "B", "C", ""}));
    QCOMPARE(down, QStringList({"", "A [r&m]", "B", "C", "", ""}));
    QVERIFY(!model.headerData(0, Qt::Vertical).isValid() && !values.headerData(0, Qt::Horizontal).isValid());
    QVERIFY(!model.headerData(1, Qt::Horizontal, Qt::DecorationRole).isValid() && !values.headerData(1, Qt::Vertical, Qt::DecorationRole).isValid());
    QVERIFY(model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).toString().contains("power-up"));
    QCOMPARE(model.headerData(1, Qt::Horizontal, Qt::ToolTipRole), values.headerData(0, Qt::Vertical, Qt::ToolTipRole));
    QVERIFY(model.headerData(1, Qt::Horizontal, Qt::ToolTipRole).toString().contains("CAN identifier: 1<br/>"));
}

void TestTableModels::toolTips()
{
    Tables tables;
    const std::vector<ShownParameter> shown = ShownParameter::all(tables.profile, tables.profile.selection());
    QCOMPARE(shown.size(), std::size_t(3));
    const QString text = shown[0].toolTip();
    for (const char* piece : {"<b>D&lt;b&gt;/A</b>", "Unit: r&amp;m", "from 5.0 r&amp;m: Warning", "from 50.0 r&amp;m: Limit"})
        QVERIFY2(text.contains(piece), qPrintable(text));
    QVERIFY(!shown[1].toolTip().contains("Unit") && !shown[1].toolTip().contains("Thresholds"));
    QVERIFY(shown[0].isRecorded() && !shown[0].isPosition() && shown[0].name() == "A");

    for (const int count : {20, 21, 23}) { // of a long list the first twenty, and how many more
        std::vector<Test::ProfileBuilder::Boundary> boundaries;
        for (int i = 0; i < count; ++i)
            boundaries.push_back({100.0 + i, i % 2 ? "WARNING" : "OK", "#ff0000"});
        Test::ProfileBuilder().thresholds("L", boundaries).device("D").parameter("P", 1, "FLOAT", {{"thresholdId", "L"}}).load(tables.profile);
        tables.profile.setSelected("P", true);
        const QString lines = ShownParameter::all(tables.profile, tables.profile.selection()).front().toolTip();
        QCOMPARE(lines.count("from"), 20);
        QVERIFY(lines.contains(": Normal") && lines.contains(": Warning"));
        QCOMPARE(lines.contains("and " + QString::number(count - 20) + " more"), count > 20);
    }
}

void TestTableModels::liveValues()
{
    Tables tables;
    LiveTableModel model(tables.profile);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QVERIFY(model.rowCount() == 0 && model.columnCount() == 1);
    model.updateParameters();
    RecordData record;
    QVERIFY(record.appendLive(live(1, Test::floatPayload(60.0F))) && record.appendLive(live(9, Test::floatPayload(1.0F))));
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.refresh(record);
    QCOMPARE(changed.count(), 1);
    QVERIFY(changed.first()[0].toModelIndex() == model.index(0, 0) && changed.first()[1].toModelIndex() == model.index(0, 0));
    QCOMPARE(model.index(0, 0).data().toString() + model.index(1, 0).data().toString(), QString("60.0"));
    QCOMPARE(model.index(0, 0).data(Qt::ToolTipRole).toString(), QString("Limit"));
    QVERIFY(!record.channel(1)->fresh() && record.channel(9)->fresh()); // of the second one nothing was shown
    model.refresh(record);
    QCOMPARE(changed.count(), 1);
    QVERIFY(record.appendLive(live(2, Test::wordPayload(0))) && record.appendLive(live(1, Test::floatPayload(2.0F))));
    model.refresh(record);
    QCOMPARE(model.index(0, 0).data().toString() + model.index(1, 0).data().toString(), QString("2.00: Up"));

    model.clearValues();
    QVERIFY(changed.last()[0].toModelIndex() == model.index(0, 0) && changed.last()[1].toModelIndex() == model.index(2, 0));
    QVERIFY(model.index(0, 0).data().toString().isEmpty() && model.rowCount() == 3);
    tables.profile.setSelected("hidden", true); // of the same identifier: both follow
    model.updateParameters();
    QVERIFY(record.appendLive(live(1, Test::floatPayload(3.0F))));
    model.refresh(record);
    QCOMPARE(model.index(0, 0).data().toString(), QString("3.0"));
    QVERIFY(model.index(1, 0).data().toString().startsWith("3"));
    QVERIFY(model.rowCount() == 4 && model.rowCount(model.index(0, 0)) == 0 && model.columnCount(model.index(0, 0)) == 0);
    QVERIFY(record.appendLive(live(1, Test::floatPayload(4.0F))));
    Test::ProfileBuilder().device("X").parameter("A", 1, "ULONG").load(tables.profile);
    model.refresh(record); // not by decoders of another profile
    QVERIFY(model.index(0, 0).data().toString() == "3.0" && record.channel(1)->fresh());
    tables.profile.clearSelection();
    model.updateParameters();
    changed.clear();
    model.clearValues();
    QVERIFY(model.rowCount() == 0 && changed.isEmpty());
}

void TestTableModels::copiedText()
{
    Tables tables;
    tables.fill();
    DataTableModel model(tables.profile);
    model.updateParameters();
    model.setRecord(tables.data());
    const CellText text(QItemSelection(model.index(2, 1), model.index(3, 2)));
    QCOMPARE(text.cellCount(), 4);
    QCOMPARE(text.text(model, false), QString("\t1: Down and locked\n50.0\t\n")); // a cell breaks neither line nor column
    QCOMPARE(text.text(model, true), QString("A [r&m]\tB\n\t1: Down and locked\n50.0\t\n"));
    const CellText nothing{QItemSelection()};
    QVERIFY(nothing.cellCount() == 0 && nothing.text(model, true).isEmpty());
    QStandardItemModel large(2, 1000001); // what is too much for a clipboard
    QVERIFY(CellText(QItemSelection(large.index(0, 0), large.index(1, 1000000))).text(large, false).isEmpty());
    QCOMPARE(CellText(QItemSelection(large.index(0, 1), large.index(1, 1000000))).text(large, false).size(), 2000000);
}

void TestTableModels::copiedSelections_data()
{
    using Ranges = QList<QRect>; // of columns and rows
    QTest::addColumn<Ranges>("ranges");
    QTest::addColumn<QString>("text");
    QTest::newRow("one cell") << Ranges{{1, 2, 1, 1}} << "21\n";
    QTest::newRow("in the order of the rows") << Ranges{{0, 3, 1, 1}, {0, 0, 1, 1}} << "00\n30\n";
    QTest::newRow("a row twice") << Ranges{{0, 0, 2, 3}, {0, 1, 2, 1}} << "00\t01\n10\t11\n20\t21\n";
    QTest::newRow("side by side and over each other") << Ranges{{0, 0, 1, 2}, {0, 2, 1, 1}, {0, 1, 1, 3}} << "00\n10\n20\n30\n";
    QTest::newRow("all columns between") << Ranges{{2, 0, 1, 1}, {0, 1, 1, 1}} << "00\t01\t02\n10\t11\t12\n";
}

void TestTableModels::copiedSelections()
{
    QStandardItemModel model(4, 3);
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 3; ++column)
            model.setItem(row, column, new QStandardItem(QString("%1%2").arg(row).arg(column)));
    }
    QFETCH(const QList<QRect>, ranges);
    QItemSelection selection;
    for (const QRect& range : ranges)
        selection.append(QItemSelectionRange(model.index(range.top(), range.left()), model.index(range.bottom(), range.right())));
    const CellText copied(selection);
    QTEST(copied.text(model, false), "text");
    QCOMPARE(copied.cellCount(), copied.text(model, false).count('\n') + copied.text(model, false).count('\t'));
}

void TestTableModels::positionMarks()
{
    CycleCourse course;
    course.phases = {{0, 100, EFlightPhase::eOff}, {100, 150, EFlightPhase::eGround}, {150, 300, EFlightPhase::eClimb}};
    course.incidents = {{{120, 130}, 2, "limit", {}}, {{50, 60}, 1, "before", {}}, {{150, 150}, 1, "warning", {}}, {{190, 999}, 1, "to the end", {}},
                        {{90, 100}, 1, "first", {}}};
    const PositionMarks marks(course, 100, 200); // a flight of the cycle
    QCOMPARE(marks.bands().size(), std::size_t(2));
    QVERIFY(marks.bands()[0].from == 0.0 && marks.bands()[0].until == 0.5 && marks.bands()[1].until == 1.0);
    QStringList titles;
    for (const PositionMarks::Mark& mark : marks.marks())
        titles << QString("%1 %2 %3").arg(mark.title).arg(mark.from).arg(mark.until);
    QCOMPARE(titles, QStringList({"warning 0.5 0.5", "to the end 0.9 1", "first 0 0", "limit 0.2 0.3"})); // what is worse lies above
    QVERIFY(marks.text(0.25, 0).endsWith("\nlimit") && !marks.text(0.35, 0.04).contains("limit") && marks.text(0.35, 0.06).contains("limit"));
    QVERIFY(marks.text(0.16, 0.05).contains("limit") && !marks.text(0.14, 0.05).contains("limit"));
    QVERIFY(marks.text(0.2, 0.35).contains("limit\nwarning") || marks.text(0.2, 0.35).contains("limit\nfirst\nwarning"));
    QVERIFY(PositionMarks(course, 100, 100).bands().empty() && PositionMarks(course, 100, std::nan("")).marks().empty());
}

void TestTableModels::replaySpeeds_data()
{
    QTest::addColumn<double>("speed");
    QTest::addColumn<int>("steps");
    QTest::addColumn<double>("expected");
    QTest::newRow("up") << 1.0 << 1 << 2.0;
    QTest::newRow("down") << 1.0 << -1 << 0.5;
    QTest::newRow("by several") << 1.0 << 3 << 10.0;
    QTest::newRow("down by several") << 5.0 << -4 << 0.2;
    QTest::newRow("from between") << 3.0 << 1 << 5.0;
    QTest::newRow("down from between") << 3.0 << -1 << 2.0;
    QTest::newRow("shown as the next one") << 1.998 << 1 << 5.0;
    QTest::newRow("fastest") << 50.0 << 9 << kFastestReplay;
    QTest::newRow("slowest") << 0.2 << -9 << kSlowestReplay;
    QTest::newRow("no step") << 3.3 << 0 << 3.3;
}

void TestTableModels::replaySpeeds()
{
    QFETCH(const double, speed);
    QFETCH(const int, steps);
    QTEST(steppedSpeed(speed, steps), "expected");
}

QTEST_MAIN(TestTableModels)
#include "TestTableModels.moc"
