// The pixels of small filled quads, found without a painter.
//
// A painter spends most of its time on setting up a polygon, and a map of a million vertices is a million
// polygons of a few pixels. This sets exactly the pixels that the Qt painter sets for a polygon with a solid
// brush and a solid pen of one pixel in the same colour, not antialiased: an odd-even fill sampled at pixel
// centres, and an outline with the painter's rule for pixels doubled or missed where edges meet.
#pragma once

#include "platform/Surface.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace landsmith {

/// Corners around the quad.
using PixelQuad = std::array<PixelPoint, 4>;

/// Adds the quad's pixels to `spans`. False, and nothing added, when the quad is wider or higher than 64
/// pixels or begins and ends in one place: then a painter must do it.
bool AppendQuad(const PixelQuad& quad, std::vector<PixelSpan>& spans);

}  // namespace landsmith
