#pragma once

#include "openstreet/core/TileCover.h"
#include "vesk/gl/Vertex.h"

#include <QRectF>

#include <vector>

namespace OpenStreet {

/// The triangles with which a tile is drawn where the camera sees it.
/// @param part of the texture that covers the tile: the whole of the tile's own, a piece of one that stands in for it.
[[nodiscard]] std::vector<VESK::OpenGL::Vertex> tileTriangles(const Camera& camera, const TilePlace& place, const QRectF& part);

} // namespace OpenStreet
