#include "trace/FormulaStep.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ZARN {

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

} // namespace

void FormulaStep::begin()
{
    mHasPast = false;
    mPast.clear();
    mArea = mCovered = 0;
    mValue = mKind == EKind::eIntegral ? 0.0 : kNone;
}

void FormulaStep::evaluate(double time)
{
    const double value = mArgument.Eval();
    if (mHasPast && !(time >= mLast.from))
        begin();
    switch (mKind) {
    case EKind::eDelta: mValue = mHasPast ? value - mLast.value : kNone; break;
    case EKind::eIntegral:
        if (const double area = mHasPast ? (mLast.value + value) / 2 * (time - mLast.from) : 0.0; std::isfinite(area))
            mValue += area;
        break;
    case EKind::eAverage:
    case EKind::eLag:
        mPast.push_back({time, value});
        mValue = mKind == EKind::eLag ? lag(time) : average(time);
        break;
    }
    mLast = {time, value};
    mHasPast = true;
}

double FormulaStep::lag(double time)
{
    while (mPast.size() > 1 && mPast[1].from <= time - mSeconds)
        mPast.pop_front();
    return mPast.front().from <= time - mSeconds ? mPast.front().value : kNone;
}

void FormulaStep::leave(const Stay& stay, double until, double sign)
{
    if (!std::isfinite(stay.value))
        return;
    mArea += sign * stay.value * (until - stay.from);
    mCovered += sign * (until - stay.from);
}

/// The sum is kept from one call to the next, and begins anew now and then, before roundings add up.
double FormulaStep::average(double time)
{
    constexpr std::size_t kAnew = 1024;
    if (mPast.size() > 1)
        leave(mPast[mPast.size() - 2], time, 1);
    const double begin = time - mSeconds;
    bool isAnew = false;
    while (mPast.size() > 1 && mPast[1].from <= begin) {
        leave(mPast.front(), mPast[1].from, -1);
        mPast.pop_front();
        isAnew |= ++mLeft % kAnew == 0;
    }
    if (mPast.size() > 1 && mPast.front().from < begin) {
        leave(mPast.front(), begin, -1);
        mPast.front().from = begin;
    }
    if (isAnew || mPast.size() == 1) {
        mArea = mCovered = 0;
        for (std::size_t i = 0; i + 1 < mPast.size(); ++i)
            leave(mPast[i], mPast[i + 1].from, 1);
    }
    return mCovered > 0 ? mArea / mCovered : mPast.back().value;
}

} // namespace ZARN
