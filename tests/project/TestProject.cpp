#include "project/Project.h"
#include "support/FileHelpers.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QTemporaryDir>
#include <QTest>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

QString joined(const std::set<std::string>& names)
{
    QStringList list;
    for (const std::string& name : names)
        list << QString::fromStdString(name);
    return list.join(',');
}

QString joined(const std::map<std::string, std::string>& properties)
{
    QStringList list;
    for (const auto& [id, value] : properties)
        list << QString::fromStdString(id + "=" + value);
    return list.join(',');
}

} // namespace

class TestProject : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void savesThroughTheProfilesOrder();
    void reads_data();
    void reads();
    void refuses_data();
    void refuses();
    void namesOutliveTheProfile();
    void failedSaveKeepsTheOldFile();

private:
    struct State {
        TestCycle cycle;
        QTemporaryDir folder;
        Project project{cycle.console, cycle.profile};
    };
    QString path(const QString& name = "Project.xml") const { return mState->folder.filePath(name); }
    QString write(const QByteArray& content) const
    {
        putFile(path().toStdString(), content.toStdString());
        return path();
    }
    [[nodiscard]] QString selected() const
    {
        QStringList names;
        for (const ProfileDevice& device : mState->cycle.profile.data()) {
            for (const ProfileParameter& parameter : device.parameters) {
                if (mState->cycle.profile.isSelected(parameter.name))
                    names << QString::fromStdString(parameter.name);
            }
        }
        return names.join(',');
    }
    Project& project() { return mState->project; }
    Profile& profile() { return mState->cycle.profile; }

    std::unique_ptr<State> mState;
};

/// Each test starts with the parameters Z, A in device 1, A, Ü<&" in device 2, of which Z is selected, and with one CAN property.
void TestProject::init()
{
    mState = std::make_unique<State>();
    QVERIFY(ProfileBuilder().device("1").parameter("Z", 1, "FLOAT").parameter("A", 2, "FLOAT").device("2").parameter("A", 3, "FLOAT")
                .parameter(QString::fromUtf8("Ü<&\""), 4, "FLOAT").load(profile()));
    profile().setSelected("Z", true);
    project().setCanProperties({{"old", "kept"}});
}

void TestProject::savesThroughTheProfilesOrder()
{
    profile().setSelected("A", true);
    profile().setSelected("Ü<&\"", true);
    profile().setSelected("not in the profile", true);
    project().setCanProperties({{"b", "2"}, {"a", "<1>"}, {"", "no id"}});
    QVERIFY(project().saveProject(path()));
    QCOMPARE(QString::fromStdString(fileContent(path().toStdString())),
             "<ZarnProject>\n"
             "    <Parameters>\n"
             "        <Parameter name=\"Z\"/>\n"
             "        <Parameter name=\"A\"/>\n" // once for each parameter of that name
             "        <Parameter name=\"A\"/>\n"
             "        <Parameter name=\"Ü&lt;&amp;&quot;\"/>\n"
             "    </Parameters>\n"
             "    <CanProperties>\n"
             "        <Property id=\"\" value=\"no id\"/>\n"
             "        <Property id=\"a\" value=\"&lt;1>\"/>\n"
             "        <Property id=\"b\" value=\"2\"/>\n"
             "    </CanProperties>\n"
             "</ZarnProject>\n");
}

void TestProject::reads_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("selection");
    QTest::addColumn<QString>("properties");

    const auto row = [](const char* name, const char* children, const QString& names, const QString& selection, const QString& properties) {
        QTest::newRow(name) << QByteArray("<Root>") + children + "</Root>" << names << selection << properties;
    };
    row("replaces what it states", "<Parameters><Parameter name='A'/></Parameters><CanProperties><Property id='i' value='v'/></CanProperties>",
        "A", "A,A", "i=v");
    row("no parameters leave them", "<CanProperties/>", "Earlier,Z", "Z", "");
    row("empty lists empty", "<Parameters/><CanProperties/>", "", "", "");
    row("a parameter that the profile lacks", "<Parameters><Parameter name='Gone'/><Parameter name='Z'/></Parameters>", "Gone,Z", "Z", "old=kept");
    row("lists that stand twice add up",
        "<Parameters><Parameter name='A'/></Parameters><CanProperties><Property id='a' value='1'/></CanProperties>"
        "<Parameters><Parameter name='Z'/></Parameters><CanProperties><Property id='a' value='2'/><Property id='b' value='3'/></CanProperties>",
        "A,Z", "Z,A,A", "a=2,b=3");
    row("foreign elements, other case, text, depth",
        "text<!-- note --><parameters><Parameter name='A'/></parameters><Other><CanProperties><Property id='x' value='y'/></CanProperties></Other>"
        "<Parameters><parameter name='A'/><Other><Parameter name='A'/></Other><Parameter name='Z'/></Parameters>",
        "Z", "Z", "old=kept");
    row("missing attributes are empty", "<Parameters><Parameter/></Parameters><CanProperties><Property/></CanProperties>", "", "", "=");
    const QString marked = QString::fromUtf8("Ü<&\"");
    row("markup in names", "<Parameters><Parameter name='\xC3\x9C&lt;&amp;&quot;'/></Parameters>", marked, marked, "old=kept");
}

void TestProject::reads()
{
    QFETCH(QByteArray, content);
    project().readProject(write("<P><Parameters><Parameter name='Z'/><Parameter name='Earlier'/></Parameters></P>"));
    QVERIFY(project().readProject(write(content)));
    QTEST(joined(project().parameterNames()), "names");
    QTEST(selected(), "selection");
    QTEST(joined(project().canProperties()), "properties");
}

void TestProject::refuses_data()
{
    QTest::addColumn<QByteArray>("content"); // null: no file, "/": a folder
    QTest::addColumn<QString>("line");

    QTest::newRow("no file") << QByteArray() << "could not open file <%1>\n";
    QTest::newRow("empty") << QByteArray("") << "could not set content <%1>\n";
    QTest::newRow("entities") << QByteArray("<!DOCTYPE P [<!ENTITY a 'b'>]><P><Parameters/></P>") << "could not set content <%1>\n";
    QTest::newRow("too deep") << QByteArray("<a>").repeated(70) + QByteArray("</a>").repeated(70) << "could not set content <%1>\n";
}

void TestProject::refuses()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, line);
    if (content == "/")
        QVERIFY(QDir().mkdir(path()));
    else if (!content.isNull())
        write(content);
    mState->cycle.lines.clear();
    QVERIFY(!project().readProject(path()));
    QCOMPARE(QString::fromStdString(mState->cycle.lines), line.arg(path()));
    QCOMPARE(selected(), "Z");
    QCOMPARE(joined(project().canProperties()), "old=kept");
    QVERIFY(project().saveProject(path()) && project().file().isWritten());
    const QString aside = path("Project.xml.damaged-1");
    QCOMPARE(QFileInfo::exists(aside), !content.isNull());
    QVERIFY(content.isNull() || QFileInfo(aside).isDir() || fileContent(aside.toStdString()) == content.toStdString());
}

void TestProject::namesOutliveTheProfile()
{
    QVERIFY(project().readProject(write("<P><Parameters><Parameter name='Later'/><Parameter name='Z'/></Parameters></P>")));
    profile().setSelected("Z", false);
    profile().setSelected("A", true);
    QVERIFY(project().saveProject(path())); // takes the flags of the current profile over
    QCOMPARE(joined(project().parameterNames()), "A,Later");
    QVERIFY(ProfileBuilder().device("1").parameter("Later", 1, "FLOAT").parameter("Z", 2, "FLOAT").load(profile()));
    project().setProfileData();
    QCOMPARE(selected(), "Later");
}

void TestProject::failedSaveKeepsTheOldFile()
{
    const QString target = path("no such folder/Project.xml");
    mState->cycle.lines.clear();
    QVERIFY(project().saveProject(target)); // the console has the failure
    QVERIFY(!project().file().isWritten());
    QCOMPARE(QString::fromStdString(mState->cycle.lines), QString("could not open file for writing !<%1>\n").arg(target));
    QCOMPARE(entryCount(mState->folder.path().toStdString()), 0L);
}

QTEST_GUILESS_MAIN(TestProject)
#include "TestProject.moc"
