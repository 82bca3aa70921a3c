#include "app/NumberText.h"

#include <QTest>

#include <bit>
#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

using namespace ZARN;

namespace {

constexpr int kMostDecimals = 17;

std::string fixedText(double value, int decimals)
{
    char buffer[kNumberTextSize];
    return {buffer, writeFixed(buffer, value, decimals)};
}

std::string generalText(double value, int digits)
{
    char buffer[kNumberTextSize];
    return {buffer, writeGeneral(buffer, value, digits)};
}

std::string printed(const char* format, double value, int precision)
{
    if (std::isnan(value))
        return "nan"; // the C library shows the sign of a NaN, displays never do
    char buffer[kNumberTextSize];
    const int length = format[3] == 'f' ? std::snprintf(buffer, sizeof buffer, "%.*f", precision, value)
                                        : std::snprintf(buffer, sizeof buffer, "%.*g", precision, value);
    return {buffer, static_cast<std::size_t>(length)};
}

/// Numbers of one kind, from a seeded source.
double draw(int kind, std::mt19937_64& random)
{
    switch (kind) {
    case 0: return std::bit_cast<double>(random());                                            // any bits: denormal, huge, NaN, infinite
    case 1: return std::bit_cast<float>(static_cast<uint32_t>(random()));                      // what a FLOAT parameter may carry
    case 2: return static_cast<float>(static_cast<int64_t>(random() % 2000001) - 1000000) / 64; // exact ties at up to 6 decimals
    case 3: return static_cast<double>(static_cast<int64_t>(random() % 20000001) - 10000000) / 1000;
    case 4: return (static_cast<double>(random() % 100000) + 0.5) / 10000; // ties in decimal that binary misses by a hair
    case 5: return std::nextafter((static_cast<double>(random() % 1000) + 0.5) / 8, random() % 2 ? 1e9 : -1e9);
    default: return 1e15 + static_cast<double>(static_cast<int64_t>(random() % 4000) - 2000) / 8; // around the limit of the short way
    }
}

} // namespace

class TestNumberText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fixedEqualsPrintf_data();
    void fixedEqualsPrintf();
    void generalEqualsPrintf();
    void specialNumbers();
};

void TestNumberText::fixedEqualsPrintf_data()
{
    QTest::addColumn<int>("kind");
    const char* const names[] = {"any double", "any float", "binary ties", "thousandths", "decimal ties", "beside ties", "near 1e15"};
    for (int kind = 0; kind < 7; ++kind)
        QTest::newRow(names[kind]) << kind;
}

void TestNumberText::fixedEqualsPrintf()
{
    QFETCH(int, kind);
    std::mt19937_64 random(static_cast<uint64_t>(kind) + 1);
    for (int i = 0; i < 8000; ++i) {
        const double value = draw(kind, random);
        for (int decimals = 0; decimals <= kMostDecimals; ++decimals)
            QCOMPARE(fixedText(value, decimals), printed("%.*f", value, decimals));
    }
}

void TestNumberText::generalEqualsPrintf()
{
    std::mt19937_64 random(99);
    for (int i = 0; i < 40000; ++i) {
        // Most numbers written so are unsigned longs, scaled or not.
        const double value = i % 2 ? static_cast<double>(static_cast<uint32_t>(random())) * (i % 4 == 1 ? 1.0 : 0.001) : draw(i % 7, random);
        for (int digits = 0; digits <= kMostDecimals; ++digits)
            QCOMPARE(generalText(value, digits), printed("%.*g", value, digits));
    }
}

void TestNumberText::specialNumbers()
{
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const int precision : {0, 6, 17}) {
        QCOMPARE(fixedText(nan, precision), std::string("nan"));
        QCOMPARE(fixedText(-nan, precision), std::string("nan"));
        QCOMPARE(generalText(-nan, precision), std::string("nan"));
        QCOMPARE(fixedText(infinity, precision), std::string("inf"));
        QCOMPARE(fixedText(-infinity, precision), std::string("-inf"));
        QCOMPARE(generalText(-infinity, precision), std::string("-inf"));
    }
    QCOMPARE(fixedText(-0.0, 2), std::string("-0.00"));
    QCOMPARE(fixedText(-0.001, 2), std::string("-0.00"));
    QCOMPARE(fixedText(0.999, 2), std::string("1.00")); // the carry makes a digit more
    QCOMPARE(fixedText(-DBL_MAX, 17).size(), std::size_t(1 + 309 + 1 + 17));
}

QTEST_APPLESS_MAIN(TestNumberText)
#include "TestNumberText.moc"
