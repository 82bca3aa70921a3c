#include "ui/graph/model/AxisInteraction.h"

#include "ui/graph/model/ValueZoom.h"

namespace ZARN {

bool AxisInteraction::press(const GraphLayout& layout, const QPointF& point)
{
    mIndex = axisAt(layout, point);
    if (mIndex < 0)
        return false;
    mSpan = mModel.valueSpan(mIndex);
    mStart = point.y();
    mHeight = std::max(1.0, layout.area(mIndex).height());
    return true;
}

void AxisInteraction::move(const QPointF& point)
{
    const double way = (point.y() - mStart) / mHeight * (mSpan[1] - mSpan[0]);
    if (isOn() && way != 0.0)
        ValueZoom(mModel).set(mIndex, {mSpan[0] + way, mSpan[1] + way});
}

bool AxisInteraction::zoom(const GraphLayout& layout, const QPointF& point, double factor)
{
    const int index = axisAt(layout, point);
    if (index < 0)
        return false;
    ValueZoom(mModel).zoom(index, valueAt(point.y(), layout.area(index), mModel.valueSpan(index)), factor);
    return true;
}

bool AxisInteraction::toggleFit(const GraphLayout& layout, const QPointF& point)
{
    const int index = axisAt(layout, point);
    ValueZoom(mModel).toggleFit(index);
    return index >= 0;
}

} // namespace ZARN
