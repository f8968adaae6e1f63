// The edit command that aligns vertices to the lattice of Points.
#pragma once

#include "core/Project.h"

#include <cstdint>
#include <string>

namespace landsmith {

struct SnapResult {
  std::int32_t Verified = 0;    ///< points looked at
  std::int32_t Eliminated = 0;  ///< points dropped because they met their neighbour
};

/// What the author is told afterwards.
std::string SnapReport(const SnapResult& result);

/// Selected lines go to the Points of their Cell, selected polygons to those of their Area. A line left
/// without 2 points, a polygon without 3, is deleted. No question, no message.
SnapResult SnapSelectedToLod21(ProjectState& project);

}  // namespace landsmith
