#include "app/Property.h"
#include "project/Project.h"
#include "support/TestCycle.h"
#include "ui/map/DialogDataMap.h"

#include <QLabel>
#include <QTest>

using namespace ZARN;

/// Runs on a platform that has no OpenGL.
class TestMapWithoutGraphics : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void saysSo();
};

void TestMapWithoutGraphics::saysSo()
{
    Test::TestCycle data;
    Property property(data.console);
    Project project(data.console, data.profile);
    QTemporaryDir folder;
    DialogDataMap map({data.console, property, data.profile, data.container, project}, folder.path());
    map.resize(600, 400);
    map.show();
    QVERIFY(!map.mapWidget());
    map.updateProfile();
    map.updateRecord(&data.container.recordData());
    map.setEvents({}, {});
    map.setTime(3.0);
    map.slotCommandToggled(0, true);
    map.slotConsent(true);
    map.updateSettings();
    QCOMPARE(map.calcPositionAtTime(3.0).time, 0.0);
    QVERIFY(map.findChild<QLabel*>()->text().contains("OpenGL"));
}

QTEST_MAIN(TestMapWithoutGraphics)
#include "TestMapWithoutGraphics.moc"
