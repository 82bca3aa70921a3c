#include "profile/ui/DialogProfileInfo.h"
#include "sim/DemoCard.h"
#include "support/FileHelpers.h"
#include "ui/data/DialogData.h"
#include "ui/data/model/DataTableModel.h"
#include "ui/graph/DialogDataGraph.h"
#include "ui/graph/WidgetGraphES.h"
#include "ui/main/Answer.h"
#include "ui/main/DesktopFixture.h"
#include "ui/main/DialogCard.h"
#include "ui/main/MainActions.h"
#include "ui/main/StatusProgress.h"
#include "ui/main/WidgetWelcome.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QMenuBar>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

using namespace ZARN;

/// The main window while it loads, as a live display, in other units, with another profile, and when it cannot save.
class TestOtherModes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { mHome.emplace(); }
    void tellsOnce_data();
    void tellsOnce();
    void loading();
    void unseenFlights();
    void emu();
    void layouts();
    void units();
    void failedSaveAtQuit_data();
    void failedSaveAtQuit();
    void installedProfile();

private:
    QString home() const { return mHome->path(); }
    QString card() const { return mCards.filePath("SD/Card"); }

    QTemporaryDir mCards;
    std::optional<QTemporaryDir> mHome;
};

namespace {

/// Whether a table in sight begins with a text.
bool showsFirst(DialogMain& window, const QString& text)
{
    for (const QTableView* pView : window.findChildren<QTableView*>()) {
        if (pView->isVisible() && pView->model()->index(0, 0).data().toString().startsWith(text))
            return true;
    }
    return false;
}

} // namespace

void TestOtherModes::initTestCase()
{
    std::string error;
    QVERIFY(QDir().mkpath(mCards.filePath("SD")));
    QVERIFY2(DemoCard().write(card().toStdString(), DemoCardOptions{}, error), error.c_str());
}

void TestOtherModes::tellsOnce_data()
{
    using Action = std::function<void(DialogMain&)>;
    QTest::addColumn<Action>("action");
    QTest::newRow("start") << Action(started); // without a record there is nothing to fill
    QTest::newRow("load") << Action([](DialogMain& window) { window.slotLoadCycle(2, -1); });
    QTest::newRow("variant") << Action([](DialogMain& window) { window.slotProfileChanged("916 A"); });
    QTest::newRow("unit") << Action([](DialogMain& window) { window.slotUnitChanged(1); });
}

void TestOtherModes::tellsOnce()
{
    QFETCH(std::function<void(DialogMain&)>, action);
    const bool isStart = QString(QTest::currentDataTag()) == "start";
    DesktopFixture desktop(home(), isStart ? std::vector<std::string>() : std::vector{card().toStdString()});
    DialogMain& window = desktop.open();
    if (!isStart) {
        started(window);
        desktop.profile.setSelected("Oil Temperature", true);
        desktop.project.takeProfileData();
        window.slotLoadCycle(1, -1);
        settled(window);
        QTRY_VERIFY(window.findChild<DataTableModel*>()->rowCount() > 0);
        QCoreApplication::processEvents();
    }
    const auto* pTable = window.findChild<DataTableModel*>();
    const ShownTraces& traces = window.findChild<DialogDataGraph*>()->graph().model().traces();
    QSignalSpy filled(pTable, &DataTableModel::rowsInserted), cleared(pTable, &DataTableModel::rowsRemoved);
    action(window);
    settled(window);
    QTRY_COMPARE(filled.count(), isStart ? 0 : 1);
    QCoreApplication::processEvents();
    QCOMPARE(filled.count(), isStart ? 0 : 1);
    QCOMPARE(cleared.count(), isStart ? 0 : 1);
    QVERIFY(std::ranges::all_of(traces.shown(), [&](int slot) { return traces.at(slot)->samples.empty(); })); // nobody sees it
}

void TestOtherModes::loading()
{
    DesktopFixture desktop(home(), {card().toStdString()});
    DialogMain& window = desktop.open();
    started(window);
    auto* pTree = window.findChild<QTreeWidget*>("treeCycles");
    const auto isChosen = [pTree](const QString& cycle) { return pTree->currentItem() && pTree->currentItem()->text(0).startsWith(cycle); };
    window.slotLoadCycle(1, -1);
    settled(window);
    const std::shared_ptr<RecordData> pRecord = desktop.container.record();
    pTree->setCurrentItem(nullptr);
    window.slotLoadCycle(2, -1);
    window.card().cancel();
    settled(window);
    QVERIFY(desktop.container.record() == pRecord && desktop.container.loadedCycleNumber() == 1U);
    QVERIFY(isChosen("Cycle 1") && isShown<DialogData>(window));
    QSignalSpy changed(&window.card(), &CardController::signalDataChanged);
    window.slotLoadCycle(2, -1);
    window.slotUnitChanged(1);
    window.slotLoadCycle(2, 0);
    settled(window);
    QCOMPARE(desktop.container.selectedFlightNumber(), 1);
    QCOMPARE(changed.count(), 1);
    const FlightPath path = [&desktop] {
        FlightPath whole;
        whole.build(desktop.container.recordData(), desktop.profile.context());
        whole.crop(desktop.container.startTime(), desktop.container.endTime());
        return whole;
    }();
    QCOMPARE(desktop.container.flightPath().front().altitude, path.points().front().altitude); // in the unit that came meanwhile
    auto* pProgress = window.findChild<StatusProgress*>();
    QSignalSpy cancelled(pProgress, &StatusProgress::signalCancelled);
    pProgress->begin();
    QTRY_VERIFY(pProgress->isVisible());
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_Escape);
    QCOMPARE(cancelled.count(), 1);
    pProgress->end();
    window.slotLoadCycle(3, -1);
    window.close();
    desktop.window.reset(); // waits for the load
    QCOMPARE(desktop.container.loadedCycleNumber(), 2U);
}

void TestOtherModes::unseenFlights()
{
    QVERIFY(QDir().mkpath(home() + "/data/profiles/AAA"));
    putFile(home().toStdString() + "/data/profiles/AAA/Profile.xml", "<CanAerospaceProfile name='AAA'/>"); // knows no speed
    DesktopFixture desktop(home(), {card().toStdString()});
    DialogMain& window = desktop.open();
    started(window);
    std::shared_ptr<const CycleCourse> pCourse;
    const auto* pGraph = window.findChild<DialogDataGraph*>();
    connect(pGraph, &DialogDataGraph::signalCourse, this, [&pCourse](const auto& pFound) { pCourse = pFound; });
    window.slotLoadCycle(2, -1);
    QTRY_VERIFY_WITH_TIMEOUT(pCourse && pCourse->flights.size() == 2, 30000);
    window.slotProfileChanged("AAA");
    QTRY_VERIFY_WITH_TIMEOUT(pCourse && pCourse->flights.empty(), 5000);
    QVERIFY(!pGraph->isVisible());
}

void TestOtherModes::emu()
{
    DesktopFixture desktop(home(), {"-emu"});
    DialogMain& window = desktop.open();
    started(window);
    QVERIFY(window.isVisible());
    QVERIFY(window.menuBar()->actions().isEmpty());
    QVERIFY(!isShown<QToolBar>(window));
    QVERIFY(!isShown<DialogCard>(window));
    QVERIFY(isShown<DialogData>(window) && !isShown<WidgetWelcome>(window));
    QVERIFY(desktop.profile.isSelected("Engine Speed")); // there is nothing here to choose them with
    for (const ProfileDevice& device : desktop.profile.data()) {
        for (const ProfileParameter& parameter : device.parameters)
            desktop.profile.setSelected(parameter.name, parameter.name == "Oil Temperature");
    }
    window.slotProfileChanged();
    RecordEntry entry;
    entry.id = desktop.profile.model().find("Oil Temperature")->identifier();
    entry.payload = {0x42, 0xb4, 0, 0, 0x42, 0xb4, 0, 0}; // 90 in each half
    QVERIFY(desktop.container.recordData().appendLive(entry));
    QTRY_VERIFY(showsFirst(window, "90"));
}

void TestOtherModes::layouts()
{
    {
        DesktopFixture desktop(home(), {card().toStdString()});
        DialogMain& window = desktop.open();
        started(window);
        auto* pLayouts = window.findChild<QComboBox*>("layouts");
        auto& graph = *window.findChild<DialogDataGraph*>();
        const auto entry = [&window](const QString& text) {
            for (QAction* pAction : window.findChild<QToolButton*>("layoutMenu")->menu()->actions())
                if (pAction->text() == text)
                    return pAction;
            return static_cast<QAction*>(nullptr);
        };
        QCOMPARE(pLayouts->currentText(), QString("Engine")); // at the very first start
        QVERIFY(desktop.profile.isSelected("Engine Speed") && !window.isProjectModified());
        Q_EMIT pLayouts->activated(pLayouts->findText("EGT"));
        QVERIFY(desktop.profile.isSelected("EGT Spread") && !desktop.profile.isSelected("Engine Speed") && window.isProjectModified());
        graph.graphData().displayMode = eSingleGraph;
        Q_EMIT graph.signalLayout();
        QCOMPARE(pLayouts->currentText(), QString("EGT (changed)"));
        QVERIFY(!entry("Save")->isEnabled() && !entry("Remove")->isEnabled()); // it is the profile's
        Answer name([](QWidget* pModal) {
            pModal->findChild<QLineEdit*>()->setText(" Mine ");
            static_cast<QDialog*>(pModal)->accept();
        });
        entry("Save As...")->trigger();
        QTRY_COMPARE(pLayouts->currentText(), QString("Mine"));
        Q_EMIT pLayouts->activated(pLayouts->findText("Tow"));
        Q_EMIT pLayouts->activated(pLayouts->findText("Mine"));
        QVERIFY(graph.graphData().displayMode == eSingleGraph && desktop.profile.isSelected("EGT Spread"));
        desktop.project.saveProject(desktop.folders.dataPath().c_str() + QString("/CurrentProject.xml"));
        putFile(desktop.folders.dataPath() + "/Layouts.xml", // as another profile's
                "<ZarnLayouts><Layout name='Mine'><Parameter name='EGT Spread' height='2' color='#ff00ff'/><Parameter "
                "name='Vane'/></Layout></ZarnLayouts>");
    }
    DesktopFixture desktop(home(), {card().toStdString()});
    DialogMain& window = desktop.open();
    started(window);
    QCOMPARE(window.findChild<QComboBox*>("layouts")->currentText(), QString("Mine (changed)")); // the ticks are the project's
    QCOMPARE(window.findChild<QLabel*>("missing")->text(), QString("Not in this profile: Vane"));
    Q_EMIT window.findChild<QComboBox*>("layouts")->activated(window.findChild<QComboBox*>("layouts")->currentIndex());
    window.slotLoadCycle(2, -1);
    settled(window);
    QVERIFY(window.findChild<DialogData*>()->graphSpan().has_value()); // fills it
    const GraphParameter& trace = *window.findChild<DialogDataGraph*>()->graph().model().traces().at(0);
    QVERIFY(trace.active && trace.name == "EGT Spread" && trace.height == 2.0 && trace.drawnColour == QColor("#ff00ff"));
    QCOMPARE(window.findChild<QComboBox*>("layouts")->currentText(), QString("Mine"));
}

void TestOtherModes::units()
{
    DesktopFixture desktop(home(), {card().toStdString()});
    DialogMain& window = desktop.open();
    started(window);
    window.slotLoadCycle(2, 0);
    settled(window);
    const double metres = desktop.container.selectedFlight().maxAltitude;
    auto& data = *window.findChild<DialogData*>();
    data.slotTableTime(1000.0);
    const std::size_t records = desktop.container.recordData().count();
    QVERIFY(QDir().rename(card(), card() + "-pulled"));
    auto* pUnits = window.findChild<QComboBox*>("units");
    pUnits->setCurrentIndex(1);
    Q_EMIT pUnits->activated(1);
    settled(window);
    QVERIFY(QDir().rename(card() + "-pulled", card()));
    QCOMPARE(desktop.property.getInt("Unit", 0), 1);
    const RecordFlight& flight = desktop.container.loadedCycle()->flights.at(0);
    QCOMPARE(flight.maxAltitude, metres); // flights are metric in any unit
    QCOMPARE(desktop.container.recordData().count(), records);
    QCOMPARE(desktop.container.selectedFlight().startTime, flight.startTime);
    QCOMPARE(data.viewTime(), 1000.0);
    QList<QTreeWidgetItem*> shown;
    for (const QTreeWidget* pTree : window.findChild<DialogCard*>()->findChildren<QTreeWidget*>())
        shown += pTree->findItems("Flight 1", Qt::MatchStartsWith | Qt::MatchRecursive);
    QVERIFY(!shown.isEmpty());
    QVERIFY2(shown.front()->text(0).contains(CardContainer::time(flight.startTime).left(8)), qPrintable(shown.front()->text(0)));
    DesktopFixture next(home());
    next.open();
    QCOMPARE(next.window->findChild<QComboBox*>("units")->currentText(), QString("Imperial"));
}

void TestOtherModes::failedSaveAtQuit_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("quits");
    QTest::newRow("cancel") << "Cancel" << false;
    QTest::newRow("quit") << "Quit without saving" << true;
}

void TestOtherModes::failedSaveAtQuit()
{
    QFETCH(QString, button);
    QFETCH(bool, quits);
    DesktopFixture desktop(home());
    DialogMain& window = desktop.open();
    started(window);
    window.slotCanChanged();
    QVERIFY(QDir().mkpath(home() + "/data/CurrentProject.xml/in the way"));
    Answer answer(Answer::press(button));
    desktop.kernel.restart();
    window.close();
    QVERIFY(answer.text.contains("could not be saved"));
    QCOMPARE(window.isVisible(), !quits);
    desktop.kernel.finishRestart();
    QCOMPARE(!desktop.restarted.isEmpty(), quits); // a quit that was refused starts no second program
}

void TestOtherModes::installedProfile()
{
    const QString file = home() + "/data/profiles/AAA/Profile.xml"; // sorts before the other
    QVERIFY(QDir().mkpath(home() + "/data/profiles/AAA"));
    putFile(file.toStdString(), "<CanAerospaceProfile name='AAA'/>");
    DesktopFixture desktop(home());
    DialogMain& window = desktop.open();
    started(window);
    QCOMPARE(desktop.profile.currentVariant(), std::string("915 A")); // of the folder "915", which no setting names
    window.action(eActionProfile)->trigger();
    auto* pInfo = window.findChild<DialogProfileInfo*>();
    pInfo->setProfileFile(home() + "/chosen.xml", true);
    putFile(home().toStdString() + "/new.xml",
            "<CanAerospaceProfile name='New'><Variants><Variant name='V'/></Variants></CanAerospaceProfile>");
    std::optional<Answer> told;
    Answer choose([&](QWidget* pModal) {
        told.emplace(Answer::close);
        Answer::choose(pModal, home() + "/new.xml");
    });
    pInfo->slotLink("Install");
    QCOMPARE(told->text, QString("New profile installed !"));
    QCOMPARE(desktop.profile.model().name, std::string("New"));
    QCOMPARE(desktop.property.getString("Profile", ""), std::string("V"));
    QCOMPARE(window.findChild<QComboBox*>("profiles")->currentText(), QString("V"));
    putFile(home().toStdString() + "/data/profiles/new/Profile.xml", "damaged");
    window.slotProfileChanged("AAA");
    QCOMPARE(desktop.profile.model().name, std::string("AAA"));
    Answer damaged(Answer::close);
    window.slotProfileChanged("V");
    QTRY_VERIFY(damaged.text.contains("no well-formed XML"));
    QCOMPARE(desktop.property.getString("Profile", ""), std::string("AAA"));
    QCOMPARE(window.findChild<QComboBox*>("profiles")->currentText(), QString("AAA"));
}

QTEST_MAIN(TestOtherModes)
#include "TestOtherModes.moc"
