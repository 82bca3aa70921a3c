#include "ui/graph/model/GraphTexts.h"

#include "app/Numeric.h"
#include "app/TimeText.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

QString graphTime(double seconds, int decimals, int hours)
{
    const auto total = saturatingCast<qint64>(std::abs(seconds) * std::pow(10.0, decimals));
    char text[kTimeTextSize];
    return QString::fromLatin1(text, writeSigned(text, seconds < 0 && total != 0, static_cast<uint64_t>(total), decimals, hours) - text);
}

QString graphNumber(double value, int precision)
{
    const QString text = QString::number(value, std::abs(value) < 1e15 ? 'f' : 'g', std::clamp(precision, 0, 17));
    const bool isZero =
        std::ranges::all_of(text, [](QChar c) { return c == QLatin1Char('-') || c == QLatin1Char('0') || c == QLatin1Char('.'); });
    return isZero && text.startsWith(QLatin1Char('-')) ? text.mid(1) : text;
}

} // namespace ZARN
