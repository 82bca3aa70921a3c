#include "card/CardContainer.h"
#include "ui/data/DataCycle.h"
#include "ui/data/DataTabBar.h"
#include "ui/data/SegmentClock.h"
#include "ui/data/DialogData.h"
#include "ui/data/DialogDataLimit.h"
#include "ui/data/DialogDataStatistic.h"
#include "ui/data/DialogDataTable.h"
#include "ui/data/RowTable.h"
#include "ui/data/TimeEntry.h"
#include "ui/data/WidgetReplayBar.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QSplitter>
#include <QStackedWidget>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QWheelEvent>

using namespace ZARN;

namespace {

/// A view that notes what it is told, under its letter.
class RecordingView : public QWidget, public DataView {
public:
    RecordingView(QString letter, QStringList& log) : mLetter(std::move(letter)), mLog(log) {}
    void updateProfile() override { mLog.append(mLetter + "p"); }
    void updateRecord(RecordData* pRecord) override { mLog.append(mLetter + (pRecord ? "r" : "0")); }
    void update(RecordData* pRecord) override { mLog.append(mLetter + (pRecord ? "u" : "0")); }
    void updateFlights(RecordData* /*pRecord*/) override { mLog.append(mLetter + "f"); }
    void prepare(RecordData* /*pRecord*/) override { mLog.append(mLetter + "c"); }
    void prepareFlights(RecordData* /*pRecord*/) override { mLog.append(mLetter + "d"); }
    void setTime(double time) override { mLog.append(mLetter + QString::number(time)); }
    void loadProfile() override { mLog.append(mLetter + "l"); }
    void setZarnMode(int mode) override { mLog.append(mLetter + "m" + QString::number(mode)); }
    [[nodiscard]] int eventCount() const override { return 120; }

private:
    QString mLetter;
    QStringList& mLog;
};

/// The data area over recording views: Table, Graph, Fault matrix, Limits, Warnings, Statistic, Map. The record lasts from 10 to 110 s.
struct Area : Test::DataCycle {
    explicit Area(bool emu = false, double end = 110.0, bool dated = true, double start = 10.0)
    {
        records().addFloat(1, start, 1.0F).addFloat(1, end, 1.0F);
        load(dated);
        DataViewList views;
        for (std::size_t i = 0; i < eViewCount; ++i) {
            auto* pView = new RecordingView(QString("TGFLWSM").mid(static_cast<qsizetype>(i), 1), log);
            views.entries[i] = {pView, pView};
            widgets[i] = pView;
        }
        area.emplace(record, views, emu, nullptr, [this] { return now; });
    }
    /// With the table and the map in sight.
    void show()
    {
        area->show();
        area->updateRecord();
        take();
    }
    QString take()
    {
        QCoreApplication::sendPostedEvents(&record);
        QString text = log.join(' ');
        log.clear();
        return text;
    }
    void pick(EDataView view, double time) { area->moveFrom(*widgets[view], time); }
    template <typename Widget> Widget* find(const char* name) { return area->findChild<Widget*>(name); }

    std::array<QWidget*, eViewCount> widgets{};
    QStringList log;
    double now = 1000.0;
    RecordSession record{container};
    std::optional<DialogData> area;
};

bool activate(QWidget& window)
{
    window.show();
    window.activateWindow();
    return QTest::qWaitForWindowActive(&window);
}

} // namespace

/// The data area: who is told what in which order, replay, controls and map pane.
class TestDialogData : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pushOrders_data();
    void pushOrders();
    void clocks_data();
    void clocks();
    void controls();
    void grooves();
    void decimalSign_data();
    void decimalSign();
    void positionsStay();
    void typedTimes_data();
    void typedTimes();
    void replay();
    void withoutRecord();
    void emu();
    void mapPane();
    void tabs();
    void focusOfTabs();
    void realViews();
};

void TestDialogData::pushOrders_data()
{
    using Action = std::function<void(Area&)>;
    QTest::addColumn<Action>("action");
    QTest::addColumn<QString>("calls");
    const auto pick = [](EDataView view) { return [view](Area& area) { area.pick(view, 20.5); }; };
    const auto tab = [](Area& area) { area.area->findChild<DataTabBar*>()->setCurrentIndex(eViewGraph); };
    const struct {
        const char* name;
        Action action;
        const char* calls;
    } rows[] = {
        {"record", [](Area& area) { area.area->updateRecord(); }, "T0 Tr G0 Gc F0 Fc S0 Sc L0 Lc W0 Wc M0 Mr T10 M10"},
        {"ticks", [](Area& area) { area.area->updateProfile(); }, "Tp Mp T10 M10"},
        {"variant",
         [](Area& area) {
             area.area->loadProfile();
             area.record.changeFlights();
             area.area->updateProfile();
         },
         "Tl Tu Gc Fc Sc Lc Wc Ml Mu T10 M10"},
        {"unit", [](Area& area) { area.record.changeUnit(); }, "Tu Gc Fc Sc Lc Wc Mu T10 M10"},
        {"hidden until shown",
         [tab](Area& area) {
             area.record.changeUnit();
             area.take();
             tab(area);
         },
         "Gu G10"},
        {"shown again",
         [tab](Area& area) {
             tab(area);
             area.area->findChild<DataTabBar*>()->setCurrentIndex(eViewTable);
             area.take();
             tab(area);
         },
         ""},
        {"flights", [](Area& area) { area.record.changeFlights(); }, "Tf Gd Fd Sd Ld Wd Mf T10 M10"},
        {"table", pick(eViewTable), "M20.5"},
        {"graph", [](Area& area) { area.area->slotCursor(20.5F, 3.0); }, "T20.5 M20.5"},
        {"faults", pick(eViewFaultMatrix), "T20.5 M20.5"},
        {"warnings", [](Area& area) { area.area->slotWarningTime(20.5); }, "T20.5"},
        {"warning, then another",
         [](Area& area) {
             area.area->slotWarningTime(20.5);
             area.area->slotLimitTime(30.5);
             area.area->slotLimitTime(40.5);
         },
         "T20.5 T40.5 M40.5"},
        {"map", pick(eViewMap), "T20.5"},
        {"no time", [](Area& area) { area.area->slotTableTime(std::numeric_limits<double>::quiet_NaN()); }, ""},
        {"release", [](Area& area) { area.record.clearRecord(); }, "T0 T0 G0 Gc F0 Fc S0 Sc L0 Lc W0 Wc M0 M0 T10 M10"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << row.action << QString(row.calls);
}

void TestDialogData::pushOrders()
{
    QFETCH(std::function<void(Area&)>, action);
    Area area;
    area.show();
    action(area);
    QTEST(area.take(), "calls");
}

void TestDialogData::clocks_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<QString>("timeOfDay");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("date");
    const QString none("--.--.---- --:--:--");
    QTest::newRow("start") << 10.0 << "00:00:10.000" << 0 << "01.02.2024 08:00:10";
    QTest::newRow("truncated") << 43.3339 << "00:00:43.333" << 3333 << "01.02.2024 08:00:43";
    QTest::newRow("before") << -1.0 << "-00:00:01.000" << 0 << "01.02.2024 07:59:59";
    QTest::newRow("next day") << 90000.5 << "01:00:00.500" << 10000 << "02.02.2024 09:00:00";
    QTest::newRow("damage") << 1e300 << "07:12:55.807" << 10000 << none; // the largest number of milliseconds
    QTest::newRow("no date") << 43.3339 << "00:00:43.333" << 3333 << none;
}

void TestDialogData::clocks()
{
    QFETCH(double, time);
    QFETCH(QString, timeOfDay);
    QFETCH(QString, date);
    Area area(false, 110.0, QString(QTest::currentDataTag()) != "no date");
    const SegmentClock& dateClock = *area.find<SegmentClock>("dateClock");
    const SegmentClock& timeClock = *area.find<SegmentClock>("timeClock");
    QCOMPARE(dateClock.text() + timeClock.text(), QString("--.--.---- --:--:----:--:--.---"));
    area.show();
    area.area->slotLimitTime(time);
    area.take();
    QTEST(area.find<QSlider>("position")->value(), "position");
    QCOMPARE(dateClock.text(), date);
    QCOMPARE(timeClock.text(), timeOfDay);
}

void TestDialogData::controls()
{
    Area area;
    area.show();
    area.find<QSlider>("position")->setValue(5000);
    QCOMPARE(area.take(), QString("T60 M60"));
    QTest::keyClick(area.find<TimeEntry>("time"), Qt::Key_Up);
    QCOMPARE(area.take(), QString("T61 M61"));
    auto* pSlider = area.find<QSlider>("speedSlider");
    auto* pSpeed = area.find<QDoubleSpinBox>("speed");
    pSlider->setValue(1234);
    QCOMPARE(pSpeed->value(), 12.34);
    pSpeed->setValue(99.5);
    QCOMPARE(pSlider->value(), 9950);
    QTest::keyClick(pSlider, Qt::Key_Left);
    QCOMPARE(pSpeed->value(), 50.0);
    QWheelEvent wheel(QPointF(5, 5), pSlider->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -240), Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(pSlider, &wheel);
    QCOMPARE(pSpeed->value(), 10.0);
    for (int i = 0; i < 9; ++i)
        QTest::keyClick(pSpeed, Qt::Key_Down);
    QCOMPARE(pSpeed->value(), 0.1);
    QCOMPARE(area.take(), QString());
}

void TestDialogData::grooves()
{
    Area area;
    area.show();
    area.area->resize(1200, 700);
    area.area->show();
    for (const char* name : {"position", "speedSlider"}) {
        auto* pSlider = area.find<QSlider>(name);
        for (const double share : {0.75, 0.25}) {
            QTest::mouseClick(pSlider, Qt::LeftButton, {}, QPoint(static_cast<int>(pSlider->width() * share), pSlider->height() / 2));
            QVERIFY2(std::abs(pSlider->value() / double(pSlider->maximum()) - share) < 0.08, name);
        }
    }
    QCOMPARE(area.find<QDoubleSpinBox>("speed")->value(), area.find<QSlider>("speedSlider")->value() / 100.0);
}

void TestDialogData::decimalSign_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("shown");
    QTest::newRow("English") << QLocale(QLocale::English) << "Speed 2.50";
    QTest::newRow("German") << QLocale(QLocale::German) << "Speed 2,50";
}

void TestDialogData::decimalSign()
{
    QFETCH(QLocale, locale);
    QLocale::setDefault(locale);
    const Area area;
    QLocale::setDefault(QLocale::c());
    auto* pSpeed = area.area->findChild<QDoubleSpinBox*>("speed");
    for (const char* typed : {"2.5", "2,5"}) {
        pSpeed->setValue(1.0);
        pSpeed->selectAll();
        QTest::keyClicks(pSpeed, typed);
        QTest::keyClick(pSpeed, Qt::Key_Return);
        QTEST(pSpeed->text(), "shown");
    }
}

void TestDialogData::positionsStay()
{
    Area area(false, 2821.3, true, 3.4);
    area.show();
    auto* pPosition = area.find<QSlider>("position");
    for (int position = 1; position <= WidgetReplayBar::kPositions; ++position) {
        pPosition->setValue(position);
        QCoreApplication::sendPostedEvents(&area.record);
        QCOMPARE(pPosition->value(), position); // or a key could never leave the position before
    }
}

void TestDialogData::typedTimes_data()
{
    QTest::addColumn<QKeySequence>("first");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("seconds");
    QTest::newRow("home") << QKeySequence(Qt::Key_Home) << "12:34:56" << 45296.0;
    const QKeySequence all(QKeySequence::SelectAll);
    QTest::newRow("all") << all << "12:34:56" << 45296.0;
    QTest::newRow("into the time") << QKeySequence(Qt::Key_End) << "12:34:56" << 45296.0;
    QTest::newRow("digits only") << all << "123456" << 45296.0;
    QTest::newRow("short") << all << "1:2:03" << 3723.0;
    QTest::newRow("minutes and seconds") << all << "15:30" << 930.0;
    QTest::newRow("the same in digits") << all << "1530" << 930.0;
    QTest::newRow("a minute in one digit") << all << "330" << 210.0;
    QTest::newRow("the second day") << all << "25:00:01" << 90001.0;
    QTest::newRow("damage") << all << "999:00:00" << 2e6;
    QTest::newRow("no time") << all << "1:75" << 60.5;
    QTest::newRow("not whole") << all << "12:" << 60.5;
}

void TestDialogData::typedTimes()
{
    QFETCH(QKeySequence, first);
    QFETCH(QString, typed);
    Area area;
    area.show();
    QVERIFY(activate(*area.area));
    auto* pTime = area.find<TimeEntry>("time");
    const auto type = [&](const QString& text) {
        for (const QChar character : text) {
            const bool shifted = character == ':'; // with the key itself, as a keyboard does
            shifted ? QTest::keyPress(pTime, Qt::Key_Shift) : void();
            QTest::keyClick(pTime, character.toLatin1(), shifted ? Qt::ShiftModifier : Qt::NoModifier);
            shifted ? QTest::keyRelease(pTime, Qt::Key_Shift) : void();
        }
    };
    QTest::mouseClick(pTime, Qt::LeftButton, {}, QPoint(10, pTime->height() / 2));
    QTest::keyClick(pTime, Qt::Key_End);
    QTest::keySequence(pTime, first);
    type(typed.first(3));
    area.area->slotTableTime(60.5); // the replay goes on
    area.take();
    type(typed.mid(3));
    QCOMPARE(area.area->viewTime(), 60.5);
    QTest::keyClick(pTime, Qt::Key_Return);
    QTEST(area.area->viewTime(), "seconds");
    area.area->slotTableTime(60.5);
    area.take();
    type("00:01:00");
    area.area->slotTableTime(70.5);
    area.take();
    QTest::keyClick(pTime, Qt::Key_Return); // what the entry held when the typing began
    QCOMPARE(area.take(), QString("T60 M60"));
    area.area->slotTableTime(90070.5);
    area.take();
    QCOMPARE(pTime->text(), QString("25:01:10"));
}

void TestDialogData::replay()
{
    Area area;
    area.show();
    auto* pStart = area.find<QPushButton>("replay");
    auto* pStop = area.find<QPushButton>("stop");
    QCOMPARE(pStart->text(), QString("Replay Start"));
    QVERIFY(!pStop->isEnabled());
    area.area->slotReplaySpeed(10.0);
    pStart->click();
    QCOMPARE(pStart->text(), QString("Replay Pause"));
    QVERIFY(pStop->isEnabled());
    area.now += 1.5;
    area.area->slotTimeoutReplay();
    QCOMPARE(area.take(), QString("T25 M25"));
    pStart->click();
    QCOMPARE(pStart->text(), QString("Replay Run"));
    area.now += 100.0; // a pause does not count
    pStart->click();
    area.now += 8.5;
    area.area->slotTimeoutReplay();
    QCOMPARE(area.area->viewTime(), 110.0); // at the end, not past it
    QCOMPARE(pStart->text(), QString("Replay Pause"));
    area.take();
    area.now += 0.5;
    area.area->slotTimeoutReplay();
    QCOMPARE(area.take(), QString("T110 M110")); // paused where the record ends
    QCOMPARE(pStart->text(), QString("Replay Run"));
    pStart->click();
    QCOMPARE(area.take(), QString("T10 M10")); // begins anew
    area.now += 1.0;
    QTRY_VERIFY(area.log.contains("M20")); // the timer ticks by itself
    pStop->click();
    QCOMPARE(area.area->viewTime(), 10.0);
    QCOMPARE(pStart->text(), QString("Replay Start"));
    QVERIFY(!pStop->isEnabled());
    pStart->click();
    area.take();
    area.record.clearRecord();
    area.take();
    QVERIFY(!area.area->findChild<QTimer*>({}, Qt::FindDirectChildrenOnly)->isActive());
    QCOMPARE(area.take(), QString());
}

void TestDialogData::withoutRecord()
{
    Area area(false, 10.0); // start and end are one
    area.area->slotSlider(5000);
    area.area->slotReplayMode();
    area.now += 1.0;
    area.area->slotTimeoutReplay();
    QCOMPARE(area.area->viewTime(), 0.0);
    area.show();
    area.area->slotSlider(5000);
    QCOMPARE(area.area->viewTime(), 10.0);
    QCOMPARE(area.find<QSlider>("position")->value(), 0);
}

void TestDialogData::emu()
{
    Area area(true);
    QCOMPARE(area.take(), QString("Tm1 Gm1 Fm1 Lm1 Wm1 Sm1 Mm1"));
    area.area->show();
    QVERIFY(area.find<SegmentClock>("dateClock")->isVisible());
    QVERIFY(!area.find<SegmentClock>("timeClock")->isVisible());
    QVERIFY(!area.find<QSlider>("position")->isVisible());
    QVERIFY(!area.find<TimeEntry>("time")->isVisible());
}

void TestDialogData::mapPane()
{
    Area area;
    area.area->resize(1001, 700);
    area.area->show();
    auto* pSplitter = area.area->findChild<QSplitter*>();
    area.area->slotMapType(0);
    QCOMPARE(pSplitter->sizes()[1], 0);
    area.area->slotMapType(7);
    QCOMPARE(pSplitter->sizes()[1], 0);
    area.area->slotMapType(2);
    QCOMPARE(pSplitter->orientation(), Qt::Vertical);
    QVERIFY(std::abs(pSplitter->sizes()[0] - pSplitter->sizes()[1]) <= 1);
    pSplitter->setSizes({100, 300});
    const QList<int> sizes = pSplitter->sizes();
    area.area->slotMapType(2); // nothing is hidden: the sizes are the user's
    QCOMPARE(pSplitter->sizes(), sizes);
    area.area->slotMapType(1);
    QCOMPARE(pSplitter->orientation(), Qt::Horizontal);
}

void TestDialogData::tabs()
{
    Area area;
    area.show();
    auto* pTabs = area.area->findChild<DataTabBar*>();
    QStringList titles;
    for (int i = 0; i < pTabs->count(); ++i) {
        titles.append(pTabs->tabText(i));
        pTabs->setCurrentIndex(i);
        QCOMPARE(area.area->findChild<QStackedWidget*>()->currentIndex(), i);
    }
    QCOMPARE(titles.join('|'), QString("Data|Graph|Fault Matrix|Limit/Warning|Warning Lamps|Tow Statistic"));
    QCOMPARE(pTabs->countOf(eViewLimits), 120);
    QCOMPARE(pTabs->countOf(eViewTable), 0);
    QVERIFY(pTabs->tabToolTip(eViewWarnings).contains("120"));
    QCOMPARE(pTabs->tabToolTip(eViewStatistic), QString("Tow Statistic")); // should it be hidden
    DataTabBar narrow;
    for (const QString& title : titles)
        narrow.addTab(title);
    narrow.resize(400, 90);
    narrow.show();
    QVERIFY2(narrow.tabRect(eViewStatistic).right() < 400, "all are there");
    narrow.resize(250, 90);
    const QRect place = narrow.tabRect(eViewLimits);
    narrow.setCurrentIndex(eViewLimits);
    QVERIFY2(narrow.tabRect(eViewStatistic).right() < 250 && narrow.tabRect(eViewLimits) == place, "no tab moves");
}

void TestDialogData::focusOfTabs()
{
    Test::DataCycle cycle;
    cycle.load();
    RecordSession record(cycle.container);
    DialogData area(record, DataViewList::create(cycle.session, cycle.card.path()), false);
    area.resize(1200, 700);
    QVERIFY(activate(area));
    auto* pTabs = area.findChild<DataTabBar*>();
    for (int i = eViewStatistic; i >= 0; --i) {
        area.findChild<QSlider*>("position")->setFocus();
        QTest::mouseClick(pTabs, Qt::LeftButton, {}, pTabs->tabRect(i).center());
        const QWidget* pView = area.findChild<QStackedWidget*>()->widget(i);
        QVERIFY2(pView->isVisible() && pView->isAncestorOf(QApplication::focusWidget()), qPrintable(pTabs->tabText(i)));
    }
    pTabs->setFocus();
    QTest::keyClick(pTabs, Qt::Key_Right);
    QTest::keyClick(pTabs, Qt::Key_Right);
    QCOMPARE(pTabs->currentIndex(), 2);
    QVERIFY(pTabs->hasFocus());
}

void TestDialogData::realViews()
{
    Test::DataCycle cycle;
    Test::ProfileBuilder()
        .thresholds("T", {{100, "WARNING", "red"}})
        .device("D")
        .parameter("P", 1, "FLOAT", {{"thresholdId", "T"}})
        .load(cycle.profile);
    cycle.profile.setSelected("P", true);
    for (int second = 10; second < 60; ++second)
        cycle.records().addFloat(1, second, second == 40 ? 120.0F : 50.0F);
    cycle.load();
    RecordSession record(cycle.container);
    DialogData area(record, DataViewList::create(cycle.session, cycle.card.path()), false);
    area.show();
    area.updateRecord();
    const auto tell = [&record] { QCoreApplication::sendPostedEvents(&record); };
    tell();
    auto* pLimits = area.findChild<DialogDataLimit*>();
    QTRY_COMPARE(pLimits->eventCount(), 1);
    Q_EMIT pLimits->signalTime(40.0);
    tell();
    QCOMPARE(area.viewTime(), 40.0);
    auto* pTable = area.findChild<RowTable*>();
    QCOMPARE(pTable->currentIndex().row(), 30);
    pTable->setCurrentIndex(pTable->model()->index(2, 0));
    QCOMPARE(area.viewTime(), 12.0);
    cycle.profile.setSelected("P", false); // other columns, the same view time
    area.updateProfile();
    tell();
    QCOMPARE(pTable->model()->columnCount(), 1);
    QCOMPARE(area.viewTime(), 12.0);
    area.findChild<DataTabBar*>()->setCurrentIndex(eViewStatistic);
    const QSignalSpy report(&area, &DialogData::signalReport);
    QTimer::singleShot(100, [] {
        if (auto* pMenu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            pMenu->actions().back()->trigger();
            pMenu->close();
        }
    });
    QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
    QApplication::sendEvent(area.findChild<DialogDataStatistic*>()->findChild<QTextEdit*>()->viewport(), &menu);
    QCOMPARE(report.size(), 1);
}

QTEST_MAIN(TestDialogData)
#include "TestDialogData.moc"
