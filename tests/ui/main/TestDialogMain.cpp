#include "card/record/RecordFile.h"
#include "sim/DemoCard.h"
#include "support/FileHelpers.h"
#include "ui/data/DataTabBar.h"
#include "ui/data/DialogData.h"
#include "ui/data/DialogDataLimit.h"
#include "ui/data/DialogDataStatistic.h"
#include "ui/graph/DialogDataGraph.h"
#include "ui/main/Answer.h"
#include "ui/main/CardController.h"
#include "ui/main/DesktopFixture.h"
#include "ui/main/DialogCard.h"
#include "ui/main/DialogPreferences.h"
#include "ui/main/MainActions.h"
#include "ui/main/StyleWatch.h"
#include "ui/main/WidgetWelcome.h"
#include "ui/map/DialogDataMap.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>
#include <QWizard>
#include <QtTest>

using namespace ZARN;

/// The main window as its user meets it: cards, projects, profiles, units, and what comes back at the next start.
class TestDialogMain : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void firstSight();
    void openCard();
    void refusedFolder();
    void cardProblems();
    void emptyCycle();
    void copyKey();
    void drop();
    void demoCard();
    void restart();
    void pulledCard();
    void damagedStore();
    void quitAsksForName();
    void newProjectAsks_data();
    void newProjectAsks();
    void mapTiles();
    void styleFile();
    void exportCsv();
    void failedExport_data();
    void failedExport();
    void report_data();
    void report();

private:
    QString home() const { return mHome->path(); }
    QString card() const { return mCards.filePath("SD/Card"); }

    QTemporaryDir mCards;
    std::optional<QTemporaryDir> mHome;
};

namespace {

/// Goes through an export's wizard with the options that it offers.
void finish(
    QWidget* pModal, const QString& folder, const QString& name, const std::function<void()>& beforeTheEnd = [] {})
{
    auto* pWizard = qobject_cast<QWizard*>(pModal);
    QVERIFY(pWizard);
    pWizard->findChild<QLineEdit*>("directory")->setText(folder);
    pWizard->findChild<QLineEdit*>("fileName")->setText(name);
    while (pWizard->nextId() != -1)
        QTest::mouseClick(pWizard->button(QWizard::NextButton), Qt::LeftButton);
    beforeTheEnd();
    QTest::mouseClick(pWizard->button(QWizard::FinishButton), Qt::LeftButton);
}

} // namespace

void TestDialogMain::initTestCase()
{
    std::string error;
    QVERIFY(QDir().mkpath(mCards.filePath("SD")));
    QVERIFY2(DemoCard().write(card().toStdString(), DemoCardOptions{}, error), error.c_str());
}

void TestDialogMain::init()
{
    mHome.emplace();
}

void TestDialogMain::firstSight()
{
    DesktopFixture desktop(home());
    DialogMain& window = desktop.open();
    started(window);
    QVERIFY(window.isVisible());
    QVERIFY(isShown<WidgetWelcome>(window));
    QCOMPARE(window.size(), QSize(1000, 800));
    QCOMPARE(window.windowTitle(), QString("ZARN")); // nothing was ever opened
    QVERIFY(desktop.container.path().isEmpty() && !window.action(eActionExportKml)->isEnabled());
    QStringList menus;
    for (const QAction* pMenu : window.menuBar()->actions()) {
        menus.append(pMenu->text());
        for (const QAction* pEntry : pMenu->menu()->actions())
            menus.append(pEntry->isSeparator() ? "-" : pEntry->data().toString());
    }
    QCOMPARE(menus, QStringList({"&File", "2", "-", "6", "&Extras", "15", "17", "18", "25", "26", "27", "28", "&Help", "15", "8", "9"}));
    const auto* pProfiles = window.findChild<QComboBox*>("profiles");
    QVERIFY(pProfiles->minimumWidth() == 200 && pProfiles->count() >= 3);
    QCOMPARE(pProfiles->currentText(), QString("915 A")); // the first of "915"
    QVERIFY(window.findChild<QComboBox*>("units")->geometry().right() <= window.width());
}

void TestDialogMain::openCard()
{
    DesktopFixture desktop(home());
    DialogMain& window = desktop.open();
    started(window);
    window.openFolder(home());
    window.openFolder(card() + "/"); // in place of the other one
    settled(window);
    window.openFolder(card());
    settled(window);
    QCOMPARE(desktop.property.getString("RecentFolder1", ""), std::string());
    QCOMPARE(window.windowTitle(), QString("ZARN SD/Card"));
    QCOMPARE(desktop.property.getString("LastPath", ""), card().toStdString());
    QVERIFY(fileContent(home().toStdString() + "/data/ZARN.ini").find("SD/Card") != std::string::npos);
    auto* pTree = window.findChild<QTreeWidget*>("treeCycles");
    QCOMPARE(desktop.container.recordCycles().size(), std::size_t(3));
    // The second cycle is the one with the two tows; the choice of the browser loads it.
    QTreeWidgetItem* pCycle = nullptr;
    for (QTreeWidgetItemIterator it(pTree); *it; ++it) {
        if ((*it)->text(0).startsWith("Cycle 2"))
            pCycle = *it;
    }
    QVERIFY(pCycle);
    pTree->setCurrentItem(pCycle);
    QTRY_COMPARE_WITH_TIMEOUT(pCycle->childCount(), 2, 20000);
    const auto* pData = window.findChild<DialogData*>();
    QVERIFY(pData->isVisible());
    QCOMPARE(pData->viewTime(), desktop.container.startTime());
    QTRY_VERIFY(pData->findChild<DialogDataLimit*>()->eventCount() > 0);
    pTree->setCurrentItem(pCycle->child(1));
    QTRY_COMPARE_WITH_TIMEOUT(pData->viewTime(), desktop.container.loadedCycle()->flights[1].startTime, 20000);
}

void TestDialogMain::refusedFolder()
{
    {
        DesktopFixture desktop(home(), {home().toStdString() + "/gone"});
        desktop.property.setString("LastPath", "/SD/other");
        DialogMain& window = desktop.open();
        const Answer answer(Answer::close);
        started(window);
        QCOMPARE(window.windowTitle(), QString("ZARN")); // not the card of the last run
    }
    DesktopFixture desktop(home(), {card().toStdString()});
    DialogMain& window = desktop.open();
    started(window);
    window.slotLoadCycle(2, -1);
    settled(window);
    auto* pTree = window.findChild<QTreeWidget*>("treeCycles");
    pTree->setCurrentItem(pTree->topLevelItem(0)->child(0));
    for (const bool chosen : {false, true}) {
        Answer answer(Answer::close);
        if (chosen) {
            QTRY_COMPARE(desktop.container.loadedCycleNumber(), 1U); // chosen above
            settled(window);
            window.slotLoadCycle(2, -1);
            settled(window);
            window.openFolder(home() + "/<b>gone</b>");
        } else
            window.action(eActionOpenFolder)->trigger();
        settled(window);
        QCOMPARE(answer.title, chosen ? QString("ZARN Warning") : QString("Open SD Card"));
        QCOMPARE(answer.text, chosen ? "The folder " + home() + "/<b>gone</b> is not there, or cannot be read." : QString());
        QVERIFY(isShown<DialogData>(window) && !pTree->selectedItems().isEmpty());
        if (chosen) // not the choice that the folder cut short
            QCOMPARE(pTree->selectedItems().front()->data(0, DialogCard::eCycleRole).toUInt(), desktop.container.loadedCycleNumber().value());
        QCOMPARE(window.windowTitle(), QString("ZARN SD/Card"));
        QVERIFY(window.action(eActionExportCsv)->isEnabled());
    }
    QVERIFY(QDir().mkpath(home() + "/empty"));
    Answer answer(Answer::close);
    window.openFolder(home() + "/empty");
    settled(window);
    QCOMPARE(answer.text, "The folder " + home() + "/empty holds no record file (*.CAN, *.can, *.xcb, *.log).");
    QVERIFY(isShown<WidgetWelcome>(window));
    for (const int id : {eActionExportKml, eActionExportCsv, eActionExportGpx, eActionReport})
        QVERIFY(!window.action(id)->isEnabled()); // what is loaded is of another card
}

void TestDialogMain::cardProblems()
{
    const QString folder = home() + "/damaged";
    QVERIFY(QDir().mkpath(folder));
    for (const char* name : {"LOG00001.CAN", "LOG00002.CAN"})
        QVERIFY(QFile::copy(card() + "/" + name, folder + "/" + name));
    putFile(folder.toStdString() + "/LOG00003.CAN", "half a header");
    putFile(folder.toStdString() + "/\xff.CAN",
            fileContent(card().toStdString() + "/LOG00003.CAN")); // a name that is no text is read all the same
    const auto told = [](DialogMain& window, const QString& file) {
        const auto* pLabel = window.findChild<QLabel*>("cardProblems");
        return pLabel->isVisible() && pLabel->text().count(file) == 1;
    };
    {
        DesktopFixture desktop(home());
        DialogMain& window = desktop.open();
        started(window);
        window.openFolder(folder); // no box stands in the way
        settled(window);
        QCOMPARE(window.windowTitle(), "ZARN " + folder.section('/', -2)); // the others are there
        QVERIFY(told(window, "LOG00003.CAN") && !told(window, "LOG00001.CAN"));
        QFile::remove(folder + "/LOG00001.CAN");
        window.slotLoadCycle(desktop.container.recordCycles().begin()->first, -1);
        settled(window);
        QVERIFY(told(window, "LOG00003.CAN") && told(window, "LOG00001.CAN"));
    }
    DesktopFixture next(home());
    started(next.open());
    QVERIFY(told(*next.window, "LOG00003.CAN"));
}

void TestDialogMain::emptyCycle()
{
    QVERIFY(QDir().mkpath(home() + "/card"));
    putFile(home().toStdString() + "/card/1.CAN", fileContent(card().toStdString() + "/LOG00001.CAN").substr(0, RecordFile::kHeaderSize));
    DesktopFixture desktop(home(), {home().toStdString() + "/card/"});
    DialogMain& window = desktop.open();
    started(window);
    window.slotLoadCycle(desktop.container.recordCycles().begin()->first, -1);
    settled(window);
    QVERIFY(isShown<WidgetWelcome>(window));
    const auto* pHeading = window.findChild<WidgetWelcome*>()->findChild<QLabel*>("heading");
    QCOMPARE(pHeading->text(), QString("No records"));
    QVERIFY(QFile::remove(home() + "/card/1.CAN"));
    window.slotLoadCycle(desktop.container.recordCycles().begin()->first, -1);
    settled(window);
    QCOMPARE(pHeading->text(), QString("Not read")); // nothing tells that it is empty
    QVERIFY(!window.action(eActionExportCsv)->isEnabled());
}

void TestDialogMain::copyKey()
{
    DesktopFixture desktop(home(), {card().toStdString()});
    DialogMain& window = desktop.open();
    started(window);
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QVERIFY(!qobject_cast<QLineEdit*>(QApplication::focusWidget()));
    const auto opens = [&window](QWidget* pFocus) {
        window.activateWindow(); // again, after a dialog was closed
        if (!QTest::qWaitForWindowActive(&window))
            return false;
        pFocus->setFocus();
        Answer answer(Answer::close);
        QTest::keyClick(pFocus->window()->windowHandle(), Qt::Key_C, Qt::ControlModifier);
        return answer.title == "Open SD Card";
    };
    auto* pSearch = window.findChild<QLineEdit*>("search");
    QVERIFY(opens(window.findChild<QTreeWidget*>("treeCycles")) && opens(pSearch));
    pSearch->setText("Oil");
    pSearch->selectAll();
    QVERIFY(!opens(pSearch));
    QCOMPARE(QApplication::clipboard()->text(), QString("Oil"));
    window.slotLoadCycle(2, 0);
    settled(window);
    window.findChild<DataTabBar*>()->setCurrentIndex(eViewStatistic);
    QVERIFY(!opens(window.findChild<DialogDataStatistic*>()));
    QVERIFY(QApplication::clipboard()->text().contains("Maximum Alt\t"));
}

void TestDialogMain::drop()
{
    DesktopFixture desktop(home());
    DialogMain& window = desktop.open();
    started(window);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(card() + "/LOG00001.CAN")});
    QDragEnterEvent enter(QPoint(500, 400), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPoint(500, 400), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &drop);
    QTRY_COMPARE(window.windowTitle(), QString("ZARN SD/Card"));
    QMimeData text;
    text.setText("no folder");
    QDragEnterEvent other(QPoint(500, 400), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    other.ignore();
    QApplication::sendEvent(&window, &other);
    QVERIFY(!other.isAccepted());
}

void TestDialogMain::demoCard()
{
    DesktopFixture desktop(home());
    DialogMain& window = desktop.open();
    started(window);
    QTest::mouseClick(window.findChild<QPushButton*>("openDemo"), Qt::LeftButton);
    settled(window);
    QCOMPARE(window.windowTitle(), QString("ZARN data/DemoCard"));
    QCOMPARE(desktop.container.recordCycles().size(), std::size_t(3));
    QVERIFY(!QDir(home() + "/data/DemoCard.new").exists());
}

void TestDialogMain::restart()
{
    {
        DesktopFixture desktop(home());
        DialogMain& window = desktop.open();
        started(window);
        window.openFolder(card());
        settled(window);
        window.resize(1200, 700);
        desktop.profile.setSelected("Engine Speed", true);
        window.slotCanChanged();
        window.action(eActionQuit)->trigger();
        QVERIFY(!window.isVisible() && !window.isProjectModified());
    }
    DesktopFixture desktop(home());
    DialogMain& window = desktop.open();
    started(window);
    QCOMPARE(window.windowTitle(), QString("ZARN SD/Card"));
    QCOMPARE(desktop.container.recordCycles().size(), std::size_t(3));
    QCOMPARE(window.size(), QSize(1200, 700));
    QVERIFY(desktop.profile.isSelected("Engine Speed"));
    QVERIFY(!window.isProjectModified());
    DesktopFixture defaults(home());
    started(defaults.open(true));
    QVERIFY(defaults.container.recordCycles().empty());
    QVERIFY(!defaults.profile.isSelected("Engine Speed"));
}

void TestDialogMain::pulledCard()
{
    DesktopFixture desktop(home());
    desktop.property.setString("LastPath", (home() + "/gone").toStdString());
    DialogMain& window = desktop.open();
    started(window); // no question stands in the way
    QVERIFY(isShown<WidgetWelcome>(window));
    QVERIFY(window.card().problem().contains(home() + "/gone"));
}

void TestDialogMain::damagedStore()
{
    QVERIFY(QDir().mkpath(home() + "/data/profiles/broken"));
    const std::string data = home().toStdString() + "/data";
    putFile(data + "/ZARN.ini", "<ZARN><Property id=\"Profile\" value=\"" + data +
                                    "/profiles/broken/Profile.xml\"/>"
                                    "<Property id=\"WindowGeometry\" value=\"AAAA\"/><Property id=\"WindowSplitter\" value=\"?\"/>"
                                    "<Property id=\"Unit\" value=\"77\"/><Property id=\"FontSize\" value=\"-3\"/></ZARN>");
    putFile(data + "/CurrentProject.xml", "<ZarnProject><Para");
    putFile(data + "/profiles/broken/Profile.xml", "<CanAerospaceProfile><Device");
    DesktopFixture desktop(home());
    DialogMain& window = desktop.open();
    Answer profile(Answer::close);
    started(window);
    QVERIFY(!desktop.profile.data().empty());
    QCOMPARE(window.size(), QSize(1000, 800));
    QTRY_VERIFY(profile.text.contains("/profiles/broken/Profile.xml\" of the settings is missing or damaged"));
    Answer project(Answer::close);
    window.slotCanChanged();
    window.close();
    QVERIFY(project.text.contains("CurrentProject.xml.damaged-1"));
    QCOMPARE(fileContent(data + "/CurrentProject.xml.damaged-1"), std::string("<ZarnProject><Para"));
    QVERIFY(fileContent(data + "/ZARN.ini").find("broken") != std::string::npos); // the user's choice stays
}

void TestDialogMain::quitAsksForName()
{
    DesktopFixture desktop(home());
    DialogMain& window = desktop.open();
    started(window);
    window.action(eActionNewProject)->trigger();
    window.slotCanChanged();
    Answer cancel(Answer::close);
    window.action(eActionQuit)->trigger();
    QCOMPARE(cancel.title, QString("Save ZARN Project"));
    QVERIFY(window.isVisible()); // the changes are still only here
    Answer save([this](QWidget* pModal) { Answer::choose(pModal, home() + "/mine"); });
    window.action(eActionQuit)->trigger();
    QVERIFY(!window.isVisible());
    QVERIFY(QFile::exists(home() + "/mine.xml"));
    QCOMPARE(desktop.property.getString("LastProjectPath", ""), home().toStdString() + "/mine.xml");
}

void TestDialogMain::newProjectAsks_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("cleared");
    QTest::addColumn<bool>("saved");
    QTest::newRow("yes") << "Yes" << true << true;
    QTest::newRow("no") << "No" << true << false;
    QTest::newRow("cancel") << "Cancel" << false << false;
}

void TestDialogMain::newProjectAsks()
{
    QFETCH(QString, button);
    QFETCH(bool, cleared);
    QFETCH(bool, saved);
    DesktopFixture desktop(home());
    DialogMain& window = desktop.open();
    started(window);
    desktop.profile.setSelected("Oil Temperature", true);
    window.slotCanChanged();
    Answer answer(Answer::press(button));
    window.action(eActionNewProject)->trigger();
    QCOMPARE(answer.title, QString("ZARN Warning"));
    QCOMPARE(answer.text, QString("Current Project not saved !\nSave it now ?"));
    QCOMPARE(desktop.profile.isSelected("Oil Temperature"), !cleared);
    QCOMPARE(window.isProjectModified(), !cleared);
    QCOMPARE(QFile::exists(home() + "/data/CurrentProject.xml"), saved);
}

void TestDialogMain::mapTiles()
{
    DesktopFixture desktop(home(), {card().toStdString()});
    desktop.property.setString("TileServer", "http://127.0.0.1:9");
    DialogMain& window = desktop.open();
    started(window);
    window.slotLoadCycle(2, -1);
    settled(window);
    WidgetMap* pMap = window.findChild<DialogDataMap*>()->mapWidget();
    QVERIFY(pMap && !pMap->map().areTilesAllowed());
    const auto* pQuestion = window.findChild<QWidget*>("consentBar");
    QVERIFY(pQuestion->isVisible());
    window.action(eActionPreferences)->trigger();
    auto* pTiles = window.findChild<DialogPreferences*>()->findChild<QCheckBox*>("tiles");
    pTiles->click();
    QVERIFY(pMap->map().areTilesAllowed() && !pQuestion->isVisible());
    pTiles->click();
    QVERIFY(!pMap->map().areTilesAllowed() && !pQuestion->isVisible());
}

void TestDialogMain::styleFile()
{
    const std::string file = home().toStdString() + "/mine.css";
    putFile(file, "QLabel { color: red; }");
    DesktopFixture desktop(home(), {"-s", file});
    started(desktop.open());
    desktop.property.setInt("FontSize", 17);
    auto* pLook = desktop.window->findChild<StyleWatch*>()->findChild<QTimer*>();
    pLook->setInterval(10);
    QVERIFY(QSignalSpy(pLook, &QTimer::timeout).wait());
    QVERIFY(!qApp->styleSheet().contains("red")); // the start applies it, not the watch
    putFile(file, "QLabel { color: blue; }");
    QTRY_COMPARE_WITH_TIMEOUT(qApp->styleSheet(), QString("QLabel { color: blue; }\nQWidget {font-size: 17px;}"), 2000);
    QVERIFY(desktop.console.text.find("Slot Load Style <" + file + ">\n") != std::string::npos);
    qApp->setStyleSheet({});
}

void TestDialogMain::exportCsv()
{
    DesktopFixture desktop(home(), {card().toStdString()});
    DialogMain& window = desktop.open();
    started(window);
    window.slotLoadCycle(3, -1);
    settled(window);
    QString proposed;
    Answer save([&](QWidget* pModal) {
        proposed = pModal->findChild<QLineEdit*>("fileName")->text();
        finish(pModal, home(), "out.csv");
    });
    window.action(eActionExportCsv)->trigger();
    QCOMPARE(save.title, QString("CSV Export"));
    QCOMPARE(proposed, QString("Card cycle 3.csv"));
    QTRY_VERIFY(QFileInfo(home() + "/out.csv").size() > 1000);
    QCOMPARE(desktop.property.getString("CsvExportDir", ""), home().toStdString());
    // The records of a card are nothing that the next one has.
    QVERIFY(QDir().mkpath(home() + "/next") && QFile::copy(card() + "/LOG00001.CAN", home() + "/next/LOG00001.CAN"));
    window.openFolder(home() + "/next");
    settled(window);
    for (const int id : {eActionExportKml, eActionExportCsv, eActionExportGpx, eActionReport}) {
        Answer told(Answer::close);
        window.action(id)->setEnabled(true);
        window.action(id)->trigger();
        QCOMPARE(told.text, QString("No data of this card is loaded."));
    }
}

void TestDialogMain::failedExport_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("kml") << int(eActionExportKml) << "ZARN Warning"
                         << "Exporting KML file failed !";
    QTest::newRow("csv") << int(eActionExportCsv) << "ZARN Viewer Warning"
                         << "Exporting CSV file failed !";
}

void TestDialogMain::failedExport()
{
    QFETCH(int, id);
    DesktopFixture desktop(home(), {card().toStdString()});
    DialogMain& window = desktop.open();
    started(window);
    window.slotLoadCycle(3, -1);
    settled(window);
    QVERIFY(QDir().mkpath(home() + "/sub"));
    std::optional<Answer> told;
    Answer choose([&](QWidget* pModal) {
        // The folder is gone between the choice and the writing.
        finish(pModal, home() + "/sub", "out", [this] { QDir(home() + "/sub").removeRecursively(); });
        told.emplace(Answer::close);
    });
    window.action(id)->trigger();
    QTRY_VERIFY(told && !told->title.isEmpty());
    QTEST(told->title, "title");
    QTEST(told->text, "text");
}

void TestDialogMain::report_data()
{
    QTest::addColumn<bool>("fromGraph"); // or from the tow statistic
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("flight"); // 0: all of them
    QTest::addColumn<QByteArray>("written"); // with that it begins, or holds it; without, it cannot be written
    QTest::newRow("graph") << true << QString("report.pdf") << 1 << QByteArray("%PDF-");
    QTest::newRow("other flight as HTML") << false << QString("report.html") << 2 << QByteArray(", power cycle 2, flight 2, ");
    QTest::newRow("all flights") << false << QString("all.htm") << 0 << QByteArray(", power cycle 2, profile ");
    QTest::newRow("unwritable") << true << QString("/proc/report.pdf") << 1 << QByteArray(); // where nobody can make a file
}

void TestDialogMain::report()
{
    QFETCH(bool, fromGraph);
    QFETCH(QString, file);
    QFETCH(int, flight);
    QFETCH(QByteArray, written);
    DesktopFixture desktop(home(), {card().toStdString()});
    DialogMain& window = desktop.open();
    started(window);
    window.slotLoadCycle(2, 0);
    settled(window);
    const QString path = QDir(home()).filePath(file);
    std::optional<Answer> told;
    Answer choose([&](QWidget* pModal) {
        auto* pPart = pModal->findChild<QComboBox*>("part");
        QCOMPARE(pPart->currentIndex(), 1); // the flight that is selected
        pPart->setCurrentIndex(flight);
        Answer::choose(pModal, path);
        if (written.isEmpty())
            told.emplace(Answer::close);
    });
    if (fromGraph)
        Q_EMIT window.findChild<DialogDataGraph*>()->signalReport();
    else
        Q_EMIT window.findChild<DialogDataStatistic*>()->signalReport();
    QCOMPARE(choose.title, QString("Save Flight Report"));
    if (!written.isEmpty()) {
        QTRY_VERIFY(QFile::exists(path));
        const std::string content = fileContent(path.toStdString());
        QVERIFY(content.size() > 10000);
        QVERIFY(content.find(written.toStdString()) != std::string::npos);
        QCOMPARE(desktop.property.getString("ReportDir", ""), home().toStdString());
    } else {
        QTRY_COMPARE(told->title, QString("ZARN Warning"));
        QCOMPARE(told->text, QString("Writing the flight report failed !"));
        QVERIFY(!QFile::exists(path));
    }
}

QTEST_MAIN(TestDialogMain)
#include "TestDialogMain.moc"
