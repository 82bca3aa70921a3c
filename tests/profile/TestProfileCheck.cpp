#include "profile/ProfileCheck.h"
#include "support/FileHelpers.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace ZARN;

class TestProfileCheck : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void problems_data();
    void problems();
};

namespace {

const char* const kGood = R"(id="10" dataType="FLOAT" startByte="4")";
const char* const kBits = R"(id="70" dataType="BLONG" startByte="4" enumId="E" errorType="Fault")";

} // namespace

/// Each row: what a profile holds, and of every problem the place and words of its text, "4:1 words"; "" for none.
void TestProfileCheck::problems_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QStringList>("expected");
    const auto whole = [](const char* name, const QString& text, const QString& expected) {
        QTest::newRow(name) << text << QStringList{expected};
    };
    // The content begins in line 2, behind a conversion of no unit to none and an enumeration.
    const auto row = [](const char* name, const QString& content, const QStringList& expected) {
        QTest::newRow(name)
            << R"(<CanAerospaceProfile><Variants><Variant name="A"/><Variant name="B"/></Variants>)"
               R"(<UnitConversions><Unit factor="1"/></UnitConversions><EnumList><Enum name="E"><Value val="1" label="l"/></Enum></EnumList>)"
               "\n" +
                   content + "\n</CanAerospaceProfile>"
            << expected;
    };
    const auto parameter = [&](const char* name, const QString& attributes, const QStringList& expected) {
        row(name, "<Device name='D'>\n<Parameter name='p' " + attributes + "/></Device>", expected);
    };
    const auto band = [](const QString& content) {
        return "<ThresholdList><Threshold name='T'>\n<Value val='2' state='OK' color='red'/>\n" + content + "</Threshold></ThresholdList>";
    };

    whole("empty", "", "1:1 no element");
    whole("tags that do not fit", "<CanAerospaceProfile>\n<Device>\n</CanAerospaceProfile>", "3:22 mismatch");
    whole("quotation mark missing", "<CanAerospaceProfile>\n <Device name='>\n</CanAerospaceProfile>", "2:2 quotation mark");
    whole("attribute twice", "<CanAerospaceProfile a='' a=''/>", "1:32 redefined");
    whole("document type", "\n<!DOCTYPE a>", "2:1 document type");
    whole("too deep", "<a>\n" + QString("<b>").repeated(64), "2:190 64 levels");
    whole("other root", "<?p > <x ?><!-- <a> -->\n  <Other/>", "2:3 <Other>");

    parameter("good", kGood, {});
    parameter("unknown attribute", QString("%1 unitMetrik=''").arg(kGood), {"3:60 \"unitMetric\""});
    row("unknown element", "<Device name='D'><Parametre/></Device>", {"2:18 \"Parameter\""});
    row("variant undeclared", "<Device name='D' variant='A,!C'/>", {"2:18 \"C\", which is not declared"});
    parameter("left out", "", {"3:1 \"dataType\"", "3:1 \"id\"", "3:1 \"startByte\""});
    parameter("no whole number", QString("%1 precision='1.5'").arg(kGood), {"3:60 no whole number"});
    parameter("octal", "id='010' dataType='FLOAT' startByte='4'", {"3:21 reads as 8"});
    parameter("no number", QString("%1 offset='1,5'").arg(kGood), {"3:60 use a point"});
    parameter("endless number", QString("%1 offset='1e999'").arg(kGood), {"3:60 not finite"});
    parameter("factor 0", QString("%1 factor='0.0'").arg(kGood), {"3:60 the offset"});
    row("conversion without factor", "<UnitConversions><Unit unitMetric='a'/></UnitConversions>", {"2:18 has no \"factor\""});
    parameter("precision", QString("%1 precision='18'").arg(kGood), {"3:60 0 to 17"});
    parameter("unknown data type", "id='1' startByte='4' dataType='Float'", {"3:42 \"FLOAT\""});
    parameter("data type without value", "id='1' startByte='4' dataType='ACHAR'", {"3:42 no value"});
    parameter("bytes behind the payload", "id='1' startByte='5' dataType='FLOAT'", {"3:28 beyond the payload"});
    parameter("byte in the head", "id='1' startByte='3' dataType='UCHAR'", {"3:28 head of the message"});
    parameter("last byte", "id='1' startByte='7' dataType='UCHAR'", {});
    for (const auto& [bits, problem] : {std::pair("startBit='16' endBit='16'", "0 to 15"),
                                        {"startBit='3' endBit='16'", "0 to 15"},
                                        {"startBit='3' endBit='2'", "before"}})
        parameter(bits, QString("id='1' startByte='4' dataType='BSHORT' %1").arg(bits), {problem});
    parameter("scaled bits", "id='1' startByte='4' dataType='BSHORT' factor='2'", {"3:60 never scaled"});
    parameter("labels of a number", QString("%1 enumId='E'").arg(kGood), {"3:60 show labels"});
    parameter("bits without labels", "id='1' startByte='4' dataType='BLONG'", {"3:42 Invalid ENUM Type"});
    parameter("key in other letters", QString("%1 zarnDataType='groundSpeed'").arg(kGood), {"3:60 \"GroundSpeed\""});
    parameter("key of another unit", QString("%1 zarnDataType='Altitude' unitMetric=''").arg(kGood), {"3:60 takes as m"});
    parameter("position of integers", "id='1' startByte='4' dataType='LONG' viewId='Latitude'", {"3:58 only a FLOAT"});

    parameter("units", QString("%1 unitMetric='m' unitImperial='ft'").arg(kGood), {"3:75 no conversion"});
    parameter("threshold list undeclared", QString("%1 thresholdId='T'").arg(kGood), {"3:60 not declared"});
    row("lists out of order", QString("<Device name='D'><Parameter name='p' %1 thresholdId='T'/></Device>\n").arg(kGood) + band(""),
        {"2:77 in line 3"});
    row("descending bands", band("<Value val='1' state='OK' color='red'/>"), {"4:8 must ascend"});
    row("equal bands", band("<Value val='2.0' state='OK' color='red'/>"), {"4:8 stands twice"});
    row("each lane has its check", QString("<Device name='D'><Parameter name='p' %1 zarnDataType='LaneCheck'/><Parameter name='q' %2 zarnDataType='LaneCheck'/></Device>")
                                      .arg(kGood, QString(kGood).replace("10", "11")), {});
    row("bands of two variants", band("<Value val='1' state='OK' color='red' variant='A'/>"), {"4:8 ascend. (Variant \"A\")"});
    row("no colour", band("<Value val='3' state='OK' color='rad'/>"), {"4:27 no colour"});
    row("no state", band("<Value val='3' state='Limit' color='red'/>"), {"4:16 \"LIMIT\""});
    row("label twice", "<EnumList><Enum name='F'><Value val='1' label='a'/><Value val='0x1' label='b'/></Enum></EnumList>",
        {"2:59 later label"});

    const auto two = [&](const char* name, const QString& first, const QString& second, const QStringList& expected) {
        row(name,
            "<Device name='D'><ErrorMatrix id='70' name='M'/>\n<Parameter name='p' " + first + "/>\n<Parameter " + second + "/></Device>",
            expected);
    };
    two("name twice", kGood, "name='p' id='11' dataType='FLOAT' startByte='4'", {"4:12 shown and hidden"});
    two("name twice in two variants", QString("%1 variant='A'").arg(kGood), QString("name='p' %1 variant='B'").arg(kGood), {});
    two("key twice", QString("%1 zarnDataType='K'").arg(kGood), "name='q' id='11' dataType='FLOAT' startByte='4' zarnDataType='K'",
        {"4:60 later one counts"});
    two("bytes twice", kGood, QString("name='q' %1").arg(kGood), {"4:21 same bytes"});
    two("fault bit twice", kBits, QString("name='q' %1").arg(kBits), {"fault bit 0"});
    two("fault bits", kBits, QString("name='q' %1 startBit='1' endBit='1'").arg(kBits), {});
    two("fault bit of no type", kBits, "name='q' id='70' dataType='BLONG' startByte='4' enumId='E' startBit='1' endBit='1'",
        {"4:1 lights nothing"});
    row("matrix behind its bit", QString("<Device name='D'><Parameter name='p' %1/>\n<ErrorMatrix id='70' name='M'/></Device>").arg(kBits),
        {"2:18 line 3"});
    parameter("fault bit of no matrix", kBits, {"no error matrix"});
}

void TestProfileCheck::problems()
{
    QFETCH(QString, content);
    QFETCH(QStringList, expected);
    const QTemporaryDir folder;
    const QString file = folder.filePath("Profile.xml");
    putFile(file.toStdString(), content.toStdString());
    QStringList found;
    for (const ProfileProblem& problem : ProfileCheck::problems(file)) {
        found << QString("%1:%2 %3").arg(problem.line).arg(problem.column).arg(problem.text);
        const auto refusal = ProfileCheck::refusal(file);
        QCOMPARE(refusal ? refusal->text : QString(), problem.isError ? problem.text : QString());
    }
    bool isExpected = found.size() == expected.size();
    for (qsizetype i = 0; isExpected && i < found.size(); ++i) {
        const QString place = expected[i].section(' ', 0, 0);
        isExpected = place.contains(':') ? found[i].startsWith(place + ' ') && found[i].contains(expected[i].mid(place.size() + 1))
                                         : found[i].contains(expected[i]);
    }
    QVERIFY2(isExpected, qPrintable(found.join('\n')));
}

QTEST_GUILESS_MAIN(TestProfileCheck)
#include "TestProfileCheck.moc"
