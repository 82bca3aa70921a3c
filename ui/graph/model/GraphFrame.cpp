#include "ui/graph/model/GraphFrame.h"

#include <cmath>

namespace ZARN {

void GraphFrame::update(const GraphModel& model, const QSizeF& size, double textSize, double ratio)
{
    mLayout = GraphLayout(model, size, textSize);
    mTraces.update(model.traces(), model.window(), static_cast<int>(std::lround(mLayout.plot().width() * ratio)));
}

} // namespace ZARN
