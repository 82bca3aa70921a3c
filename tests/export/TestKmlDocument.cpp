#include "app/Property.h"
#include "export/KmlExportOptions.h"
#include "support/TestCycle.h"

#include <QTest>

using namespace ZARN;
using namespace ZARN::Test;

class TestKmlDocument : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void outOfRange_data();
    void outOfRange();
};

void TestKmlDocument::outOfRange_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("taken"); // of a settings file that has it all the same

    QTest::newRow("opacity below") << "KmlLineAlpha" << "-1" << "an opacity from 0 to 255" << "0";
    QTest::newRow("opacity above") << "KmlPolygonAlpha" << "256" << "an opacity from 0 to 255" << "255";
    QTest::newRow("width") << "KmlLineWidth" << "-3" << "a width from 0 on" << "0";
    QTest::newRow("step") << "KmlTimeStamp" << "0" << "a number of seconds from 1 on" << "1";
    QTest::newRow("interval") << "KmlPlaceMarkIntervall" << "-2" << "a number of path points from 1 on" << "1";
    QTest::newRow("no colour") << "KmlLineColor" << "12345g" << "a colour of six hexadecimal digits" << "ff0000";
    QTest::newRow("no colour at all") << "KmlErrorMarkColor" << "" << "a colour of six hexadecimal digits" << "ff0000";
}

void TestKmlDocument::outOfRange()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QString, wanted);
    QCOMPARE(QString::fromStdString(KmlExportOptions::problem(key.toStdString(), value.toStdString())), key + ": must be " + wanted);
    const TestCycle cycle;
    Property settings(cycle.console);
    settings.setString(key.toStdString(), value.toStdString());
    KmlExportOptions options;
    options.read(settings);
    options.write(settings);
    QTEST(QString::fromStdString(settings.getString(key.toStdString(), "")), "taken");
}

QTEST_GUILESS_MAIN(TestKmlDocument)
#include "TestKmlDocument.moc"
