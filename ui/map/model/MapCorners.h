#pragma once

#include "ui/map/model/PathLegend.h"

#include <optional>
#include <span>
#include <vector>

namespace ZARN {

/// What stands in the corners of a map's window, in its pixels. None of it lies upon another, and a path is fitted into what it leaves.
struct MapCorners {
    /// Where the legend stands, and how.
    struct Legend {
        QRectF box;
        PathLegend::EForm form = PathLegend::eFull;
    };

    QSizeF window;
    QRectF tools;   ///< left above
    QRectF sources; ///< right below: who made the map
    QRectF bar;     ///< left below: the scale with its length
    QRectF words;   ///< above the scale: what is told of the place under the pointer, and whatever else is told there

    /// In the right upper corner, beside the tools or else below them; on one line where there is no room for more, and at last nowhere.
    [[nodiscard]] std::optional<Legend> legend(const PathLegend& legend) const;
    /// What a path keeps clear of. The words do not count, which come and go.
    [[nodiscard]] std::vector<QRectF> covers(const PathLegend& legend) const;
    /// The largest parts of a window that nothing covers, each more than half as wide and as high as the window; else all of it.
    [[nodiscard]] static std::vector<QRectF> freeAreas(const QSizeF& window, std::span<const QRectF> covers);
};

} // namespace ZARN
