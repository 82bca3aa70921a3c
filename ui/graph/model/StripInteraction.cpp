#include "ui/graph/model/StripInteraction.h"

#include "project/DisplayLayout.h"

#include <algorithm>
#include <cmath>

namespace ZARN {

namespace {

constexpr double kReach = 4.0; // pixels beside an edge
constexpr double kLeast = DisplayLayout::kLeastHeight, kGreatest = DisplayLayout::kGreatestHeight;

} // namespace

int StripInteraction::edgeAt(const GraphLayout& layout, const QPointF& point) const
{
    const std::vector<int>& shown = mModel.traces().shown();
    if (mModel.settings().displayMode != eSplit || point.x() < 0 || point.x() >= layout.plot().left())
        return -1;
    for (std::size_t i = 0; i + 1 < shown.size(); ++i) {
        if (std::abs(layout.area(shown[i]).bottom() - point.y()) < kReach)
            return shown[i];
    }
    return -1;
}

bool StripInteraction::press(const GraphLayout& layout, const QPointF& point)
{
    const std::vector<int>& shown = mModel.traces().shown();
    mUpper = edgeAt(layout, point);
    if (mUpper < 0)
        return false;
    mLower = *(std::ranges::find(shown, mUpper) + 1);
    mStart = point.y();
    mUpperHeight = mModel.traces().at(mUpper)->height;
    mBoth = mUpperHeight + mModel.traces().at(mLower)->height;
    mPixels = std::max(1.0, layout.area(mUpper).height() / mUpperHeight);
    return true;
}

void StripInteraction::move(const QPointF& point)
{
    if (!isOn())
        return;
    const double least = std::max(kLeast, mBoth - kGreatest), most = std::max(least, std::min(kGreatest, mBoth - kLeast));
    const double height = std::clamp(mUpperHeight + (point.y() - mStart) / mPixels, least, most);
    setHeight(mUpper, height);
    setHeight(mLower, mBoth - height);
}

void StripInteraction::setHeight(int index, double strips)
{
    mModel.traces().edit(index, [strips](GraphParameter& trace) { trace.height = strips; });
}

void StripInteraction::release()
{
    if (isOn())
        Q_EMIT mModel.signalStrips();
    mUpper = -1;
}

bool StripInteraction::moveTo(int index, int target)
{
    if (!mModel.traces().move(index, target))
        return false;
    Q_EMIT mModel.signalMoveParameter(index, target);
    return true;
}

void StripInteraction::scale(int index, double factor)
{
    if (!isShown(mModel.traces(), index))
        return;
    setHeight(index, std::clamp(mModel.traces().at(index)->height * factor, kLeast, kGreatest));
    Q_EMIT mModel.signalStrips();
}

} // namespace ZARN
