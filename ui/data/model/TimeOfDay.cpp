#include "ui/data/model/TimeOfDay.h"

#include "app/Numeric.h"

#include <array>

namespace ZARN {

namespace {

constexpr int64_t kDay = 86400000;

void putDigits(char16_t* pOut, int value, int digits)
{
    for (int i = digits - 1; i >= 0; --i, value /= 10)
        pOut[i] = static_cast<char16_t>(u'0' + value % 10);
}

} // namespace

QTime timeOfDay(int64_t milliseconds)
{
    const int64_t rest = milliseconds % kDay;
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(rest < 0 ? rest + kDay : rest));
}

int64_t wholeMilliseconds(double seconds)
{
    return saturatingCast<int64_t>(seconds * 1000);
}

// Written for every row that is painted, where the toolkit's own formatting would cost more than the painting.
QString timeOfDayText(int64_t milliseconds)
{
    const QTime time = timeOfDay(milliseconds);
    std::array<char16_t, 12> text{u'0', u'0', u':', u'0', u'0', u':', u'0', u'0', u'.', u'0', u'0', u'0'};
    putDigits(&text[0], time.hour(), 2);
    putDigits(&text[3], time.minute(), 2);
    putDigits(&text[6], time.second(), 2);
    putDigits(&text[9], time.msec(), 3);
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace ZARN
