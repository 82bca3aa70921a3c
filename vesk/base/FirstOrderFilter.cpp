#include "vesk/base/FirstOrderFilter.h"

#include <cmath>

namespace VESK::Math {

double FirstOrderFilter::update(double value, double interval)
{
    if (!std::isfinite(value))
        return mValue;
    if (!mStarted || mTimeConstant <= 0.0)
        mValue = value;
    else if (interval > 0.0)
        mValue += (value - mValue) * -std::expm1(-interval / mTimeConstant);
    mStarted = true;
    return mValue;
}

void FirstOrderFilter::reset()
{
    mValue = 0.0;
    mStarted = false;
}

} // namespace VESK::Math
