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
    /// The only parameter.
    [[nodiscard]] const ProfileParameter& only() const { return profile.data().at(0).parameters.at(0); }

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
    void variantTestAppliesAtEveryLevel();
    void defaults();
    void numbers_data();
    void numbers();
    void dataTypeNames_data();
    void dataTypeNames();
    void listsAreNumberedAndResolved();
    void laterDefinitionsWin();
    void errorMatricesTakeLaterParameters();
    void order();
    void failureLeavesTheModelUntouched_data();
    void failureLeavesTheModelUntouched();
    void declaredVariants();
    void unitChangesEveryParameter();
    void identityChangesWithEveryLoad();
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
        if (!loaded.names().isEmpty())
            applied += variant;
        const std::string line = "variant <" + attribute.toStdString() + "> size " + std::to_string(attribute.count(',') + 1) + "\n";
        QCOMPARE(loaded.lines.find(line) != std::string::npos, !attribute.isEmpty() && !chosen.empty());
    }
    QCOMPARE(applied, appliesTo);
}

void TestProfileLoad::variantTestAppliesAtEveryLevel()
{
    const char* const content = R"(
        <UnitConversions variant="B"><Unit unitMetric="m" unitImperial="ft" factor="9"/></UnitConversions>
        <UnitConversions><Unit unitMetric="k" unitImperial="l" factor="8" variant="B"/></UnitConversions>
        <EnumList><Enum name="E" variant="B"/><Enum name="F"><Value val="1" label="one"/><Value val="1" label="two" variant="B"/></Enum></EnumList>
        <ThresholdList><Threshold name="T" variant="B"/><Threshold name="U"><Value val="1" variant="B"/><Value val="2"/></Threshold></ThresholdList>
        <Device name="D1" variant="B"><Parameter name="x"/></Device>
        <Device name="D2"><ErrorMatrix id="1" variant="B"/><ErrorMatrix id="2"/>
          <Parameter name="p" enumId="F" thresholdId="T" variant="A,C"/><Parameter name="q" thresholdId="U" variant="B"/></Device>)";
    const Loaded a(content, "A");
    QVERIFY(a.profile.model().conversions.empty());
    QCOMPARE(a.profile.model().enumLists, (std::vector<EnumList>{{{1, "one"}}}));
    QCOMPARE(a.profile.model().thresholdLists.size(), std::size_t(1));
    QCOMPARE(a.profile.model().thresholdLists[0].size(), std::size_t(1));
    QCOMPARE(a.profile.errorMatrices().size(), std::size_t(1));
    QCOMPARE(a.names(), QString("D2/p"));
    QCOMPARE(a.only().enumList, 1);
    QCOMPARE(a.only().thresholdList, 0); // a list of another variant is no list
    QCOMPARE(a.only().deviceIndex, 1);   // skipped devices do not count
    const Loaded none(content);
    QCOMPARE(none.names(), QString("D1/x D2/p D2/q"));
    QCOMPARE(none.profile.model().enumLists[1].at(1), std::string("two"));
}

void TestProfileLoad::defaults()
{
    const Loaded loaded("<Device><ErrorMatrix/><Parameter/></Device><ThresholdList><Threshold><Value/></Threshold></ThresholdList>"
                        "<UnitConversions><Unit offset=\"3\"/></UnitConversions><EnumList><Enum><Value/></Enum></EnumList>");
    const ProfileParameter& parameter = loaded.only();
    QCOMPARE(parameter.path, std::string("/"));
    QCOMPARE(parameter.precision, 6);
    QCOMPARE(parameter.factor, 1.0);
    QCOMPARE(parameter.offset, 0.0);
    QCOMPARE(parameter.dataType + parameter.id + parameter.startByte + parameter.startBit + parameter.endBit + parameter.errorType, 0);
    const ProfileModel& model = loaded.profile.model();
    QCOMPARE(model.conversions.at("_").factor, 0.0); // unlike a parameter's
    QCOMPARE(model.conversions.at("_").offset, 3.0);
    QCOMPARE(model.enumLists.at(0).at(0), std::string());
    QCOMPARE(model.thresholdLists.at(0).at(0).state, 0);
    QVERIFY(!model.thresholdLists.at(0).at(0).colour.isValid());
}

void TestProfileLoad::numbers_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("integer");
    QTest::addColumn<double>("real"); // the same text as an offset
    QTest::newRow("decimal") << QByteArray("300") << 300 << 300.0;
    QTest::newRow("hexadecimal") << QByteArray("0x1F0") << 0x1F0 << 0.0;
    QTest::newRow("octal") << QByteArray("010") << 8 << 10.0;
    QTest::newRow("no octal") << QByteArray("09") << 0 << 9.0;
    QTest::newRow("negative") << QByteArray("-7") << -7 << -7.0;
    QTest::newRow("greatest") << QByteArray("2147483647") << INT_MAX << 2147483647.0;
    QTest::newRow("too great") << QByteArray("2147483648") << 0 << 2147483648.0;
    QTest::newRow("no number") << QByteArray("12 apples") << 0 << 0.0;
    QTest::newRow("a fraction") << QByteArray("1.5") << 0 << 1.5;
    QTest::newRow("comma") << QByteArray("1,5") << 0 << 0.0;
    QTest::newRow("empty takes the default") << QByteArray("") << 6 << 0.0;
}

void TestProfileLoad::numbers()
{
    QFETCH(QByteArray, text);
    const Loaded loaded("<Device><Parameter precision=\"" + text + "\" offset=\"" + text + "\"/></Device>");
    QTEST(loaded.only().precision, "integer");
    QTEST(loaded.only().offset, "real");
}

void TestProfileLoad::dataTypeNames_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("number");
    QTest::newRow("first") << QByteArray("ERROR") << 1;
    QTest::newRow("of a word and a number") << QByteArray("UCHAR_2") << 19;
    QTest::newRow("last") << QByteArray("ACHAR_3") << 29;
    for (const char* unknown : {"float", "FLOAT ", "DOUBLE", ""})
        QTest::addRow("unknown <%s>", unknown) << QByteArray(unknown) << 0;
}

void TestProfileLoad::dataTypeNames()
{
    QFETCH(QByteArray, name);
    const Loaded loaded("<Device><Parameter dataType=\"" + name + "\"/></Device>");
    QTEST(loaded.only().dataType, "number");
}

void TestProfileLoad::listsAreNumberedAndResolved()
{
    const Loaded loaded(R"(
        <EnumList><Enum name="one"/></EnumList>
        <Device name="early"><Parameter name="a" enumId="two" thresholdId="t1"/></Device>
        <EnumList><Enum name="two"><Value val="0x10" label="x"/><Value val="16" label="y"/></Enum><Enum name="one"/></EnumList>
        <ThresholdList><Threshold name="t1"><Value val="5" color="#00ff00" state="limit"/><Value val="1" color="red" state="LIMIT"/>
          <Value val="1e2" color="no colour" state="WARNING"/></Threshold></ThresholdList>
        <Device name="late"><Parameter name="b" enumId="two" thresholdId="t1"/><Parameter name="c" enumId="one"/>
          <Parameter name="d" enumId="ONE" errorType="Warning"/><Parameter errorType="Info"/><Parameter errorType="Fault"/>
          <Parameter errorType="fault"/></Device>)");
    const auto& early = loaded.profile.data()[0].parameters;
    const auto& late = loaded.profile.data()[1].parameters;
    QCOMPARE(early[0].enumList, 0); // references are resolved where the parameter is read
    QCOMPARE(early[0].thresholdList, 0);
    QCOMPARE(late[0].enumList, 2);
    QCOMPARE(late[0].thresholdList, 1);
    QCOMPARE(late[1].enumList, 3); // of two lists of one name the later
    QCOMPARE(late[2].enumList, 0);
    QCOMPARE(late[0].deviceIndex, 2);
    QCOMPARE(loaded.profile.model().enumLists[1], (EnumList{{16, "y"}}));
    std::vector<int> errorTypes;
    for (const ProfileParameter& parameter : late)
        errorTypes.push_back(parameter.errorType);
    QCOMPARE(errorTypes, (std::vector<int>{0, 0, 2, 1, 3, 0}));
    const ThresholdList& list = loaded.profile.model().thresholdLists[0]; // in file order, not sorted
    QCOMPARE(list[0].value, 5.0);
    QCOMPARE(list[0].state, 0); // "limit" in lower case is no state
    QCOMPARE(list[0].colour, QColor(0, 255, 0));
    QCOMPARE(list[1].colour, QColor(255, 0, 0));
    QCOMPARE(list[1].state, 2);
    QVERIFY(!list[2].colour.isValid());
    QCOMPARE(list[2].state, 1);
}

void TestProfileLoad::laterDefinitionsWin()
{
    Loaded loaded(R"(<Device name="D"><Parameter name="a" id="5" dataType="UCHAR" startByte="4" zarnDataType="Key"/>
        <Parameter name="a" id="5" dataType="UCHAR" startByte="5" zarnDataType="Key"/><Parameter name="b" id="-1" zarnDataType="key"/></Device>)");
    QCOMPARE(loaded.names(), QString("D/a D/a D/b")); // none is lost from the lists
    QCOMPARE(loaded.profile.parameter(5).startByte, 5);
    QCOMPARE(loaded.profile.getParameterFromZarnType("Key").startByte, 5);
    QCOMPARE(loaded.profile.getParameterFromZarnType("key").name, std::string("b"));
    QCOMPARE(loaded.profile.parameter(0xFFFFFFFF).name, std::string("b"));
    QCOMPARE(loaded.profile.getParameterFromZarnType("").name, std::string());
    QCOMPARE(loaded.profile.findParameter("a")->startByte, 4);
    QVERIFY(!loaded.profile.findParameter("D/a"));
    RecordEntry entry;
    entry.payload = {0, 10, 0, 0, 17, 42, 0, 0};
    entry.id = 5;
    QCOMPARE(loaded.profile.getDouble(entry, true), 42.0);
    QCOMPARE(loaded.profile.getInt(entry), 42);
    entry.id = 77;
    QCOMPARE(loaded.profile.getDouble(entry, true), 0.0);
}

void TestProfileLoad::errorMatricesTakeLaterParameters()
{
    const Loaded loaded(R"(
        <Device name="A"><Parameter name="before" id="9" startBit="1"/><ErrorMatrix id="9" name="first"/>
          <Parameter name="in" id="9" startBit="2" errorType="Fault"/><Parameter name="again" id="9" startBit="2"/>
          <Parameter name="x" id="8"/></Device>
        <Device name="B"><ErrorMatrix id="0x9" name="second"/><Parameter name="far" id="9" startBit="31"/><Parameter name="none" id="9" startBit="32"/></Device>)");
    const auto& matrices = loaded.profile.errorMatrices();
    QCOMPARE(matrices.size(), std::size_t(2));
    QCOMPARE(matrices[0].bits.size(), std::size_t(2));
    QCOMPARE(matrices[0].bits.at(2).name, std::string("again"));
    QCOMPARE(matrices[0].bits.at(31).description, std::string("B/far"));
    QCOMPARE(matrices[1].name, std::string("second"));
    QCOMPARE(matrices[1].bits.size(), std::size_t(1));
}

void TestProfileLoad::order()
{
    const Loaded loaded(R"(<Device name="Z"><Parameter name="z"/><Parameter name="a"/></Device><Unknown><Parameter name="no"/></Unknown>
        <Device name="A"><Other/><Parameter name="m"/></Device><Parameter name="no"/><Device name="Z"/>)");
    QCOMPARE(loaded.names(), QString("Z/z Z/a A/m"));
    QCOMPARE(loaded.profile.data().size(), std::size_t(3));
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
    QCOMPARE(loaded.profile.parameter(3).name, std::string("kept"));
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

void TestProfileLoad::unitChangesEveryParameter()
{
    Loaded loaded("<Device><Parameter unitMetric=\"km/h\" unitImperial=\"kt\" id=\"1\" zarnDataType=\"S\"/></Device>");
    QCOMPARE(loaded.only().unit, std::string("km/h"));
    loaded.profile.setCurrentUnit(EUnit::eImperial);
    QCOMPARE(loaded.only().unit, std::string("kt"));
    QCOMPARE(loaded.profile.getParameterFromZarnType("S").unit, std::string("kt"));
    loaded.load("<CanAerospaceProfile><Device><Parameter unitImperial=\"lb\"/></Device></CanAerospaceProfile>");
    QCOMPARE(loaded.only().unit, std::string("lb")); // the system outlives the profile
    loaded.profile.clear();
    QVERIFY(loaded.profile.data().empty());
    QCOMPARE(loaded.profile.parameter(1).name, std::string());
}

void TestProfileLoad::identityChangesWithEveryLoad()
{
    Loaded loaded("<Device/><Device/>");
    std::set<int> seen{loaded.profile.identity(), loaded.profile.data()[0].identity, loaded.profile.data()[1].identity};
    loaded.load("<CanAerospaceProfile><Device/></CanAerospaceProfile>");
    seen.insert({loaded.profile.identity(), loaded.profile.data()[0].identity});
    QCOMPARE(seen.size(), std::size_t(5));
}

QTEST_APPLESS_MAIN(TestProfileLoad)
#include "TestProfileLoad.moc"
