#pragma once

#include "openstreet/core/TileCover.h"
#include "vesk/gl/Vertex.h"

#include <QRectF>

#include <vector>

namespace OpenStreet {

/// The triangles with which a tile is drawn where the camera sees it.
/// @param part of the texture that covers the tile: the whole of the tile's own, a piece of one that stands in for it.
[[nodiscard]] std::vector<VESK::OpenGL::Vertex> tileTriangles(const Camera& camera, const TilePlace& place, const QRectF& part);

/// Which part of an ancestor's picture shows the tile: 0..1 from the left upper corner.
[[nodiscard]] QRectF partOfAncestor(const TileId& id, const TileId& ancestor);

} // namespace OpenStreet
