#include "card/Geography.h"

#include <cmath>

namespace ZARN {

double calcDistance(double lat1, double lon1, double lat2, double lon2)
{
    constexpr double radians = 0.017453292519943295;
    constexpr double degrees = 57.29577951308232;
    const double cosine = std::cos(lat1 * radians) * std::cos(lat2 * radians) * std::cos((lon2 - lon1) * radians) +
                          std::sin(lat1 * radians) * std::sin(lat2 * radians);
    return std::acos(cosine) * degrees * 60 * 1852;
}

} // namespace ZARN
