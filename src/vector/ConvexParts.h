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
/// back as its only part. Where no part can be cut off, which is so in rings that touch or cross themselves
/// alone, the vertex with the smallest turn is left out and the work goes on; it always ends. The parts stand
/// in the order in which they are cut off, the first possible one first.
std::vector<ConvexPart> DecomposeConvex(std::span<const CellPoint> ring);

}  // namespace landsmith
