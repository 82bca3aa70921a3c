#include "ui/graph/model/GraphParameter.h"

#include <algorithm>

namespace ZARN {

QColor GraphColour::colour() const
{
    return QColor::fromRgbF(std::clamp(red, 0.0F, 1.0F), std::clamp(green, 0.0F, 1.0F), std::clamp(blue, 0.0F, 1.0F));
}

} // namespace ZARN
