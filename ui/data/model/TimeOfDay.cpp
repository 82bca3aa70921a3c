#include "ui/data/model/TimeOfDay.h"

#include "app/Numeric.h"

#include <algorithm>
#include <array>

namespace ZARN {

namespace {

constexpr int64_t kDay = 86400000;
constexpr int kMinute = 60; // also: seconds of one, minutes of an hour
constexpr int kHour = 3600;
constexpr qsizetype kFields = 3;
constexpr qsizetype kMostDigits = 5;

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
    if (milliseconds < 0)
        return '-' + timeOfDayText(-(milliseconds % kDay));
    const QTime time = timeOfDay(milliseconds);
    std::array<char16_t, 12> text{u'0', u'0', u':', u'0', u'0', u':', u'0', u'0', u'.', u'0', u'0', u'0'};
    putDigits(&text[0], time.hour(), 2);
    putDigits(&text[3], time.minute(), 2);
    putDigits(&text[6], time.second(), 2);
    putDigits(&text[9], time.msec(), 3);
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

QString elapsedText(int seconds)
{
    const QChar zero('0');
    return QString("%1:%2:%3").arg(seconds / kHour, 2, 10, zero).arg(seconds / kMinute % kMinute, 2, 10, zero).arg(seconds % kMinute, 2, 10, zero);
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
        const bool isNumber = !fields[i].isEmpty() && std::all_of(fields[i].begin(), fields[i].end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
        const int number = isNumber && fields[i].size() <= kMostDigits ? fields[i].toInt() : -1;
        if (fields.size() > kFields || number < 0 || (i > 0 && number >= kMinute))
            return {};
        seconds = seconds * kMinute + number;
    }
    return seconds;
}

} // namespace ZARN
