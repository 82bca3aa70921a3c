#include "ui/data/model/TextColour.h"

#include "ui/canvas/ColourContrast.h"

namespace ZARN {

namespace {

constexpr double kMiddle = 4.583; // the root of 21: where black and white have the same contrast

} // namespace

QColor textColourOn(const QColor& ground)
{
    return contrastRatio(ground, Qt::black) < kMiddle ? Qt::white : Qt::black;
}

} // namespace ZARN
