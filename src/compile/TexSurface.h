// A textured polygon as it is drawn: triangles over vertices in metres around the polygon's middle.
#pragma once

#include "core/GeoTypes.h"
#include "core/Records.h"
#include "vector/PolyType.h"
#include "vector/Triangulation.h"

#include <cstdint>
#include <vector>

namespace landsmith {

struct TexVertex {
  double X = 0, Y = 0, Z = 0;  ///< metres to the east of, above and to the north of the middle
  float U = 0, V = 0;          ///< 1 is one whole bitmap
};

struct TexSurface {
  LatLon Middle;  ///< mean of the vertices
  double MiddleAlt = 0;
  std::int32_t RadiusMetres = 0;    ///< reaches 20 m past a box that holds the vertices
  std::vector<TexVertex> Vertices;  ///< clockwise on the map
  Triangulation Parts;
};

/// Where a surface can be seen: within 100 km of sea level.
bool IsTexAltitude(float metres);

/// `points`: 3 vertices or more; `type`: with one pair for each of them, in the same order. Where the ring is
/// turned round the pairs are too. Throws RuntimeError that says what is wrong, not whose it is, for a pair,
/// TileX or TileY that is no 32-bit number, and for a vertex that lies nowhere in the world.
TexSurface MakeTexSurface(const std::vector<PolyPoint>& points, const TexPolyType& type);

}  // namespace landsmith
