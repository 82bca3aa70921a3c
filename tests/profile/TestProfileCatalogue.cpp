#include "profile/ProfileCatalogue.h"
#include "support/ConsoleText.h"
#include "support/FileHelpers.h"
#include "support/ProfileBuilder.h"

#include <QTemporaryDir>
#include <QTest>

using namespace ZARN;
using Test::ProfileBuilder;

namespace {

/// The two folders in which a catalogue looks.
class Folders {
public:
    [[nodiscard]] QString shipped() const { return mRoot.path() + "/Resources/profiles/"; }
    [[nodiscard]] QString user() const { return mRoot.path() + "/data/profiles/"; }
    [[nodiscard]] QString path(const QString& name) const { return mRoot.filePath(name); }

    /// @return the path of the profile's file.
    static QString add(const QString& folder, const QString& name, const QStringList& variants = {})
    {
        return ProfileBuilder().variants(variants).write(make(folder + name));
    }
    static QString make(const QString& folder)
    {
        QDir().mkpath(folder);
        return folder;
    }
    [[nodiscard]] ProfileCatalogue catalogue(bool withData = true)
    {
        return {mConsole.console, mRoot.path().toStdString() + "/Resources/", withData ? mRoot.path().toStdString() + "/data" : ""};
    }

private:
    QTemporaryDir mRoot;
    ConsoleText mConsole;
};

QStringList texts(const ProfileCatalogue& catalogue)
{
    QStringList list;
    for (const ProfileEntry& entry : catalogue.entries())
        list << entry.text;
    return list;
}

} // namespace

class TestProfileCatalogue : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void entries_data();
    void entries();
    void userWinsWhenValid();
    void findsByTextAndPath();
    void installPath_data();
    void installPath();
};

void TestProfileCatalogue::entries_data()
{
    using Profiles = QMap<QString, QStringList>;
    QTest::addColumn<Profiles>("shipped");
    QTest::addColumn<Profiles>("user");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("none") << Profiles{} << Profiles{} << QStringList{};
    QTest::newRow("variants in file order") << Profiles{{"A", {"z", "y"}}} << Profiles{} << QStringList{"z", "y"};
    QTest::newRow("same folder name") << Profiles{{"A", {"old"}}} << Profiles{{"A", {"new"}}} << QStringList{"new"};
    QTest::newRow("same variant in two") << Profiles{{"A", {"v", "w"}}, {"B", {"v"}}} << Profiles{} << QStringList{"A/v", "w", "B/v"};
    QTest::newRow("variant named like a folder") << Profiles{{"A", {"B"}}, {"B", {}}} << Profiles{} << QStringList{"A/B", "B/B"};
    QTest::newRow("double and empty variants") << Profiles{{"A", {"v", "", "v"}}} << Profiles{} << QStringList{"v"};
}

void TestProfileCatalogue::entries()
{
    using Profiles = QMap<QString, QStringList>;
    QFETCH(const Profiles, shipped);
    QFETCH(const Profiles, user);
    Folders folders;
    for (auto profile = shipped.begin(); profile != shipped.end(); ++profile)
        Folders::add(folders.shipped(), profile.key(), profile.value());
    for (auto profile = user.begin(); profile != user.end(); ++profile)
        Folders::add(folders.user(), profile.key(), profile.value());
    const ProfileCatalogue catalogue = folders.catalogue();
    QTEST(texts(catalogue), "expected");
    for (const ProfileEntry& entry : catalogue.entries()) {
        QCOMPARE(catalogue.find(entry.text).path, entry.path);
        QCOMPARE(catalogue.find(entry.text).variant, entry.variant);
    }
}

void TestProfileCatalogue::userWinsWhenValid()
{
    Folders folders;
    const QString shippedA = Folders::add(folders.shipped(), "A");
    Folders::add(folders.shipped(), "B");
    const QString userB = Folders::add(folders.user(), "B");
    putFile((Folders::make(folders.user() + "A") + "/Profile.xml").toStdString(), "<ZarnProject/>");
    putFile((Folders::make(folders.user() + "C") + "/Profile.xml").toStdString(), "<CanAerospaceProfile>");
    Folders::make(folders.user() + "D");
    Folders::make(folders.user() + "E/Profile.xml");
    const ProfileCatalogue catalogue = folders.catalogue();
    QCOMPARE(texts(catalogue), (QStringList{"A", "B"}));
    QCOMPARE(catalogue.find("A").path, shippedA);
    QCOMPARE(catalogue.find("B").path, userB);
    QCOMPARE(texts(folders.catalogue(false)), (QStringList{"A", "B"}));
    QVERIFY(folders.catalogue(false).find("B").path != userB);
}

void TestProfileCatalogue::findsByTextAndPath()
{
    Folders folders;
    QVERIFY(folders.catalogue().find("A").path.isEmpty());
    const QString plain = Folders::add(folders.shipped(), "A");
    const QString varied = Folders::add(folders.shipped(), "B", {"one", "two"});
    const QString outside = Folders::add(folders.path("other/"), "elsewhere", {"one"});
    const ProfileCatalogue catalogue = folders.catalogue();
    const auto found = [&catalogue](const QString& setting) {
        const ProfileEntry entry = catalogue.find(setting);
        return QStringList{entry.text, entry.path, QString::fromStdString(entry.variant)};
    };
    QCOMPARE(found("two"), (QStringList{"two", varied, "two"}));
    QCOMPARE(found(plain), (QStringList{"A", plain, ""}));
    QCOMPARE(found(varied), (QStringList{varied, varied, ""}));
    QCOMPARE(found(outside), (QStringList{outside, outside, ""}));
    putFile(folders.path("no.xml").toStdString(), "<CanAerospaceProfil/>");
    for (const QString& nothing :
         {QString(), QString("Two"), folders.path("no.xml"), folders.path("missing"), folders.shipped()})
        QCOMPARE(found(nothing), (QStringList{"", "", ""}));
    QCOMPARE(found("B"), (QStringList{"one", varied, "one"})); // a folder stands for its first entry
    QCOMPARE(catalogue.entryOf(varied, "two").text, "two");
    QCOMPARE(catalogue.entryOf(varied, "three").text, "one");
    QCOMPARE(catalogue.entryOf(outside, "one").text, "");
}

void TestProfileCatalogue::installPath_data()
{
    QTest::addColumn<QString>("loaded"); // below the test's folder
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("withData");
    QTest::addColumn<QString>("expected");
    QTest::newRow("writable folder") << "Resources/profiles/A/Profile.xml"
                                     << "x.xml" << true << "Resources/profiles/A/Profile.xml";
    QTest::newRow("other file name") << "Resources/profiles/A/mine.xml"
                                     << "x.xml" << true << "Resources/profiles/A/Profile.xml";
    QTest::newRow("folder gone") << "gone/A/Profile.xml"
                                 << "x.xml" << true << "data/profiles/A/Profile.xml";
    QTest::newRow("no user data") << "gone/A/Profile.xml"
                                  << "x.xml" << false << "gone/A/Profile.xml";
    QTest::newRow("none loaded") << ""
                                 << "dir/new.one.xml" << true << "data/profiles/new.one/Profile.xml";
    QTest::newRow("none loaded, usual name") << ""
                                             << "dir/Profile.xml" << true << "data/profiles/dir/Profile.xml";
    QTest::newRow("nothing at all") << ""
                                    << "dir/new.xml" << false << "Resources/profiles/new/Profile.xml";
}

void TestProfileCatalogue::installPath()
{
    QFETCH(const QString, loaded);
    QFETCH(const QString, file);
    QFETCH(const bool, withData);
    QFETCH(const QString, expected);
    Folders folders;
    Folders::add(folders.shipped(), "A");
    const QString path = folders.catalogue(withData).installPath(loaded.isEmpty() ? QString() : folders.path(loaded), folders.path(file));
    QCOMPARE(path, folders.path(expected));
    QVERIFY(!QFileInfo::exists(folders.user()));
}

QTEST_GUILESS_MAIN(TestProfileCatalogue)
#include "TestProfileCatalogue.moc"
