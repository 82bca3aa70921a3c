#include "app/Property.h"
#include "profile/ProfileCatalogue.h"
#include "profile/ui/DialogProfileInfo.h"
#include "project/Project.h"
#include "support/FileHelpers.h"
#include "support/FullDisk.h"
#include "support/TestCycle.h"

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

using namespace ZARN;

namespace {

/// The window with its questions answered: which file, and "Ok" to every box, with a real click.
class AnsweredDialog : public DialogProfileInfo {
public:
    using DialogProfileInfo::DialogProfileInfo;

    QString answer;    // to the question for a file
    QStringList boxes; // icon, title, text and buttons of each box

protected:
    QString askProfileFile() override { return answer; }
    void showMessage(QMessageBox& box) override
    {
        QStringList buttons;
        for (const QAbstractButton* pButton : box.buttons())
            buttons << pButton->text();
        boxes << QString("%1|%2|%3|%4").arg(QString::number(box.icon()), box.windowTitle(), box.text(), buttons.join(','));
        QTimer::singleShot(0, &box, [&box] { QTest::mouseClick(box.buttons().front(), Qt::LeftButton); });
        DialogProfileInfo::showMessage(box);
    }
};

const std::string kOld = R"(<CanAerospaceProfile name="Old" version="1"><Variants><Variant name="A"/></Variants></CanAerospaceProfile>)";
const std::string kNew =
    R"(<CanAerospaceProfile name="New" version="2"><Variants><Variant name="X"/><Variant name="Y"/></Variants></CanAerospaceProfile>)";

/// An installation with the loaded profile "A" in a folder of its own.
struct Installation : Test::TestCycle {
    explicit Installation(const std::string& content = kOld)
    {
        QDir().mkpath(root.filePath("profiles/A"));
        putFile(installed, content);
        dialog.setProfileFile(root.filePath("profiles/A/Profile.xml"));
        load();
        dialog.show();
    }
    void load()
    {
        if (!profile.variants().empty())
            profile.setCurrentVariant(profile.variants().front().name);
        profile.loadProfile(root.filePath("profiles/A/Profile.xml"));
    }
    void install(const QString& name, const std::string& content)
    {
        putFile(root.filePath(name).toStdString(), content);
        choose(name);
    }
    void choose(const QString& name)
    {
        dialog.answer = root.filePath(name);
        lines.clear();
        Q_EMIT dialog.findChild<QLabel*>("link")->linkActivated("Install");
    }
    [[nodiscard]] QString shown() const { return dialog.findChild<QTextEdit*>()->toPlainText(); }

    QTemporaryDir root;
    std::string installed = root.filePath("profiles/A/Profile.xml").toStdString();
    Property property{console};
    Project project{console, profile};
    ProfileCatalogue catalogue{console, root.path().toStdString() + "/", root.filePath("data").toStdString()};
    AnsweredDialog dialog{Session{console, property, profile, container, project}, catalogue};
    QSignalSpy changed{&dialog, &DialogProfileInfo::signalProfileChanged};
};

} // namespace

class TestDialogProfileInfo : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void textsAreLiteral();
    void installsValid();
    void refusesInvalid_data();
    void refusesInvalid();
    void goesToUserData();
    void failedCopy();
};

void TestDialogProfileInfo::textsAreLiteral()
{
    const Installation installation(R"(<CanAerospaceProfile name="&lt;b&gt;%1 &amp;amp; co" version="%2" profileId="&lt;/table&gt;"
        comment="&lt;img src='x'&gt;"><Variants><Variant name="&lt;i&gt;%1"/><Variant name="B"/></Variants></CanAerospaceProfile>)");
    const QString text = installation.shown();
    for (const char* literal : {"<b>%1 &amp; co", "%2", "</table>", "<img src='x'>", "- <i>%1", "- B"})
        QVERIFY2(text.contains(literal), qPrintable(text));
    const QStringList labels{"Profile Name:", "Profile Version:", "Profile Id:", "Profile Comment:", "Variants: "};
    qsizetype last = -1;
    for (const QString& label : labels) {
        QVERIFY2(text.indexOf(label) > last, qPrintable(text));
        last = text.indexOf(label);
    }
}

void TestDialogProfileInfo::installsValid()
{
    Installation installation;
    installation.install("mine.xml", kNew);
    QCOMPARE(installation.dialog.boxes, QStringList{"1|ZARN Info|New profile installed !|Ok"});
    QCOMPARE(fileContent(installation.installed), kNew);
    QVERIFY(installation.lines.find("Copy profile to <" + installation.installed + ">\n") != std::string::npos);
    QCOMPARE(installation.profile.model().name, "New");
    QCOMPARE(installation.profile.currentVariant(), "X");
    QVERIFY(installation.shown().contains("New"));
    QVERIFY(installation.shown().contains("- Y"));
    QCOMPARE(installation.changed.count(), 1);

    installation.profile.setCurrentVariant("Y"); // declared by the next one too
    installation.install("again.xml", kNew);
    QCOMPARE(installation.profile.currentVariant(), "Y");
    QCOMPARE(installation.changed.count(), 2);

    putFile(installation.installed, "damaged");
    installation.choose("again.xml");
    QVERIFY(installation.dialog.boxes.last().contains("is kept as:\n" + QString::fromStdString(installation.installed) + ".damaged-1"));
}

void TestDialogProfileInfo::refusesInvalid_data()
{
    QTest::addColumn<QString>("content");
    QTest::newRow("other root") << "<ZarnProject/>";
    QTest::newRow("malformed") << "<CanAerospaceProfile>";
    QTest::newRow("empty") << "";
}

void TestDialogProfileInfo::refusesInvalid()
{
    QFETCH(const QString, content);
    Installation installation;
    installation.install("mine.xml", content.toStdString());
    QVERIFY(installation.dialog.boxes.join("").startsWith("1|ZARN Warning|Not a valid ZARN profile !\nThe file "));
    QCOMPARE(fileContent(installation.installed), kOld);
    QCOMPARE(installation.profile.model().name, "Old");
    QVERIFY(installation.lines.find("Copy") == std::string::npos);
    QCOMPARE(installation.changed.count(), 0);
}

void TestDialogProfileInfo::goesToUserData()
{
    Installation installation;
    QDir(installation.root.filePath("profiles/A")).removeRecursively();
    installation.install("mine.xml", kNew);
    const QString target = installation.root.filePath("data/profiles/A/Profile.xml");
    QCOMPARE(fileContent(target.toStdString()), kNew);
    QCOMPARE(installation.dialog.profileFile(), target);
    QCOMPARE(installation.changed.count(), 1);
    const QString chosen = installation.root.filePath("chosen/Profile.xml"); // as a file: nothing goes beside it
    QVERIFY(QDir().mkpath(installation.root.filePath("chosen")) && QFile::copy(target, chosen));
    installation.dialog.setProfileFile(chosen, true);
    installation.install("mine.xml", kOld);
    QCOMPARE(fileContent(chosen.toStdString()), kNew);
    QCOMPARE(fileContent(installation.root.filePath("data/profiles/mine/Profile.xml").toStdString()), kOld);
}

void TestDialogProfileInfo::failedCopy()
{
    Installation installation;
    putFile(installation.root.filePath("mine.xml").toStdString(), kNew);
    {
        const FullDisk full(50);
        installation.choose("mine.xml");
    }
    QCOMPARE(fileContent(installation.installed), kOld);
    QCOMPARE(installation.dialog.boxes, QStringList{"2|ZARN Info|Profile Installation failed !|Ok"});
    QCOMPARE(installation.profile.model().name, "New");
    QVERIFY(installation.shown().contains("New"));
    QCOMPARE(installation.changed.count(), 0);
}

QTEST_MAIN(TestDialogProfileInfo)
#include "TestDialogProfileInfo.moc"
