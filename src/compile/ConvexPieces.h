// The convex parts of a piece in a Cell.
#pragma once

#include "vector/ConvexParts.h"

#include <span>
#include <vector>

namespace landsmith {

/// `ring`: a piece of ClipPolyToCells. Repeated points and spikes hide dents from the cutting into parts;
/// they are taken out where a part would not be convex with them. A ring that crosses itself still gives
/// convex parts inside its box.
std::vector<ConvexPart> ConvexPieces(std::span<const CellPoint> ring);

}  // namespace landsmith
