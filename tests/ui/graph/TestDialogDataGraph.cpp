#include "app/Property.h"
#include "project/Project.h"
#include "support/CardBuilder.h"
#include "support/FileHelpers.h"
#include "support/FullDisk.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"
#include "ui/canvas/RasterCanvas.h"
#include "ui/gl/GraphicsCheck.h"
#include "ui/graph/DialogDataGraph.h"
#include "ui/graph/DialogGraphSetup.h"
#include "ui/graph/DrawsNoMore.h"
#include "ui/graph/WidgetGraph.h"
#include "ui/graph/WidgetGraphES.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>

#include <cmath>

using namespace ZARN;

namespace {

class AnsweredGraph : public DialogDataGraph {
public:
    using DialogDataGraph::DialogDataGraph;
    QString answer;
    QStringList problems;

protected:
    QString askSnapshotFile() override { return answer.isEmpty() ? DialogDataGraph::askSnapshotFile() : answer; }
    void showProblem(const QString& text) override { problems << text; }
};

/// A cycle of 1,000 s with speed and flow, shown in a window on the screen.
struct Shown : Test::TestCycle {
    explicit Shown(int parameters = 2)
    {
        Test::ProfileBuilder builder;
        builder.thresholds("Speed", {{0, "OK", "#00ff00"}, {900, "LIMIT", "#ff0000"}}).device("Engine");
        for (int i = 0; i < parameters; ++i)
            builder.parameter(QString("P%1").arg(i), 300 + i, "FLOAT", {{"unitMetric", i == 0 ? "rpm" : "l/h"}, {"thresholdId", "Speed"}});
        builder.load(profile);
        for (int i = 0; i < parameters; ++i)
            profile.setSelected(QString("P%1").arg(i).toStdString(), true);
        Test::RecordFileBuilder& file = card.file("01.CAN");
        file.dateTime(QDateTime(QDate(2024, 2, 1), QTime(8, 0), Qt::UTC));
        for (int second = 0; second <= 1000; ++second) {
            file.addFloat(300, second, second == 500 ? 1000.0F : 100.0F);
            file.addFloat(301, second, second == 3 ? std::nanf("") : 12.0F);
        }
        card.file("02.CAN").addFloat(300, 5, 1.0F); // without a date: another cycle begins
        container.readContainer(card.write());
        container.loadCycle(container.recordCycles().begin()->first, -1);
        dialog.resize(1000, 600);
        dialog.show();
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        dialog.updateProfile();
        dialog.updateRecord(&container.recordData());
        settle();
    }
    void settle() { QVERIFY(drawsNoMore(graph)); }
    QPoint at(double time) const
    {
        const GraphLayout& layout = graph.layoutOfFrame();
        return {static_cast<int>(std::lround(layout.xOf(time))), static_cast<int>(layout.plot().center().y())};
    }
    /// What can be chosen from the menu at the right button.
    QStringList menuTexts()
    {
        QStringList texts;
        QTimer::singleShot(200, [&texts] {
            if (auto* pMenu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
                for (const QAction* pAction : pMenu->actions())
                    texts << (pAction->isEnabled() ? pAction->text() : QString());
                pMenu->close();
            }
        });
        QTest::mouseClick(&graph, Qt::RightButton, {}, QPoint(500, 200));
        return texts;
    }
    QToolButton* button(const QString& name) const { return dialog.findChild<QToolButton*>("graph-" + name); }
    void click(const QString& name) const { QTest::mouseClick(static_cast<QWidget*>(button(name)), Qt::LeftButton); }

    Test::CardBuilder card;
    Property property{console};
    Project project{console, profile};
    AnsweredGraph dialog{Session{console, property, profile, container, project}};
    WidgetGraphES& graph = dialog.graph();
    GraphModel& model = dialog.graph().model();
};

/// The share of pixels for which the other picture has nothing alike at that place or beside it: characters and slopes may differ by a
/// pixel, but nothing may be missing.
double difference(const QImage& a, const QImage& b)
{
    const auto isAlike = [&](int x, int y, int dx, int dy) {
        if (!b.valid(x + dx, y + dy))
            return false;
        const QRgb p = a.pixel(x, y), q = b.pixel(x + dx, y + dy);
        return std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q)) < 150;
    };
    int differing = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            bool isFound = false;
            for (int place = 0; place < 9 && !isFound; ++place)
                isFound = isAlike(x, y, place % 3 - 1, place / 3 - 1);
            differing += !isFound;
        }
    }
    return a.size() == b.size() ? static_cast<double>(differing) / (a.width() * a.height()) : 1.0;
}

} // namespace

class TestDialogDataGraph : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsRecord();
    void followsTime();
    void handsOnGraph();
    void buttons();
    void heldZoom();
    void setup();
    void takesBack();
    void snapshotAsksBeforeReplacing();
    void markerGoesWithCycle();
    void snapshots_data();
    void snapshots();
    void idleDrawsNothing();
    void drawnLikePainted_data();
    void drawnLikePainted();
};

void TestDialogDataGraph::showsRecord()
{
    Shown many(35);
    QCOMPARE(many.model.traces().count(), 30);
    QVERIFY(many.dialog.findChild<QLabel*>("unshown")->text().contains("P30, P31, P32, P33, P34"));
    many.model.traces().move(0, 2);
    Q_EMIT many.model.signalMoveParameter(0, 2);
    for (const bool isOn : {false, true}) { // strips belong to parameters
        many.profile.setSelected("P1", isOn);
        many.dialog.updateProfile();
        QStringList names;
        for (const int slot : many.model.traces().shown())
            names << many.model.traces().at(slot)->name;
        QCOMPARE(names.mid(0, 4).join(' '), isOn ? "P1 P2 P0 P3" : "P2 P0 P3 P4");
    }
    const auto asked = [&many] { return many.dialog.findChild<QLabel*>("unshown")->text().startsWith("Only what was asked for"); };
    many.dialog.showMoment(GraphMoment::around(10.0, {"P1", "P2", "P3", "P4", "P5", "P6", "P7", "P8", "P9"}));
    QVERIFY(many.model.traces().count() == 9 && asked());
    many.dialog.updateRecord(nullptr);
    QVERIFY(many.model.traces().count() == 30 && !asked());
    Shown shown;
    QVERIFY(shown.model.traces().count() == 2 && !shown.dialog.findChild<QLabel*>("unshown")->isVisible());
    QCOMPARE(shown.model.traces().at(0)->samples.size(), 1001U);
    QCOMPARE(shown.model.traces().at(1)->samples.size(), 1000U); // without the value that is no number
    QVERIFY(shown.model.window().begin() == -100.0 && shown.model.window().end() == 1100.0);
    QCOMPARE(shown.model.cursor().time, shown.container.startTime());
    QCOMPARE(shown.model.traces().at(0)->bands.size(), 1U);

    shown.profile.setSelected("P0", false); // the other moves up, and takes its samples along
    shown.dialog.updateProfile();
    QVERIFY(shown.model.traces().count() == 1 && shown.model.traces().at(0)->name == "P1");
    QCOMPARE(shown.model.traces().at(0)->samples.value(7), 12.0);
    QCOMPARE(shown.model.window().begin(), -100.0);
    shown.profile.clearSelection();
    shown.dialog.updateProfile();
    QVERIFY(shown.model.scenery().message().contains("No parameter"));
    shown.dialog.updateRecord(nullptr);
    QVERIFY(shown.model.scenery().message().contains("No record"));
}

void TestDialogDataGraph::followsTime()
{
    Shown shown;
    shown.model.setWindow({100, 200});
    shown.dialog.setTime(195); // nearer to the edge than a tenth of the width
    QVERIFY(std::abs(shown.model.window().end() - 205) < 1e-4);
    shown.dialog.setTime(50);
    shown.model.setWindow({-100, 1100});
    shown.click("reset"); // by the rule of the automatic mode the last minute, behind the record's end
    QCOMPARE(shown.model.window().width(), 60.0);
    QVERIFY(std::abs(shown.model.window().begin() - 44) < 1e-4);
}

void TestDialogDataGraph::handsOnGraph()
{
    Shown shown;
    QSignalSpy cursor(&shown.dialog, &DialogDataGraph::signalCursor);
    QTest::mouseClick(&shown.graph, Qt::MiddleButton, {}, shown.at(300));
    QVERIFY(std::abs(shown.model.cursor().time - 300) < 2);
    QTest::keyClick(&shown.graph, Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(cursor.count(), 2);
    const QPoint middle = shown.at(500);
    QWheelEvent wheel(middle, shown.graph.mapToGlobal(middle), {}, QPoint(0, 120), Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&shown.graph, &wheel);
    QVERIFY(std::abs(shown.model.window().width() - 1080) < 1e-3);
    const TimeWindow before = shown.model.window();
    QWheelEvent swipe(middle, shown.graph.mapToGlobal(middle), QPoint(-40, 3), QPoint(-80, 6), Qt::NoButton, {}, Qt::ScrollUpdate, false);
    QApplication::sendEvent(&shown.graph, &swipe);
    const double seconds = 40 / shown.graph.layoutOfFrame().pixelsPerSecond();
    QVERIFY(std::abs(shown.model.window().begin() - before.begin() - seconds) < 1 && std::abs(shown.model.window().width() - 1080) < 1e-3);
    QNativeGestureEvent pinch(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, middle, middle,
                              shown.graph.mapToGlobal(middle), 0.25, QPointF());
    QApplication::sendEvent(&shown.graph, &pinch);
    QVERIFY(std::abs(shown.model.window().width() - 864) < 1e-3);
    QVERIFY(!shown.button("automatic")->isChecked());
}

void TestDialogDataGraph::buttons()
{
    Shown shown;
    const QList<QToolButton*> all = shown.dialog.findChildren<QToolButton*>();
    QCOMPARE(all.size(), 11);
    for (const QToolButton* pButton : all) {
        QCOMPARE(pButton->size(), QSize(32, 32));
        QVERIFY(!pButton->toolTip().isEmpty());
        const QImage icon = pButton->icon().pixmap(32, 32).toImage();
        QVERIFY2(icon != QImage(icon.size(), icon.format()) && icon.pixelColor(0, 0).alpha() == 0, qPrintable(pButton->toolTip()));
    }
    shown.click("split");
    QVERIFY(shown.button("split")->isChecked() && !shown.button("single")->isChecked() && shown.button("automatic")->isChecked());
    shown.click("automatic");
    QCOMPARE(shown.model.settings().graphMode, eManual);
    QVERIFY(shown.button("split")->isChecked());
    shown.click("single");
    QVERIFY(shown.button("single")->isChecked() && !shown.button("split")->isChecked());
    shown.model.setMarker({200, 300});
    shown.click("zoom-marker");
    QCOMPARE(shown.model.window().begin(), 200.0);
    QCOMPARE(shown.model.window().end(), 300.0);
    shown.click("zoom-all");
    QCOMPARE(shown.model.window().end(), 1100.0);
    QCOMPARE(shown.dialog.graphData().xRange, 1000.0);
    shown.click("reset");
    QCOMPARE(shown.model.settings().displayMode, eSplit);
    QTest::mousePress(shown.button("clear"), Qt::LeftButton);
    QTest::mouseMove(shown.button("clear"), QPoint(16, 90));
    QTest::mouseRelease(shown.button("clear"), Qt::LeftButton, {}, QPoint(16, 90));
    QVERIFY(!shown.model.traces().at(0)->samples.empty());
    shown.click("clear");
    QVERIFY(shown.model.traces().at(0)->samples.empty());
    QVERIFY(shown.model.scenery().message().contains("cleared"));
    QVERIFY(!shown.menuTexts().contains("Copy Values") && shown.menuTexts().contains("Flight Report..."));
    shown.dialog.updateProfile(); // as when a parameter is ticked
    QVERIFY(!shown.model.traces().at(0)->samples.empty() && shown.model.scenery().message().isEmpty());
    QVERIFY(shown.menuTexts().contains("Copy Values"));
}

void TestDialogDataGraph::heldZoom()
{
    Shown shown;
    const auto hold = [&](const QString& name, const TimeWindow& window) {
        shown.model.setWindow(window);
        QWidget* pButton = shown.button(name);
        QTest::mousePress(pButton, Qt::LeftButton);
        const bool isZoomed = QTest::qWaitFor([&] { return !(shown.model.window() == window); });
        const double first = shown.model.window().width();
        QTest::mouseRelease(pButton, Qt::LeftButton);
        const TimeWindow last = shown.model.window();
        const auto* pHeld = shown.dialog.findChild<QTimer*>({}, Qt::FindDirectChildrenOnly);
        const bool isLeft = QTest::qWaitFor([pHeld] { return !pHeld->isActive(); });
        return isZoomed && isLeft && last == shown.model.window() ? first : 0.0;
    };
    QVERIFY(std::abs(hold("zoom-out", {0, 97}) - 100) < 1e-4);
    // The cursor, and with it the record, stays in sight; where the user has gone elsewhere the window stays there.
    QVERIFY(std::abs(hold("zoom-in", {0, 1000}) - 970) < 1e-3);
    QVERIFY(shown.model.window().begin() < shown.model.cursor().time);
    shown.model.settings().graphMode = eManual;
    QVERIFY(std::abs(hold("zoom-in", {300, 400}) - 97) < 1e-4);
    QCOMPARE(shown.model.window().begin(), 300.0);
}

void TestDialogDataGraph::setup()
{
    Shown shown;
    shown.model.setWindow({300, 340});
    shown.click("setup");
    auto* pSetup = shown.dialog.findChild<DialogGraphSetup*>();
    QVERIFY(pSetup && pSetup->isVisible());
    pSetup->findChild<QCheckBox*>("gridOn")->click();
    QVERIFY(!shown.model.settings().gridOn);
    QVERIFY(std::abs(shown.model.window().width() - 40) < 1e-4); // an edit leaves the window as it is
    pSetup->findChild<QCheckBox*>("autoscaleOn")->click();
    auto* pYmin = pSetup->findChild<QLineEdit*>("yMin");
    pYmin->selectAll();
    QTest::keyClicks(pYmin, "-12.5");
    QCOMPARE(shown.model.settings().scale.lower, -12.5);
    shown.model.setWindow({500, 510}); // as with the wheel, while the setup stays open
    shown.model.takeOverTime();
    struct Typed {
        const char* text;
        double value; // what is refused leaves what was there before anybody typed
        QLocale::Language language = QLocale::English;
    };
    for (const auto& [text, value, language] : {Typed{"1,5", 1.5},
                                                {"abc", -100},
                                                {"1e99", -100},
                                                {"2", 2},
                                                {"1,560", -100},
                                                {"1.560", 1.56},
                                                {"1,234,567", -100},
                                                {"1.560", -100, QLocale::German},
                                                {"1,560", 1.56, QLocale::German}}) {
        QLocale::setDefault(language);
        pYmin->selectAll();
        QTest::keyClicks(pYmin, text);
        QCOMPARE(shown.model.settings().scale.lower, value);
        QCOMPARE(pYmin->text(), text);
        QCOMPARE(pYmin->toolTip().isEmpty(), value != -100);
        QCOMPARE(!pYmin->property("wrong").toBool(), pYmin->toolTip().isEmpty());
    }
    QLocale::setDefault(QLocale::c());
    QCOMPARE(shown.model.window().begin(), 500.0);
    QVERIFY(std::abs(shown.model.window().width() - 10) < 1e-4);
    QCOMPARE(shown.model.settings().graphMode, eManual);
    auto* pMode = pSetup->findChild<QComboBox*>("cursorMode");
    QCOMPARE(pMode->currentIndex(), 0);
    pMode->setFocus();
    QTest::keyClick(pMode, Qt::Key_Down);
    QCOMPARE(shown.model.settings().cursorMode, eCenter);
    QCOMPARE(shown.model.colours().background, QColor(Qt::black));
    shown.property.setString("GraphColor0", "#123456");
    shown.dialog.updateSettings();
    QCOMPARE(shown.model.traces().at(0)->drawnColour, QColor("#123456"));
    pSetup->findChild<QPushButton*>("traceDefault")->click();
    QCOMPARE(shown.model.traces().at(0)->drawnColour, QColor(Qt::red));
    QCOMPARE(shown.property.getString("GraphColor0", ""), "");
    // A colour is its parameter's: the one that takes the place does not get it, and a choice for that one does not replace it.
    shown.property.setString("GraphColor0", "#123456");
    shown.property.setString("GraphColorName0", "elsewhere");
    shown.property.setString("GraphColor1", "#654321");
    shown.property.setString("GraphColorName1", shown.model.traces().at(0)->name.toStdString());
    shown.dialog.updateSettings();
    QCOMPARE(shown.model.traces().at(0)->drawnColour, QColor("#654321"));
    pSetup->findChild<QPushButton*>("traceDefault")->click();
    QCOMPARE(shown.model.traces().at(0)->drawnColour, QColor(Qt::red));
    QCOMPARE(shown.property.getString("GraphColor0", ""), "#123456");
    shown.model.traces().edit(0, [](GraphParameter& trace) { trace.stroke = {3, ELineStyle::eDotted}; });
    pSetup->findChild<QCheckBox*>("clickMovesCursor")->click();
    shown.dialog.updateSettings();
    QVERIFY(shown.model.traces().at(0)->stroke == TraceStroke(3, ELineStyle::eDotted) && !shown.model.traces().at(0)->hasOwnColour);
    QCOMPARE(shown.property.getString("GraphWidth1", "") + shown.property.getString("GraphStyle1", ""), "33");
    auto* pPalette = pSetup->findChild<QComboBox*>("palette");
    pPalette->setFocus();
    QTest::keyClick(pPalette, Qt::Key_Down);
    QCOMPARE(shown.model.colours().background, Palette::graphColours(EGraphPalette::eDark).ground);
    QCOMPARE(shown.model.traces().at(0)->drawnColour, Palette::graphColours(EGraphPalette::eDark).traces[0]);
    QCOMPARE(shown.property.getInt("GraphPalette", 0), 1);
    QVERIFY(shown.property.getSwitch("GraphClickMovesCursor", false));
    pSetup->close();
}

void TestDialogDataGraph::takesBack()
{
    Shown shown;
    const auto pause = [&shown] { QVERIFY(QSignalSpy(&shown.dialog, &DialogDataGraph::signalLayout).wait()); }; // the step is kept
    const auto press = [&shown](int key, Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(&shown.graph, static_cast<Qt::Key>(key), modifiers);
    };
    const TimeWindow whole = shown.model.window();
    const ValueSpan speed = shown.model.valueSpan(0);
    press(Qt::Key_Plus, {});
    press(Qt::Key_Plus, {}); // at once: the same step
    pause();
    press(Qt::Key_Right, Qt::ControlModifier);
    press(Qt::Key_Up, Qt::AltModifier);
    press(Qt::Key_Plus, Qt::ControlModifier);
    pause();
    shown.click("single");
    shown.dialog.setTime(77); // nobody's hand
    const TimeWindow closer = shown.model.window();
    press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(shown.model.settings().displayMode == eSingleGraph && shown.button("single")->isChecked()); // as at first: no step
    QCOMPARE(shown.dialog.layout()->parameters[0].height, 1.0);
    QVERIFY(!shown.model.marker().isRange() && shown.model.valueSpan(0) == speed && shown.model.window() == closer);
    press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(shown.model.window() == whole && shown.model.cursor().time == 77);
    press(Qt::Key_Z, Qt::ControlModifier); // nothing is left
    QVERIFY(shown.model.window() == whole);
    for (const int key : {Qt::Key_Y, Qt::Key_Y})
        press(key, Qt::ControlModifier);
    QVERIFY(shown.model.marker().isRange() && shown.model.valueSpan(0) != speed && shown.model.window() == closer);
    const std::optional<DisplayLayout> layout = shown.dialog.layout();
    QVERIFY(layout->parameters[0].scale && layout->parameters[0].scale->unit == "rpm" && layout->parameters[0].height == 1.25);
    shown.model.settings().scale.zoomed.clear();
    shown.dialog.setLayout(*layout);
    QVERIFY(shown.model.valueSpan(0) != speed);

    QSignalSpy ticks(&shown.dialog, &DialogDataGraph::signalTicks);
    DisplayLayout less;
    less.parameters = {{"P1", 2.0, {}}};
    shown.dialog.setLayout(less);
    shown.profile.setSelected("P0", false); // as whoever chooses a layout does
    shown.dialog.updateProfile();
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(ticks.count(), 1);
    QCOMPARE(ticks[0][0].value<DisplayLayout>().parameters.size(), 2U);
    QVERIFY(shown.container.loadCycle(1, -1));
    shown.dialog.updateRecord(&shown.container.recordData());
    const TimeWindow other = shown.model.window();
    press(Qt::Key_Z, Qt::ControlModifier); // steps of another record
    QVERIFY(shown.model.window() == other);
}

void TestDialogDataGraph::snapshotAsksBeforeReplacing()
{
    Shown shown;
    const QTemporaryDir folder;
    QFile taken(folder.filePath("taken.bmp"));
    QVERIFY(taken.open(QIODevice::WriteOnly) && taken.write("old") == 3);
    taken.close();
    QString title;
    bool isAsked = false;
    QTimer::singleShot(300, [&] {
        auto* pDialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!pDialog)
            return;
        title = pDialog->windowTitle() + "|" + QFileInfo(pDialog->selectedFiles().value(0)).fileName() + "|" +
                pDialog->nameFilters().join(";;");
        QTimer::singleShot(300, [&isAsked] {
            if (auto* pQuestion = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                isAsked = true;
                pQuestion->reject();
            }
        });
        pDialog->findChild<QLineEdit*>()->setText(folder.filePath("taken"));
        pDialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click(); // returns after the question
        pDialog->reject();
    });
    shown.click("snapshot");
    QCOMPARE(title, "Save Snapshot|snapshot.bmp|BMP File (*.bmp);;All Files (*.*)");
    QVERIFY(isAsked);
    QCOMPARE(QFileInfo(taken).size(), 3);
}

void TestDialogDataGraph::markerGoesWithCycle()
{
    Shown shown;
    const auto load = [&shown](unsigned int cycle) {
        shown.dialog.updateRecord(nullptr); // what was loaded is gone before something else is
        QVERIFY(shown.container.loadCycle(cycle, -1));
        shown.dialog.updateRecord(&shown.container.recordData());
    };
    shown.model.setMarker({100, 200});
    shown.model.setWindow({400, 500});
    shown.dialog.updateProfile(); // as when the unit changes
    shown.dialog.updateRecord(&shown.container.recordData());
    shown.dialog.setTime(shown.model.cursor().time);
    QCOMPARE(shown.model.window().begin(), 400.0);
    load(0);
    QCOMPARE(shown.model.window().begin(), -100.0);
    QVERIFY(shown.model.marker().isRange());
    load(1);
    QVERIFY(!shown.model.marker().isRange());
}

void TestDialogDataGraph::snapshots_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("bmp") << "a.bmp" << QByteArray("BM");
    QTest::newRow("no suffix") << "b" << QByteArray("BM");
    QTest::newRow("png") << "c.PNG" << QByteArray("\x89PNG");
    QTest::newRow("svg") << "d.svg" << QByteArray("<?xml");
    QTest::newRow("pdf") << "e.pdf" << QByteArray("%PDF-");
    QTest::newRow("unknown") << "f.xyz" << QByteArray();
    QTest::newRow("full disk") << "g.png" << QByteArray();
    QTest::newRow("no such folder") << "none/h.pdf" << QByteArray();
}

void TestDialogDataGraph::snapshots()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, begin);
    Shown shown;
    const QTemporaryDir folder;
    shown.dialog.answer = folder.filePath(name);
    const bool isFull = QByteArray(QTest::currentDataTag()) == "full disk";
    if (isFull) {
        putFile(folder.filePath(name).toStdString(), "old");
        const FullDisk full(1000);
        shown.click("snapshot");
    } else {
        shown.click("snapshot");
    }
    QCOMPARE(shown.dialog.problems.size(), begin.isEmpty() ? 1 : 0);
    if (isFull) {
        QCOMPARE(fileContent(folder.filePath(name).toStdString()), "old");
        return;
    }
    const QString path = name.contains('.') ? folder.filePath(name) : folder.filePath(name + ".bmp");
    QCOMPARE(QFileInfo::exists(path), !begin.isEmpty());
    if (begin.isEmpty())
        return;
    QVERIFY(QByteArray::fromStdString(fileContent(path.toStdString())).startsWith(begin));
    if (path.endsWith("svg")) {
        const std::string content = fileContent(path.toStdString());
        QVERIFY(content.find("<polyline") != std::string::npos && content.find("<text") == std::string::npos); // it needs no font
    } else if (!path.endsWith("pdf")) {
        const QImage image = QImageReader(path).read();
        QCOMPARE(image.size(), shown.graph.size());
        const QPointF tip(shown.at(500).x(), shown.graph.layoutOfFrame().plot().center().y());
        QVERIFY(qRed(image.pixel(tip.toPoint())) > 200 || qRed(image.pixel(tip.toPoint() - QPoint(1, 0))) > 200); // the one sample of 1000
    }
}

void TestDialogDataGraph::idleDrawsNothing()
{
    Shown shown;
    const int before = shown.graph.frameCount();
    QSignalSpy looks(shown.graph.findChild<QTimer*>("redraw"), &QTimer::timeout);
    QTRY_VERIFY(looks.count() > 5);
    QCOMPARE(shown.graph.frameCount(), before);
    shown.dialog.setTime(77);
    QTRY_VERIFY(shown.graph.frameCount() > before);
}

void TestDialogDataGraph::drawnLikePainted_data()
{
    QTest::addColumn<QByteArray>("graphics");
    QTest::addColumn<bool>("isFixed");
    QTest::addColumn<bool>("isSplit");
    QTest::newRow("shaders") << QByteArray("card") << false << false;
    QTest::newRow("shaders, split") << QByteArray("card") << false << true;
    QTest::newRow("fixed function") << QByteArray("card") << true << true;
    QTest::newRow("spans") << QByteArray("software") << false << false;
    QTest::newRow("spans, split") << QByteArray("software") << false << true;
}

void TestDialogDataGraph::drawnLikePainted()
{
    QFETCH(const QByteArray, graphics);
    QFETCH(const bool, isFixed);
    QFETCH(const bool, isSplit);
    qputenv("ZARN_GRAPHICS", graphics);
    if (!GraphicsCheck::problem().isEmpty())
        QFAIL("no OpenGL under the tests' display");
    const std::unique_ptr<WidgetGraphBase> pGraph(isFixed ? static_cast<WidgetGraphBase*>(new WidgetGraph) : new WidgetGraphES);
    pGraph->resize(800, 500);
    pGraph->setDisplayMode(isSplit ? eSplit : eSingleGraph);
    pGraph->setGraphMode(eManual);
    for (int index = 0; index < 3; ++index) {
        pGraph->setActive(index, true);
        pGraph->setParameterName(index, QString("Trace %1").arg(index), "bar");
        std::vector<double> times, values;
        for (int i = 0; i < 2000 * (index + 1); ++i) {
            times.push_back(i * 0.05);
            values.push_back(std::sin(i * 0.01) * (index + 1));
        }
        pGraph->model().putValues(index, times, values);
    }
    pGraph->model().traces().edit(1, [](GraphParameter& trace) { trace.bands = {{1.0, INFINITY, QColor(255, 0, 0)}}; });
    pGraph->model().setWindow({0, 150});
    pGraph->setMarker(20, 60);
    pGraph->setCursorPosition(90);
    pGraph->show();
    QVERIFY(QTest::qWaitForWindowExposed(pGraph.get()));
    QVERIFY(drawsNoMore(*pGraph));
    const QImage drawn = pGraph->grab().toImage().convertToFormat(QImage::Format_RGB32);
    QImage painted(pGraph->size(), QImage::Format_RGB32);
    QPainter painter(&painted);
    RasterCanvas canvas(painter);
    pGraph->paintOn(canvas, pGraph->size(), 1);
    painter.end();
    QCOMPARE_LE(std::max(difference(drawn, painted), difference(painted, drawn)), 0.002);
}

/// The program's own start: the surface format comes before the first window.
int main(int argc, char** argv)
{
    QSurfaceFormat::setDefaultFormat(GraphicsCheck::surfaceFormat());
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
    TestDialogDataGraph test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestDialogDataGraph.moc"
