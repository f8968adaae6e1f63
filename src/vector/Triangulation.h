// Rings of decimal points cut into triangles by clipping ears, as textured polygons are drawn.
#pragma once

#include "core/GeoTypes.h"

#include <cstdint>
#include <span>
#include <vector>

namespace landsmith {

/// 0-based places in the ring, in its direction.
struct Triangle {
  std::int32_t A = 0, B = 0, C = 0;
  bool operator==(const Triangle&) const = default;
};

struct Triangulation {
  std::vector<Triangle> Triangles;  ///< in the order in which the ears are clipped; always ring size - 2
  bool HasFault = false;            ///< a round found no ear: the ring meets itself or runs the other way
};

/// `ring`: in degrees, finite, clockwise on the map, the first vertex not repeated. Each round clips the
/// first ear from the second vertex on: the vertex before it, itself and the one behind it make a triangle;
/// the last three vertices make the last one. An ear is a vertex that is not reflex and whose triangle holds
/// no other vertex; of the points on a triangle's edges those on its western ones are inside.
///
/// A round without an ear clips at the place where the round before did, the very first one at the second
/// vertex, and none behind the last vertex: the triangles are then complete in number and may overlap. Before
/// that is settled the ring is tried once more with coordinates rounded so that the arithmetic is exact (to
/// 2^-24 of its extent); if no round fails then, those triangles count and there is no fault.
///
/// A ring of fewer than 3 vertices has no triangles. The time grows about as n log n.
Triangulation TriangulateRing(std::span<const LatLon> ring);

}  // namespace landsmith
