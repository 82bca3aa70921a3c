#include "analysis/VerticalSteps.h"

#include "card/record/RecordEntry.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace ZARN {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kInterval = 10.0;     // seconds between the altitudes that are compared
constexpr double kVerticalSpeed = 1.0; // metres a second from which on it is a climb or descent

/// The greatest time of which the sum with `shift` is not above `until`, in the arithmetic of doubles.
double lastNotAbove(double until, double shift)
{
    constexpr int kNear = 4;
    if (std::isinf(until))
        return until;
    double low = until - shift;
    for (int i = 0; i < kNear && low + shift > until; ++i)
        low = std::nextafter(low, -kInfinity);
    double high = std::nextafter(low, kInfinity);
    for (int i = 0; i < kNear && high + shift <= until; ++i) {
        low = high;
        high = std::nextafter(low, kInfinity);
    }
    if (low + shift <= until && high + shift > until)
        return low;
    // Near 0 numbers lie much closer than their sums.
    low = until - shift - 1e-6;
    high = until - shift + 1e-6;
    for (double middle = std::midpoint(low, high); middle > low && middle < high; middle = std::midpoint(low, high))
        (middle + shift <= until ? low : high) = middle;
    return low;
}

} // namespace

VerticalSteps::VerticalSteps(const Trace& altitude, int64_t seconds)
{
    addStep(-1.0, 0.0);
    double latest = -kInfinity;
    double previous = 0.0;
    bool isFirst = true;
    altitude.forEachSample([&](double time, double metres) {
        mIsKnown |= time <= kLatestTime;
        if (time > latest) { // else no time is the first at which this sample comes too late
            addStep(time, isFirst ? metres : previous);
            latest = time;
        }
        previous = metres;
        isFirst = false;
    });
    const double last = std::nextafter(static_cast<double>(seconds), -kInfinity);
    while (mSteps.size() > 1 && mSteps[mSteps.size() - 2].until >= last)
        mSteps.pop_back();
    mSteps.back().until = std::min(mSteps.back().until, last);
    addStep(kInfinity, 0.0);
}

void VerticalSteps::addStep(double until, double altitude)
{
    if (!mSteps.empty() && mSteps.back().altitude == altitude)
        mSteps.back().until = until;
    else
        mSteps.push_back({until, altitude});
}

EVertical VerticalSteps::vertical(double before, double after)
{
    const double speed = (after - before) / kInterval;
    return speed >= kVerticalSpeed ? EVertical::eClimb : speed <= -kVerticalSpeed ? EVertical::eDescent : EVertical::eLevel;
}

void VerticalSteps::Cursor::moveTo(double seconds)
{
    const double time = seconds + mShift;
    if (time > mSteps[mPlace].until)
        ++mPlace;
    if (time > mSteps[mPlace].until) // far ahead
        mPlace = static_cast<std::size_t>(std::ranges::lower_bound(mSteps, time, {}, &Step::until) - mSteps.begin());
}

double VerticalSteps::Cursor::until() const
{
    return lastNotAbove(mSteps[mPlace].until, mShift);
}

} // namespace ZARN
