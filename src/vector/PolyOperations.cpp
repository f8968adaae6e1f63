#include "vector/PolyOperations.h"

namespace landsmith {

void PointsChanged(PolyRec&) {}
void PointsMoved(PolyRec&) {}

}  // namespace landsmith
