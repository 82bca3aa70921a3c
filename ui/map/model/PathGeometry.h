#pragma once

#include "ui/map/model/MapPath.h"

#include <vector>

class QRectF;

namespace ZARN {

/// The lines that show the path in a window. What lies far outside is left out, and so are points that the line passes by a third of a pixel, so
/// that a day's path costs no more than what can be seen of it. Kept while the view only moves: a pan costs a translation.
class PathGeometry {
public:
    using Strip = std::vector<QPointF>;
    static constexpr std::size_t kMaxVertices = 12000;

    /// Brings the strips up to date.
    void update(const MapPath& path, const OpenStreet::Camera& camera);
    /// In pixels, relative to offset().
    [[nodiscard]] const std::vector<Strip>& strips() const { return mStrips; }
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
        friend bool operator==(const Key&, const Key&) = default;
    };

    void build(const MapPath& path, const OpenStreet::Camera& camera, double tolerance);

    /// Draws on to a point, or begins a strip where the box is entered. @return whether the strip goes on from there
    bool addStretch(QPointF from, QPointF to, const QRectF& box, bool isOpen);

    Key mKey;
    std::vector<Strip> mStrips;
    QPointF mOffset;
    QPointF mBuiltOffset; // for which the strips were cut to the window
    int mBuilds = 0;
};

} // namespace ZARN
