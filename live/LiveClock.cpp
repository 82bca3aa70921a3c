#include "live/LiveClock.h"

#include <algorithm>
#include <cstdlib>

namespace ZARN {

uint64_t LiveClock::ticks(int64_t stampMicroseconds, int64_t hostMicroseconds)
{
    const bool isFirst = !mIsBegun;
    if (isFirst) {
        mIsBegun = true;
        mFirstHost = hostMicroseconds;
        mShift = -stampMicroseconds;
    }
    const int64_t hostTime = hostMicroseconds - mFirstHost;
    // A hostile stamp may be any number: no difference of two may overflow.
    const double drift = static_cast<double>(stampMicroseconds) + static_cast<double>(mShift) - static_cast<double>(hostTime);
    if (std::abs(drift) > static_cast<double>(kMostDrift))
        mShift = static_cast<int64_t>(static_cast<uint64_t>(hostTime) - static_cast<uint64_t>(stampMicroseconds));
    const int64_t time =
        stampMicroseconds == 0 ? hostTime : static_cast<int64_t>(static_cast<uint64_t>(stampMicroseconds) + static_cast<uint64_t>(mShift));
    const auto ticks = static_cast<uint64_t>(std::max<int64_t>(time, 0)) * kTicksPerMicrosecond;
    mLast = isFirst ? ticks : std::max(ticks, mLast + 1);
    return mLast;
}

} // namespace ZARN
