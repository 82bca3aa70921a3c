#include "analysis/LimitEvents.h"
#include "analysis/WarningEvents.h"
#include "app/Property.h"
#include "app/gui/GraphicsCheck.h"
#include "openstreet/TileHost.h"
#include "project/Project.h"
#include "sim/DemoCard.h"
#include "support/TestCycle.h"
#include "ui/map/DialogDataMap.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

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
        profile.loadProfile(QStringLiteral(ZARN_SOURCE_DIR "/resources/profiles/915/Profile.xml"), "");
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
        dialog = std::make_unique<DialogDataMap>(Session{flight().console, property, flight().profile, flight().container, project}, data.path());
        dialog->resize(900, 700);
        dialog->show();
        isShown = QTest::qWaitForWindowExposed(dialog.get());
    }
    void load()
    {
        dialog->updateProfile();
        dialog->updateRecord(&flight().container.recordData());
        dialog->setEvents(limitEvents(flight().container.recordData(), flight().profile), warningEvents(flight().container.recordData(), flight().profile));
        dialog->setTime(flight().container.flightPath()[flight().container.flightPath().size() / 3].time);
    }
    /// A picture of the window as it is on the screen; kept where ZARN_PICTURES names a folder.
    QImage picture(const char* name)
    {
        QTest::qWait(60);
        const QImage image = dialog->grab().toImage();
        if (const QByteArray folder = qgetenv("ZARN_PICTURES"); !folder.isEmpty())
            image.save(QString::fromUtf8(folder) + QLatin1Char('/') + QLatin1String(name) + QLatin1String(".png"));
        return image;
    }
    WidgetMap& map() { return *dialog->mapWidget(); }
    void settle()
    {
        QTRY_VERIFY(!map().navigator().isMoving());
        QTRY_COMPARE(map().map().nrLoadingTiles(), 0);
        QTest::qWait(100);
    }
    QPushButton* button(const char* name) { return dialog->findChild<QPushButton*>(QLatin1String(name)); }

    QTemporaryDir data;
    Property property{flight().console};
    Project project{flight().console, flight().profile};
    std::unique_ptr<DialogDataMap> dialog;
    bool isShown = false;
};

} // namespace

class TestDialogDataMap : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void offline();
};

void TestDialogDataMap::offline()
{
    Window window;
    QVERIFY(window.isShown && flight().isLoaded);
    window.load();
    window.settle();
    window.picture("offline");
    window.map().zoomCentered(400000);
    window.settle();
    window.picture("offline-wide");
    window.map().zoomCentered(7e7);
    window.settle();
    window.picture("offline-world");
}

int main(int argc, char** argv)
{
    QSurfaceFormat::setDefaultFormat(GraphicsCheck::surfaceFormat());
    QApplication application(argc, argv);
    TestDialogDataMap test;
    return QTest::qExec(&test, argc, argv);
}
#include "TestDialogDataMap.moc"
