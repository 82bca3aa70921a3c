#include "ui/graph/model/GraphParameter.h"

#include <algorithm>

namespace ZARN {

GraphColour GraphColour::named(const QString& name)
{
    const QColor colour(name);
    return {colour.redF(), colour.greenF(), colour.blueF()};
}

QColor GraphColour::colour() const
{
    return QColor::fromRgbF(std::clamp(red, 0.0F, 1.0F), std::clamp(green, 0.0F, 1.0F), std::clamp(blue, 0.0F, 1.0F));
}

} // namespace ZARN
