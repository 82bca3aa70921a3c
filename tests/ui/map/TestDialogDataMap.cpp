#include "analysis/LimitEvents.h"
#include "analysis/WarningEvents.h"
#include "app/Property.h"
#include "ui/gl/GraphicsCheck.h"
#include "openstreet/TileHost.h"
#include "project/Project.h"
#include "sim/DemoCard.h"
#include "support/CardBuilder.h"
#include "support/Places.h"
#include "support/RecordingCanvas.h"
#include "support/TestCycle.h"
#include "ui/map/DialogDataMap.h"
#include "ui/map/MapAttribution.h"
#include "ui/map/MapPanels.h"
#include "ui/map/MapProfile.h"
#include "ui/map/MapValueTable.h"

#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QScreen>
#include <QSet>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>

using namespace ZARN;
using OpenStreet::Test::TileHost;

namespace {

/// The demo card's first cycle with a flight, read once; and a map over it with settings and a data folder of its own.
struct Flight : Test::TestCycle {
    Flight()
    {
        DemoCardOptions options;
        std::string error;
        DemoCard().write(folder.path().toStdString(), options, error);
        profile.loadProfile(sourceDir() + "/resources/profiles/915/Profile.xml", "");
        container.readContainer(folder.path());
        for (const auto& [number, cycle] : container.recordCycles())
            isLoaded = isLoaded || (container.loadCycle(number, -1) && !container.loadedCycle()->flights.empty());
        for (const char* key : {"Altitude", "GroundSpeed", "Latitude", "Longitude"})
            profile.setSelected(profile.getParameterFromZarnType(key).name, true);
    }
    QTemporaryDir folder;
    bool isLoaded = false;
};

Flight& flight()
{
    static Flight data;
    return data;
}

struct Window {
    explicit Window(const QString& server = QStringLiteral("http://127.0.0.1:9/{z}/{x}/{y}.png"))
    {
        property.setString("TileServer", server.toStdString());
        property.setConfigFile(data.filePath("ZARN.ini").toStdString());
        reopen();
    }
    void load()
    {
        dialog->updateProfile();
        dialog->updateRecord(&flight().container.recordData());
        dialog->setEvents(limitEvents(flight().container.recordData(), flight().profile),
                          warningEvents(flight().container.recordData(), flight().profile));
        dialog->setTime(flight().container.flightPath()[flight().container.flightPath().size() / 3].time);
    }
    QImage picture() const { return dialog->grab().toImage(); }
    WidgetMap& map() { return *dialog->mapWidget(); }
    void settle()
    {
        const MapScene& scene = map().scene(); // what is worked out beside the window has come
        QTRY_VERIFY_WITH_TIMEOUT(scene.path().isEmpty() || scene.marks().size() > 0, 20000);
        QSignalSpy looks(map().findChild<QTimer*>({}, Qt::FindDirectChildrenOnly), &QTimer::timeout);
        const auto isStill = [&] {
            if (map().navigator().isMoving() || map().map().nrLoadingTiles() != 0 || map().isDirty())
                looks.clear();
            return looks.count() > 2; // what a frame brings with it was looked at, too
        };
        QTRY_VERIFY_WITH_TIMEOUT(isStill(), 20000);
    }
    /// The next start of the program.
    void reopen()
    {
        dialog = std::make_unique<DialogDataMap>(session(), data.path());
        dialog->resize(900, 700);
        dialog->show();
        isShown = QTest::qWaitForWindowExposed(dialog.get());
    }
    Session session() { return {flight().console, property, flight().profile, flight().container, project}; }
    QWidget* consentBar() { return dialog->findChild<QWidget*>(QStringLiteral("consentBar")); }
    MapToolPanel* tools() { return dialog->findChild<MapToolPanel*>(); }
    bool isCentring() { return tools()->isChecked(MapToolPanel::kCentreAircraft); }
    QPushButton* button(const char* name) { return dialog->findChild<QPushButton*>(QLatin1String(name)); }

    QTemporaryDir data;
    Property property{flight().console};
    Project project{flight().console, flight().profile};
    std::unique_ptr<DialogDataMap> dialog;
    bool isShown = false;
};

/// Whether the picture has pixels of the colour; a tile of the tile host is pale green.
bool shows(const QImage& picture, QRgb colour)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if ((picture.pixel(x, y) & 0xffffffU) == (colour & 0xffffffU))
                return true;
        }
    }
    return false;
}

/// Texts and edges are smoothed a little differently by the two.
bool isOther(QRgb a, QRgb b)
{
    return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) + std::abs(qBlue(a) - qBlue(b)) > 150;
}

constexpr QRgb kTile = qRgb(214, 232, 205);
const QRgb kLand = Palette::light().map.land.rgb();
const QRgb kPath = Palette::light().map.path.rgb();

/// As the preferences do it.
void setPalette(Window& window, ColourTable::EMedium medium)
{
    Palette::setScreen(ColourTable::builtIn(), medium);
    for (QWidget* pWidget : window.dialog->findChildren<QWidget*>()) {
        QEvent change(QEvent::StyleChange);
        QCoreApplication::sendEvent(pWidget, &change);
    }
    window.settle();
}

} // namespace

class TestDialogDataMap : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void offline();
    void surfacesShowTheSame();
    void tilesAfterConsent();
    void flightWithoutPosition();
    void anotherUnitKeepsTheView();
    void onlyTheAircraftMoves();
    void pointerAndKeys();
    void picksTimes();
    void valuesAndColours();
    void nothingCoversThePath();
    void brushing();

private:
    TileHost mHost;
};

void TestDialogDataMap::initTestCase()
{
    QVERIFY(flight().isLoaded);
    QVERIFY(mHost.isRunning());
}

void TestDialogDataMap::offline()
{
    Window window;
    QVERIFY(window.isShown);
    window.settle();
    QVERIFY(!window.consentBar()->isVisible()); // without a path there is nothing to ask for
    window.load();
    window.settle();
    QVERIFY(window.consentBar()->isVisible());
    const QImage picture = window.picture();
    QVERIFY(shows(picture, kPath) && shows(picture, kLand));
    setPalette(window, ColourTable::eDark);
    Test::RecordingCanvas dark, paper; // as outlines, with those who made the map
    window.map().picture(false)->replay(dark);
    window.map().picture(true)->replay(paper);
    const QImage strip = window.dialog->findChild<MapProfile*>()->grab().toImage();
    setPalette(window, ColourTable::eLight);
    const auto hasPath = [](const Test::RecordingCanvas& canvas) {
        return std::ranges::any_of(canvas.strips, [](const auto& one) { return one.pen.colour.rgb() == kPath; });
    };
    QVERIFY(!hasPath(dark) && hasPath(paper) && paper.texts.back().second.startsWith("Natural Earth"));
    QVERIFY(!shows(strip, Palette::light().map.stripGround.rgb()));
    window.dialog->updateRecord(nullptr);
    window.dialog->setTime(5.0);
    window.settle();
    QVERIFY(!shows(window.picture(), kPath));
}

void TestDialogDataMap::surfacesShowTheSame()
{
    QImage pictures[2];
    for (const bool isSoftware : {false, true}) {
        qputenv("ZARN_GRAPHICS", isSoftware ? "software" : "card");
        Window window;
        window.load();
        window.settle();
        pictures[isSoftware] = window.picture().convertToFormat(QImage::Format_RGB32);
        QVERIFY(shows(pictures[isSoftware], kPath) && shows(pictures[isSoftware], kLand));
    }
    qunsetenv("ZARN_GRAPHICS");
    QCOMPARE(pictures[0].size(), pictures[1].size());
    int different = 0;
    for (int y = 0; y < pictures[0].height(); ++y) {
        for (int x = 0; x < pictures[0].width(); ++x)
            different += isOther(pictures[0].pixel(x, y), pictures[1].pixel(x, y)) ? 1 : 0;
    }
    QVERIFY2(different < pictures[0].width() * pictures[0].height() / 1000, qPrintable(QString::number(different)));
}

void TestDialogDataMap::tilesAfterConsent()
{
    mHost.clearLog();
    Window window(mHost.address());
    window.load();
    window.settle();
    QVERIFY(mHost.requests().isEmpty());
    QVERIFY(window.consentBar()->findChild<QLabel*>()->text().remove(QChar(0x200b)).contains(mHost.name()));
    const auto* pSources = window.dialog->findChild<MapAttribution*>();
    QVERIFY(pSources->text().contains("Natural Earth") && !pSources->text().contains("OpenStreetMap")); // what is shown
    QTest::mouseClick(window.button("consentYes"), Qt::LeftButton);
    QVERIFY(!window.consentBar()->isVisible());
    window.settle();
    QTRY_VERIFY(pSources->text().contains("OpenStreetMap") && pSources->text().contains(mHost.name()) && !pSources->text().contains("Natural"));
    const QImage picture = window.picture();
    QVERIFY(shows(picture, kTile) && shows(picture, kPath) && !shows(picture, kLand));
    setPalette(window, ColourTable::eDark); // tiles stay as they come, and so does what is drawn on them
    QVERIFY(shows(window.picture(), kTile) && shows(window.picture(), kPath));
    setPalette(window, ColourTable::eLight);
    const OpenStreet::TileCover cover(window.map().navigator().camera(), window.map().devicePixelRatioF(), 19);
    QSet<QString> allowed;
    for (const OpenStreet::TileId& id : cover.ids())
        allowed << window.map().map().tileServer().url(id).path();
    QTRY_COMPARE(mHost.requests().size(), allowed.size());
    for (const auto& request : mHost.requests()) {
        QVERIFY2(allowed.contains(request.path), qPrintable(request.path));
        const QRegularExpression agent("^ZARN/\\d+\\.\\d+\\.\\d+ \\(\\+https://\\S+;");
        QVERIFY2(agent.match(request.userAgent).hasMatch(), qPrintable(request.userAgent));
    }
    Property stored(flight().console); // the answer is with the settings, and can be taken back there
    stored.readXmlFile(window.data.filePath("ZARN.ini").toStdString());
    QCOMPARE(QString::fromStdString(stored.getString("MapTilesAllowed", "")), mHost.address());
    mHost.clearLog();
    for (const bool isOffline : {false, true}) { // taken back; agreed to, and offline
        if (!isOffline)
            QTest::mouseClick(window.button("consentNo"), Qt::LeftButton);
        window.property.setString("MapOffline", isOffline ? "true" : "false");
        window.property.setString("MapTilesAllowed", isOffline ? mHost.address().toStdString() : "no");
        QTest::keyClick(&window.map(), Qt::Key_Plus);
        window.load();
        window.settle();
        QVERIFY(!window.consentBar()->isVisible() && mHost.requests().isEmpty());
    }
}

void TestDialogDataMap::flightWithoutPosition()
{
    Test::CardBuilder card;
    card.file("A.CAN").dateTime(QDateTime({2026, 5, 1}, {12, 0})).addWord(1, 10.0, 5);
    Test::TestCycle bare;
    bare.container.readContainer(card.write());
    bare.container.loadCycle(0, -1);
    QVERIFY(!bare.container.recordData().channels().empty());
    Window window;
    DialogDataMap map({bare.console, window.property, bare.profile, bare.container, window.project}, window.data.path());
    map.updateRecord(&bare.container.recordData());
    map.show();
    const auto says = [&](const QString& text) {
        Test::RecordingCanvas canvas;
        map.mapWidget()->scene().drawAbove(canvas, map.mapWidget()->navigator().camera());
        return std::any_of(canvas.texts.begin(), canvas.texts.end(), [&](const auto& drawn) { return drawn.second == text; });
    };
    QTRY_VERIFY(says("No position recorded"));
    map.updateRecord(nullptr);
    QTRY_VERIFY(!says("No position recorded"));
}

void TestDialogDataMap::anotherUnitKeepsTheView()
{
    Window window;
    window.load();
    window.map().zoomCentered(5000.0);
    const auto recalculated = [&](EUnit unit) {
        flight().profile.setCurrentUnit(unit);
        flight().container.calcFlightPath();
        window.load();
        return window.map().navigator().camera().horizontalRange();
    };
    QVERIFY(recalculated(EUnit::eImperial) == 5000.0 && recalculated(EUnit::eMetric) == 5000.0);
    flight().container.calcFlightPath(); // as the flights are, after the unit
    window.dialog->updateFlights(&flight().container.recordData());
    QCOMPARE(window.map().navigator().camera().horizontalRange(), 5000.0);
    QVERIFY(recalculated(EUnit::eMetric) != 5000.0); // chosen again: the whole of it
}

void TestDialogDataMap::onlyTheAircraftMoves()
{
    qputenv("ZARN_GRAPHICS", "software");
    Window window;
    window.load();
    window.settle();
    const int grounds = window.map().groundPaints();
    const std::vector<FlightPathPoint>& path = window.map().scene().path().points();
    const auto nose = [&](std::size_t point) { // on the screen: grabbing the window would have it painted anew
        double x = 0, y = 0;
        window.map().latLong2Window(path[point].latitude, path[point].longitude, &x, &y);
        const QImage screen = window.dialog->screen()->grabWindow(window.dialog->winId()).toImage();
        return screen.pixelColor(window.map().mapTo(window.dialog.get(), QPointF(x, y)).toPoint());
    };
    const QColor aircraft = nose(path.size() / 3);
    for (const std::size_t point : {path.size() / 2, path.size() * 2 / 3}) {
        window.dialog->setTime(path[point].time); // the values change with it, and have their part of the window painted
        // Before a still view is painted anyway.
        QTRY_VERIFY_WITH_TIMEOUT(nose(point) == aircraft && nose(path.size() / 3) != aircraft, 600);
    }
    QCOMPARE(window.map().groundPaints(), grounds);
    const QImage after = window.picture();
    window.map().setDirty();
    QTRY_VERIFY(window.map().groundPaints() > grounds);
    QCOMPARE(window.picture(), after);
    qunsetenv("ZARN_GRAPHICS");
}

void TestDialogDataMap::pointerAndKeys()
{
    Window window;
    window.load();
    window.settle();
    WidgetMap& map = window.map();
    const auto placeAt = [&](const QPoint& point) { return map.navigator().camera().windowToGeo({double(point.x()), double(point.y())}); };
    const auto stays = [&](const OpenStreet::GeoPoint& place, const QPoint& point) {
        double x = 0, y = 0;
        map.latLong2Window(place.latitude, place.longitude, &x, &y);
        return std::hypot(x - point.x(), y - point.y()) < 1.5;
    };
    const QPoint pointer(440, 200);
    const double range = map.navigator().camera().horizontalRange();
    OpenStreet::GeoPoint place = placeAt(pointer);
    QWheelEvent wheel(pointer, map.mapToGlobal(pointer), {}, {0, 240}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&map, &wheel);
    QCOMPARE(map.navigator().camera().horizontalRange(), range); // eased
    window.settle();
    QVERIFY(map.navigator().camera().horizontalRange() < 0.6 * range && stays(place, pointer));

    QVERIFY(window.isCentring());
    place = placeAt(pointer);
    QTest::mousePress(&map, Qt::LeftButton, {}, pointer);
    QTest::mouseMove(&map, pointer + QPoint(30, 10));
    QTest::mouseMove(&map, pointer + QPoint(-80, 120));
    QTest::mouseRelease(&map, Qt::LeftButton, {}, pointer + QPoint(-80, 120));
    QVERIFY(stays(place, pointer + QPoint(-80, 120)));
    QVERIFY(!window.isCentring()); // else the next moment would take the view back

    QTest::keyClick(&map, Qt::Key_Up, Qt::AltModifier | Qt::ShiftModifier);
    QTest::keyClick(&map, Qt::Key_Left, Qt::AltModifier | Qt::ShiftModifier);
    window.settle();
    place = placeAt(pointer);
    QVERIFY(stays(place, pointer));
    QTest::keyClick(&map, Qt::Key_Escape);
    QTest::keyClick(&map, Qt::Key_F);
    window.settle();
    QVERIFY(map.navigator().isFitted());
}

void TestDialogDataMap::picksTimes()
{
    const int interval = QApplication::doubleClickInterval();
    const auto restore = qScopeGuard([interval] { QApplication::setDoubleClickInterval(interval); });
    QApplication::setDoubleClickInterval(40);
    Window window;
    window.load();
    window.settle();
    QSignalSpy picked(window.dialog.get(), &DialogDataMap::signalTime);
    const auto& dots = window.map().scene().events().dots();
    QVERIFY(!dots.empty());
    const FlightPathPoint at = window.dialog->calcPositionAtTime(dots.back().time);
    double x = 0, y = 0;
    window.map().latLong2Window(at.latitude, at.longitude, &x, &y);
    const QPoint dot(static_cast<int>(std::lround(x)), static_cast<int>(std::lround(y)));
    QHelpEvent help(QEvent::ToolTip, dot, window.map().mapToGlobal(dot));
    QCoreApplication::sendEvent(&window.map(), &help);
    QTRY_VERIFY(QToolTip::isVisible());
    QVERIFY(QToolTip::text().contains(QString::fromStdString(dots.back().text).toHtmlEscaped()));
    QTest::mouseClick(&window.map(), Qt::LeftButton, {}, dot);
    QTRY_COMPARE(picked.size(), 1);
    QCOMPARE(window.map().scene().aircraft().time, picked.front().front().toDouble());
    const FlightPathPoint there = window.dialog->calcPositionAtTime(picked.first().first().toDouble());
    QVERIFY(WidgetMap::calcDistance(there.latitude, there.longitude, at.latitude, at.longitude) < window.map().screenToCartesianSize(8.0));
    const auto hasPicked = [&window] { return window.map().interaction().hasPicked(); };
    QTest::mouseClick(&window.map(), Qt::LeftButton, {}, {20, window.map().height() - 60}); // far from the path
    QVERIFY(!hasPicked());
    QTest::mouseClick(&window.map(), Qt::LeftButton, {}, dot);
    QVERIFY(hasPicked());
    QTest::mouseDClick(&window.map(), Qt::LeftButton, {}, dot); // only zooms
    QVERIFY(!hasPicked() && picked.size() == 1);
}

void TestDialogDataMap::valuesAndColours()
{
    Window window;
    window.load();
    auto* pTable = window.dialog->findChild<MapValueTable*>();
    const auto texts = [&](int column) {
        QStringList result;
        for (int row = 0; row < pTable->model().rowCount(); ++row)
            result << pTable->model().index(row, column).data().toString();
        return result;
    };
    const ProfileParameter altitude = flight().profile.getParameterFromZarnType("Altitude");
    const auto& path = flight().container.flightPath();
    const auto value = flight().container.values().displayAt(altitude, path[path.size() / 3].time);
    const qsizetype row = texts(MapValueModel::eName).indexOf(QString::fromStdString(altitude.name));
    QVERIFY(row >= 0 && texts(MapValueModel::eName).size() == 4);
    QCOMPARE(texts(MapValueModel::eValue)[row], QString::fromStdString(value->text));
    QCOMPARE(texts(MapValueModel::eUnit)[row], QString::fromStdString(altitude.unitMetric));
    window.dialog->setTime(1e9);
    QCOMPARE(texts(MapValueModel::eValue).count("-"), 4); // no zero that was not measured
    QTest::mouseClick(window.button("consentNo"), Qt::LeftButton);
    for (const QSize& size : {QSize(900, 700), QSize(400, 360), QSize(300, 700)}) {
        window.dialog->resize(size);
        QTRY_VERIFY(window.map().width() * window.map().height() * 2 > size.width() * size.height()); // most of it is the map
        QVERIFY(!pTable->visualRect(pTable->model().index(0, MapValueModel::eValue)).isEmpty());
    }
    window.tools()->setChecked(MapToolPanel::kShowValues, false);
    QVERIFY(!pTable->isVisible());
    window.dialog->updateProfile();
    QVERIFY(!pTable->isVisible() && !window.property.getSwitch("MapShowValues", true));
}

/// Whatever the window's size, and whatever its colours mean: nothing that stands in the corners lies on the path.
void TestDialogDataMap::nothingCoversThePath()
{
    Window window;
    window.load();
    QTest::mouseClick(window.button("consentNo"), Qt::LeftButton);
    const MapScene& scene = window.map().scene();
    for (const QSize& size : {QSize(900, 700), QSize(451, 480), QSize(274, 500), QSize(657, 230)}) {
        window.dialog->resize(size);
        for (const char* colour : {"", "altitude", "phase"}) {
            window.property.setString("MapPathColour", colour);
            window.dialog->updateSettings();
            window.settle();
            const std::vector<QRectF> covers = scene.corners(window.map().size()).covers();
            // Tools, sources, scale, legend; that of the phases is long, and a low map has none.
            QVERIFY2(covers.size() == (*colour ? 4 : 3) || (covers.size() == 3 && colour == QLatin1String("phase") && size.height() < 480),
                     qPrintable(QString("%1 x %2 %3").arg(size.width()).arg(size.height()).arg(colour)));
            for (const FlightPathPoint& point : scene.path().points()) {
                QPointF at;
                window.map().latLong2Window(point.latitude, point.longitude, &at.rx(), &at.ry());
                const auto holds = [&at](const QRectF& cover) { return cover.contains(at); };
                QVERIFY2(QRectF(window.map().rect()).contains(at) && std::ranges::none_of(covers, holds),
                         qPrintable(QString("%1 x %2 %3").arg(size.width()).arg(size.height()).arg(colour)));
            }
        }
    }
}

void TestDialogDataMap::brushing()
{
    Window window;
    const auto& path = flight().container.flightPath();
    std::optional<TimeSpan> graph = TimeSpan{path[path.size() / 4].time, path[path.size() / 2].time};
    window.dialog->followSpan([&] { return graph; });
    QSignalSpy shown(&window.map(), &WidgetMap::signalShown);
    window.load();
    window.settle();
    QTRY_COMPARE(shown.size(), 1);
    graph = TimeSpan{-1e9, 1e9}; // the whole of it is no part
    QTRY_COMPARE(shown.size(), 2);
    QVERIFY(!qvariant_cast<std::optional<TimeSpan>>(shown.back()[0]));
    // A rectangle around a place of the path shows the time there; a click on the altitude picks its time.
    double x = 0, y = 0;
    const FlightPathPoint& place = path[path.size() / 3];
    window.map().latLong2Window(place.latitude, place.longitude, &x, &y);
    const QPoint middle(static_cast<int>(x), static_cast<int>(y));
    window.dialog->setTime(place.time);
    QSignalSpy moments(window.dialog.get(), &DialogDataMap::signalMoment);
    QTest::mousePress(&window.map(), Qt::LeftButton, Qt::ShiftModifier, middle - QPoint(15, 15));
    QTest::mouseMove(&window.map(), middle + QPoint(5, 5));
    QTest::mouseRelease(&window.map(), Qt::LeftButton, Qt::ShiftModifier, middle + QPoint(15, 15));
    QCOMPARE(moments.size(), 1);
    const auto moment = qvariant_cast<GraphMoment>(moments[0][0]);
    QVERIFY(moment.span.holds(place.time) && moment.span.end - moment.span.start < 0.5 * (path.back().time - path.front().time));
    QVERIFY(std::fabs(moment.time - place.time) < 0.1);
    auto* pProfile = window.dialog->findChild<MapProfile*>();
    QVERIFY(pProfile->isVisible());
    QSignalSpy picked(window.dialog.get(), &DialogDataMap::signalTime);
    QTest::mouseClick(pProfile, Qt::LeftButton, {}, {pProfile->width() / 4, 5});
    const double expected = path.front().time + 0.25 * (path.back().time - path.front().time);
    QVERIFY(picked.size() == 1 && std::fabs(picked[0][0].toDouble() - expected) < 0.01 * (path.back().time - path.front().time));

    // A file from the middle of the cycle: its path has points from power-up on, and nothing of that was recorded.
    CardContainer& card = flight().container;
    const unsigned int cycle = *card.loadedCycleNumber();
    const auto restore = qScopeGuard([&] { card.loadCycle(cycle, -1); });
    card.loadFiles({card.loadedCycle()->files.back().get().fileName});
    window.dialog->updateRecord(&card.recordData());
    QTest::mouseClick(pProfile, Qt::LeftButton, {}, {0, 5});
    QVERIFY(card.startTime() > 1000.0 && picked.size() == 2 && std::fabs(picked[1][0].toDouble() - card.startTime()) < 1.0);
}

int main(int argc, char** argv)
{
    const QTemporaryDir cache;
    qputenv("XDG_CACHE_HOME", cache.path().toUtf8());
    QSurfaceFormat::setDefaultFormat(GraphicsCheck::surfaceFormat());
    QApplication application(argc, argv);
    TestDialogDataMap test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestDialogDataMap.moc"
