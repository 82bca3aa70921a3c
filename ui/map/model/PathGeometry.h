#pragma once

#include "ui/map/model/MapPath.h"
#include "ui/map/model/PathTint.h"

#include <vector>

class QRectF;

namespace ZARN {

/// The lines that show the path, or a part of it, in a window. What lies far outside is left out, and so are points that the line passes by a
/// third of a pixel, so that a day's path costs no more than what can be seen of it. Kept while the view only moves: a pan costs a translation.
class PathGeometry {
public:
    static constexpr std::size_t kMaxVertices = 12000;

    /// In pixels, relative to offset().
    struct Strip {
        std::vector<QPointF> points;
        std::vector<QColor> colours; ///< one for each point; empty: all have the path's own
        bool isDashed = false;       ///< nothing was received there
    };
    /// Where a mark of the direction stands, and the way it points, of length 1.
    struct Arrow {
        QPointF place;
        QPointF way;
    };
    /// What of a path is wanted.
    struct Part {
        std::size_t first = 0; ///< point
        std::size_t last = 0;  ///< the one behind the last
        const PathTint* pTint = nullptr; ///< null: in the path's own colour
        int tintGeneration = 0;          ///< changes with the tint
        friend bool operator==(const Part&, const Part&) = default;
    };

    /// Brings the strips up to date.
    void update(const MapPath& path, const OpenStreet::Camera& camera, const Part& part);
    /// The whole path in its own colour.
    void update(const MapPath& path, const OpenStreet::Camera& camera) { update(path, camera, {0, path.points().size()}); }
    [[nodiscard]] const std::vector<Strip>& strips() const { return mStrips; }
    [[nodiscard]] const std::vector<Arrow>& arrows() const { return mArrows; }
    /// Where the origin of the strips lies in the window.
    [[nodiscard]] QPointF offset() const { return mOffset; }
    [[nodiscard]] std::size_t vertexCount() const;
    /// How often the strips were made.
    [[nodiscard]] int builds() const { return mBuilds; }

private:
    /// What the strips depend on beside the position.
    struct Key {
        int generation = -1;
        int width = 0;
        int height = 0;
        double metresPerPixel = 0.0;
        double xOfX = 0.0, yOfX = 0.0, yOfY = 0.0; ///< how the map is turned
        Part part;
        friend bool operator==(const Key&, const Key&) = default;
    };

    void build(const MapPath& path, const OpenStreet::Camera& camera, double tolerance);
    void placeArrows();

    Key mKey;
    std::vector<Strip> mStrips;
    std::vector<Arrow> mArrows;
    QPointF mOffset;
    QPointF mBuiltOffset; // for which the strips were cut to the window
    int mBuilds = 0;
};

} // namespace ZARN
