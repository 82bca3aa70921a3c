#include "card/CardContainer.h"
#include "ui/data/DataCycle.h"
#include "ui/data/DialogDataTable.h"
#include "ui/data/RowTable.h"
#include "ui/data/model/DataTableModel.h"

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QToolTip>

using namespace ZARN;

namespace {

/// A table with times 10.0, 10.5, 11.0 and 12.0 s; B has samples at the first and the last only, C none.
struct Table : Test::DataCycle {
    Table()
    {
        Test::ProfileBuilder()
            .thresholds("T", {{5, "WARNING", "#a00000"}, {50, "LIMIT", "#00ff00"}})
            .device("D<b>")
            .parameter("A", 1, "FLOAT", {{"unitMetric", "rpm"}, {"precision", "1"}, {"thresholdId", "T"}})
            .parameter("hidden", 1, "FLOAT")
            .parameter("B", 2, "ULONG")
            .device("E")
            .parameter("C", 3, "FLOAT", {{"unitMetric", "m"}})
            .load(profile);
        for (const char* name : {"A", "B", "C"})
            profile.setSelected(name, true);
        records().addFloat(1, 10.0, 1.0F).addWord(2, 10.01, 7).addFloat(1, 10.5, 9.0F).addFloat(1, 11.0, 99.0F).addWord(2, 12.0, 8);
        load();
    }
    /// The table in a window, filled.
    DialogDataTable& open()
    {
        table.emplace(session);
        table->resize(500, 300);
        table->show();
        table->updateRecord(data());
        return *table;
    }
    /// Rows at tenths of seconds from 100 s on.
    void addRows(int count)
    {
        for (int i = 0; i < count; ++i)
            data()->append(1, {Test::floatPayload(static_cast<float>(i)), 0, 0, 2, 0, 0, Test::ticksOf(100.0 + i * 0.1)});
        data()->buildTimeIndex();
    }
    RowTable* view() { return table->findChild<RowTable*>(); }
    QTableView* live() { return table->findChild<QTableView*>(); }
    QString text(int row, int column) { return view()->model()->index(row, column).data().toString(); }
    QVariant at(int row, int column, int role) { return view()->model()->index(row, column).data(role); }

    std::optional<DialogDataTable> table;
};

} // namespace

/// The data table over records, live values and damage.
class TestDataTable : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cells();
    void header();
    void positions();
    void longTexts();
    void damagedTimes();
    void rowOfTime_data();
    void rowOfTime();
    void selection();
    void manyRows();
    void readAloud();
    void selectedWhileHidden();
    void copy();
    void live();
    void otherProfile();
};

void TestDataTable::cells()
{
    Table table;
    DataTableModel model(table.profile);
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.updateParameters();
    model.setRecord(table.data());
    model.setRecord(table.data());
    model.setRecord(nullptr);
    QCOMPARE(model.rowCount(), 0);

    table.open();
    QCOMPARE(table.view()->model()->rowCount(), 4);
    QStringList rows;
    for (int row = 0; row < 4; ++row)
        rows.append(QStringList{table.text(row, 0), table.text(row, 1), table.text(row, 2), table.text(row, 3)}.join(' '));
    QCOMPARE(rows, QStringList({"00:00:10.000 1.0 7 ", "00:00:10.500 9.0  ", "00:00:11.000 99.0  ", "00:00:12.000  8 "}));
    QCOMPARE(table.at(1, 0, Qt::UserRole), QVariant(10500));
    QCOMPARE(table.at(0, 0, Qt::BackgroundRole).value<QColor>(), QColor(230, 230, 230));
    QVERIFY(!table.at(0, 1, Qt::BackgroundRole).isValid());
    QCOMPARE(table.at(1, 1, Qt::BackgroundRole).value<QColor>(), QColor(160, 0, 0));
    QCOMPARE(table.at(2, 1, Qt::ToolTipRole).toString(), QString("Limit"));
    QCOMPARE(table.at(1, 1, Qt::ForegroundRole).value<QColor>(), QColor(Qt::white)); // the ground is dark
    QCOMPARE(table.at(2, 1, Qt::ForegroundRole).value<QColor>(), QColor(Qt::black));
    // 8 bytes a shown sample is what the index may take; here every column has its own channel.
    QVERIFY(table.table->model().bytes() < 1000);
}

void TestDataTable::header()
{
    Table table;
    table.open();
    const auto* pHeader = table.view()->horizontalHeader();
    QStringList labels;
    for (int i = 0; i < pHeader->count(); ++i)
        labels.append(table.view()->model()->headerData(i, Qt::Horizontal).toString());
    QCOMPARE(labels, QStringList({"Time", "A [rpm]", "B", "C [m]"}));
    QVERIFY(pHeader->isVisible());
    QCOMPARE(pHeader->font().weight(), int(QFont::Bold));
    table.table->setStyleSheet("QWidget { font-size: 12px; }");
    QTRY_VERIFY(pHeader->sectionSize(0) >= 80 && pHeader->sectionSize(0) < 90); // by the font
    QCOMPARE(table.view()->rowHeight(), 15);
    const int title = pHeader->sectionSize(1);
    table.table->setStyleSheet("QWidget { font-size: 20px; }");
    QTRY_VERIFY(table.view()->rowHeight() >= 21 && pHeader->sectionSize(0) > 120 && pHeader->sectionSize(1) > title);
    const QString toolTip = table.view()->model()->headerData(1, Qt::Horizontal, Qt::ToolTipRole).toString();
    for (const char* piece : {"D&lt;b&gt;/A", "1", "rpm", "5.0 rpm: Warning", "50.0 rpm: Limit"})
        QVERIFY2(toolTip.contains(piece), qPrintable(toolTip));
    table.profile.clearSelection();
    table.table->updateProfile();
    QCOMPARE(table.view()->model()->rowCount(), 0);
    QCOMPARE(table.view()->model()->columnCount(), 1);
}

void TestDataTable::positions()
{
    Test::DataCycle cycle;
    Test::ProfileBuilder().device("GPS").position("Latitude", 10).position("Longitude", 11).load(cycle.profile);
    cycle.profile.setSelected("Latitude", true);
    cycle.profile.setSelected("Longitude", true);
    for (int i = 0; i < 40; ++i) {
        const float jump = i == 20 ? 500.0F : 0.0F; // a fix that the filter drops
        cycle.records().addFloat(10, 10 + i * 0.5, 4800.0F + static_cast<float>(i) * 0.01F + jump);
        cycle.records().addFloat(11, 10 + i * 0.5, 1130.0F + static_cast<float>(i) * 0.01F + jump);
    }
    cycle.load();
    DataTableModel model(cycle.profile);
    model.updateParameters();
    model.setRecord(cycle.data());
    // Read backwards and twice, a cell is what one pass in time order decodes.
    QStringList shown;
    for (int pass = 0; pass < 2; ++pass) {
        for (int row = 39; row >= 0; --row)
            shown.append(model.index(row, 1).data().toString() + model.index(row, 2).data().toString());
    }
    QStringList expected(40);
    cycle.profile.resetCoordinates();
    for (const char* name : {"Latitude", "Longitude"}) {
        const ProfileParameter& parameter = *cycle.profile.model().find(name);
        const RecordEntries& entries = cycle.data()->channel(parameter.identifier())->entries;
        for (std::size_t i = 0; i < 40; ++i) {
            int state = 0;
            QColor colour;
            expected[static_cast<qsizetype>(39 - i)] +=
                QString::fromStdString(cycle.profile.getDataString(entries[i], parameter, state, colour));
        }
    }
    QCOMPARE(shown, expected + expected);
    QVERIFY(expected[19].startsWith("48.0"));
}

/// One value among thousands is longer than the title and all others: the column has room for it, or tells it in a tool tip.
void TestDataTable::longTexts()
{
    Table table;
    table.addRows(3000);
    table.data()->append(1, {Test::floatPayload(1e12F), 0, 0, 2, 0, 0, Test::ticksOf(700.0)});
    table.data()->buildTimeIndex();
    table.open();
    RowTable& view = *table.view();
    const QModelIndex last = view.model()->index(view.model()->rowCount() - 1, 1);
    QVERIFY(view.columnWidth(1) > view.fontMetrics().horizontalAdvance(last.data().toString()));
    view.setColumnWidth(1, 30);
    view.scrollTo(last);
    const QPoint point = view.visualRect(last).center();
    QHelpEvent help(QEvent::ToolTip, point, view.viewport()->mapToGlobal(point));
    QApplication::sendEvent(view.viewport(), &help);
    QVERIFY2(QToolTip::text().contains(last.data().toString()), qPrintable(QToolTip::text()));
}

void TestDataTable::damagedTimes()
{
    Table table;
    table.data()->append(1, {Test::floatPayload(3.0F), 0, 0, 2, 0, 0, std::numeric_limits<uint64_t>::max()});
    table.data()->append(1, {Test::floatPayload(4.0F), 0, 0, 2, 0, 0, Test::ticksOf(0.25)});
    table.data()->buildTimeIndex();
    table.open();
    QCOMPARE(table.view()->model()->rowCount(), 6);
    QCOMPARE(table.text(0, 1), QString("4.0"));
    QCOMPARE(table.text(5, 1), QString("3.0"));
    QSignalSpy times(&*table.table, &DialogDataTable::signalTime);
    table.view()->selectRow(5);
    QCOMPARE(times.takeFirst()[0].toDouble(), 429496729.5);
}

void TestDataTable::rowOfTime_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<int>("row");
    QTest::newRow("before the first") << -5.0 << 0;
    QTest::newRow("first") << 10.0 << 0;
    QTest::newRow("rounds up") << 10.46 << 1;
    QTest::newRow("rounds down") << 10.44 << 0;
    QTest::newRow("between") << 11.9 << 2;
    QTest::newRow("after the last") << 1e12 << 3;
    QTest::newRow("none") << std::numeric_limits<double>::quiet_NaN() << 0;
}

void TestDataTable::rowOfTime()
{
    QFETCH(double, time);
    Table table;
    table.open();
    QSignalSpy times(&*table.table, &DialogDataTable::signalTime);
    table.table->setTime(time);
    const QModelIndexList rows = table.view()->selectionModel()->selectedRows();
    QCOMPARE(rows.size(), 1);
    QTEST(rows[0].row(), "row");
    QCOMPARE(times.size(), 0);
}

void TestDataTable::selection()
{
    Table table;
    table.open();
    QSignalSpy times(&*table.table, &DialogDataTable::signalTime);
    const auto click = [&](int row, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(table.view()->viewport(), Qt::LeftButton, modifiers,
                          table.view()->visualRect(table.view()->model()->index(row, 1)).center());
    };
    click(0); // selected already by the start time, yet chosen
    click(2);
    QCOMPARE(times.size(), 2);
    QCOMPARE(times[0][0].toDouble(), 10.0);
    QCOMPARE(times[1][0].toDouble(), 11.0);
    QTest::keyClick(table.view(), Qt::Key_Down);
    QCOMPARE(times.size(), 3);
    QCOMPARE(times[2][0].toDouble(), 12.0);
    click(1, Qt::ControlModifier);
    QCOMPARE(times.size(), 4);
    QCOMPARE(times[3][0].toDouble(), 10.5); // the one clicked last, not the first that is selected
    QTest::keySequence(table.view(), QKeySequence::SelectAll);
    QCOMPARE(table.view()->selectionModel()->selectedRows().size(), 4);
    table.table->updateRecord(nullptr);
    table.table->setTime(11.0);
    QCOMPARE(times.size(), 4);
}

void TestDataTable::manyRows()
{
    constexpr int kRows = 20000;
    Table table;
    table.addRows(kRows);
    table.open();
    RowTable& view = *table.view();
    const QAbstractItemModel& model = *view.model();
    const int rows = model.rowCount(), page = view.viewport()->height() / view.rowHeight();
    QVERIFY(rows >= kRows);
    const auto selected = [&] {
        QList<int> list;
        for (const QModelIndex& index : view.selectionModel()->selectedRows())
            list.append(index.row());
        std::sort(list.begin(), list.end());
        return list;
    };
    const auto isSeen = [&](int row) { return view.viewport()->rect().contains(view.visualRect(model.index(row, 0)).center()); };
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(selected(), QList<int>{rows - 1});
    QVERIFY(isSeen(rows - 1) && !isSeen(rows - 1 - page));
    QCOMPARE(view.indexAt(view.visualRect(model.index(rows - 3, 1)).center()), model.index(rows - 3, 1));
    QVERIFY(!view.indexAt({10, (page + 1) * view.rowHeight()}).isValid());
    QTest::keyClick(&view, Qt::Key_PageUp);
    QCOMPARE(selected(), QList<int>{rows - 1 - page});
    QVERIFY(isSeen(rows - 1 - page));
    const auto click = [&](int row, Qt::KeyboardModifiers modifiers) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, view.visualRect(model.index(row, 1)).center());
    };
    const int first = view.indexAt({10, 5}).row();
    click(first + 2, {});
    click(first + 5, Qt::ShiftModifier);
    QCOMPARE(selected(), (QList<int>{first + 2, first + 3, first + 4, first + 5}));
    click(first + 4, Qt::ControlModifier);
    QCOMPARE(selected(), (QList<int>{first + 2, first + 3, first + 5}));
    for (const auto& [height, isThere] : {std::pair(300, true), {160, true}, {90, true}, {400, true}, {250, false}, {100, false}}) {
        if (!isThere)
            view.verticalScrollBar()->setValue(first - 500); // the user has left it
        table.table->resize(500, height); // the row in force stays in sight, whole
        QTRY_VERIFY(view.viewport()->height() < height);
        QCOMPARE(view.viewport()->rect().contains(view.visualRect(view.currentIndex())), isThere);
    }
    QTest::keyClick(&view, Qt::Key_Home, Qt::ControlModifier);
    QCOMPARE(selected(), QList<int>{0});
    QTest::keyClick(&view, Qt::Key_End, Qt::ShiftModifier);
    QCOMPARE(selected().size(), rows);
    QTest::keyClick(&view, Qt::Key_Home);
    QCOMPARE(selected(), QList<int>{0});
    view.resize(120, 200); // narrower than the columns
    QTest::keyClick(&view, Qt::Key_Right);
    QTest::keyClick(&view, Qt::Key_Right);
    const QRect cell = view.visualRect(model.index(0, 2));
    QVERIFY(cell.left() >= 0 && view.horizontalHeader()->sectionViewportPosition(2) == cell.left());
}

/// What a screen reader is told, walked as it walks.
void TestDataTable::readAloud()
{
    Table table;
    table.open();
    QAccessibleInterface& view = *QAccessible::queryAccessibleInterface(table.view());
    QAccessibleTableInterface& rows = *view.tableInterface();
    QStringList texts;
    for (int i = 0; i < view.childCount(); ++i) {
        QAccessibleInterface* pCell = view.child(i);
        QVERIFY(view.indexOfChild(pCell) == i && pCell->parent() == &view && view.child(i) == pCell);
        texts << pCell->text(QAccessible::Name);
    }
    QCOMPARE(texts.join('|'), QString("Time|A [rpm]|B|C [m]|00:00:10.000|1.0|7||00:00:10.500|9.0|||00:00:11.000|99.0|||00:00:12.000||8|"));
    QVERIFY(!view.child(20) && !view.child(-1) && !rows.cellAt(4, 0) && !rows.cellAt(0, 4) && !rows.cellAt(-1, 0));
    QVERIFY(rows.selectRow(2) && rows.unselectRow(0));
    QCOMPARE(rows.selectedRows(), QList<int>{2});
    QCOMPARE(rows.selectedCells().size(), 4);
    QAccessibleInterface* pCell = rows.cellAt(2, 1);
    QVERIFY(pCell->state().selected && !rows.cellAt(1, 1)->state().selected);
    QCOMPARE(pCell->text(QAccessible::Description), QString("Limit"));
    QCOMPARE(pCell->tableCellInterface()->columnHeaderCells().value(0)->text(QAccessible::Name), QString("A [rpm]"));
    QCOMPARE(pCell->tableCellInterface()->rowHeaderCells().value(0)->text(QAccessible::Name), QString("00:00:11.000"));
    QCOMPARE(view.childAt(pCell->rect().center().x(), pCell->rect().center().y()), pCell);
    table.view()->setFocus();
    QTest::keyClick(table.view(), Qt::Key_Down);
    QTest::keyClick(table.view(), Qt::Key_Right);
    QCOMPARE(view.focusChild(), rows.cellAt(1, 1));
    table.addRows(20000);
    table.table->updateRecord(table.data());
    QCOMPARE(view.childCount(), 4 * (table.view()->model()->rowCount() + 1));
    QCOMPARE(rows.cellAt(20003, 1)->text(QAccessible::Name), QString("19999.0"));
    table.table->updateRecord(nullptr);
    QVERIFY(rows.rowCount() == 0 && view.childCount() == 4 && !rows.cellAt(0, 0) && rows.selectedRows().isEmpty());
}

void TestDataTable::selectedWhileHidden()
{
    Table table;
    table.addRows(2000);
    QStackedWidget stack;
    stack.addWidget(new QWidget);
    table.table.emplace(table.session);
    stack.addWidget(&*table.table);
    stack.resize(400, 700);
    stack.show();
    table.table->updateRecord(table.data());
    table.table->setTime(200.0);
    stack.setCurrentIndex(1);
    const auto isCentred = [&] {
        const int middle = table.view()->visualRect(table.view()->currentIndex()).center().y();
        return std::abs(middle - table.view()->viewport()->height() / 2) <= table.view()->rowHeight();
    };
    QTRY_VERIFY(isCentred());
    table.view()->verticalScrollBar()->setValue(7); // the user looks at other rows
    stack.setCurrentIndex(0);
    stack.setCurrentIndex(1);
    QCoreApplication::processEvents();
    QCOMPARE(table.view()->verticalScrollBar()->value(), 7);
    stack.removeWidget(&*table.table);
    table.table->setParent(nullptr);
}

void TestDataTable::copy()
{
    Table table;
    table.open();
    QAction other; // the window has another use for the key
    other.setShortcut(QKeySequence::Copy);
    table.table->addAction(&other);
    QSignalSpy triggered(&other, &QAction::triggered);
    table.table->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&*table.table));
    table.view()->setFocus();
    table.view()->selectRow(0);
    table.view()->selectionModel()->select(table.view()->model()->index(3, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QTest::keySequence(table.view(), QKeySequence::Copy);
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("00:00:10.000\t1.0\t7\t\n00:00:12.000\t\t8\t\n"));
    QCOMPARE(triggered.size(), 0);
    for (QAction* pAction : table.view()->actions())
        pAction->trigger();
    QVERIFY(QGuiApplication::clipboard()->text().startsWith("Time\tA [rpm]\tB\tC [m]\n00:00:10.000\t"));
    table.view()->clearSelection();
    QTest::keySequence(table.view(), QKeySequence::Copy);
    QCOMPARE(triggered.size(), 1); // nothing to copy: the key is the window's
}

void TestDataTable::live()
{
    Table table;
    table.open();
    table.table->setZarnMode(1);
    QCOMPARE(table.live()->model()->rowCount(), 3);
    QVERIFY(table.live()->isVisible() && !table.view()->isVisible());
    QCOMPARE(table.live()->model()->headerData(0, Qt::Vertical).toString(), QString("A [rpm]"));
    RecordEntry entry;
    entry.id = 1;
    entry.payload = Test::floatPayload(60.0F);
    QVERIFY(table.data()->appendLive(entry));
    QTRY_COMPARE(table.live()->model()->index(0, 0).data().toString(), QString("60.0"));
    QCOMPARE(table.live()->model()->index(0, 0).data(Qt::BackgroundRole).value<QColor>(), QColor(0, 255, 0));
    QCOMPARE(table.live()->model()->index(1, 0).data().toString(), QString()); // from a file, so not fresh
    QVERIFY(!table.data()->channel(1)->fresh());
    table.table->setZarnMode(0);
    QVERIFY(table.data()->appendLive(entry));
    QVERIFY(!table.table->findChild<QTimer*>({}, Qt::FindDirectChildrenOnly)->isActive());
    QCoreApplication::processEvents();
    QVERIFY(table.data()->channel(1)->fresh());
}

void TestDataTable::otherProfile()
{
    Table table;
    table.open();
    // Between the load of another profile and its announcement the window may be painted.
    Test::ProfileBuilder().device("X").parameter("A", 2, "ULONG").load(table.profile);
    QCOMPARE(table.text(0, 1), QString());
    table.table->grab();
    table.table->updateProfile();
    QCOMPARE(table.view()->model()->columnCount(), 2);
    QCOMPARE(table.text(0, 1), QString("7"));
}

QTEST_MAIN(TestDataTable)
#include "TestDataTable.moc"
