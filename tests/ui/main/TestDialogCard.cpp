#include "FlightCard.h"
#include "ui/main/DialogCard.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <algorithm>

using namespace ZARN;
using Test::FlightCard;

namespace {

/// The card browser over a card, loading what it asks for as the main window does, and driven by the user's keys and clicks.
struct Browser : FlightCard {
    Browser()
    {
        QObject::connect(&dialog, &DialogCard::signalLoadCycle, &dialog, [this](unsigned int cycle, int flight) {
            loaded << QPoint(static_cast<int>(cycle), flight);
            container.loadCycle(cycle, flight);
            if (flight < 0)
                dialog.addFlights(cycle);
        });
        QObject::connect(&dialog, &DialogCard::signalLoadRecord, &dialog, [this](const std::list<QString>& files) {
            QStringList names;
            for (const QString& file : files)
                names << file.section('/', -1);
            loadedFiles << names.join(' ');
        });
        dialog.reloadCardInfo();
        dialog.resize(360, 500);
        dialog.show();
        dialog.activateWindow();
        exposed = QTest::qWaitForWindowActive(&dialog);
    }
    void click(const QTreeWidget* pTree, const QTreeWidgetItem* pItem, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        pTabs->setCurrentWidget(const_cast<QTreeWidget*>(pTree));
        QTest::mouseClick(pTree->viewport(), Qt::LeftButton, modifiers, pTree->visualItemRect(pItem).center());
    }
    [[nodiscard]] QTimer* waiting() const
    {
        const auto timers = dialog.findChildren<QTimer*>(Qt::FindDirectChildrenOnly);
        const auto found = std::ranges::find_if(timers, &QTimer::isActive);
        return found == timers.end() ? nullptr : *found;
    }
    /// Ends the pause after the choices.
    void settle() const
    {
        while (QTimer* pTimer = waiting()) {
            pTimer->setInterval(0);
            QVERIFY(QSignalSpy(pTimer, &QTimer::timeout).wait());
            pTimer->setInterval(DialogCard::kDelay);
        }
    }

    DialogCard dialog{container};
    QTreeWidget* pCycles = dialog.findChild<QTreeWidget*>("treeCycles");
    QTreeWidget* pRawData = dialog.findChild<QTreeWidget*>("treeRawData");
    QTabWidget* pTabs = dialog.findChild<QTabWidget*>();
    QList<QPoint> loaded;    // cycle, flight
    QStringList loadedFiles; // one text a load
    bool exposed = false;
};

} // namespace

class TestDialogCard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void quickChoicesLoadTheLast();
    void flightsUnderTheirCycle();
    void recordFiles();
    void oneTreeChoosesAtATime();
    void reloadDropsWhatWaits();
    void emptyCard();
};

void TestDialogCard::quickChoicesLoadTheLast()
{
    Browser browser;
    QVERIFY(browser.exposed);
    const QTreeWidgetItem* pDate = browser.pCycles->topLevelItem(0);
    browser.click(browser.pCycles, pDate->child(0));
    QTimer* pPause = browser.waiting();
    QVERIFY(pPause && pPause->interval() == DialogCard::kDelay);
    pPause->setTimerType(Qt::PreciseTimer);
    pPause->setInterval(10000);
    QTRY_VERIFY(pPause->remainingTime() < 9700);
    QTest::keyClick(browser.pCycles, Qt::Key_Down);
    QCOMPARE(browser.pCycles->currentItem(), pDate->child(1));
    QVERIFY(pPause->isActive() && pPause->remainingTime() > 9700); // it begins anew with each choice
    QTest::keyClick(browser.pCycles, Qt::Key_Down); // the date, which is no choice
    QTest::keyClick(browser.pCycles, Qt::Key_Down);
    QVERIFY(browser.loaded.isEmpty());
    browser.settle();
    QCOMPARE(browser.loaded, QList<QPoint>{QPoint(3, -1)});
    browser.click(browser.pCycles, browser.pCycles->currentItem());
    QVERIFY(!browser.waiting()); // it is there
    browser.container.forgetRecord(); // its card was taken out
    browser.click(browser.pCycles, browser.pCycles->currentItem());
    browser.settle();
    QCOMPARE(browser.loaded.size(), 2);
}

void TestDialogCard::flightsUnderTheirCycle()
{
    Browser browser;
    QTreeWidgetItem* pCycle = browser.pCycles->topLevelItem(0)->child(0);
    QCOMPARE(pCycle->childCount(), 0);
    browser.click(browser.pCycles, pCycle);
    browser.settle();
    QCOMPARE(pCycle->childCount(), 1);
    QVERIFY(pCycle->isExpanded());
    QTreeWidgetItem* pFlight = pCycle->child(0);
    QCOMPARE(pFlight->data(0, Qt::UserRole).toUInt(), 1U);
    QCOMPARE(pFlight->data(0, Qt::UserRole + 1).toInt(), 0);
    browser.click(browser.pCycles, pFlight);
    browser.settle();
    QCOMPARE(browser.loaded, (QList<QPoint>{QPoint(1, -1), QPoint(1, 0)}));
    QCOMPARE(pCycle->child(0), pFlight); // choosing a flight leaves the list alone
    browser.click(browser.pCycles, pCycle);
    browser.settle();
    QCOMPARE(pCycle->childCount(), 1); // choosing the cycle again lists them anew, not twice
    browser.dialog.addFlights(99);
}

void TestDialogCard::recordFiles()
{
    Browser browser;
    const QTreeWidgetItem* pDate = browser.pRawData->topLevelItem(0);
    browser.click(browser.pRawData, pDate->child(2));
    browser.click(browser.pRawData, pDate->child(0), Qt::ControlModifier);
    browser.settle();
    browser.click(browser.pRawData, pDate->child(0), Qt::ControlModifier);
    browser.click(browser.pRawData, pDate->child(2), Qt::ControlModifier);
    browser.settle();
    QCOMPARE(browser.loadedFiles, QStringList{"01.CAN 03.CAN"}); // in the card's order, and nothing for no file
    QCOMPARE(pDate->child(0)->childCount(), 0); // header lines are there when they are looked at
    pDate->child(0)->setExpanded(true);
    QCOMPARE(pDate->child(0)->childCount(), 12);
    QVERIFY(pDate->child(0)->toolTip(0).startsWith("Start Time: "));
    QVERIFY(!(pDate->flags() & Qt::ItemIsSelectable));
    QVERIFY(pDate->flags() & Qt::ItemIsEnabled);
    QVERIFY(!(pDate->child(0)->child(0)->flags() & Qt::ItemIsSelectable));
}

void TestDialogCard::oneTreeChoosesAtATime()
{
    Browser browser;
    browser.click(browser.pCycles, browser.pCycles->topLevelItem(0)->child(0));
    browser.click(browser.pRawData, browser.pRawData->topLevelItem(0)->child(1));
    browser.settle();
    QVERIFY(browser.loaded.isEmpty());
    QCOMPARE(browser.loadedFiles, QStringList{"02.CAN"});
    browser.click(browser.pCycles, browser.pCycles->topLevelItem(0)->child(0)); // the same as before is a choice again
    browser.settle();
    QCOMPARE(browser.loaded, QList<QPoint>{QPoint(1, -1)});
    QVERIFY(browser.pRawData->selectedItems().isEmpty());
}

void TestDialogCard::reloadDropsWhatWaits()
{
    Browser browser;
    QSignalSpy changed(&browser.dialog, &DialogCard::signalChanged);
    browser.click(browser.pCycles, browser.pCycles->topLevelItem(0)->child(1));
    browser.dialog.reloadCardInfo();
    QCOMPARE(changed.count(), 1);
    browser.settle();
    browser.click(browser.pRawData, browser.pRawData->topLevelItem(0)->child(1));
    browser.dialog.reloadCardInfo();
    browser.settle();
    QVERIFY(browser.loaded.isEmpty());
    QVERIFY(browser.loadedFiles.isEmpty());
    QCOMPARE(browser.pCycles->topLevelItemCount(), 2);
}

void TestDialogCard::emptyCard()
{
    Browser browser;
    const Test::CardBuilder empty;
    browser.container.readContainer(empty.write());
    browser.dialog.reloadCardInfo();
    QCOMPARE(browser.pCycles->topLevelItemCount(), 0);
    QCOMPARE(browser.pRawData->topLevelItemCount(), 0);
    QCOMPARE(browser.dialog.findChild<QLineEdit*>("cardName")->text(), empty.path().section('/', -1));
}

QTEST_MAIN(TestDialogCard)
#include "TestDialogCard.moc"
