// The rotated footprint of an object: corners, nose and box.
#pragma once

#include "core/Grid.h"
#include "core/Records.h"

namespace landsmith {

/// Corners and nose in metres from heading and size, and the box in degrees with the scale at hand: no cosine
/// of the object's own latitude, as the canvas shows it.
void ComputeObjectFootprint(ObjectRec& object, const ViewScale& scale);

}  // namespace landsmith
