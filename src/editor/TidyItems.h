// The automatic check of lines and polygons: fewer vertices where they crowd, rounder corners.
#pragma once

#include "core/Project.h"
#include "vector/Selection.h"
#include "vector/Tidy.h"

#include <cstddef>
#include <span>

namespace landsmith {

enum class CheckMode { Cancel, Manual, Simplify, Smooth };

/// What `frmLPCheck` was told.
struct CheckRequest {
  CheckMode Mode = CheckMode::Cancel;
  float DistanceMetres = 15;  ///< negative when it was typed for smoothing; the sign has no other meaning
  SmoothOptions Smooth;
};
/// The mode that a distance stands for when the check is to run by itself.
constexpr CheckMode AutomaticMode(float distanceMetres) {
  return distanceMetres < 0 ? CheckMode::Smooth : CheckMode::Simplify;
}

/// Runs the check on the items, 0-based and ascending. The selection no longer counts what has gone. Nothing
/// happens in the modes Cancel and Manual. `centerLat`: latitude of the view's centre.
void TidyLines(ProjectState& project, std::span<const std::size_t> lines, const CheckRequest& request,
               double centerLat, Selection& selection);
/// The same for polygons; one that collapses is deleted. Returns how many were.
std::size_t TidyPolys(ProjectState& project, std::span<const std::size_t> polys, const CheckRequest& request,
                      double centerLat, Selection& selection);

}  // namespace landsmith
