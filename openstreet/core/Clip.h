#pragma once

#include "openstreet/core/BaseMap.h"

namespace OpenStreet {

/// The parts of outlines and lines within a rectangle. An outline stays closed: it follows the rectangle's edges where it was cut.
[[nodiscard]] std::vector<BaseMap::Area> clipAreas(const std::vector<BaseMap::Area>& areas, const QRectF& box);
[[nodiscard]] std::vector<BaseMap::Line> clipLines(const std::vector<BaseMap::Line>& lines, const QRectF& box);
/// The part of a stretch within a rectangle. @return false, with the ends unchanged, when there is none.
[[nodiscard]] bool clipStretch(QPointF& from, QPointF& to, const QRectF& box);

} // namespace OpenStreet
