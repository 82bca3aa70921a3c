#include "ui/graph/model/GraphFrame.h"

#include <cmath>

namespace ZARN {

void GraphFrame::update(const GraphModel& model, const QSizeF& size, double textSize, double ratio)
{
    mLayout = GraphLayout(model, size, textSize);
    const auto columns = static_cast<int>(std::lround(mLayout.plot().width() * ratio));
    mTraces.update(model.traces(), model.window(), columns);
    mGhost.update(model, mLayout, ratio);
}

} // namespace ZARN
