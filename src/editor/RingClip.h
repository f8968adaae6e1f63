// Rings that reach far outside the canvas are cut before they are rounded to pixels.
#pragma once

#include "editor/ViewState.h"
#include "platform/Surface.h"

#include <span>
#include <vector>

namespace landsmith {

/// The sides of the canvas, `margin` pixels farther out.
struct CanvasFrame {
  double left = 0, top = 0, right = 0, bottom = 0;
};
CanvasFrame FrameOf(const ViewState& view, double margin);

/// Leaves out the inner vertices of every stretch that lies beyond one side of `frame`: inside the frame the
/// ring fills the same pixels and shows the same edges. Vertices that are no numbers fall out.
std::vector<CanvasPoint> WithoutHiddenStretches(std::span<const CanvasPoint> ring, const CanvasFrame& frame);

/// The ring inside a square of 30,000 pixels around the origin, with edges along its border.
std::vector<CanvasPoint> CutFarParts(std::vector<CanvasPoint> ring);

/// Rounded, vertices that fall on the pixel of the one before left out: the same picture.
std::vector<PixelPoint> RoundedRing(std::span<const CanvasPoint> ring);

}  // namespace landsmith
