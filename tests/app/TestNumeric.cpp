#include "app/Numeric.h"

#include <QtTest>

using ZARN::saturatingCast;

class TestNumeric : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void limits();
};

namespace {

template <typename Integer> void saturates()
{
    using Limits = std::numeric_limits<Integer>;
    const double infinity = std::numeric_limits<double>::infinity();
    const double aboveMax = std::ldexp(1.0, Limits::digits);
    for (const double value : {aboveMax, aboveMax * 2.0, 1e300, infinity})
        QCOMPARE(saturatingCast<Integer>(value), Limits::max());
    for (const double value : {-aboveMax * 2.0, -1e300, -infinity})
        QCOMPARE(saturatingCast<Integer>(value), Limits::min());
    QCOMPARE(saturatingCast<Integer>(std::nan("")), Integer(0));
    const double below = std::nextafter(aboveMax, 0.0);
    QCOMPARE(static_cast<double>(saturatingCast<Integer>(below)), std::trunc(below));
    QCOMPARE(static_cast<double>(saturatingCast<Integer>(static_cast<double>(Limits::min()))), static_cast<double>(Limits::min()));
}

} // namespace

void TestNumeric::limits()
{
    saturates<signed char>();
    saturates<unsigned char>();
    saturates<short>();
    saturates<unsigned short>();
    saturates<int>();
    saturates<unsigned>();
    saturates<long>();
    saturates<unsigned long>();
}

QTEST_APPLESS_MAIN(TestNumeric)
#include "TestNumeric.moc"
