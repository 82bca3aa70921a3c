#pragma once

namespace ZARN {

/// Where the cursor stands.
struct GraphCursor {
    double time = 0.0; ///< seconds
    double value = 0.0;
    int strip = 0;         ///< the slot of the trace in whose strip it is
    bool isMoving = false; ///< the user moves it now: its height is drawn
};

} // namespace ZARN
