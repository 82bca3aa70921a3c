#include "app/TimeText.h"

#include "app/Numeric.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace ZARN {

namespace {

constexpr int64_t kDay = 86400000;
constexpr int kMinute = 60; // also: seconds of one, minutes of an hour
constexpr int kHour = 3600;
constexpr qsizetype kFields = 3;
constexpr qsizetype kMostDigits = 5;

char* writeDigits(char* pOut, uint64_t number, int least)
{
    int digits = 1;
    for (uint64_t rest = number / 10; rest > 0; rest /= 10)
        ++digits;
    char* const pEnd = pOut + std::max(digits, least);
    for (char* pDigit = pEnd; pDigit != pOut; number /= 10)
        *--pDigit = static_cast<char>('0' + number % 10);
    return pEnd;
}

char* writeTwoDigits(char* pOut, uint64_t number)
{
    *pOut++ = static_cast<char>('0' + number / 10);
    *pOut++ = static_cast<char>('0' + number % 10);
    return pOut;
}

QString textOf(const char* pText, const char* pEnd)
{
    return QString::fromLatin1(pText, pEnd - pText);
}

} // namespace

char* writeElapsed(char* pOut, uint64_t time, int decimals, int hourDigits)
{
    uint64_t unit = 1;
    for (int i = 0; i < decimals; ++i)
        unit *= 10;
    const uint64_t seconds = time / unit, minutes = seconds / kMinute, hours = minutes / kMinute;
    if (hours > 0 || hourDigits > 0) {
        pOut = writeDigits(pOut, hours, hourDigits);
        *pOut++ = ':';
        pOut = writeTwoDigits(pOut, minutes % kMinute);
    } else {
        pOut = writeDigits(pOut, minutes, 1);
    }
    *pOut++ = ':';
    pOut = writeTwoDigits(pOut, seconds % kMinute);
    if (decimals == 0)
        return pOut;
    *pOut++ = '.';
    return writeDigits(pOut, time % unit, decimals);
}

char* writeSigned(char* pOut, bool isNegative, uint64_t time, int decimals, int hourDigits)
{
    if (isNegative)
        *pOut++ = '-';
    return writeElapsed(pOut, time, decimals, hourDigits);
}

char* writeTimeOfDay(char* pOut, int64_t milliseconds, bool withDecimals)
{
    const int64_t rest = milliseconds % kDay;
    const auto time = static_cast<uint64_t>(rest < 0 ? rest + kDay : rest);
    return withDecimals ? writeElapsed(pOut, time, 3, 2) : writeElapsed(pOut, time / 1000, 0, 2);
}

int64_t wholeMilliseconds(double seconds)
{
    return saturatingCast<int64_t>(seconds * 1000);
}

QString timeOfDayText(int64_t milliseconds, bool withDecimals)
{
    char text[kTimeTextSize];
    return textOf(text, writeTimeOfDay(text, milliseconds, withDecimals));
}

QString signedTimeText(int64_t milliseconds)
{
    char text[kTimeTextSize];
    return textOf(text, writeSigned(text, milliseconds < 0, static_cast<uint64_t>(std::abs(milliseconds % kDay)), 3, 2));
}

QString elapsedText(int64_t seconds, int hourDigits)
{
    char text[kTimeTextSize];
    return textOf(text, writeElapsed(text, static_cast<uint64_t>(std::max<int64_t>(seconds, 0)), 0, hourDigits));
}

QString hoursText(double seconds)
{
    return seconds >= 0 ? elapsedText(saturatingCast<int>(std::round(seconds / kMinute)) * int64_t{kMinute}, 1).chopped(3) : QStringLiteral("-");
}

std::optional<int> elapsedSeconds(const QString& text)
{
    QStringList fields = text.trimmed().split(':');
    if (fields.size() == 1) {
        for (qsizetype place = fields[0].size() - 2; place > 0 && fields.size() < kFields; place -= 2) {
            fields.insert(1, fields[0].mid(place, 2));
            fields[0].truncate(place);
        }
    }
    int seconds = 0;
    for (qsizetype i = 0; i < fields.size(); ++i) {
        const bool isNumber =
            !fields[i].isEmpty() && std::all_of(fields[i].begin(), fields[i].end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
        const int number = isNumber && fields[i].size() <= kMostDigits ? fields[i].toInt() : -1;
        if (fields.size() > kFields || number < 0 || (i > 0 && number >= kMinute))
            return {};
        seconds = seconds * kMinute + number;
    }
    return seconds;
}

} // namespace ZARN
