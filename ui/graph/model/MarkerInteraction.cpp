#include "ui/graph/model/MarkerInteraction.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

bool MarkerInteraction::isEnd(const GraphLayout& layout, const QPointF& point) const
{
    const auto [start, end] = mModel.marker();
    const auto distance = [&](double time) { return std::abs(layout.xOf(time) - point.x()); };
    return mModel.marker().isRange() && layout.plot().contains(point) && std::min(distance(start), distance(end)) < kReach;
}

bool MarkerInteraction::take(const GraphLayout& layout, const QPointF& point)
{
    if (!isEnd(layout, point))
        return false;
    const auto [start, end] = mModel.marker();
    mFixed = std::abs(layout.xOf(start) - point.x()) < std::abs(layout.xOf(end) - point.x()) ? end : start;
    mIsOn = true;
    return true;
}

void MarkerInteraction::begin(double time)
{
    mIsOn = true;
    mFixed = time;
    move(time);
}

void MarkerInteraction::release()
{
    mModel.setMarker(mModel.marker().ordered());
    if (mIsOn && mModel.marker().isRange())
        send();
    mIsOn = false;
}

void MarkerInteraction::extend(double time)
{
    mModel.setMarker(mModel.marker().extendedTo(time));
    send();
}

void MarkerInteraction::moveEnd(const GraphLayout& layout, bool isStart, double pixels)
{
    GraphMarker marker = mModel.marker();
    if (marker == GraphMarker())
        marker.start = marker.end = mModel.cursor().time;
    double& time = isStart ? marker.start : marker.end;
    time += pixels / layout.pixelsPerSecond();
    const double moved = time;
    mModel.setMarker(marker.ordered());
    if (!mModel.window().contains(moved))
        mModel.setWindow(mModel.window().keeping(moved));
    send();
}

void MarkerInteraction::clear()
{
    mIsOn = false;
    mModel.setMarker({});
    send();
}

void MarkerInteraction::send()
{
    Q_EMIT mModel.signalMarker(static_cast<float>(mModel.marker().start), static_cast<float>(mModel.marker().end));
}

} // namespace ZARN
