#include "card/record/ByteOrder.h"
#include "support/CardBuilder.h"
#include "support/ProfileBuilder.h"
#include "support/TestCycle.h"

#include <QTest>

#include <bit>
#include <limits>
#include <random>

using namespace ZARN;
using namespace ZARN::Test;

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
const char* const kTypes[] = {"FLOAT", "LONG", "ULONG", "BLONG", "SHORT", "USHORT", "BSHORT", "CHAR", "UCHAR", "SHORT_2", "USHORT_2", "CHAR_4",
                              "UCHAR_4", "CHAR_2", "UCHAR_2", "CHAR_3", "UCHAR_3", "BCHAR", "ACHAR", "NODATA"};

/// Attributes from "key=value key=value".
ProfileBuilder::Attributes attributesOf(const QString& text)
{
    ProfileBuilder::Attributes attributes;
    for (const QString& pair : text.split(' ', Qt::SkipEmptyParts))
        attributes.emplace_back(pair.section('=', 0, 0), pair.section('=', 1));
    return attributes;
}

/// A profile with one parameter "P" of identifier 1, which has labels "E", boundaries "T" and a unit that converts by 2 and 1.
struct OneParameter {
    OneParameter(const QString& type, const QString& attributes)
    {
        ProfileBuilder builder;
        builder.unit("m", "ft", 2, 1).enumeration("E", {{0, "zero"}, {5, "five, V"}, {-1, "all set"}});
        builder.thresholds("T", {{0, "OK", "#00ff00"}, {80, "WARNING", "#ffff00"}, {100, "LIMIT", "#ff0000"}});
        ProfileBuilder::Attributes all{{"unitMetric", "m"}, {"unitImperial", "ft"}, {"thresholdId", "T"}};
        for (const auto& attribute : attributesOf(attributes))
            all.push_back(attribute);
        builder.device("D").parameter("P", 1, type, all);
        if (!builder.load(cycle.profile))
            qFatal("the profile does not load");
    }
    [[nodiscard]] const ProfileParameter& parameter() const { return cycle.profile.model().parameter(1); }

    TestCycle cycle;
};

RecordEntry entryOf(const Payload& payload)
{
    RecordEntry entry;
    entry.payload = payload;
    entry.id = 1;
    return entry;
}

Payload payloadOf(const QByteArray& hex)
{
    const QByteArray bytes = QByteArray::fromHex(hex);
    Payload payload{};
    std::copy_n(bytes.begin(), std::min<qsizetype>(bytes.size(), 8), payload.begin());
    return payload;
}

/// Which of the boundaries "T" state and colour stand for.
QString bandOf(int state, const QColor& colour)
{
    const QString text = QString::number(state) + " " + colour.name(QColor::HexArgb);
    const std::map<QString, QString> bands{{"0 #ffffffff", "neutral"}, {"0 #ff00ff00", "ok"}, {"1 #ffffff00", "warning"}, {"2 #ffff0000", "limit"},
                                           {"7 #ff000000", "untouched"}};
    return bands.contains(text) ? bands.at(text) : text;
}

void compareExactly(double actual, double expected)
{
    if (std::isnan(expected))
        QVERIFY(std::isnan(actual));
    else
        QVERIFY2(actual == expected, qPrintable(QString::number(actual, 'g', 17) + " != " + QString::number(expected, 'g', 17)));
}

} // namespace

class TestValueDecoding : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void decoding_data();
    void decoding();
    void bulkEqualsSingle_data();
    void bulkEqualsSingle();
    void integersByTheEntrysType_data();
    void integersByTheEntrysType();
    void thresholds_data();
    void thresholds();
    void undeclaredUnitConvertsToZero();
    void coordinates();
    void positionFilter();
    void longitudeAllowanceWidens();
    void textsAdvanceTheFilterToo();
};

void TestValueDecoding::decoding_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<double>("unscaled");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("bands"); // of the value and of the text
    const auto row = [](const char* name, const char* type, const char* attributes, const char* payload, double unscaled, double value,
                        const char* text, const char* bands) {
        QTest::addRow("%s %s", type, name) << type << attributes << QByteArray(payload) << unscaled << value << QString(text) << bands;
    };
    // Floats: the display text is rounded to 32 bits before thresholds and unit.
    row("plain", "FLOAT", "precision=2", "0002000042c70000", 99.5, 99.5, "99.50", "warning warning");
    row("scaled", "FLOAT", "factor=0.1 offset=1 precision=3", "0002000041200000", 10, std::fma(0.1, 10.0, 1.0), "2.000", "ok ok");
    row("default precision", "FLOAT", "", "000200003dcccccd", 0.1F, 0.1F, "0.100000", "ok ok");
    row("precision held to 17", "FLOAT", "precision=900", "000200003dcccccd", 0.1F, 0.1F, "0.10000000149011612", "ok ok");
    row("precision held to 0", "FLOAT", "precision=-3", "0002000042c70000", 99.5, 99.5, "100", "warning warning"); // a tie goes to even
    row("rounds up to a boundary", "FLOAT", "factor=0.99999999 precision=0", "0002000042c80000", 100, std::fma(0.99999999, 100.0, 0.0), "100",
        "warning limit");
    row("nan", "FLOAT", "", "000200007fc00000", kNan, kNan, "nan", "limit limit");
    row("negative nan", "FLOAT", "", "00020000ffc00000", kNan, kNan, "nan", "limit limit");
    row("-inf", "FLOAT", "", "00020000ff800000", -HUGE_VAL, -HUGE_VAL, "-inf", "neutral neutral");
    row("overflow of 32 bits", "FLOAT", "factor=1e300 precision=0", "0002000041200000", 10, 1e301, "inf", "limit limit");
    row("negative", "FLOAT", "precision=1", "00020000bf800000", -1, -1, "-1.0", "neutral neutral");
    row("other start", "FLOAT", "startByte=2 precision=1", "00023fc000000000", 1.5, 1.5, "1.5", "ok ok");
    // 32-bit integers pass through a 32-bit float; only the text of an unsigned one does not.
    row("beyond a float's integers", "LONG", "", "0003000001000001", 16777216, 16777216, "16777216", "limit limit");
    row("negative", "LONG", "", "00030000ffffffff", -1, -1, "-1", "neutral neutral");
    row("least", "LONG", "", "0003000080000000", -2147483648.0, -2147483648.0, "-2147483648", "neutral neutral");
    row("greatest saturates", "LONG", "", "000300007fffffff", 2147483648.0, 2147483648.0, "2147483647", "limit limit");
    row("truncated toward zero", "LONG", "factor=-0.7", "0003000000000005", 5, std::fma(-0.7, 5.0, 0.0), "-3", "neutral neutral");
    row("truncated below a boundary", "LONG", "factor=0.999", "0003000000000064", 100, std::fma(0.999, 100.0, 0.0), "99", "warning warning");
    row("truncated above a boundary", "LONG", "factor=-0.5", "0003000000000001", 1, -0.5, "0", "neutral ok");
    row("factor not a number", "LONG", "factor=nan", "0003000000000001", 1, kNan, "0", "limit ok");
    row("beyond a float's integers", "ULONG", "precision=10", "0004000001000001", 16777216, 16777216, "16777217", "limit limit");
    row("greatest", "ULONG", "precision=10", "00040000ffffffff", 4294967296.0, 4294967296.0, "4294967295", "limit limit");
    row("significant digits", "ULONG", "precision=3", "0004000000003039", 12345, 12345, "1.23e+04", "limit limit");
    row("default precision", "ULONG", "factor=0.5", "0004000000003039", 12345, 6172.5, "6172.5", "limit limit");
    row("precision 0", "ULONG", "precision=0", "0004000000000063", 99, 99, "1e+02", "warning warning");
    // Bit fields: never scaled, labels by the field as a signed number, no band for the text.
    row("labelled", "BLONG", "enumId=E startBit=4 endBit=6 factor=9", "0005000000000050", 5, 5, "5: five, V", "ok neutral");
    row("no such label", "BLONG", "enumId=E startBit=0 endBit=7", "0005000000000150", 80, 80, "80: Invalid ENUM Value", "warning neutral");
    row("no list", "BLONG", "endBit=2", "0005000000000005", 5, 5, "5: Invalid ENUM Type", "ok neutral");
    row("width 0", "BLONG", "enumId=E startBit=4 endBit=3", "00050000ffffffff", 0, 0, "0: zero", "ok neutral");
    row("end below start", "BLONG", "startBit=4 endBit=1", "0005000087654321", 0x08765432, 0x08765432, "141972530: Invalid ENUM Type",
        "limit neutral");
    row("all bits", "BLONG", "enumId=E endBit=31", "00050000ffffffff", 4294967295.0, 4294967295.0, "-1: all set", "limit neutral");
    row("too wide", "BLONG", "endBit=200", "0005000080000001", 2147483649.0, 2147483649.0, "-2147483647: Invalid ENUM Type", "limit neutral");
    row("shift of 36 is one of 4", "BLONG", "startBit=36 endBit=39", "00050000000000a0", 10, 10, "10: Invalid ENUM Type", "ok neutral");
    row("shift of -1 is one of 31", "BLONG", "startBit=-1 endBit=0", "0005000080000000", 1, 1, "1: Invalid ENUM Type", "ok neutral");
    row("labelled", "BSHORT", "enumId=E startBit=8 endBit=15", "0008000005000000", 5, 5, "5: five, V", "ok neutral");
    row("no such label", "BSHORT", "enumId=E endBit=15", "00080000ffff0000", 65535, 65535, "65535", "limit neutral");
    row("no list", "BSHORT", "endBit=3", "0008000000050000", 5, 5, "5", "ok neutral");
    row("wider than the word", "BSHORT", "endBit=31", "00080000ffffffff", 65535, 65535, "65535", "limit neutral");
    // Small integers.
    row("negative", "SHORT", "", "00060000ff9c0000", -100, -100, "-100", "neutral neutral");
    row("scaled", "SHORT_2", "startByte=6 factor=0.5 offset=0.25", "000c00000000ffff", -1, -0.25, "0", "neutral ok");
    row("unsigned", "USHORT", "", "00070000ff9c0000", 65436, 65436, "65436", "limit limit");
    row("overflow of the text", "USHORT_2", "factor=1e9", "000d0000ffff0000", 65535, 65535e9, "2147483647", "limit limit");
    row("negative", "CHAR", "startByte=7", "0009000000000080", -128, -128, "-128", "neutral neutral");
    row("lane", "CHAR_4", "startByte=5", "000f000000fe0000", -2, -2, "-2", "neutral neutral");
    row("lane", "CHAR_3", "startByte=6", "001a00000000ff00", -1, -1, "-1", "neutral neutral");
    row("lane", "UCHAR_4", "startByte=7 factor=0.1", "00100000000000ff", 255, std::fma(0.1, 255.0, 0.0), "25", "ok ok");
    row("lane", "UCHAR_2", "startByte=5", "0013000000500000", 80, 80, "80", "warning warning");
    row("lane", "UCHAR_3", "startByte=6 offset=-1", "001b000000006500", 101, 100, "100", "limit limit");
    // Bytes outside of the payload read as 0, at either side.
    row("half outside", "LONG", "startByte=6", "0003000000000102", 0x01020000, 0x01020000, "16908288", "limit limit");
    row("half before", "LONG", "startByte=-2", "0102000000000000", 0x0102, 0x0102, "258", "limit limit");
    row("last byte", "USHORT", "startByte=7", "00070000000000ab", 0xAB00, 0xAB00, "43776", "limit limit");
    row("outside", "UCHAR", "startByte=8", "ffffffffffffffff", 0, 0, "0", "ok ok");
    row("far outside", "ULONG", "startByte=2147483647", "ffffffffffffffff", 0, 0, "0", "ok ok");
    row("far before", "BLONG", "startByte=-2147483648 endBit=31 enumId=E", "ffffffffffffffff", 0, 0, "0: zero", "ok neutral");
    // Types without a number: the text names the entry's own type.
    for (const char* type : {"NODATA", "ERROR", "BCHAR", "BSHORT_2", "BCHAR_4", "BCHAR_2", "MEMID", "CHKSUM", "ACHAR", "ACHAR_2", "ACHAR_4",
                             "BCHAR_3", "ACHAR_3"})
        row("none", type, "", "00ff000001020304", 0, 0, "Datatype 255 not implemented", "untouched neutral");
}

void TestValueDecoding::decoding()
{
    QFETCH(QString, type);
    QFETCH(QString, attributes);
    QFETCH(QByteArray, payload);
    QFETCH(double, unscaled);
    QFETCH(double, value);
    QFETCH(QString, bands);
    OneParameter one(type, attributes);
    Profile& profile = one.cycle.profile;
    const RecordEntry entry = entryOf(payloadOf(payload));
    int state = 7;
    QColor colour(Qt::black);
    compareExactly(profile.getDouble(entry, one.parameter(), state, colour, true), value);
    QCOMPARE(bandOf(state, colour), bands.section(' ', 0, 0));
    compareExactly(profile.getDouble(entry, one.parameter(), false), unscaled);
    compareExactly(profile.getDouble(entry, true), value);
    QTEST(QString::fromStdString(profile.getDataString(entry, one.parameter(), state, colour)), "text");
    QCOMPARE(bandOf(state, colour), bands.section(' ', 1, 1));

    // Imperial: every value converts, of the texts only those of floats; bands stay metric.
    profile.setCurrentUnit(EUnit::eImperial);
    state = 7;
    colour = Qt::black;
    const double converted = profile.getDouble(entry, one.parameter(), state, colour, true);
    QCOMPARE(bandOf(state, colour), bands.section(' ', 0, 0));
    compareExactly(converted, bands.startsWith("untouched") ? 0.0 : value * 2 + 1);
    const std::string text = profile.getDataString(entry, one.parameter(), state, colour);
    QCOMPARE(bandOf(state, colour), bands.section(' ', 1, 1));
    if (type == "FLOAT") {
        char expected[400];
        const double shown = static_cast<double>(static_cast<float>(value)) * 2 + 1;
        std::snprintf(expected, sizeof expected, "%.*f", std::clamp(one.parameter().precision, 0, 17), shown);
        QCOMPARE(text, std::isnan(value) ? std::string("nan") : std::string(expected));
    } else {
        QTEST(QString::fromStdString(text), "text");
    }
}

void TestValueDecoding::bulkEqualsSingle_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("view");
    for (const char* type : kTypes) {
        QTest::addRow("%s", type) << type << "";
        QTest::addRow("%s position", type) << type << "Latitude"; // of any type; only floats are filtered
    }
    QTest::newRow("FLOAT longitude") << "FLOAT" << "Longitude";
}

void TestValueDecoding::bulkEqualsSingle()
{
    QFETCH(QString, type);
    QFETCH(QString, view);
    std::mt19937 random(static_cast<unsigned>(qHash(type + view, 0)));
    for (int startByte = -4; startByte <= 9; ++startByte) {
        const double factor = startByte % 2 ? 1.0 : static_cast<double>(random()) / 1e9;
        OneParameter one(type, QString("startByte=%1 factor=%2 offset=%3 viewId=%4 startBit=%5 endBit=%6 enumId=E")
                                   .arg(startByte).arg(factor, 0, 'g', 17).arg(startByte / 3.0, 0, 'g', 17).arg(view)
                                   .arg(random() % 40).arg(random() % 40));
        std::vector<StoredRecord> records(77);
        for (StoredRecord& record : records) {
            for (uint8_t& byte : record.payload)
                byte = static_cast<uint8_t>(random());
            if (view.size()) // real positions near each other, so that the filter has something to pass and to hold
                pf(static_cast<float>(4800 + random() % 40), reinterpret_cast<float*>(record.payload.data() + 4));
        }
        const ValueDecoder decoder = one.cycle.profile.context().decoder(one.parameter());
        CoordinateFilter filters[4];
        std::vector<double> values(records.size());
        std::vector<double> textValues(records.size());
        decoder.values(records, values.data(), filters[0]);
        decoder.textValues(records, textValues.data(), filters[1]);
        for (std::size_t i = 0; i < records.size(); ++i) {
            const double value = decoder.value(records[i].payload, true, filters[2]);
            const double textValue = decoder.textValue(records[i].payload, filters[3]);
            QVERIFY(values[i] == value || (std::isnan(values[i]) && std::isnan(value)));
            QVERIFY(textValues[i] == textValue || (std::isnan(textValues[i]) && std::isnan(textValue)));
        }
    }
}

void TestValueDecoding::integersByTheEntrysType_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("expected");
    const std::map<int, int> known{{3, -2}, {4, -2}, {5, 31}, {6, -1}, {12, -1}, {7, 65535}, {13, 65535}, {8, 31}, {9, -1}, {15, -1}, {18, -1},
                                   {26, -1}, {10, 255}, {16, 255}, {19, 255}, {27, 255}};
    for (int code = 0; code < 256; ++code)
        QTest::addRow("code %d", code) << code << (known.contains(code) ? known.at(code) : 0);
}

void TestValueDecoding::integersByTheEntrysType()
{
    QFETCH(int, code);
    OneParameter one("FLOAT", "startBit=2 endBit=6 factor=3 offset=4"); // none of it matters but the bits
    const RecordEntry entry = entryOf({0, static_cast<uint8_t>(code), 0, 0, 0xFF, 0xFF, 0xFF, 0xFE});
    QTEST(one.cycle.profile.getInt(entry, one.parameter()), "expected");
    QTEST(one.cycle.profile.getInt(entry), "expected");
}

void TestValueDecoding::thresholds_data()
{
    QTest::addColumn<QString>("boundaries"); // each value:state; the colour is the place in the list
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("passed"); // place of the one that decides, from 1; 0 is neutral
    const auto row = [](const char* name, const char* boundaries, double value, int passed) {
        QTest::addRow("%s %g", name, value) << boundaries << value << passed;
    };
    for (const auto& [value, passed] : std::map<double, int>{{-1, 0}, {-0.0, 1}, {79.999, 1}, {80, 2}, {100, 3}, {1e9, 3}})
        row("ascending", "0:OK 80:WARNING 100:LIMIT", value, passed);
    row("equal boundaries", "0:OK 50:WARNING 50:LIMIT", 50, 3);
    row("out of order stops early", "100:LIMIT 0:OK", 50, 0);
    row("out of order stops early", "0:OK 100:LIMIT 20:WARNING", 50, 1);
    row("out of order, the last passed", "0:OK 100:LIMIT 20:WARNING", 200, 3);
    row("nan passes all", "0:OK 80:WARNING 100:LIMIT", kNan, 3);
    row("boundary nan is passed", "0:OK nan:WARNING 100:LIMIT", 50, 2);
    row("infinite", "-inf:WARNING inf:LIMIT", -HUGE_VAL, 1);
    row("no boundary", "", 5, 0);
}

void TestValueDecoding::thresholds()
{
    QFETCH(QString, boundaries);
    QFETCH(double, value);
    QFETCH(int, passed);
    std::vector<ProfileBuilder::Boundary> list;
    for (const QString& item : boundaries.split(' ', Qt::SkipEmptyParts)) {
        list.push_back({item.section(':', 0, 0).toDouble(), item.section(':', 1), QString("#00000%1").arg(list.size() + 1)});
    }
    TestCycle cycle;
    QVERIFY(ProfileBuilder().thresholds("L", list).device("D").parameter("P", 1, "FLOAT", {{"thresholdId", "L"}}).load(cycle.profile));
    int state = 7;
    QColor colour;
    cycle.profile.getThreshold(cycle.profile.model().parameter(1), value, state, colour);
    const std::map<QString, int> states{{"OK", 0}, {"WARNING", 1}, {"LIMIT", 2}};
    QCOMPARE(state, passed ? states.at(list[static_cast<std::size_t>(passed - 1)].state) : 0);
    QCOMPARE(colour, passed ? QColor(0, 0, passed) : QColor(255, 255, 255, 255));
    cycle.profile.getThreshold(ProfileParameter{}, value, state, colour);
    QCOMPARE(bandOf(state, colour), QString("neutral"));
}

void TestValueDecoding::undeclaredUnitConvertsToZero()
{
    OneParameter one("FLOAT", "");
    ProfileParameter parameter = one.parameter();
    parameter.unitImperial = "mi";
    const RecordEntry entry = entryOf(floatPayload(90));
    int state = 0;
    QColor colour;
    QCOMPARE(one.cycle.profile.getDouble(entry, parameter, true), 90.0);
    one.cycle.profile.setCurrentUnit(EUnit::eImperial);
    QCOMPARE(one.cycle.profile.getDouble(entry, parameter, state, colour, true), 0.0);
    QCOMPARE(bandOf(state, colour), QString("warning"));
    QCOMPARE(one.cycle.profile.getDataString(entry, parameter, state, colour), std::string("0.000000"));
    QCOMPARE(one.cycle.profile.convertUnit(one.parameter(), 90), 181.0);
}

void TestValueDecoding::coordinates()
{
    QCOMPARE(calcCoordinate(4807.038), 48 + static_cast<double>(static_cast<float>(4807.038 / 100 - 48)) * 100 / 60);
    QVERIFY(std::fabs(calcCoordinate(4807.038) - 48.1173) < 1e-6);
    QCOMPARE(calcCoordinate(-1131.0), -calcCoordinate(1131.0));
    QVERIFY(std::fabs(calcCoordinate(-30.0) + 0.5) < 1e-6);
    QCOMPARE(calcCoordinate(0.0), 0.0);
    QVERIFY(std::isnan(calcCoordinate(kNan)));
}

void TestValueDecoding::positionFilter()
{
    CoordinateFilter filter;
    const auto degrees = [](double value) { return value * 100; }; // whole degrees, and hundredths as minutes / 60
    const auto near = [&](double minutes) { return filter.latitude(degrees(48) + minutes); };
    QCOMPARE(filter.latitude(0.0), 0.0); // an empty fix does not count
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(near(i % 2 ? 59.0 : 0.0), calcCoordinate(4800.0 + (i % 2 ? 59.0 : 0.0))); // any jump, until five have come
    }
    const double last = calcCoordinate(4800.0);
    QCOMPARE(near(6.0), last);                       // 0.1 degrees
    QCOMPARE(near(3.0), calcCoordinate(4803.0));     // 0.05 degrees from the last one that passed
    QCOMPARE(near(8.0), calcCoordinate(4808.0));     // 0.083 degrees from that
    QCOMPARE(near(2.0), calcCoordinate(4808.0));     // 0.1 degrees back
    QCOMPARE(filter.latitude(0.0), calcCoordinate(4808.0));
    QVERIFY(std::isnan(filter.latitude(kNan)));      // passes, and nothing is far from it
    QCOMPARE(filter.latitude(0.0), 0.0);
    filter.reset();
    QCOMPARE(filter.latitude(-3000.0), -30.0);
}

void TestValueDecoding::longitudeAllowanceWidens()
{
    for (const double latitude : {0.0, 60.0, -80.0}) {
        CoordinateFilter filter;
        QVERIFY(filter.latitude(latitude * 100) == latitude);
        for (int i = 0; i < 5; ++i)
            QVERIFY(filter.longitude(1000.0) == 10.0);
        filter.reset(); // forgets the fixes, not the latitude that the allowance comes from
        for (int i = 0; i < 5; ++i)
            QVERIFY(filter.longitude(1000.0) == 10.0);
        const double allowed = 0.08999280057595392 / std::cos(latitude * 0.017453292519943295);
        const auto at = [](double d) { return std::trunc(d) * 100 + (d - std::trunc(d)) * 60; };
        const double inside = at(10 + allowed * 0.999);
        const double outside = at(10 + allowed * 1.001);
        QVERIFY(filter.longitude(outside) == 10.0);
        QCOMPARE(filter.longitude(inside), calcCoordinate(inside));
    }
}

void TestValueDecoding::textsAdvanceTheFilterToo()
{
    OneParameter one("FLOAT", "viewId=Latitude precision=4");
    Profile& profile = one.cycle.profile;
    int state = 0;
    QColor colour;
    for (int i = 0; i < 3; ++i)
        QCOMPARE(profile.getDataString(entryOf(floatPayload(4800)), one.parameter(), state, colour), std::string("48.0000"));
    for (int i = 0; i < 2; ++i)
        QCOMPARE(profile.getDouble(entryOf(floatPayload(4800)), one.parameter(), true), 48.0);
    QCOMPARE(profile.getDataString(entryOf(floatPayload(4900)), one.parameter(), state, colour), std::string("48.0000"));
    QCOMPARE(profile.calcCoordinateLat(4900), 48.0);
    profile.resetCoordinates();
    QCOMPARE(profile.getDouble(entryOf(floatPayload(4900)), one.parameter(), false), 49.0); // filtered, scaled or not
    ProfileParameter other = one.parameter();
    other.viewId = "latitude";
    QCOMPARE(profile.getDouble(entryOf(floatPayload(4900)), other, true), 4900.0);
}

QTEST_APPLESS_MAIN(TestValueDecoding)
#include "TestValueDecoding.moc"
