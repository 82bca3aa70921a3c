#include "ui/graph/model/AxisTicks.h"

#include "app/Numeric.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kMostTicks = 1000;

struct Spacing {
    double step;
    int subdivisions;
};

Spacing roundSpacing(double raw)
{
    if (raw < 1)
        return {1, 5};
    if (raw < 2)
        return {2, 4};
    return {raw < 5 ? 5.0 : 10.0, 5};
}

Spacing spacingOf(double min, double max, double length, double spacing)
{
    const double raw = (max - min) / (length / spacing);
    if (!(max - min >= raw) || !std::isfinite(raw) || !(raw > 0))
        return {-1, 1};
    const double exponent = std::log10(std::abs(raw));
    const double scale = exponent > 1 ? std::pow(10.0, std::trunc(exponent)) : exponent < 0 ? std::pow(10.0, std::trunc(exponent - 1)) : 1.0;
    const Spacing rounded = roundSpacing(raw / scale);
    return {rounded.step * scale, rounded.subdivisions};
}

int decimalsOf(double step)
{
    const double exponent = std::log10(step);
    return exponent >= 1 || !std::isfinite(exponent) ? 0 : std::min(17, saturatingCast<int>(std::abs(exponent)) + 1);
}

} // namespace

void getAutoPara(double min, double max, double length, double spacing, float& step, int& subdivisions)
{
    const Spacing found = spacingOf(min, max, length, spacing);
    step = static_cast<float>(found.step);
    subdivisions = found.subdivisions;
}

void getAutoFormat(float step, QString& format)
{
    format = QStringLiteral("%.%1f").arg(decimalsOf(static_cast<double>(step)));
}

AxisTicks::AxisTicks(double min, double max, double length, double spacing)
{
    const Spacing found = spacingOf(min, max, length, spacing);
    mStep = found.step;
    const double part = found.step / found.subdivisions;
    const double first = std::ceil(min / part), last = std::floor(max / part);
    if (found.step <= 0 || !(part > 0) || !(last - first < kMostTicks) || std::abs(first) > 1e15)
        return;
    for (double k = first; k <= last; ++k)
        mTicks.push_back({k * part, std::fmod(k, found.subdivisions) == 0});
}

QString AxisTicks::valueLabel(double value) const
{
    // The step of float precision that formats are made for; a negative zero is no value that anybody wants to read.
    return QString::number(value == 0 ? 0.0 : value, 'f', decimalsOf(static_cast<double>(static_cast<float>(mStep))));
}

QString AxisTicks::timeLabel(double seconds) const
{
    const int decimals = mStep >= 0.9999 || mStep <= 0 ? 0 : std::min(9, decimalsOf(mStep * 1.0001));
    const double unit = std::pow(10.0, decimals);
    const auto total = saturatingCast<qint64>(std::round(std::abs(seconds) * unit));
    const auto parts = saturatingCast<qint64>(unit);
    const qint64 whole = total / parts;
    QString text = QStringLiteral("%1:%2:%3").arg(whole / 3600).arg(whole / 60 % 60, 2, 10, QLatin1Char('0')).arg(whole % 60, 2, 10, QLatin1Char('0'));
    if (decimals > 0)
        text += QStringLiteral(".%1").arg(total % parts, decimals, 10, QLatin1Char('0'));
    return seconds < 0 && total != 0 ? QLatin1Char('-') + text : text;
}

} // namespace ZARN
