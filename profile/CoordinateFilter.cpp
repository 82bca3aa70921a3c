#include "profile/CoordinateFilter.h"

#include <cmath>

namespace ZARN {

namespace {

constexpr double kAllowedJump = 0.08999280057595392; // degrees: 10 km at 111.12 km a degree
constexpr double kRadiansPerDegree = 0.017453292519943295;
constexpr uint32_t kFixesBeforeFiltering = 4;
constexpr double kEmptyFix = 0.001; // degrees; a receiver without a fix sends values near 0

} // namespace

double calcCoordinate(double value)
{
    const double hundredths = value / 100;
    const double degrees = std::trunc(hundredths);
    const auto fraction = static_cast<float>(hundredths - degrees);
    return degrees + static_cast<double>(fraction) * 100 / 60;
}

double CoordinateFilter::latitude(double value)
{
    return filter(mLatitude, calcCoordinate(value), kAllowedJump);
}

double CoordinateFilter::longitude(double value)
{
    if (mLatitude.last != mAllowedAt) { // a pass decodes one axis after the other: the latitude stays
        mAllowedAt = mLatitude.last;
        mAllowed = kAllowedJump / std::cos(mAllowedAt * kRadiansPerDegree);
    }
    return filter(mLongitude, calcCoordinate(value), mAllowed);
}

double CoordinateFilter::filter(Axis& axis, double degrees, double allowedJump)
{
    if (axis.fixes > kFixesBeforeFiltering) {
        if (std::fabs(degrees - axis.last) > allowedJump)
            degrees = axis.last;
    } else if (std::fabs(degrees) > kEmptyFix) {
        ++axis.fixes;
    }
    axis.last = degrees;
    return degrees;
}

} // namespace ZARN
