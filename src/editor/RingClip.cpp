#include "editor/RingClip.h"

#include "editor/PaintHelpers.h"

#include <algorithm>
#include <cmath>

namespace landsmith {

namespace {

/// One bit for each side of the frame that the point lies beyond.
unsigned SidesBeyond(CanvasPoint at, const CanvasFrame& frame) {
  return (at.x < frame.left ? 1U : 0U) | (at.x > frame.right ? 2U : 0U) | (at.y < frame.top ? 4U : 0U) |
         (at.y > frame.bottom ? 8U : 0U);
}

bool IsFar(CanvasPoint at) {
  return std::abs(at.x) > FarPixel || std::abs(at.y) > FarPixel;
}

/// Keeps what lies on the inner side of one border; `depth` is above 0 inside.
template <class Depth>
std::vector<CanvasPoint> CutAtBorder(const std::vector<CanvasPoint>& ring, Depth depth) {
  std::vector<CanvasPoint> cut;
  cut.reserve(ring.size() + 4);
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const CanvasPoint& from = ring[i == 0 ? ring.size() - 1 : i - 1];
    const CanvasPoint& to = ring[i];
    const double d1 = depth(from), d2 = depth(to);
    if ((d1 < 0) != (d2 < 0)) {
      const double part = d1 / (d1 - d2);
      cut.push_back({from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part});
    }
    if (d2 >= 0) cut.push_back(to);
  }
  return cut;
}

}  // namespace

CanvasFrame FrameOf(const ViewState& view, double margin) {
  return {-margin, -margin, view.ScaleWidth + margin, view.ScaleHeight + margin};
}

std::vector<CanvasPoint> WithoutHiddenStretches(std::span<const CanvasPoint> ring, const CanvasFrame& frame) {
  std::vector<CanvasPoint> kept;
  unsigned shared = 0;  // sides that the last two kept points both lie beyond
  unsigned last = 0;
  for (const CanvasPoint& at : ring) {
    if (!std::isfinite(at.x) || !std::isfinite(at.y)) continue;
    const unsigned sides = SidesBeyond(at, frame);
    if ((shared & sides) != 0) {
      kept.back() = at;
      shared &= sides;
    } else {
      shared = kept.empty() ? 0 : last & sides;
      kept.push_back(at);
    }
    last = sides;
  }
  return kept;
}

std::vector<CanvasPoint> CutFarParts(std::vector<CanvasPoint> ring) {
  if (std::none_of(ring.begin(), ring.end(), IsFar)) return ring;
  ring = CutAtBorder(ring, [](CanvasPoint at) { return at.x + FarPixel; });
  ring = CutAtBorder(ring, [](CanvasPoint at) { return FarPixel - at.x; });
  ring = CutAtBorder(ring, [](CanvasPoint at) { return at.y + FarPixel; });
  return CutAtBorder(ring, [](CanvasPoint at) { return FarPixel - at.y; });
}

std::vector<PixelPoint> RoundedRing(std::span<const CanvasPoint> ring) {
  std::vector<PixelPoint> pixels;
  pixels.reserve(ring.size());
  for (const CanvasPoint& at : ring) {
    const PixelPoint pixel = HeldPixel(at);
    if (pixels.empty() || !(pixels.back() == pixel)) pixels.push_back(pixel);
  }
  return pixels;
}

}  // namespace landsmith
