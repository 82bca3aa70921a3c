#include "ui/graph/model/TimeWindow.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kWidest = 1e7;       // seconds; wheel and keys stop there
constexpr double kNarrowHalf = 0.5;   // of what the wheel opens where the window has no width
constexpr float kEdge = 0.1F;         // of the window, between a time that is kept inside and the edge
constexpr float kMargin = 0.1F;       // of the record's span, before and after it
constexpr float kMomentMargin = 0.5F; // seconds around a record of one moment
constexpr float kHeldZoom = 0.97F;
constexpr float kHeldInLimit = 5000.0F, kHeldOutLimit = 1.0F; // seconds

} // namespace

TimeWindow TimeWindow::ofRecord(double start, double end)
{
    const auto first = static_cast<float>(start), last = static_cast<float>(end);
    const float margin = last > first ? kMargin * (last - first) : kMomentMargin;
    return {static_cast<double>(first - margin), static_cast<double>(last + margin)};
}

bool TimeWindow::isFinite() const
{
    return std::isfinite(mBegin) && std::isfinite(mEnd);
}

TimeWindow TimeWindow::ofWidth(double seconds, eGraphMode mode) const
{
    return mode == eAutomatic ? from(mEnd - seconds) : to(mBegin + seconds);
}

TimeWindow TimeWindow::zoomedAbout(double time, double factor) const
{
    const double wanted = width() * factor;
    if (!std::isfinite(time) || (wanted < kSmallest && factor < 1) || (wanted > kWidest && factor > 1))
        return *this;
    if (!(width() > 0)) // that of a record of one moment, which no factor widens
        return {mBegin - kNarrowHalf, mBegin + kNarrowHalf};
    return {time - (time - mBegin) * factor, time - (time - mEnd) * factor};
}

TimeWindow TimeWindow::keeping(double time) const
{
    const auto width = static_cast<float>(this->width());
    const auto margin = static_cast<double>(kEdge * width);
    TimeWindow window = *this;
    if (window.mBegin + margin > time)
        window = {time - margin, time - margin + static_cast<double>(width)};
    if (window.mEnd - margin < time)
        window = {time + margin - static_cast<double>(width), time + margin};
    return window;
}

float TimeWindow::widthZoomed(bool isIn) const
{
    const auto width = static_cast<float>(this->width());
    return isIn ? std::min(width * kHeldZoom, kHeldInLimit) : std::max(width / kHeldZoom, kHeldOutLimit);
}

} // namespace ZARN
