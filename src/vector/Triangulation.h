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
  bool HasFault = false;            ///< a round found no ear: the ring crosses itself or runs the other way
};

/// `ring`: clockwise on the map, the first vertex not repeated. Each round clips the first ear from the
/// second vertex on. A ring of fewer than 3 vertices has no triangles.
Triangulation TriangulateRing(std::span<const LatLon> ring);

}  // namespace landsmith
