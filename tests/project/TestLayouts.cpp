#include "project/LayoutStore.h"
#include "support/FileHelpers.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QTemporaryDir>
#include <QTest>

using namespace ZARN;

/// Files of layouts, from whoever wrote them, and the store of shipped and own ones.
class TestLayouts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reads_data();
    void reads();
    void store();
};

void TestLayouts::reads_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("kept"); // as the file that is written of it, blanks taken out; empty: no layouts
    const auto row = [](const char* name, const QByteArray& layouts, const QString& kept) {
        QTest::newRow(name) << "<ZarnLayouts>" + layouts + "</ZarnLayouts>"
                            << "<ZarnLayouts>" + kept + "</ZarnLayouts>";
    };
    const QString whole = "<Layout mode=\"single\" name=\"Own\"><Scale upper=\"1000000000\" lower=\"-2.5\"/>"
                          "<Parameter height=\"2.25\" name=\"B\" color=\"#ff8000\"/><Parameter name=\"A\"/></Layout>";
    row("round trip", whole.toUtf8(), whole);
    const QString zoomed = "<Layout mode=\"split\" scales=\"unit\" name=\"Zoomed\">"
                           "<Parameter name=\"A\" upper=\"95.5\" lower=\"80\" unit=\"bar\"/></Layout>";
    row("scales", zoomed.toUtf8(), zoomed);
    row("numbers beyond measure",
        "<Layout name='N'><Scale lower='-inf' upper='1'/><Parameter name='A' height='1e300'/><Parameter name='B' height='-1'/>"
        "<Parameter name='C' height='nan' lower='2' upper='1'/><Parameter name='D' color='red'/><Parameter name='E' color='#12345'/></Layout>",
        "<Layout mode=\"split\" name=\"N\"><Parameter name=\"A\"/><Parameter height=\"0.2\" name=\"B\"/>"
        "<Parameter name=\"C\"/><Parameter name=\"D\"/><Parameter name=\"E\"/></Layout>");
    row("names",
        "<Layout/><Layout name=' \t'/><Layout name='\xE2\x80\xAE A&#9;b '/><Layout name='A b'/><Layout name='" +
            QByteArray(70000 / 2, 'x') + "'><Parameter/><Parameter name='P'/><Parameter name='P' height='2'/></Layout>",
        "<Layout mode=\"split\" name=\"A b\"/><Layout mode=\"split\" name=\"" + QString(60, 'x') + "\"><Parameter name=\"P\"/></Layout>");
    QByteArray many, parameters;
    for (int i = 0; i < 1000; ++i) {
        many += "<Layout name='" + QByteArray::number(i) + "'/>";
        parameters += "<Parameter name='" + QByteArray::number(i) + "'/>";
    }
    row("too many", "<Layout name='P'>" + parameters + "</Layout>" + many, "200 300");
    QTest::newRow("another file") << QByteArray("<ZarnProject><Layout name='A'/></ZarnProject>") << QString();
    QTest::newRow("no XML") << QByteArray("<ZarnLayouts><Layout name='A'/>") << QString();
    QTest::newRow("entities") << QByteArray("<!DOCTYPE a [<!ENTITY b 'c'>]><ZarnLayouts><Layout name='&b;'/></ZarnLayouts>") << QString();
}

void TestLayouts::reads()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, kept);
    const Test::TestCycle cycle;
    const QTemporaryDir folder;
    putFile(folder.filePath("given.xml").toStdString(), content.toStdString());
    LayoutStore store(cycle.console, folder.filePath("own.xml"), "de");
    QCOMPARE(store.importFrom(folder.filePath("given.xml")).isEmpty(), kept.isEmpty());
    if (kept.contains("200 300")) {
        QCOMPARE(store.all().size(), std::size_t(200));
        QCOMPARE(store.all().front().parameters.size(), std::size_t(300));
        return;
    }
    const QString written = QString::fromStdString(fileContent(folder.filePath("own.xml").toStdString()));
    QCOMPARE(QString(written).remove('\n').remove("    "), kept);
    QCOMPARE(LayoutStore(cycle.console, folder.filePath("own.xml"), {}).all(), store.all());
}

void TestLayouts::store()
{
    const Test::TestCycle cycle;
    const QTemporaryDir folder;
    const QString own = folder.filePath("own.xml");
    putFile(folder.filePath("Layouts.xml").toStdString(), "<ZarnLayouts><Layout name='Tow' name.de='Schlepp'/></ZarnLayouts>");
    putFile(own.toStdString(), "<Other/>");
    LayoutStore store(cycle.console, own, "de");
    QVERIFY(store.isUnread());
    store.setProfileFolders({folder.filePath("none"), folder.path()});
    QVERIFY(store.isShippedText("Schlepp") && !store.isShipped("Schlepp"));
    DisplayLayout layout;
    layout.name = "Tow";
    layout.parameters = {{"A", 1.0, {}}, {"Gone", 1.0, {}}};
    QVERIFY(!store.save(layout)); // the profile's
    layout.name = "Mine";
    QVERIFY(store.save(layout) && store.rename("Mine", "Ours") && !store.rename("Ours", "Tow"));
    QCOMPARE(fileContent((own + ".damaged-1").toStdString()), std::string("<Other/>")); // nothing that was there is lost
    QVERIFY(store.exportTo(folder.filePath("one.xml"), "Ours"));
    QCOMPARE(store.importFrom(folder.filePath("one.xml")), QStringList{"Ours 2"});
    QVERIFY(store.remove("Ours") && !store.remove("Tow"));
    LayoutStore next(cycle.console, own, "us");
    QCOMPARE(next.all().size(), std::size_t(1));
    QCOMPARE(next.find("Ours 2")->parameters, layout.parameters);
    Profile profile(cycle.console);
    QVERIFY(Test::ProfileBuilder().device("1").parameter("A", 1, "FLOAT").load(profile));
    QCOMPARE(LayoutStore::missing(layout, profile), QStringList{"Gone"});
}

QTEST_GUILESS_MAIN(TestLayouts)
#include "TestLayouts.moc"
