#include "ui/graph/model/GraphTexts.h"

#include "app/Numeric.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

QString digits(qint64 number, int least)
{
    return QStringLiteral("%1").arg(number, least, 10, QLatin1Char('0'));
}

} // namespace

QString graphTime(double seconds, int decimals, int hours)
{
    const auto parts = saturatingCast<qint64>(std::pow(10.0, decimals));
    const auto total = saturatingCast<qint64>(std::abs(seconds) * static_cast<double>(parts));
    const qint64 whole = total / parts;
    QString text = seconds < 0 && total != 0 ? QStringLiteral("-") : QString();
    text += digits(whole / 3600, hours) + QLatin1Char(':') + digits(whole / 60 % 60, 2) + QLatin1Char(':') + digits(whole % 60, 2);
    return decimals > 0 ? text + QLatin1Char('.') + digits(total % parts, decimals) : text;
}

QString graphNumber(double value, int precision)
{
    const QString text = QString::number(value, std::abs(value) < 1e15 ? 'f' : 'g', std::clamp(precision, 0, 17));
    const bool isZero =
        std::ranges::all_of(text, [](QChar c) { return c == QLatin1Char('-') || c == QLatin1Char('0') || c == QLatin1Char('.'); });
    return isZero && text.startsWith(QLatin1Char('-')) ? text.mid(1) : text;
}

} // namespace ZARN
