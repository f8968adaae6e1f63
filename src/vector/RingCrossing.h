// Whether a ring crosses itself, decided exactly on whole numbers.
//
// Two parts of a ring cross where one comes in on one side of the other and goes on to the far side: in the
// middle of two edges, or where a vertex lies on another edge or vertex. Parts that only touch do not cross,
// nor does an edge that runs back on the one before. Parts that share a stretch of a line are not followed
// along it: that they change sides there is not seen.
#pragma once

#include "core/GeoTypes.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace landsmith {

/// The last vertex is not repeated. Coordinates from -LargestRingCoordinate to LargestRingCoordinate.
struct RingVertex {
  std::int32_t X = 0, Y = 0;
  bool operator==(const RingVertex&) const = default;
};

inline constexpr std::int32_t LargestRingCoordinate = 1 << 29;

struct RingPlace {
  double X = 0, Y = 0;
};

/// A place where the ring crosses itself, where there is one: the westernmost if several edges meet in none
/// of them, otherwise one of the western ones. Repeated vertices count once. The work grows with n log n.
std::optional<RingPlace> FindRingCrossing(std::span<const RingVertex> ring);

/// Twice the area that the ring runs round, negative when it runs against the turn from X to Y.
std::int64_t TwiceRingArea(std::span<const RingVertex> ring);

}  // namespace landsmith
