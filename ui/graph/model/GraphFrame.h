#pragma once

#include "ui/graph/model/FrameCache.h"
#include "ui/graph/model/GhostLines.h"

namespace ZARN {

/// What one picture of a graph is made of: all that is computed before it is drawn. Kept from one picture to the next by whoever draws, for
/// what has not changed is not made again.
class GraphFrame {
public:
    /// @param size of the view  @param textSize em height in pixels  @param ratio pixels of the screen for each of the view's
    void update(const GraphModel& model, const QSizeF& size, double textSize, double ratio);

    [[nodiscard]] const GraphLayout& layout() const { return mLayout; }
    [[nodiscard]] const FrameCache& traces() const { return mTraces; }
    [[nodiscard]] FrameCache& traces() { return mTraces; }
    /// Those of what the traces are compared with.
    [[nodiscard]] const GhostLines& ghost() const { return mGhost; }

private:
    GraphLayout mLayout;
    FrameCache mTraces;
    GhostLines mGhost;
};

} // namespace ZARN
