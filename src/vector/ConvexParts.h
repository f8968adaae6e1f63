// Rings of whole numbers cut into convex parts, as vector terrain wants its polygons.
#pragma once

#include "core/Grid.h"

#include <span>
#include <vector>

namespace landsmith {

/// One convex polygon, clockwise on the map like the ring it comes from.
using ConvexPart = std::vector<CellPoint>;

/// `ring`: points of a Cell, Y to the south, clockwise on the map, the first not repeated. Coordinates of
/// -100000 to 100000. A vertex where the ring runs straight on counts as convex. A ring that is convex comes
/// back as its only part.
///
/// The parts stand in the order in which they are cut off. Each time the first vertex in the ring's order is
/// sought from which a triangle with the next two can be cut off, that is, the middle one is not reflex and
/// none that is reflex or straight lies inside; from there the part goes on along the ring, not past its last
/// vertex, as long as it stays convex and free of such vertices. Parts begin with that first vertex and keep
/// the ring's direction. When no reflex vertex is left the rest is the last part.
///
/// The parts of a ring that neither crosses nor touches itself tile it exactly; where vertices lie in line, a
/// part may have no area. Where nothing can be cut off, which is so in other rings alone, the vertex whose
/// turn is smallest in size, the first of several, leaves the ring without a part, so it always ends. Parts
/// with fewer than three different points are left out, and so is a ring of fewer than 3 vertices. The time
/// grows about as n log n.
std::vector<ConvexPart> DecomposeConvex(std::span<const CellPoint> ring);

}  // namespace landsmith
