#pragma once

#include <QPointF>

#include <span>
#include <vector>

namespace ZARN {

/// Cuts a simple polygon into triangles, three points each, by cutting off ears. Quadratic in the number of points. A polygon that
/// crosses itself gives triangles too, of which only the number is bounded; one with a coordinate that is not finite gives none.
[[nodiscard]] std::vector<QPointF> triangulate(std::span<const QPointF> points);

/// A regular polygon that stands for a circle around the origin.
[[nodiscard]] std::vector<QPointF> circle(double radius, int corners);

} // namespace ZARN
