#include "ui/graph/model/GraphFrame.h"

#include <cmath>

namespace ZARN {

void GraphFrame::update(const GraphModel& model, const QSizeF& size, double textSize, double ratio)
{
    mTraces.setGapsOn(model.settings().gapsOn);
    mLayout = GraphLayout(model, size, textSize);
    const auto columns = static_cast<int>(std::lround(mLayout.plot().width() * ratio));
    mTraces.update(model.traces(), model.window(), columns);
    if (mpGhost != model.scenery().ghost())
        mGhost = FrameCache();
    mpGhost = model.scenery().ghost();
    if (!mpGhost)
        return;
    mGhost.setGapsOn(model.settings().gapsOn);
    // In one area for all, those of every trace would hide each other.
    const int only = model.settings().displayMode == eSplit ? -1 : model.traces().axis();
    // It stands behind: every second column, with the extremes of two, tells as much at half the cost.
    mGhost.update(mpGhost->traces, model.window().movedBy(-model.scenery().ghostShift()), (columns + 1) / 2, only);
}

} // namespace ZARN
