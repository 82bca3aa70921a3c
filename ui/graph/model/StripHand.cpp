#include "ui/graph/model/StripHand.h"

#include "project/DisplayLayout.h"

#include <algorithm>

namespace ZARN {

namespace {

constexpr double kLeast = DisplayLayout::kLeastHeight, kGreatest = DisplayLayout::kGreatestHeight;

} // namespace

bool StripHand::press(const GraphLayout& layout, const QPointF& point)
{
    const std::vector<int>& shown = mModel.traces().shown();
    mUpper = layout.edgeAt(mModel, point);
    if (mUpper < 0)
        return false;
    mLower = *(std::ranges::find(shown, mUpper) + 1);
    mStart = point.y();
    mUpperHeight = mModel.traces().at(mUpper)->height;
    mBoth = mUpperHeight + mModel.traces().at(mLower)->height;
    mPixels = std::max(1.0, layout.area(mUpper).height() / mUpperHeight);
    return true;
}

void StripHand::move(const QPointF& point)
{
    if (!isOn())
        return;
    const double least = std::max(kLeast, mBoth - kGreatest), most = std::max(least, std::min(kGreatest, mBoth - kLeast));
    const double height = std::clamp(mUpperHeight + (point.y() - mStart) / mPixels, least, most);
    mModel.traces().setHeight(mUpper, height);
    mModel.traces().setHeight(mLower, mBoth - height);
}

void StripHand::release()
{
    if (isOn())
        Q_EMIT mModel.signalStrips();
    mUpper = -1;
}

bool StripHand::moveTo(int index, int target)
{
    if (!mModel.traces().move(index, target))
        return false;
    Q_EMIT mModel.signalMoveParameter(index, target);
    return true;
}

void StripHand::scale(int index, double factor)
{
    if (!isShown(mModel.traces(), index))
        return;
    mModel.traces().setHeight(index, std::clamp(mModel.traces().at(index)->height * factor, kLeast, kGreatest));
    Q_EMIT mModel.signalStrips();
}

} // namespace ZARN
