#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QTemporaryDir>
#include <QTest>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

/// A profile with its surroundings, loaded from text.
struct Loaded {
    explicit Loaded(const QByteArray& content = {}, const std::string& variant = {})
    {
        if (!content.isEmpty())
            load("<CanAerospaceProfile>" + content + "</CanAerospaceProfile>", variant);
    }
    bool load(const QByteArray& xml, const std::string& variant = {})
    {
        QFile file(folder.filePath("Profile.xml"));
        if (!file.open(QIODevice::WriteOnly) || file.write(xml) != xml.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
        file.close();
        return profile.loadProfile(file.fileName(), variant);
    }
    /// The names of all parameters, in order, with a blank between.
    [[nodiscard]] QString names() const
    {
        QStringList list;
        for (const ProfileDevice& device : profile.data()) {
            for (const ProfileParameter& parameter : device.parameters)
                list << QString::fromStdString(parameter.path);
        }
        return list.join(' ');
    }

    QTemporaryDir folder;
    std::string lines;
    Console console{[this](std::string_view text) { lines += text; }, [](std::string_view) {}};
    Profile profile{console};
};

} // namespace

class TestProfileLoad : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void variants_data();
    void variants();
    void laterDefinitionsWin();
    void failureLeavesTheModelUntouched_data();
    void failureLeavesTheModelUntouched();
    void declaredVariants();
    void aContextStaysAsItIs();
};

void TestProfileLoad::variants_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QString>("appliesTo"); // of "", A, B and C; "-" stands for no variant chosen
    QTest::newRow("none") << "" << "-ABC";
    QTest::newRow("one") << "A" << "-A";
    QTest::newRow("two, blanks") << " A ,  B " << "-AB";
    QTest::newRow("excluded") << "!B" << "-AC";
    QTest::newRow("both excluded") << "!B,!C" << "-A";
    QTest::newRow("included and excluded") << "A,!B" << "-A";
    QTest::newRow("excluded wins") << "A,!A" << "-";
    QTest::newRow("case matters") << "a" << "-";
    QTest::newRow("blank behind the mark") << "! B" << "-ABC";
    QTest::newRow("stray comma names a variant without name") << "!B," << "-";
    QTest::newRow("blank alone") << " " << "-";
}

void TestProfileLoad::variants()
{
    QFETCH(QString, attribute);
    QFETCH(QString, appliesTo);
    QString applied;
    for (const char* variant : {"-", "A", "B", "C"}) {
        const std::string chosen = *variant == '-' ? "" : variant;
        const Loaded loaded("<Device><Parameter name=\"p\" variant=\"" + attribute.toUtf8() + "\"/></Device>", chosen);
        QCOMPARE(loaded.profile.model().variant, chosen);
        if (!loaded.names().isEmpty())
            applied += variant;
        const std::string line = "variant <" + attribute.toStdString() + "> size " + std::to_string(attribute.count(',') + 1) + "\n";
        QCOMPARE(loaded.lines.find(line) != std::string::npos, !attribute.isEmpty() && !chosen.empty());
    }
    QCOMPARE(applied, appliesTo);
}

void TestProfileLoad::laterDefinitionsWin()
{
    Loaded loaded(R"(<Device name="D"><Parameter name="a" id="5" dataType="UCHAR" startByte="4" zarnDataType="Key"/>
        <Parameter name="a" id="5" dataType="UCHAR" startByte="5" zarnDataType="Key"/><Parameter name="b" id="-1" zarnDataType="key"/></Device>)");
    QCOMPARE(loaded.names(), QString("D/a D/a D/b")); // none is lost from the lists
    QCOMPARE(loaded.profile.model().parameter(5).startByte, 5);
    QCOMPARE(loaded.profile.getParameterFromZarnType("Key").startByte, 5);
    QCOMPARE(loaded.profile.getParameterFromZarnType("key").name, std::string("b"));
    QCOMPARE(loaded.profile.model().parameter(0xFFFFFFFF).name, std::string("b"));
    QCOMPARE(loaded.profile.getParameterFromZarnType("").name, std::string());
    QCOMPARE(loaded.profile.model().find("a")->startByte, 4);
    QVERIFY(!loaded.profile.model().find("D/a"));
    RecordEntry entry;
    entry.payload = {0, 10, 0, 0, 17, 42, 0, 0};
    entry.id = 5;
    QCOMPARE(loaded.profile.getDouble(entry, true), 42.0);
    QCOMPARE(loaded.profile.getInt(entry), 42);
    entry.id = 77;
    QCOMPARE(loaded.profile.getDouble(entry, true), 0.0);
}

void TestProfileLoad::failureLeavesTheModelUntouched_data()
{
    QTest::addColumn<QByteArray>("content"); // null: no file
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("not well-formed") << QByteArray("<CanAerospaceProfile><Device></CanAerospaceProfile>");
    QTest::newRow("other root") << QByteArray("<canAerospaceProfile name=\"x\"/>");
    QTest::newRow("cut off") << QByteArray("<CanAerospaceProfile><Device name=\"x\"");
    QTest::newRow("no text") << QByteArray("\x00\x01\xff\xfe binary", 12);
    QTest::newRow("entities") << QByteArray("<!DOCTYPE x [<!ENTITY a \"b\">]><CanAerospaceProfile name=\"&a;\"/>");
}

void TestProfileLoad::failureLeavesTheModelUntouched()
{
    QFETCH(QByteArray, content);
    Loaded loaded("<Device name=\"D\"><Parameter name=\"kept\" id=\"3\" zarnDataType=\"Key\"/></Device>");
    const int identity = loaded.profile.identity();
    QVERIFY(!(content.isNull() ? loaded.profile.loadProfile(loaded.folder.filePath("none.xml"), "v") : loaded.load(content, "v")));
    QVERIFY(loaded.lines.find("Profile::loadProfil <" + loaded.folder.path().toStdString()) != std::string::npos);
    QCOMPARE(loaded.names(), QString("D/kept"));
    QCOMPARE(loaded.profile.model().parameter(3).name, std::string("kept"));
    QCOMPARE(loaded.profile.getParameterFromZarnType("Key").name, std::string("kept"));
    QCOMPARE(loaded.profile.identity(), identity);
}

void TestProfileLoad::declaredVariants()
{
    Loaded loaded;
    const QString path = ProfileBuilder().variants({"915", "Übung"}).device("D").parameter("p", 1, "FLOAT").variants({"inner"})
                             .write(loaded.folder.path());
    QCOMPARE(loaded.profile.loadVariants(path).size(), std::size_t(2));
    QCOMPARE(loaded.profile.variants()[1].name, std::string("Übung"));
    QCOMPARE(loaded.profile.variants()[0].color, std::string("#000000"));
    QVERIFY(loaded.profile.data().empty()); // reading the variants loads nothing
    QVERIFY(loaded.profile.loadVariants(loaded.folder.filePath("none")).empty());
    QVERIFY(loaded.lines.ends_with("Profile::loadVariants Error could not load <" + loaded.folder.filePath("none").toStdString() + ">\n"));
    loaded.load("<Other/>");
    QVERIFY(loaded.profile.loadVariants(loaded.folder.filePath("Profile.xml")).empty());
    QVERIFY(loaded.lines.ends_with("Profile::loadVariants Not a CanAerospaceProfile"));
}

void TestProfileLoad::aContextStaysAsItIs()
{
    Loaded loaded(R"(<UnitConversions><Unit unitMetric="km/h" unitImperial="kt" factor="2"/></UnitConversions>
        <ThresholdList><Threshold name="T"><Value val="5" state="LIMIT"/></Threshold></ThresholdList>
        <Device><Parameter name="a" id="1" dataType="UCHAR" startByte="4" unitMetric="km/h" unitImperial="kt" thresholdId="T"/></Device>)");
    const DecodingContext before = loaded.profile;
    std::set<int> seen{loaded.profile.identity(), loaded.profile.data()[0].identity};
    loaded.profile.setCurrentUnit(EUnit::eImperial);
    const ProfileParameter& parameter = before.model().parameter(1);
    QCOMPARE(loaded.profile.context().unitOf(parameter), std::string("kt"));
    QCOMPARE(loaded.profile.convertUnit(parameter, 3), 6.0);
    loaded.load("<CanAerospaceProfile><Device><Parameter id=\"1\" unitImperial=\"lb\"/></Device></CanAerospaceProfile>");
    QCOMPARE(loaded.profile.context().unitOf(loaded.profile.model().parameter(1)), std::string("lb")); // the system outlives the profile
    seen.insert({loaded.profile.identity(), loaded.profile.data()[0].identity});
    QCOMPARE(seen.size(), std::size_t(4));
    loaded.profile.clear();
    QVERIFY(loaded.profile.data().empty());
    QCOMPARE(before.unitOf(parameter), std::string("km/h"));
    QCOMPARE(before.decoder(parameter).threshold(7).state, int(eThresholdLimit));
    QCOMPARE(before.in(EUnit::eImperial).decoder(parameter).toDisplayUnit(3), 6.0);
}

QTEST_APPLESS_MAIN(TestProfileLoad)
#include "TestProfileLoad.moc"
