#include "app/Settings.h"
#include "project/RecordSession.h"
#include "sim/DemoCard.h"
#include "ui/data/DialogData.h"
#include "ui/graph/WidgetGraphES.h"
#include "ui/logbook/DialogLogbook.h"
#include "ui/logbook/LogbookEngines.h"
#include "ui/logbook/LogbookFlights.h"
#include "ui/logbook/LogbookNotes.h"
#include "ui/main/Answer.h"
#include "ui/main/DesktopFixture.h"
#include "ui/main/LogbookBar.h"
#include "ui/main/MainActions.h"
#include "ui/overview/DialogOverview.h"
#include "ui/overview/WidgetCycleCard.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>
#include <QtTest>

using namespace ZARN;

/// The logbook from the question about it to a flight that is opened out of it, and the notes beside it.
class TestLogbookWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void logbook();

private:
    static void badStores(DialogMain& window, DialogLogbook& logbook, const QString& store, const QString& card);
};

void TestLogbookWindow::logbook()
{
    const QTemporaryDir home;
    const QString card = home.filePath("SD/Card"), store = home.filePath("data/logbook.sqlite");
    std::string error;
    QVERIFY(QDir().mkpath(home.filePath("SD")) && QDir().mkpath(home.filePath("archive")));
    QVERIFY2(DemoCard().write(card.toStdString(), DemoCardOptions{}, error), error.c_str());
    DesktopFixture desktop(home.path(), {card.toStdString()});
    Settings::kArchive.set(desktop.property, true);
    Settings::kArchiveDir.set(desktop.property, home.filePath("archive"));
    DialogMain& window = desktop.open();
    started(window);
    settled(window);

    // Asked once, and nothing is kept before the answer.
    auto* pBar = window.findChild<LogbookBar*>();
    QTRY_VERIFY(pBar->isVisible() && !QFile::exists(store));
    pBar->findChild<QPushButton*>()->click();
    QVERIFY(!pBar->isVisible());
    window.action(eActionLogbook)->trigger();
    DialogLogbook* pLogbook = nullptr;
    for (QWidget* pWidget : QApplication::topLevelWidgets())
        pLogbook = qobject_cast<DialogLogbook*>(pWidget) ? qobject_cast<DialogLogbook*>(pWidget) : pLogbook;
    QVERIFY(pLogbook && pLogbook->isVisible());
    const auto* pExport = pLogbook->findChild<QPushButton*>("exportFlights");
    QVERIFY(!pExport->isEnabled()); // there is nothing yet
    auto* pTable = pLogbook->findChild<QTableView*>("flights");
    const QAbstractItemModelTester tester(pTable->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    const auto text = [pTable](int row, int column) { return pTable->model()->index(row, column).data().toString(); };
    QTRY_COMPARE_WITH_TIMEOUT(pTable->model()->rowCount(), 2, 60000);
    QTRY_COMPARE(text(0, LogbookModel::eCard), QString("Card, cycle 2, flight 2"));
    QVERIFY(pExport->isEnabled());

    // A flight is opened where its card is, and out of the archive when that is gone.
    QTRY_COMPARE_WITH_TIMEOUT(QDir(home.filePath("archive/DEMO-000001")).entryList({QString(64, '?')}, QDir::Dirs).size(), 3, 30000);
    Q_EMIT pTable->activated(pTable->model()->index(1, 0));
    QTRY_COMPARE_WITH_TIMEOUT(desktop.container.selectedFlightNumber(), 1, 30000);
    settled(window);
    QVERIFY(QDir().rename(card, home.filePath("SD/Pulled")));
    Q_EMIT pTable->activated(pTable->model()->index(0, 0));
    QTRY_VERIFY_WITH_TIMEOUT(desktop.container.path().startsWith(home.filePath("archive")) && desktop.container.selectedFlightNumber() == 2, 30000);
    settled(window);

    // A note is at the view time of whatever copy of the recording is open.
    auto* pData = window.findChild<DialogData*>();
    QTRY_VERIFY_WITH_TIMEOUT(window.action(eActionNote)->isEnabled(), 30000);
    pData->moveFrom(*pTable, 3000.25);
    Answer note([](QWidget* pModal) {
        pModal->findChild<QPlainTextEdit*>()->setPlainText("Rough <running>");
        QMetaObject::invokeMethod(pModal, "accept");
    });
    window.action(eActionNote)->trigger();
    const auto& notes = window.findChild<WidgetGraphES*>()->model().settings().notes;
    QTRY_COMPARE_WITH_TIMEOUT(notes.size(), 1u, 30000);
    QCOMPARE(notes[0].time, 3000.25);
    window.openFolder(home.filePath("SD/Pulled"));
    settled(window);
    window.slotLoadCycle(2, -1);
    settled(window);
    QTRY_VERIFY_WITH_TIMEOUT(notes.size() == 1 && notes[0].text == "Rough <running>", 30000);
    window.action(eActionOverview)->trigger();
    const auto* pOverview = window.findChild<DialogOverview*>();
    const auto remarks = [pOverview] { return pOverview->findChild<QLabel*>("remarks"); };
    QTRY_VERIFY_WITH_TIMEOUT(remarks() && remarks()->text().contains("50:00: Rough <running>"), 60000);
    QTRY_COMPARE_WITH_TIMEOUT(pLogbook->findChild<LogbookNotes*>()->notes().size(), 1u, 30000);

    // What another program writes is seen: a service that is due stands in the overview.
    QVERIFY(LogbookEditor(store.toStdString()).saveService({0, "DEMO-000001", "Oil <change>", 0.5, {}, {}, {}, {}}));
    QTRY_VERIFY_WITH_TIMEOUT(pOverview->findChild<QLabel*>("services")->text().startsWith("Overdue: Oil <change>, "), 10000);

    // A copy that cannot be made is said as such.
    Settings::kArchiveDir.set(desktop.property, QString("/proc/none"));
    window.openFolder(home.filePath("SD/Pulled"));
    QTRY_VERIFY_WITH_TIMEOUT(pLogbook->findChild<QLabel*>("warning")->text().startsWith("Card not in the archive: /proc/none"), 30000);
    Settings::kArchive.set(desktop.property, false);
    badStores(window, *pLogbook, store, home.filePath("SD/Pulled"));
}

void TestLogbookWindow::badStores(DialogMain& window, DialogLogbook& logbook, const QString& store, const QString& card)
{
    const auto* pModel = logbook.findChild<QTableView*>("flights")->model();
    const auto isPulled = [pModel] { return pModel->rowCount() == 2 && pModel->index(0, LogbookModel::eCard).data().toString().startsWith("Pulled"); };
    // A store that is removed, and what is none in its place, is said; a new one is made, and shown, with the next card.
    for (const char* pCompanion : {"", "-wal", "-shm"})
        QFile::remove(store + pCompanion);
    const auto* pProblem = logbook.findChild<QLabel*>("warning");
    QTRY_VERIFY_WITH_TIMEOUT(pProblem->isVisible() && pProblem->text().contains("was removed"), 10000);
    logbook.hide(); // which it stays
    logbook.show();
    logbook.findChild<QLineEdit*>()->setText("nowhere");
    QTRY_VERIFY_WITH_TIMEOUT(pProblem->isVisible() && pProblem->text().contains("was removed"), 10000);
    logbook.findChild<QLineEdit*>()->clear();
    QFile bad(store);
    QVERIFY(bad.open(QIODevice::WriteOnly) && bad.write(QByteArray(1000, 'x')) == 1000);
    bad.close();
    QTRY_VERIFY_WITH_TIMEOUT(pProblem->text().contains("not an SQLite file"), 10000);
    QVERIFY(bad.remove());
    window.openFolder(card);
    QTRY_VERIFY_WITH_TIMEOUT(!pProblem->isVisible() && isPulled(), 60000);

    // A damaged one is put aside, which is said, and the card that is open is in the new one.
    QVERIFY(bad.open(QIODevice::ReadWrite) && bad.resize(4000));
    bad.close();
    const Answer told(Answer::close);
    const QDir folder = QFileInfo(store).dir();
    window.openFolder(card);
    QTRY_VERIFY_WITH_TIMEOUT(pProblem->text().contains("nothing of it could be read") && !folder.entryList({"logbook.sqlite.damaged-*"}).isEmpty(), 60000);
    QTRY_VERIFY_WITH_TIMEOUT(isPulled(), 60000);
}

QTEST_MAIN(TestLogbookWindow)
#include "TestLogbookWindow.moc"
