#include "card/CardContainer.h"
#include "sim/DemoCard.h"
#include "support/CardBuilder.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"
#include "ui/data/DataTabBar.h"
#include "ui/data/DialogData.h"
#include "ui/data/DialogDataLimit.h"
#include "ui/find/FindBar.h"
#include "ui/find/FindForm.h"
#include "ui/find/model/FindTableModel.h"
#include "ui/graph/DialogDataGraph.h"
#include "ui/graph/WidgetGraphES.h"
#include "ui/main/DesktopFixture.h"
#include "ui/main/MainActions.h"
#include "ui/xy/DialogXy.h"
#include "ui/xy/WidgetXy.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTableWidget>
#include <QToolButton>

using namespace ZARN;

namespace {

/// x at 0, 1, 2, 3 s: 10, NaN, 30, infinite; y at 0.5 and 2.5 s; none has no sample.
struct Curves : Test::TestCycle {
    Curves()
    {
        Test::ProfileBuilder builder;
        builder.unit("C", "F", 1.8, 32).device("D").parameter("x", 1, "FLOAT", {{"unitMetric", "C"}, {"unitImperial", "F"}});
        builder.parameter("y \"1\"", 2, "FLOAT").parameter("none", 3, "FLOAT").load(profile);
        Test::RecordFileBuilder file;
        file.addFloat(1, 0, 10).addFloat(2, 0.5, 3).addFloat(1, 1, NAN).addFloat(1, 2, 30).addFloat(2, 2.5, 5).addFloat(1, 3, INFINITY);
        auto pData = std::make_shared<RecordData>();
        file.fill(*pData);
        card.pRecord = pData;
        card.context = profile;
        card.endTime = 10;
    }
    LoadedCard card;
};

} // namespace

/// Where something held, one parameter over another, and the ways from there to the graph.
class TestFind : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void conditions_data();
    void conditions();
    void unitOfTheValue();
    void hits();
    void curves_data();
    void curves();
    void window();

private:
    static void anotherCard(DialogMain& window, const QString& card);
};

void TestFind::conditions_data()
{
    QTest::addColumn<FindCondition>("condition");
    QTest::addColumn<QString>("metric");
    QTest::addColumn<QString>("imperial");
    QTest::newRow("above") << FindCondition{"x", true, 212.0} << "\"x\" > 212"
                           << "\"x\" > 100";
    QTest::newRow("quoted") << FindCondition{"y \"1\"", false, -0.1} << "'y \"1\"' < -0.1"
                            << "";
    QTest::newRow("unknown") << FindCondition{"z", true, 1.0} << ""
                             << "";
}

void TestFind::conditions()
{
    const Curves curves;
    const DecodingContext& metric = curves.card.context;
    QFETCH(FindCondition, condition);
    QTEST(condition.expression(metric), "metric");
    QTEST(condition.expression(metric.in(EUnit::eImperial)), "imperial"); // without a conversion nobody can tell
}

void TestFind::unitOfTheValue()
{
    const Curves curves;
    const DecodingContext& metric = curves.card.context;
    FindForm form;
    const auto show = [&](EUnit unit) {
        const DecodingContext context = metric.in(unit);
        form.setParameters(FindParameter::all(*curves.card.pRecord, context), "x", context);
        return form.expression();
    };
    show(EUnit::eImperial);
    QDoubleSpinBox* pValue = form.findChild<QStackedWidget*>()->findChild<QDoubleSpinBox*>();
    pValue->setValue(240.0);
    QCOMPARE(show(EUnit::eMetric), QString("\"x\" > 115.556")); // the user's 240 F
    show(EUnit::eImperial);
    QCOMPARE(pValue->value(), 240.0);
}

void TestFind::hits()
{
    const FindHits hits({{1, 2}, {5, 5}, {8, 9}});
    const double atSecond = std::nextafter(5.0, 6.0);
    QCOMPARE(hits.next(0), 0U);
    QCOMPARE(hits.next(atSecond), 2U);
    QCOMPARE(hits.previous(atSecond), 0U);
    QCOMPARE(hits.at(atSecond), 1U);
    QVERIFY(!hits.at(3) && !hits.next(8) && !hits.previous(1));
}

void TestFind::curves_data()
{
    QTest::addColumn<XyChoice>("choice");
    QTest::addColumn<QString>("points");
    QTest::addColumn<int>("dropped");
    // From 0.5 s on both are known: x = 10, NaN, 30, 30, infinite.
    QTest::newRow("the newest of the other") << XyChoice{"x", "y \"1\"", "", {}} << "0.5:0,0 2:1199,0 2.5:1199,799" << 2;
    QTest::newRow("coloured by itself") << XyChoice{"y \"1\"", "x", "x", {}} << "0.5:0,0 2:0,799 2.5:1199,799" << 2;
    QTest::newRow("a part, with one sample") << XyChoice{"x", "y \"1\"", "", TimeSpan{1.5, 2.2}} << "2:600,400" << 0;
    QTest::newRow("nothing that is a number") << XyChoice{"x", "x", "", TimeSpan{2.9, 4}} << "" << 1;
    QTest::newRow("not recorded") << XyChoice{"x", "none", "", {}} << "" << 0;
}

void TestFind::curves()
{
    const Curves curves;
    QFETCH(XyChoice, choice);
    const XyPoints points(curves.card, choice);
    QStringList told;
    for (const XyPoint& point : points.points())
        told << QString("%1:%2,%3").arg(point.time).arg(point.column).arg(point.row);
    QTEST(told.join(' '), "points");
    QTEST(static_cast<int>(points.dropped()), "dropped");
    QCOMPARE(points.unrecorded().size(), choice.y == "none" ? 1U : 0U);
    if (told.isEmpty())
        return;
    const XyScene scene(points, Palette::light(), QSizeF(500, 400), 11);
    const XyPoint& last = points.points().back();
    QCOMPARE(scene.timeAt(scene.placeOf(points.valueOf(XyPoints::eX, last.column), points.valueOf(XyPoints::eY, last.row)) + QPointF(5, 5)),
             last.time);
    QVERIFY(!scene.timeAt(scene.plot().center() + QPointF(100, -30)));
}

void TestFind::window()
{
    const QTemporaryDir home;
    std::string error;
    QVERIFY(QDir().mkpath(home.filePath("SD")));
    QVERIFY2(DemoCard().write(home.filePath("SD/Card").toStdString(), DemoCardOptions{}, error), error.c_str());
    DesktopFixture desktop(home.path(), {home.filePath("SD/Card").toStdString()});
    DialogMain& window = desktop.open();
    started(window);
    settled(window);
    auto* pBar = window.findChild<FindBar*>();
    QVERIFY(!window.action(eActionFind)->isEnabled());
    window.slotLoadCycle(2, -1);
    settled(window);

    // By choices: the limit of the parameter stands there already.
    window.action(eActionFind)->trigger();
    QVERIFY(pBar->isVisible());
    pBar->form().findChild<QComboBox*>()->setCurrentText("EGT 2 A");
    const auto* pList = pBar->findChild<QAbstractItemView*>();
    QTRY_COMPARE(pList->model()->rowCount(), 1);
    const GraphModel& graph = window.findChild<WidgetGraphES*>()->model();
    QCOMPARE(graph.scenery().found().size(), 1U);
    const auto* pData = window.findChild<DialogData*>();
    QTest::keyClick(pBar, Qt::Key_Return);
    QCOMPARE(pData->viewTime(), std::nextafter(graph.scenery().found().front().start, HUGE_VAL));

    // As a formula: what is wrong is said with its place, what was not recorded as such.
    pBar->findChild<QToolButton*>()->click();
    QLineEdit* pExpression = nullptr;
    for (QLineEdit* pEdit : pBar->form().findChildren<QLineEdit*>())
        pExpression = pEdit->placeholderText().isEmpty() ? pExpression : pEdit;
    const auto says = [pBar](const QString& text) {
        const auto labels = pBar->findChildren<QLabel*>();
        return std::ranges::any_of(labels, [&text](const QLabel* pLabel) { return pLabel->text().startsWith(text); });
    };
    pExpression->setText("\"EGT 2 A\" > 920 && \"EGT\" > 1");
    QTRY_VERIFY(says("Character 20: "));
    QCOMPARE(graph.scenery().found().size(), 0U);
    pExpression->setText("\"EGT 2 A\" - \"EGT 1 A\" > 12 && \"Engine Speed A\" > 2000");
    QTRY_VERIFY(pList->model()->rowCount() > 10);
    // The list takes room that is there, and a row at least: it never makes the window higher.
    const int height = window.height();
    for (QToolButton* pButton : pBar->findChildren<QToolButton*>()) {
        if (pButton->isCheckable() && pButton->isEnabled() && !pButton->isChecked())
            pButton->click();
    }
    QCoreApplication::processEvents();
    QVERIFY(pList->isVisible() && pList->minimumHeight() < pList->maximumHeight() && pList->maximumHeight() < window.height() / 2);
    QCOMPARE(window.height(), height);
    Q_EMIT pBar->signalShow(3); // a row of the list
    const TimeSpan third = graph.scenery().found()[3];
    QVERIFY(graph.window().begin() < third.start && graph.window().end() > third.end && graph.window().end() - graph.window().begin() < 60);
    QVERIFY(!desktop.profile.isSelected("EGT 1 A")); // the ticks are the user's
    QTest::keyClick(pBar, Qt::Key_Escape);
    QVERIFY(pBar->isHidden() && graph.scenery().found().empty());
    // From an event to its parameter, around it.
    window.findChild<DataTabBar*>()->setCurrentIndex(eViewLimits);
    auto* pEvents = window.findChild<DialogDataLimit*>()->findChild<QTableWidget*>();
    Q_EMIT pEvents->doubleClicked(pEvents->model()->index(0, 0));
    const EventList& events = *window.findChild<DialogDataLimit*>()->eventList();
    QVERIFY(window.findChild<DialogDataGraph*>()->isVisible() && graph.window().contains(events.events()[0].time));
    QVERIFY(std::ranges::any_of(graph.traces().shown(), [&](int slot) {
        return graph.traces().at(slot)->name.toStdString() == events.source(events.events()[0]).parameter;
    }));

    window.action(eActionXy)->trigger();
    auto* pCurves = window.findChild<DialogXy*>();
    const XyPoints& points = pCurves->view().points();
    QTRY_VERIFY(points.points().size() > 100);
    const XyScene scene(points, Palette::light(), pCurves->view().size(),
                        std::max(QFontInfo(pCurves->view().font()).pixelSize() - 1.0, 8.0));
    const XyPoint& last = points.points().back();
    const QPoint place = scene.placeOf(points.valueOf(XyPoints::eX, last.column), points.valueOf(XyPoints::eY, last.row)).toPoint();
    const std::optional<double> time = scene.timeAt(place);
    QVERIFY(time);
    QTest::mouseClick(&pCurves->view(), Qt::LeftButton, {}, place);
    QCOMPARE(pData->viewTime(), std::nextafter(*time, HUGE_VAL));
    anotherCard(window, desktop.container.path());
}

/// Nothing of the card before is left under its name.
void TestFind::anotherCard(DialogMain& window, const QString& card)
{
    const XyPoints& points = window.findChild<DialogXy*>()->view().points();
    window.openFolder(card);
    QTRY_VERIFY(!window.action(eActionFind)->isEnabled() && !window.action(eActionXy)->isEnabled() && !window.action(eActionNote)->isEnabled());
    QTRY_VERIFY(points.points().empty());
    QVERIFY(window.findChild<WidgetGraphES*>()->model().scenery().message().startsWith("No record"));
    QVERIFY(window.findChild<DialogDataLimit*>()->eventCount() == 0);
}

QTEST_MAIN(TestFind)
#include "TestFind.moc"
