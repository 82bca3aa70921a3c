#include "ui/data/PositionBar.h"
#include "ui/data/ReplayButton.h"
#include "ui/data/TimeEntry.h"
#include "ui/data/WidgetReplayBar.h"

#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

using namespace ZARN;

namespace {

/// A language in which the replay's buttons have much to say.
class LongTexts : public QTranslator {
public:
    LongTexts() { QCoreApplication::installTranslator(this); }
    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char*, const char* source, const char*, int) const override
    {
        return QByteArray(source).startsWith("Replay ") ? QString("%1 %1").arg(source) : QString();
    }
};

} // namespace

/// The bar below the views by itself: its lines, the times that it tells, the marks of its position.
class TestReplayBar : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void narrow_data();
    void narrow();
    void timesAreTold_data();
    void timesAreTold();
    void marks();
};

void TestReplayBar::narrow_data()
{
    QTest::addColumn<int>("width"); // 0 is the least
    QTest::addColumn<bool>("withText");
    QTest::newRow("icons") << 0 << false;
    QTest::newRow("two lines") << 1000 << true;
    QTest::newRow("one line") << 1600 << true;
}

void TestReplayBar::narrow()
{
    QFETCH(int, width);
    const LongTexts language;
    QWidget window; // a window itself would not become narrower than its layout
    WidgetReplayBar bar(false, &window);
    bar.setReplay(WidgetReplayBar::ePaused);
    window.show();
    bar.resize(1600, 200);
    bar.resize(width == 0 ? bar.minimumSizeHint().width() : width, 200);
    QCoreApplication::processEvents(); // it is laid out
    QRegion taken;
    for (const QWidget* pControl : bar.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        QVERIFY2(bar.rect().contains(pControl->geometry()) && !taken.intersects(pControl->geometry()), qPrintable(pControl->objectName()));
        taken += pControl->geometry();
    }
    for (const ReplayButton* pButton : bar.findChildren<ReplayButton*>()) {
        QTEST(pButton->width() >= pButton->widthFor(pButton->text()), "withText");
        QVERIFY(pButton->width() >= pButton->widthFor({}));
        QVERIFY(!pButton->text().isEmpty() && pButton->toolTip() == pButton->text());
    }
    QCOMPARE(bar.findChild<ReplayButton*>("replay")->text(), QString("Replay Run Replay Run"));
}

void TestReplayBar::timesAreTold_data()
{
    QTest::addColumn<TimeReference>("times");
    QTest::addColumn<QStringList>("texts"); // of 25.5 s, and typed
    QTest::addColumn<double>("seconds");
    const TimeReference clock(ETimeReference::eClock, 28800.0), late(ETimeReference::eClock, 86380.0);
    QTest::newRow("before the take-off") << TimeReference(ETimeReference::eTakeOff, -30.0) << QStringList{"-00:00:04", "-0:08"} << 22.0;
    QTest::newRow("after it") << TimeReference(ETimeReference::eTakeOff, -20.0) << QStringList{"00:00:05", "1:00"} << 80.0;
    QTest::newRow("power-up") << TimeReference() << QStringList{"00:00:25", "1:00"} << 60.0;
    QTest::newRow("clock") << clock << QStringList{"08:00:25", "8:01:00"} << 60.0;
    QTest::newRow("before midnight") << late << QStringList{"00:00:05", "23:59:50"} << 10.0;
    QTest::newRow("after midnight") << late << QStringList{"00:00:05", "0:00:20"} << 40.0;
}

void TestReplayBar::timesAreTold()
{
    QFETCH(TimeReference, times);
    QFETCH(QStringList, texts);
    WidgetReplayBar bar(false);
    bar.setTimes(times, 10.0, 110.0);
    bar.setTime(25500);
    auto* pEntry = bar.findChild<TimeEntry*>();
    QCOMPARE(pEntry->text(), texts[0]);
    QSignalSpy told(&bar, &WidgetReplayBar::signalTime);
    pEntry->selectAll();
    QTest::keyClicks(pEntry, texts[1]);
    QTest::keyClick(pEntry, Qt::Key_Return);
    QTEST(told.value(0).value(0).toDouble(), "seconds");
}

void TestReplayBar::marks()
{
    CycleCourse course;
    course.phases = {{0, 50, EFlightPhase::eGround}, {50, 100, EFlightPhase::eClimb}, {100, 200, EFlightPhase::eOff}};
    course.incidents = {{{60, 62}, 2, "limit", {}}, {{60, 61}, 1, "warning", {}}, {{300, 310}, 2, "elsewhere", {}}};
    const PositionMarks marks(course, 20, 120);
    QCOMPARE(marks.bands().size(), size_t(2));
    QCOMPARE(marks.bands()[0].until, 0.3);
    QCOMPARE(marks.marks().size(), size_t(2));
    QCOMPARE(marks.marks().back().title, QString("limit")); // drawn above the other
    QCOMPARE(marks.text(0.41, 0.0), QString("Climb\nlimit\nwarning"));
    QCOMPARE(marks.text(0.42, 0.005), QString("Climb\nlimit"));
    QCOMPARE(marks.text(0.9, 0.0), QString());
    QVERIFY(PositionMarks(course, 20, 20).bands().empty());
}

QTEST_MAIN(TestReplayBar)
#include "TestReplayBar.moc"
