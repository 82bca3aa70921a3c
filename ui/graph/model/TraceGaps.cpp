#include "ui/graph/model/TraceGaps.h"

#include <algorithm>

namespace ZARN {

namespace {

constexpr double kLeastGap = 2.0;
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

std::vector<uint32_t> traceGaps(const SampleSeries& samples, const std::vector<uint32_t>& breaks)
{
    const double length = gapLength(samples);
    std::vector<uint32_t> gaps;
    auto next = breaks.begin();
    for (std::size_t i = 1; i < samples.size(); ++i) {
        while (next != breaks.end() && *next < i)
            ++next;
        if ((next != breaks.end() && *next == i) || samples.time(i) - samples.time(i - 1) >= length)
            gaps.push_back(static_cast<uint32_t>(i));
    }
    return gaps;
}

} // namespace ZARN
