#include "card/CardContainer.h"
#include "ui/data/DataCycle.h"
#include "ui/data/DialogDataLimit.h"
#include "ui/data/DialogDataStatistic.h"
#include "ui/data/DialogDataWarning.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>

using namespace ZARN;

namespace {

/// Pressure enters its warning band at 20.04 s and its limit band at 30.06 s, a lamp lights up at 25 s.
struct Events : Test::DataCycle {
    Events()
    {
        Test::ProfileBuilder()
            .thresholds("T", {{5, "WARNING", "#ffff00"}, {50, "LIMIT", "#ff0000"}})
            .device("Engine")
            .parameter("Pressure", 1, "FLOAT", {{"unitMetric", "<b>"}, {"precision", "0"}, {"thresholdId", "T"}})
            .device("WarningLamp")
            .parameter("Oil", 2, "UCHAR")
            .load(profile);
        records().addFloat(1, 10.0, 1.0F).addFloat(1, 20.04, 6.0F);
        records().add(2, 25.0, Test::bytePayload(2)).addFloat(1, 30.06, 60.0F);
        load();
    }
};

template <typename View> struct Shown : Events {
    Shown()
    {
        view.resize(400, 300);
        view.show();
        view.updateRecord(data());
    }
    QTableWidget* table() { return view.template findChild<QTableWidget*>(); }
    View view{session};
};

} // namespace

/// The lists of limit and lamp events, and the tow statistic.
class TestDataEvents : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void limits();
    void lamps();
    void chosenRow();
    void rowOfTime_data();
    void rowOfTime();
    void choices();
    void keys_data();
    void keys();
    void manyEvents();
    void noEvents();
    void statistic();
    void noStatistic();
};

void TestDataEvents::limits()
{
    Shown<DialogDataLimit> shown;
    const QTableWidget* pTable = shown.table();
    QCOMPARE(pTable->rowCount(), 2);
    QCOMPARE(pTable->item(0, 0)->text(), QString("00:00:20.040"));
    QCOMPARE(pTable->item(0, 0)->data(Qt::UserRole), QVariant(20040));
    QCOMPARE(pTable->item(0, 1)->text(), QString("Engine Pressure 6 <b>"));
    QVERIFY(!pTable->item(0, 1)->toolTip().contains("<b>"));
    QCOMPARE(pTable->item(1, 1)->background().color(), QColor(255, 0, 0));
    QVERIFY(pTable->item(1, 1)->toolTip().contains("Limit"));
    QVERIFY(!pTable->item(1, 1)->icon().isNull());
    QCOMPARE(shown.view.eventCount(), 2);
    RecordFlight& flight = const_cast<RecordFlight&>(shown.container.selectedFlight()); // found flights need an hour of samples
    flight.valid = true;
    flight.startTime = 25.0;
    flight.endTime = 40.0;
    shown.view.updateRecord(shown.data());
    QCOMPARE(shown.view.eventCount(), 1);
    QCOMPARE(pTable->rowCount(), 2);
    QVERIFY(pTable->item(0, 1)->background().color() != QColor(255, 255, 0) && pTable->item(0, 1)->toolTip().contains("Outside"));
    QCOMPARE(pTable->item(1, 1)->background().color(), QColor(255, 0, 0));
}

void TestDataEvents::lamps()
{
    Shown<DialogDataWarning> shown;
    QCOMPARE(shown.table()->rowCount(), 1);
    QCOMPARE(shown.table()->item(0, 1)->background().color(), QColor(255, 100, 100));
}

/// A chosen row has one ground, over cells with a colour of their own and without, and the text of a narrow one goes without the group.
void TestDataEvents::chosenRow()
{
    Shown<DialogDataLimit> shown;
    QTableWidget* pTable = shown.table();
    const auto pixels = [&](int column) {
        const QImage image = pTable->viewport()->grab(pTable->visualItemRect(pTable->item(0, column))).toImage();
        const int x = image.width() - 4;
        return QList{image.pixel(x, 2), image.pixel(x, image.height() / 2), image.pixel(x, image.height() - 3)};
    };
    shown.view.setTime(10.0);
    QVERIFY(pixels(0) != pixels(1));
    shown.view.setTime(21.0);
    const QList<QRgb> time = pixels(0);
    QVERIFY(time == pixels(1) && time.count(time[0]) == 3);
    const auto shownText = [&](int width) { // the left part of the cell
        pTable->setColumnWidth(1, width);
        return pTable->viewport()->grab(QRect(pTable->visualItemRect(pTable->item(1, 1)).topLeft(), QSize(100, 20))).toImage();
    };
    pTable->horizontalHeader()->setStretchLastSection(false);
    const QImage wide = shownText(240), narrow = shownText(120);
    pTable->item(1, 1)->setText("Pressure 60 <b>");
    QVERIFY(narrow == shownText(120) && narrow != wide);
}

void TestDataEvents::rowOfTime_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<int>("row");
    QTest::newRow("before the first") << 0.0 << -1;
    QTest::newRow("key not reached") << 30.04 << 0;
    QTest::newRow("key reached") << 30.05 << 1;
    QTest::newRow("after the last") << 1e300 << 1;
}

void TestDataEvents::rowOfTime()
{
    QFETCH(double, time);
    Shown<DialogDataLimit> shown;
    QSignalSpy times(&shown.view, &DialogDataLimit::signalTime);
    shown.view.setTime(time);
    QTEST(shown.table()->currentRow(), "row");
    QCOMPARE(shown.table()->selectionModel()->selectedRows().size(), shown.table()->currentRow() < 0 ? 0 : 1);
    QCOMPARE(times.size(), 0);
}

void TestDataEvents::choices()
{
    Shown<DialogDataLimit> shown;
    QSignalSpy times(&shown.view, &DialogDataLimit::signalTime);
    const auto click = [&](int row) {
        QTest::mouseClick(shown.table()->viewport(), Qt::LeftButton, {},
                          shown.table()->visualItemRect(shown.table()->item(row, 1)).center());
    };
    shown.view.setTime(25.0);
    click(0); // marked by the view time, which is no choice; this is one
    QTest::keyClick(shown.table(), Qt::Key_Down);
    QTest::keyClick(shown.table(), Qt::Key_Down);
    QTest::keyClick(shown.table(), Qt::Key_Up);
    QCOMPARE(times.size(), 3);
    QCOMPARE(times[0][0].toDouble(), 20.04);
    QCOMPARE(times[1][0].toDouble(), 30.06);
    QCOMPARE(times[2][0].toDouble(), 20.04);
    QTest::keyClick(shown.table(), Qt::Key_Down, Qt::ShiftModifier); // chosen together, the last one reports
    QCOMPARE(times.size(), 4);
    QCOMPARE(times[3][0].toDouble(), 30.06);
    QTest::keySequence(shown.table(), QKeySequence::Copy);
    QCOMPARE(QGuiApplication::clipboard()->text().count('\n'), 2);
}

void TestDataEvents::keys_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QList<double>>("chosen");
    QTest::newRow("down from before all") << 10.0 << Qt::Key_Down << QList<double>{20040, 30060};
    QTest::newRow("down from between") << 25.0 << Qt::Key_Down << QList<double>{30060};
    QTest::newRow("down from an event") << 20.04 << Qt::Key_Down << QList<double>{30060};
    QTest::newRow("up from behind all") << 40.0 << Qt::Key_Up << QList<double>{30060, 20040};
    QTest::newRow("up from between") << 25.0 << Qt::Key_Up << QList<double>{20040};
    QTest::newRow("up from an event") << 30.06 << Qt::Key_Up << QList<double>{20040};
    QTest::newRow("up from before all") << 10.0 << Qt::Key_Up << QList<double>{};
}

/// The event that is marked for a view time is chosen by no key that leads away from it.
void TestDataEvents::keys()
{
    QFETCH(double, from);
    QFETCH(Qt::Key, key);
    Shown<DialogDataLimit> shown;
    shown.view.setTime(from);
    QList<double> chosen;
    connect(&shown.view, &DialogDataLimit::signalTime, &shown.view, [&](double time) { chosen.append(std::round(time * 1000)); });
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(shown.table(), key);
    QTEST(chosen, "chosen");
}

void TestDataEvents::manyEvents()
{
    Events events;
    for (int i = 0; i < DialogDataEvents::kMaxRows + 10; ++i) {
        events.data()->append(1, {Test::floatPayload(1.0F), 0, 0, 2, 0, 0, Test::ticksOf(40 + i)});
        events.data()->append(1, {Test::floatPayload(9.0F), 0, 0, 2, 0, 0, Test::ticksOf(40.5 + i)});
    }
    DialogDataLimit view(events.session);
    view.updateRecord(events.data());
    QCOMPARE(view.findChild<QTableWidget*>()->rowCount(), DialogDataEvents::kMaxRows);
    QVERIFY(!view.findChild<QLabel*>()->isHidden());
    view.setTime(1e9);
    QCOMPARE(view.findChild<QTableWidget*>()->currentRow(), DialogDataEvents::kMaxRows - 1);
    view.setTime(1000.0); // while it is hidden
    view.resize(300, 700);
    view.show();
    const QTableWidget* pTable = view.findChild<QTableWidget*>();
    const auto isCentred = [&] {
        const QRect row = pTable->visualItemRect(pTable->item(pTable->currentRow(), 0));
        return std::abs(row.center().y() - pTable->viewport()->height() / 2) <= 2 * row.height(); // it scrolls by whole rows
    };
    QTRY_VERIFY(isCentred());
}

void TestDataEvents::noEvents()
{
    Shown<DialogDataLimit> shown;
    shown.profile.clear();
    shown.view.updateRecord(shown.data());
    shown.view.setTime(20.0);
    QCOMPARE(shown.table()->rowCount(), 0);
    QVERIFY(shown.view.findChild<QLabel*>()->isVisible());
    shown.view.updateRecord(nullptr);
    QVERIFY(!shown.view.findChild<QLabel*>()->isVisible());
}

void TestDataEvents::statistic()
{
    Events events;
    RecordFlight& flight = const_cast<RecordFlight&>(events.container.selectedFlight());
    flight.valid = flight.hasAltitude = flight.hasSummit = flight.hasFuelA = flight.hasRollStart = flight.hasLiftOff = true;
    flight.takeOffTime = 100.0;
    flight.landingTime = 100.0 + 90000.9; // wraps, and loses the fraction
    flight.maxGroundSpeed = 1234567.0;
    flight.timePer100m = 61.75;
    flight.fuelPer100m = 0.25;
    flight.averageClimbRate = -1.5; // the highest point lies before the take-off
    flight.takeOffDistance15m = 5453000.0;
    DialogDataStatistic view(events.session);
    const auto expect = [&](const QString& lines) {
        view.updateRecord(events.data());
        const QString text = view.findChild<QTextEdit*>()->toPlainText().simplified();
        for (const QString& line : lines.split('|'))
            QVERIFY2(text.contains(line), qPrintable(text));
    };
    expect("Flight Time : 01:00:00|Max Ground Speed : 1.23457e+06 km/h|Take Off Distance : 0 m|Take Off Distance 15m : -|Fuel Lane B : -"
           "|Time / 100m : 00:01:01|Fuel / 100m : 0.25 l|Climb Rate : -|Descend Rate : 0 m/s");
    flight.timePer100m = flight.fuelPer100m = std::numeric_limits<double>::infinity(); // no climb
    flight.hasLiftOff = false;
    expect("Time / 100m : -|Fuel / 100m : -|Take Off Distance : -");
    QTest::keySequence(view.findChild<QTextEdit*>(), QKeySequence::Copy);
    QVERIFY(QGuiApplication::clipboard()->text().contains("Maximum Alt\t0 m\n"));
}

void TestDataEvents::noStatistic()
{
    Events events;
    DialogDataStatistic view(events.session);
    const auto shown = [&] { return view.findChild<QTextEdit*>()->toPlainText(); };
    QVERIFY(shown().startsWith("\n\nNo flight selected\n"));
    view.updateRecord(events.data()); // the whole cycle
    QVERIFY(shown().startsWith("\n\nNo flight selected\n"));
}

QTEST_MAIN(TestDataEvents)
#include "TestDataEvents.moc"
