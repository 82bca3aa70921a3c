#include "card/Resampling.h"

#include "app/Numeric.h"

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

GridSeries::GridSeries(double step, const std::vector<Sample>& series) : mStep(step), mpSeries(&series)
{
    if (series.size() < 2 || !(series.back().time >= 0.0))
        return;
    const double last = series.back().time;
    mSize = saturatingCast<std::size_t>(last / step);
    while (mSize > 0 && time(mSize - 1) > last) // a quotient may be rounded either way
        --mSize;
    while (time(mSize) <= last)
        ++mSize;
}

double GridSeries::value(std::size_t point)
{
    const std::vector<Sample>& series = *mpSeries;
    const double at = time(point);
    while (mUpper + 1 < series.size() && series[mUpper].time <= at)
        ++mUpper;
    return interpolate(series[mUpper - 1], series[mUpper], at);
}

void resampleData(double step, const std::vector<Sample>& in, std::vector<Sample>& out)
{
    if (in.size() < 2) {
        out = in;
        return;
    }
    GridSeries grid(step, in);
    for (std::size_t i = 0; i < grid.size(); ++i)
        out.push_back({grid.time(i), grid.value(i)});
}

} // namespace ZARN
