#include "ui/data/model/TextColour.h"

#include <cmath>

namespace ZARN {

namespace {

constexpr double kMiddle = 0.179; // luminance at which black and white have the same contrast

double linear(double share)
{
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

} // namespace

QColor textColourOn(const QColor& ground)
{
    const double luminance = 0.2126 * linear(ground.redF()) + 0.7152 * linear(ground.greenF()) + 0.0722 * linear(ground.blueF());
    return luminance < kMiddle ? Qt::white : Qt::black;
}

} // namespace ZARN
