// Filled rings that no painter fills in reasonable time.
//
// A painter keeps the edges that cross a row sorted; a ring of a hundred thousand spikes has all of them in
// every row, and fills for half a minute. Here each edge turns one bit a row, so the order does not matter,
// and spikes far thinner than a pixel are left out until the work is bounded.
#pragma once

#include "platform/Surface.h"

#include <cstdint>
#include <span>

namespace landsmith {

/// How many pairs of an edge and a row of the canvas the ring has.
std::int64_t CountCrossings(std::span<const PixelPoint> ring, std::int32_t height);

/// Up to this many crossings a painter is quick enough, and decides each pixel.
inline constexpr std::int64_t PainterCrossings = 1'000'000;

struct RingColors {
  std::int32_t border = 0;
  std::int32_t fill = 0;
  bool filled = true;
};

/// Paints the part of the ring that lies on the surface.
void PaintHugeRing(Surface& surface, std::span<const PixelPoint> ring, const RingColors& colors);

}  // namespace landsmith
