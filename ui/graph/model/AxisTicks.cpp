#include "ui/graph/model/AxisTicks.h"

#include "app/Numeric.h"
#include "ui/graph/model/GraphTexts.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kMostTicks = 1000;

struct Spacing {
    double step;
    int subdivisions;
};

constexpr double kDay = 86400;
constexpr Spacing kTimes[] = {{1, 5},   {2, 4},   {5, 5},   {10, 5},   {15, 3},   {30, 6},    {60, 6},    {120, 4},  {300, 5},
                              {600, 5}, {900, 3}, {1800, 6}, {3600, 4}, {7200, 4}, {10800, 3}, {21600, 6}, {43200, 4}, {kDay, 4}};

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

/// @param raw seconds
Spacing timeSpacing(double raw)
{
    for (const Spacing& spacing : kTimes) {
        if (raw <= spacing.step)
            return spacing;
    }
    const double scale = std::pow(10.0, std::floor(std::log10(raw / kDay)));
    const Spacing days = roundSpacing(raw / kDay / scale);
    return {days.step * scale * kDay, days.subdivisions};
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
    place(min, max, found.subdivisions);
}

AxisTicks AxisTicks::ofTime(double min, double max, double length, double spacing)
{
    AxisTicks ticks;
    const double raw = (max - min) / (length / spacing);
    Spacing found = spacingOf(min, max, length, spacing);
    if (found.step > 0 && raw > 0.5)
        found = timeSpacing(raw);
    ticks.mStep = found.step;
    ticks.place(min, max, found.subdivisions);
    return ticks;
}

void AxisTicks::place(double min, double max, int subdivisions)
{
    const double part = mStep / subdivisions;
    const double first = std::ceil(min / part), last = std::floor(max / part);
    if (mStep <= 0 || !(part > 0) || !(last - first < kMostTicks) || std::abs(first) > 1e15)
        return;
    for (double k = first; k <= last; ++k)
        mTicks.push_back({k * part, std::fmod(k, subdivisions) == 0});
}

QString AxisTicks::valueLabel(double value) const
{
    // The step of float precision that formats are made for.
    return graphNumber(value, decimalsOf(static_cast<double>(static_cast<float>(mStep))));
}

QString AxisTicks::timeLabel(double seconds) const
{
    const int decimals = mStep >= 0.9999 || mStep <= 0 ? 0 : std::min(9, decimalsOf(mStep * 1.0001));
    const double unit = std::pow(10.0, decimals);
    const double rounded = std::round(seconds * unit);
    return graphTime((rounded + std::copysign(0.25, rounded)) / unit, decimals, 1); // off the edge, where a fraction would be cut off
}

} // namespace ZARN
