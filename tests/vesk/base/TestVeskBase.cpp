#include "vesk/base/Directory.h"

#include <QTemporaryDir>
#include <QtTest>

#include <filesystem>
#include <fstream>

using namespace VESK;

class TestVeskBase : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void directories_data();
    void directories();
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

QTEST_GUILESS_MAIN(TestVeskBase)
#include "TestVeskBase.moc"
