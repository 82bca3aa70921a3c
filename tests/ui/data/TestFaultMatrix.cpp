#include "card/CardContainer.h"
#include "ui/canvas/ColourContrast.h"
#include "ui/data/DataCycle.h"
#include "ui/data/DialogDataErrorMatrix.h"
#include "ui/data/WidgetErrorItem.h"
#include "ui/data/WidgetErrorTime.h"
#include "ui/data/WidgetFaultMatrix.h"

#include <QApplication>
#include <QHelpEvent>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

using namespace ZARN;

namespace {

const QColor kInfo(150, 150, 255);
const QColor kWarning(255, 200, 150);
const QColor kFault(255, 150, 150);
const QColor kQuiet(220, 255, 220);

/// A matrix with bits 0 (Info), 1 (Warning), 5 (Fault) and 6 (no known kind). Samples from 10 to 110 s: nothing, then bit 0 and the
/// undefined 31 from 30 s on, bits 1, 5 and 6 from 60 s on, bit 1 alone from 70 s on, bit 5 for a moment at 80 s.
struct Matrix : Test::DataCycle {
    Matrix()
    {
        Test::ProfileBuilder()
            .device("D")
            .errorMatrix(700, "Lane <A>")
            .errorMatrix(700, "The same message")
            .faultBit("Info", 700, 0, "Info")
            .faultBit("Warning", 700, 1, "Warning")
            .faultBit("Fault of a sensor with a long name", 700, 5, "Fault")
            .faultBit("Unknown", 700, 6, "Whatever")
            .load(profile);
        records().addWord(700, 10.0, 0).addWord(700, 30.0, 0x80000001U).addWord(700, 60.0, 0x62U).addWord(700, 70.0, 0x02U);
        records().addWord(700, 80.0, 0x20U).addWord(700, 80.001, 0).addWord(700, 110.0, 0x20U);
        load();
        view.loadProfile();
        view.resize(800, 400);
        view.show();
        view.updateRecord(data());
    }
    QColor fill(int bit) { return panel().item(bit).fill(); }
    const WidgetFaultMatrix& panel() { return *view.findChild<WidgetFaultMatrix*>(); }
    DialogDataErrorMatrix view{session};
};

} // namespace

/// The fault matrix: cells at a time, cells live, and the timeline.
class TestFaultMatrix : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void panel();
    void cells_data();
    void cells();
    void painting();
    void timeline();
    void live();
    void otherProfiles();
};

void TestFaultMatrix::panel()
{
    Matrix matrix;
    const WidgetFaultMatrix& panel = matrix.panel();
    const auto* pTable = panel.findChild<QTableWidget*>();
    QCOMPARE(pTable->horizontalHeaderItem(0)->text(), QString("31"));
    QCOMPARE(pTable->cellWidget(0, 31), static_cast<const QWidget*>(&panel.item(0)));
    QTRY_COMPARE(pTable->columnWidth(3), pTable->viewport()->width() / 32);
    QVERIFY(pTable->columnWidth(3) > 20);
    matrix.view.resize(300, 400);
    QTRY_COMPARE(pTable->columnWidth(3), 20);
    // With the scroll bar below, the cells are as high as their names are long.
    QTRY_VERIFY(pTable->viewport()->height() >= pTable->rowHeight(0));
    QVERIFY(pTable->rowHeight(0) >= panel.item(5).lengthOfText() && panel.item(5).lengthOfText() > 150);
    QCOMPARE(panel.item(0).text(), QString("Info"));
    QVERIFY(panel.item(1).toolTip().contains("D/Warning"));
    QCOMPARE(panel.item(2).text(), QString("para.name"));
    QCOMPARE(panel.item(2).type(), 0);
}

void TestFaultMatrix::cells_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<uint>("word");
    QTest::newRow("before the first") << 9.98 << 0U;
    QTest::newRow("at the first") << 29.0 << 0U;
    QTest::newRow("too early by more than 0.01") << 29.98 << 0U;
    QTest::newRow("early by 0.01") << 29.99 << 0x80000001U;
    QTest::newRow("later") << 59.0 << 0x80000001U;
    QTest::newRow("many") << 65.0 << 0x62U;
    QTest::newRow("after the last") << 110.0 << 0x20U;
    QTest::newRow("none") << std::numeric_limits<double>::quiet_NaN() << 0U;
    QTest::newRow("far") << 1e300 << 0x20U;
}

void TestFaultMatrix::cells()
{
    QFETCH(double, time);
    QFETCH(uint, word);
    Matrix matrix;
    matrix.view.setTime(65.0); // something is lit before
    matrix.view.setTime(time);
    for (const WidgetFaultMatrix* pPanel : matrix.view.findChildren<WidgetFaultMatrix*>()) {
        for (int bit = 0; bit < 32; ++bit)
            QCOMPARE(pPanel->item(bit).errorState(), (word >> bit & 1U) != 0);
    }
    QCOMPARE(matrix.fill(0), (word & 1U) != 0 ? kInfo : kQuiet);
    QCOMPARE(matrix.fill(31), QColor(Qt::white)); // undefined, even when set
}

void TestFaultMatrix::painting()
{
    Matrix matrix;
    matrix.view.setTime(65.0);
    QCOMPARE(matrix.fill(1), kWarning);
    QCOMPARE(matrix.fill(5), kFault);
    QCOMPARE(matrix.fill(6), QColor(Qt::white));
    QCOMPARE(matrix.panel().item(6).lengthOfText(), 0); // of no known kind, so without a text
}

void TestFaultMatrix::timeline()
{
    Matrix matrix;
    const WidgetErrorTime& timeline = matrix.panel().timeline();
    QCOMPARE(timeline.changes(eErrorInfo).size(), size_t(4)); // off, on, off, closing
    double told = 0.0;
    WidgetErrorTime wide(matrix.container, [&told](double time) { return QString::number(told = time); });
    wide.setData(matrix.profile.model().errorMatrices.front());
    wide.updateRecord(matrix.data());
    wide.resize(99, 47); // a pixel a second, bands of 16
    wide.setTime(110.0);
    QCOMPARE(wide.xOf(60.0), 50);
    const QImage image = wide.grab().toImage();
    const auto colour = [&](int x, int y) { return image.pixelColor(x, y); };
    const auto mark = [](const QColor& kind) { return QColor(readableOn(Qt::white, kind, 3.0).rgb()); };
    QCOMPARE(colour(19, 8), QColor(Qt::white));
    QCOMPARE(colour(20, 8), mark(kInfo));
    QCOMPARE(colour(49, 8), mark(kInfo));
    QCOMPARE(colour(50, 8), QColor(Qt::white));
    QCOMPARE(colour(50, 24), mark(kWarning));
    QCOMPARE(colour(70, 24), QColor(Qt::white));
    QCOMPARE(colour(59, 40), mark(kFault));
    QCOMPARE(colour(69, 40), QColor(Qt::white));
    QCOMPARE(colour(70, 40), mark(kFault)); // shorter than a pixel, but there
    QCOMPARE(colour(71, 40), QColor(Qt::white));
    QCOMPARE(colour(30, 16), QColor(200, 200, 200));
    wide.setTime(60.0);
    QCOMPARE(wide.grab().toImage().pixelColor(50, 8), QColor(Qt::black));
    QSignalSpy times(&wide, &WidgetErrorTime::signalTime);
    QTest::mouseClick(&wide, Qt::LeftButton, {}, QPoint(50, 8));
    QCOMPARE(times.size(), 1);
    QCOMPARE(wide.xOf(times[0][0].toDouble()), 50);
    QHelpEvent help(QEvent::ToolTip, QPoint(50, 8), QPoint());
    QApplication::sendEvent(&wide, &help);
    QCOMPARE(wide.xOf(told), 50);
    for (const double time : {-1e300, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
        wide.setTime(time);
        wide.grab();
    }
    wide.updateRecord(nullptr);
    QTest::mouseClick(&wide, Qt::LeftButton, {}, QPoint(50, 8));
    QCOMPARE(times.size(), 1);
    QCOMPARE(wide.xOf(60.0), 0);
    QVERIFY(wide.changes(eErrorInfo).empty());
}

void TestFaultMatrix::live()
{
    Matrix matrix;
    matrix.view.setZarnMode(1);
    RecordEntry entry;
    entry.id = 700;
    entry.payload = Test::wordPayload(0x2U);
    QVERIFY(matrix.data()->appendLive(entry));
    QTRY_COMPARE(matrix.fill(1), kWarning);
    matrix.view.setTime(35.0);
    QCOMPARE(matrix.fill(0), kQuiet); // shows what comes in
    matrix.view.setPaused(true);
    matrix.view.setTime(35.0);
    QCOMPARE(matrix.fill(0), kInfo);
    matrix.view.setPaused(false);
    QTRY_COMPARE(matrix.fill(1), kWarning);
    matrix.view.setZarnMode(0);
    entry.payload = Test::wordPayload(0x1U);
    QVERIFY(matrix.data()->appendLive(entry));
    QVERIFY(!matrix.view.findChild<QTimer*>({}, Qt::FindDirectChildrenOnly)->isActive());
    QCoreApplication::processEvents();
    QCOMPARE(matrix.fill(1), kWarning);
}

void TestFaultMatrix::otherProfiles()
{
    Matrix matrix;
    Test::ProfileBuilder builder;
    builder.device("D");
    for (int i = 0; i < DialogDataErrorMatrix::kMaxPanels + 20; ++i)
        builder.errorMatrix(i, "M");
    builder.load(matrix.profile);
    matrix.view.loadProfile();
    QCOMPARE(matrix.view.findChildren<WidgetFaultMatrix*>().size(), qsizetype(DialogDataErrorMatrix::kMaxPanels));
    matrix.profile.clear();
    matrix.view.loadProfile();
    matrix.view.setTime(3.0);
    QVERIFY(matrix.view.findChildren<WidgetFaultMatrix*>().isEmpty());
}

QTEST_MAIN(TestFaultMatrix)
#include "TestFaultMatrix.moc"
