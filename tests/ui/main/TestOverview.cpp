#include "sim/DemoCard.h"
#include "ui/data/DialogData.h"
#include "ui/graph/WidgetGraphES.h"
#include "ui/main/DesktopFixture.h"
#include "ui/main/DialogCard.h"
#include "ui/main/MainActions.h"
#include "ui/overview/DialogOverview.h"
#include "ui/overview/WidgetCycleCard.h"
#include "ui/overview/WidgetIncidentRow.h"
#include "ui/overview/model/OverviewTexts.h"

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QTreeWidget>
#include <QtTest>

using namespace ZARN;

/// The first page of a card, from the review of its cycles to what a click on it opens.
class TestOverview : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void demoCard();
    void verdicts_data();
    void verdicts();
};

void TestOverview::demoCard()
{
    const QTemporaryDir home;
    const QString card = home.filePath("SD/Card");
    std::string error;
    QVERIFY(QDir().mkpath(home.filePath("SD")));
    QVERIFY2(DemoCard().write(card.toStdString(), DemoCardOptions{}, error), error.c_str());
    QFile late(card + "/LOG00005.CAN"); // of cycle 2
    QVERIFY(late.open(QIODevice::ReadWrite) && late.seek(12) && late.write("\xE4\x07", 2) == 2); // the year: 2020
    late.close();
    DesktopFixture desktop(home.path(), {card.toStdString()});
    DialogMain& window = desktop.open();
    started(window);
    settled(window);
    auto* pOverview = window.findChild<DialogOverview*>();
    QVERIFY(pOverview->isVisible() && window.action(eActionOverview)->isChecked());
    const auto cards = [pOverview] { return pOverview->findChildren<WidgetCycleCard*>(); };
    QTRY_COMPARE_WITH_TIMEOUT(cards().size(), 3, 60000);
    QStringList told;
    for (const WidgetCycleCard* pCard : cards())
        told.append(pCard->accessibleName().section(", ", 0, 0) + ": " + pCard->accessibleName().section(": ", 1));
    QCOMPARE(told, (QStringList{"Cycle 3: 1 limit exceeded", "Cycle 2: 2 limits exceeded, 1 warning",
                                "Cycle 1: Nothing outside its limits while the engine ran"}));

    QVERIFY(cards()[0]->cycle().damages.isEmpty() && cards()[2]->cycle().damages.isEmpty());
    QVERIFY(cards()[1]->cycle().damages.value(0).startsWith("LOG00005.CAN: the unit's clock went back here, from 15.06.2024"));
    QCOMPARE(cards()[1]->cycle().damages.size(), 1);
    const auto* pCycles = window.findChild<QTreeWidget*>("treeCycles");
    QTest::keyClick(pOverview, Qt::Key_Return); // the newest flight, which the list did not know before
    QTRY_COMPARE(desktop.container.selectedFlightNumber(), 2);
    QTRY_VERIFY(pCycles->currentItem() && pCycles->currentItem()->data(0, DialogCard::eFlightRole).toInt() == 1);
    window.action(eActionOverview)->trigger();

    // An incident is shown whole, with its parameters and a margin, at its worst moment.
    const auto rows = cards()[1]->findChildren<WidgetIncidentRow*>();
    QCOMPARE(rows.size(), 3);
    QVERIFY2(rows[0]->accessibleName().startsWith("12:18, Manifold Pressure 1,586 hPa"), qPrintable(rows[0]->accessibleName()));
    rows[0]->setFocus();
    QTest::keyClick(rows[0], Qt::Key_Return);
    settled(window);
    const auto* pData = window.findChild<DialogData*>();
    const Incident& incident = cards()[1]->cycle().review.incidents.front();
    const Episode& worst = incident.episodes[incident.leading];
    QTRY_VERIFY(pData->isVisible() && std::abs(pData->viewTime() - worst.peakTime) < 1e-6);
    QCOMPARE(desktop.container.values().getValue(*desktop.profile.loadedModel()->find(worst.parameter), pData->viewTime()), worst.peak->value);
    const std::optional<TimeSpan> span = pData->graphSpan();
    QVERIFY(span && span->start < incident.start && span->end > incident.end && span->end - span->start < 60);
    QVERIFY(!desktop.profile.isSelected("Boost Lamp")); // the ticks are the user's
    const ShownTraces& traces = window.findChild<WidgetGraphES*>()->model().traces();
    const int withOthers = traces.count();

    window.action(eActionNextIncident)->trigger();
    QCOMPARE(std::round(pData->viewTime()), 1099.0);
    window.action(eActionPreviousIncident)->trigger();
    QCOMPARE(pData->viewTime(), incident.start);
    window.action(eActionOverview)->trigger();
    QVERIFY(pOverview->isVisible() && !pData->isVisible());
    window.slotUnitChanged(1); // in other units all is told anew
    QTRY_VERIFY_WITH_TIMEOUT(cards().size() == 3 && cards()[1]->findChild<WidgetIncidentRow*>()->text().contains("inHg"), 60000);

    window.openFolder(card); // once more, and nothing of the incident is left
    settled(window);
    window.slotLoadCycle(2, -1);
    settled(window);
    QTRY_VERIFY(pData->isVisible() && traces.count() < withOthers);

    QVERIFY(QDir().rename(card, card + "-pulled"));
    window.action(eActionOverview)->trigger();
    window.slotUnitChanged(0);
    QTRY_VERIFY_WITH_TIMEOUT(
        !pOverview->findChildren<QLabel*>("warning").isEmpty() && pOverview->findChild<QLabel*>("warning")->isVisible(), 60000);
    QVERIFY(cards().isEmpty() && pOverview->findChild<QLabel*>("warning")->text().startsWith("The card cannot be read any more."));
}

void TestOverview::verdicts_data()
{
    QTest::addColumn<EVerdict>("verdict");
    QTest::addColumn<QString>("problem");
    QTest::addColumn<QString>("text");
    QTest::newRow("ok") << EVerdict::eOk << QString() << "Nothing outside its limits while the engine ran";
    QTest::newRow("unknown is not ok") << EVerdict::eUnknown << QString() << "Cannot tell whether the engine was all right";
    QTest::newRow("partial is not ok") << EVerdict::eOk << QString() << "Cannot tell whether the engine was all right";
    QTest::newRow("unread") << EVerdict::eOk << "too large" << "This cycle could not be read";
}

void TestOverview::verdicts()
{
    QFETCH(QString, problem);
    CycleOverview cycle;
    QFETCH(EVerdict, verdict);
    cycle.review.verdict = verdict;
    cycle.problem = problem;
    cycle.isPartial = QByteArray(QTest::currentDataTag()).startsWith("partial");
    cycle.endTime = -1; // clocks that ran backwards
    QTEST(OverviewTexts::verdict(cycle), "text");
    QCOMPARE(OverviewTexts::basis(cycle).isEmpty(), false);
    QCOMPARE(OverviewTexts::figures(cycle)[0].value, QString("-"));
    QCOMPARE(OverviewTexts::figures(cycle)[1].value, QString("-"));
    cycle.dateTime = QDateTime({2024, 6, 15}, {9, 9});
    cycle.endTime = 31 * 3600;
    QVERIFY(OverviewTexts::origin(cycle).contains("15.06.2024 09:09 to 16.06.2024 16:09"));
    // Lines end neither between a number and its unit nor within a duration, and what is copied has plain blanks.
    QCOMPARE(OverviewTexts::breakable("EGT 125 °C, for 3 min 50 s; 5 of them, 1 h").replace(QChar::Nbsp, '_'),
             QString("EGT 125_°C, for 3_min_50_s; 5_of them, 1_h"));
    QVERIFY(!OverviewTexts::plain(cycle).contains(QChar::Nbsp));
}

QTEST_MAIN(TestOverview)
#include "TestOverview.moc"
