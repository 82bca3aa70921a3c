#include "card/Resampling.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

double interpolate(const Sample& lower, const Sample& upper, double time)
{
    const double span = upper.time - lower.time;
    if (span == 0.0)
        return upper.value;
    const double fraction = std::clamp((time - lower.time) / span, 0.0, 1.0);
    return lower.value + fraction * (upper.value - lower.value);
}

} // namespace

void resampleData(double step, const std::vector<Sample>& in, std::vector<Sample>& out)
{
    if (in.size() < 2) {
        out = in;
        return;
    }
    const double last = in.back().time;
    if (last < 0.0)
        return;
    std::size_t upper = 1;
    for (std::size_t i = 0;; ++i) {
        const double time = static_cast<double>(i) * step;
        if (!(time <= last))
            return;
        while (upper + 1 < in.size() && in[upper].time <= time)
            ++upper;
        out.push_back({time, interpolate(in[upper - 1], in[upper], time)});
    }
}

} // namespace ZARN
