#include "vesk/base/Directory.h"
#include "vesk/base/Geodesy.h"
#include "vesk/base/Timer.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cmath>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <limits>

using namespace VESK;

class TestVeskBase : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void directories_data();
    void directories();
    void knownPositions_data();
    void knownPositions();
};

void TestVeskBase::directories_data()
{
    QTest::addColumn<QString>("path"); // below a folder that holds the file "file" and the dangling link "dangling"
    QTest::addColumn<bool>("created");
    QTest::newRow("one level") << "a" << true;
    QTest::newRow("missing parents") << "b/c/d/e" << true;
    QTest::newRow("is there") << "" << true;
    QTest::newRow("is a file") << "file" << false;
    QTest::newRow("below a file") << "file/x" << false;
    QTest::newRow("dangling link") << "dangling" << false;
}

void TestVeskBase::directories()
{
    QFETCH(QString, path);
    QFETCH(bool, created);
    const QTemporaryDir folder;
    const std::string base = folder.path().toStdString() + "/";
    std::ofstream(base + "file") << "x";
    std::filesystem::create_symlink(base + "nowhere", base + "dangling");
    const std::string whole = base + path.toStdString();
    QCOMPARE(FileSystem::Directory::exists(whole), path.isEmpty());
    QCOMPARE(FileSystem::Directory::createDirectoryRecursive(whole), created);
    QCOMPARE(FileSystem::Directory::exists(whole), created);
    QVERIFY(!FileSystem::Directory::createDirectoryRecursive(""));
    QVERIFY(!FileSystem::Directory::exists(""));
}

void TestVeskBase::knownPositions_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::addColumn<double>("height");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("z");
    constexpr double equatorRadius = 6378137.0;
    constexpr double poleRadius = 6356752.314245179;
    QTest::newRow("equator") << 0.0 << 0.0 << 0.0 << equatorRadius << 0.0 << 0.0;
    QTest::newRow("equator east, aloft") << 0.0 << 90.0 << 1000.0 << 0.0 << equatorRadius + 1000.0 << 0.0;
    QTest::newRow("north pole") << 90.0 << 0.0 << 10.0 << 0.0 << 0.0 << poleRadius + 10.0;
}

void TestVeskBase::knownPositions()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    QFETCH(double, height);
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, z);
    const auto position = Geodesy::toGeocentric({latitude, longitude, height});
    QVERIFY(std::hypot(position.x - x, position.y - y, position.z - z) < 1e-6);
}

QTEST_GUILESS_MAIN(TestVeskBase)
#include "TestVeskBase.moc"
