#include "ui/canvas/ColourContrast.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr float kStep = 1.0F / 32;

double linear(float channel)
{
    const auto value = static_cast<double>(channel);
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

} // namespace

double contrastRatio(const QColor& a, const QColor& b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

QColor textColourOn(const QColor& ground)
{
    return contrastRatio(ground, Qt::white) > contrastRatio(ground, Qt::black) ? Qt::white : Qt::black;
}

QColor readableOn(const QColor& ground, const QColor& colour, double ratio)
{
    const QColor away = textColourOn(ground);
    QColor out = colour;
    for (float share = kStep; share <= 1 && contrastRatio(out, ground) < ratio; share += kStep)
        out = mixed(colour, away, share);
    return out;
}

QColor mixed(const QColor& a, const QColor& b, float share)
{
    const auto mix = [share](float from, float to) { return from + (to - from) * share; };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

QColor withAlpha(QColor colour, double alpha)
{
    colour.setAlphaF(static_cast<float>(alpha));
    return colour;
}

} // namespace ZARN
