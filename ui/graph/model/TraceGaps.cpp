#include "ui/graph/model/TraceGaps.h"

#include <algorithm>

namespace ZARN {

namespace {

constexpr double kSpacings = 5.0;
constexpr std::size_t kLooks = 1024; // at so many distances the usual one shows

} // namespace

double gapLength(const SampleSeries& samples)
{
    std::vector<double> spacings;
    const std::size_t step = std::max<std::size_t>(samples.size() / kLooks, 1);
    for (std::size_t i = 1; i < samples.size(); i += step)
        spacings.push_back(samples.time(i) - samples.time(i - 1));
    if (spacings.empty())
        return kLeastGap;
    const auto middle = spacings.begin() + static_cast<std::ptrdiff_t>(spacings.size() / 2);
    std::ranges::nth_element(spacings, middle);
    return std::max(kLeastGap, kSpacings * *middle);
}

bool TraceGaps::isGrown(const SampleSeries& samples) const
{
    return mSeen > 0 && samples.size() >= mSeen && samples.size() < mAnew && samples.time(0) == mFirst && samples.time(mSeen - 1) == mLast;
}

const std::vector<uint32_t>& TraceGaps::of(const SampleSeries& samples, const std::vector<uint32_t>& breaks)
{
    if (!isGrown(samples)) {
        mPlaces.clear();
        mSeen = 0;
        mAnew = 2 * samples.size();
        mLength = gapLength(samples);
    }
    auto next = std::ranges::lower_bound(breaks, mSeen);
    for (std::size_t i = std::max<std::size_t>(mSeen, 1); i < samples.size(); ++i) {
        while (next != breaks.end() && *next < i)
            ++next;
        if ((next != breaks.end() && *next == i) || samples.time(i) - samples.time(i - 1) >= mLength)
            mPlaces.push_back(static_cast<uint32_t>(i));
    }
    mSeen = samples.size();
    if (mSeen > 0) {
        mFirst = samples.time(0);
        mLast = samples.time(mSeen - 1);
    }
    return mPlaces;
}

} // namespace ZARN
