#pragma once

#include <algorithm>

namespace ZARN {

/// What of a list of rows has room.
struct VisibleRows {
    int first = 0;
    int count = 0;
    int all = 0;
    VisibleRows() = default;
    /// @param first wanted; no row below the last is shown
    VisibleRows(int wanted, int room, int rows)
        : first(std::clamp(wanted, 0, std::max(0, rows - room))), count(std::min(room, rows)), all(rows)
    {
    }
    [[nodiscard]] bool isCut() const { return count < all; }
};

} // namespace ZARN
