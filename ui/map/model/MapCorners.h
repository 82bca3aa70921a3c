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

    /// Puts the legend where there is room for it: in the right upper corner, beside the tools or else below them; on one line where
    /// there is no room for more, or none for the path; at last nowhere.
    void place(const PathLegend& pathLegend);
    /// What a path keeps clear of. The words do not count, which come and go.
    [[nodiscard]] std::vector<QRectF> covers() const;
    /// The largest parts of a window that nothing covers, each of a good part of its width and height; else all of it.
    [[nodiscard]] static std::vector<QRectF> freeAreas(const QSizeF& window, std::span<const QRectF> covers);

    QSizeF window;
    QRectF tools;   ///< left above
    QRectF sources; ///< right below: who made the map
    QRectF bar;     ///< left below: the scale with its length
    QRectF words;   ///< above the scale: what is told of the place under the pointer, and whatever else is told there
    std::optional<Legend> legend;
};

} // namespace ZARN
