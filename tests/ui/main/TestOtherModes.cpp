#include "profile/ui/DialogProfileInfo.h"
#include "sim/DemoCard.h"
#include "support/FileHelpers.h"
#include "ui/data/DialogData.h"
#include "ui/main/Answer.h"
#include "ui/main/DesktopFixture.h"
#include "ui/main/DialogCard.h"
#include "ui/main/WidgetWelcome.h"

#include <QComboBox>
#include <QDir>
#include <QMenuBar>
#include <QTableView>
#include <QToolBar>
#include <QTreeWidget>
#include <QtTest>

using namespace ZARN;

/// The main window as a live display, in other units, with another profile, and when it cannot save.
class TestOtherModes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { mHome.emplace(); }
    void emu();
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
    desktop.profile.setSelected("Oil Temperature", true);
    window.slotProfileChanged();
    RecordEntry entry;
    entry.id = desktop.profile.model().find("Oil Temperature")->identifier();
    entry.payload = {0x42, 0xb4, 0, 0, 0x42, 0xb4, 0, 0}; // 90 in each half
    QVERIFY(desktop.container.recordData().appendLive(entry));
    QTRY_VERIFY(showsFirst(window, "90"));
}

void TestOtherModes::units()
{
    DesktopFixture desktop(home(), {card().toStdString()});
    DialogMain& window = desktop.open();
    started(window);
    window.slotLoadCycle(2, 0);
    const double metres = desktop.container.selectedFlight().maxAltitude;
    auto& data = *window.findChild<DialogData*>();
    data.slotTableTime(1000.0);
    const std::size_t records = desktop.container.recordData().count();
    QVERIFY(QDir().rename(card(), card() + "-pulled"));
    auto* pUnits = window.findChild<QComboBox*>("units");
    pUnits->setCurrentIndex(1);
    Q_EMIT pUnits->activated(1);
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
    auto* pInfo = window.findChild<DialogProfileInfo*>();
    pInfo->setProfileFile(home() + "/chosen.xml", true);
    putFile(home().toStdString() + "/new.xml", "<CanAerospaceProfile name='New'><Variants><Variant name='V'/></Variants></CanAerospaceProfile>");
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
