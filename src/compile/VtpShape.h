// From a run of vertices to the strip that the simulator draws: corners at both ends, and steps in place of
// positions wherever they fit.
#pragma once

#include "compile/VtpClip.h"

namespace landsmith {

/// Fills the free slots: each end becomes a pair of corners across the strip, half the width to each side.
/// The corners at the end of a run of two vertices take their direction from the corner already moved. An end
/// of length 0 keeps both corners at the vertex. `run` holds 4 points or more.
void AddLineEnds(LineRun& run);

/// Gives each point its Kind and WidthByte: steps of -1022 to 1022, at most 7 in a row, behind an absolute
/// point that counts them. A point whose width is that of the point before it has WidthByte 0. Throws
/// RuntimeError for a width that is no byte.
void PackRunPoints(LineRun& run);

}  // namespace landsmith
